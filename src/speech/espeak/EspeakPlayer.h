// Plays texts with espeak-ng, through the desktop's sound server or else the library's own output.
#pragma once

#include <memory>
#include <optional>

#include "speech/SpeechWorker.h"
#include "speech/espeak/EspeakLibrary.h"
#include "speech/espeak/EspeakVoices.h"
#include "speech/espeak/LibraryPlayback.h"
#include "speech/espeak/PulseStream.h"
#include "speech/espeak/SoundDevice.h"

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
  void NoticeDevice();
  Output OutputWithoutStream();
  const std::string& KeyFor(const Voice& voice) const;
  bool PlayOn(Output chosen, const Utterance& text, PlayControl& control);

  std::shared_ptr<EspeakVoiceBox> Box;
  int BackEnd;
  std::vector<Voice> Voices;
  EspeakLibrary Library;
  std::optional<PulseStream> Stream;
  std::optional<LibraryPlayback> Playback;
  Output CurrentOutput = Output::Nothing;
  SteadyClock::time_point NextLook;  // for a better output
  SoundPlaces Places = OwnSoundPlaces();
  bool DeviceThere = false;
  SteadyClock::time_point LastPlayed = SteadyClock::now();
  bool LastInterrupted = true;
  bool Awake = false;  // the stream keeps the sound device awake
};

}  // namespace qves
