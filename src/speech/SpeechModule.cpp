#include "speech/SpeechModule.h"

#include <iostream>

#include "posix/Module.h"

namespace qves {
namespace {

/// No voices: everything stays silent.
class NoSpeech : public TTS {
 public:
  std::vector<TtsEngineInfo> Engines() const override { return {}; }
  std::unique_ptr<TtsEngine> Open(TtsChooser) override { return nullptr; }
  void SetListener(TtsListener*) override {}
};

using Maker = TTS* (*)(SpeechChoice, EventPump*);

}  // namespace

std::unique_ptr<TTS> LoadSpeech(SpeechChoice choice, EventPump& pump) {
  if (choice == SpeechChoice::Off) return std::make_unique<NoSpeech>();
  std::string error;
  const auto make = reinterpret_cast<Maker>(FindInModule("libqvescalc-speech.so", "QvesMakeSpeech", error));
  if (make) return std::unique_ptr<TTS>(make(choice, &pump));
  std::cerr << "no speech: " << error << "\n";
  return std::make_unique<NoSpeech>();
}

}  // namespace qves
