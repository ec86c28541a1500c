// One engine of the list: a voice with its settings and its two speakers.
#pragma once

#include <array>
#include <memory>

#include "platform/TTS.h"
#include "speech/SpeechQueue.h"

namespace qves {

class SpeechEngine;

class SpeechSpeaker : public TtsSpeaker {
 public:
  explicit SpeechSpeaker(SpeechEngine& engine);
  ~SpeechSpeaker() override;
  SpeechSpeaker(const SpeechSpeaker&) = delete;
  SpeechSpeaker& operator=(const SpeechSpeaker&) = delete;
  void SpeakNow(std::string_view text, std::span<const BookMark> marks) override;
  void SpeakQueued(std::string_view text, std::span<const BookMark> marks) override;
  void Stop() override;
  bool Busy() const override;

 private:
  void Speak(std::string_view text, std::span<const BookMark> marks, bool interrupts);

  SpeechEngine& Engine;
  std::shared_ptr<SpeakerRecord> Record = std::make_shared<SpeakerRecord>();
};

/// The two speakers share the voice: their texts are spoken one after another.
class SpeechEngine : public TtsEngine {
 public:
  SpeechEngine(std::shared_ptr<SpeechQueue> queue, TtsChooser choose);
  bool Initialise() override { return true; }
  void SetSpeed(int wordsPerMinute) override { Settings.WordsPerMinute = wordsPerMinute; }
  void SetVolume(std::int32_t volume) override { Settings.Volume = volume; }
  void SetPitch(int pitch) override { Settings.Pitch = pitch; }
  int MinimumPitch() const override { return 0; }
  int MaximumPitch() const override { return HighestPitch; }
  TtsSpeaker* Speaker(int number) override;
  bool Busy() const override { return Speakers[0].Busy() || Speakers[1].Busy(); }

 private:
  friend class SpeechSpeaker;
  std::shared_ptr<SpeechQueue> Queue;
  std::shared_ptr<EngineVoice> Voice = std::make_shared<EngineVoice>();
  VoiceSettings Settings;
  std::array<SpeechSpeaker, 2> Speakers;
};

}  // namespace qves
