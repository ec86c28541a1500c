// Speech whose libraries are loaded when it is asked for first, which is after the window is there: the
// window comes no later for them.
#pragma once

#include <functional>
#include <memory>

#include "platform/TTS.h"

namespace qves {

class LateTts : public TTS {
 public:
  /// `load` never gives null.
  explicit LateTts(std::function<std::unique_ptr<TTS>()> load) : Load(std::move(load)) {}

  std::vector<TtsEngineInfo> Engines() const override { return Speech().Engines(); }
  std::unique_ptr<TtsEngine> Open(TtsChooser choose) override { return Speech().Open(std::move(choose)); }
  /// By itself this loads nothing: a calculator that is not to speak never does.
  void SetListener(TtsListener* listener) override {
    Listener = listener;
    if (Loaded) Loaded->SetListener(listener);
  }

 private:
  TTS& Speech() const {
    if (!Loaded) {
      Loaded = Load();
      Loaded->SetListener(Listener);
    }
    return *Loaded;
  }

  std::function<std::unique_ptr<TTS>()> Load;
  mutable std::unique_ptr<TTS> Loaded;
  TtsListener* Listener = nullptr;
};

}  // namespace qves
