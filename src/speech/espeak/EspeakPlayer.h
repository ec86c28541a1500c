// Plays texts with espeak-ng, through the desktop's sound server or else the library's own output.
#pragma once

#include <memory>
#include <optional>

#include "speech/SpeechWorker.h"
#include "speech/espeak/EspeakLibrary.h"
#include "speech/espeak/EspeakVoices.h"
#include "speech/espeak/LibraryPlayback.h"
#include "speech/espeak/PulseStream.h"

namespace qves {

class EspeakPlayer : public SpeechPlayer {
 public:
  EspeakPlayer(std::shared_ptr<EspeakVoiceBox> voices, int backEnd);
  void Start(Signal& wake) override;
  bool Play(const Utterance& text, PlayControl& control) override;
  SteadyClock::time_point Rest() override;

 private:
  enum class Output { Stream, Library, Nothing };

  Output ChooseOutput();
  Output OutputWithoutStream();
  const std::string& KeyFor(const Voice& voice) const;
  bool PlayOn(Output chosen, const Utterance& text, PlayControl& control);

  std::shared_ptr<EspeakVoiceBox> box;
  int backEnd;
  std::vector<Voice> voices;
  EspeakLibrary library;
  std::optional<PulseStream> stream;
  std::optional<LibraryPlayback> playback;
  Output output = Output::Nothing;
  SteadyClock::time_point nextLook;  // for a better output
  SteadyClock::time_point lastPlayed = SteadyClock::now();
  bool lastInterrupted = true;
  bool awake = false;  // the stream keeps the sound device awake
};

}  // namespace qves
