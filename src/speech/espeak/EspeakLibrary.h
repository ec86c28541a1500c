// espeak-ng's one state: how it is initialised, and the voice and settings that it has.
#pragma once

#include <espeak-ng/speak_lib.h>

#include <mutex>
#include <vector>

#include "speech/espeak/EspeakVoices.h"

namespace qves {

/// Used on the worker's thread only. One at a time in a process has the library; the next waits a while for
/// it. Once initialised it stays so for the life of the process: ending it can hang when it has played.
class EspeakLibrary {
 public:
  enum class Mode {
    Off,
    Synthesis,  ///< the callback gets the samples, within espeak_Synth
    Playback    ///< the library plays; the callback gets the events when they are heard, on a thread of the
                ///< library
  };
  EspeakLibrary() = default;
  EspeakLibrary(const EspeakLibrary&) = delete;
  EspeakLibrary& operator=(const EspeakLibrary&) = delete;

  /// False when the library does not find its data, or somebody else has it.
  bool Use(Mode wanted, t_espeak_callback* callback);
  /// Samples a second.
  int Rate() const;
  std::vector<EspeakVoice> Voices() const;
  /// Makes the voice and the settings the current ones. An empty name leaves the voice.
  void Apply(const std::string& voiceName, const VoiceSettings& settings);

 private:
  bool Initialise();
  void ApplyVoice(const std::string& name);

  std::unique_lock<std::timed_mutex> Turn;
  Mode CurrentMode = Mode::Off;
  std::string CurrentVoice;
};

}  // namespace qves
