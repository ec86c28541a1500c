// One engine of the list: a voice with its settings and its two speakers.
#pragma once

#include <array>
#include <memory>

#include "platform/TTS.h"
#include "speech/SpeechList.h"
#include "speech/Utterance.h"

namespace qves {

class SpeechEngine;

class SpeechSpeaker : public TtsSpeaker {
 public:
  SpeechSpeaker(SpeechEngine& engine, std::shared_ptr<SpeechReporter> reporter);
  ~SpeechSpeaker() override;
  SpeechSpeaker(const SpeechSpeaker&) = delete;
  SpeechSpeaker& operator=(const SpeechSpeaker&) = delete;
  void SpeakNow(std::string_view text, std::span<const BookMark> marks) override;
  void SpeakQueued(std::string_view text, std::span<const BookMark> marks) override;
  void Stop() override;
  bool Busy() const override { return State->Busy(); }

 private:
  SpeechEngine& Engine;
  std::shared_ptr<SpeakerState> State;
};

/// The two speakers share the voice: their texts are spoken one after another.
class SpeechEngine : public TtsEngine {
 public:
  SpeechEngine(std::shared_ptr<const Voice> voice, std::shared_ptr<SpeechRoute> route,
               const std::shared_ptr<SpeechReporter>& reporter);
  bool Initialise() override { return true; }
  void SetSpeed(int wordsPerMinute) override;
  void SetVolume(std::int32_t volume) override;
  void SetPitch(int pitch) override;
  int MinimumPitch() const override;
  int MaximumPitch() const override;
  TtsSpeaker* Speaker(int number) override;
  bool Busy() const override;

 private:
  friend class SpeechSpeaker;
  void Speak(std::string_view text, std::span<const BookMark> marks, SpeechTicket ticket);
  const SpeechDriver& Driver() const { return *Route->Driver(Speaking->BackEnd); }

  std::shared_ptr<const Voice> Speaking;
  std::shared_ptr<SpeechRoute> Route;
  VoiceSettings Settings;
  std::array<SpeechSpeaker, 2> Speakers;
};

}  // namespace qves
