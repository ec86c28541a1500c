// The machine's sound device itself, where no sound server answers.
#pragma once

#include <alsa/asoundlib.h>

#include "speech/sound/SoundStream.h"

namespace qves {

class AlsaStream : public SoundStream {
 public:
  AlsaStream(Wake& changed, int samplesPerSecond) : Changed(changed), Rate(samplesPerSecond) {}
  ~AlsaStream() override { Close(); }
  AlsaStream(const AlsaStream&) = delete;
  AlsaStream& operator=(const AlsaStream&) = delete;

  /// Opens the default device when it is not open; false without one.
  bool Open();
  bool Alive() override { return Device; }
  void Restart() override;
  void Flush() override;
  std::size_t Room() override;
  void Write(std::span<const std::int16_t> samples) override;
  std::optional<std::int64_t> Unheard() override;
  /// Other programs may need the device: it is opened again with the next text.
  void Sleep() override { Close(); }
  void Close() override;
  void Wait(TimePoint deadline) override { Changed.Wait(deadline); }

 private:
  bool Recover(long error);

  Wake& Changed;
  int Rate;
  snd_pcm_t* Device = nullptr;
};

}  // namespace qves
