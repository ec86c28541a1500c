#include "speech/sound/AlsaStream.h"

#include <algorithm>

namespace qves {
namespace {

constexpr unsigned BufferMicroseconds = 250'000;

void Ignore(const char*, int, const char*, int, const char*, ...) {}

}  // namespace

bool AlsaStream::Open() {
  if (Device) return true;
  snd_lib_error_set_handler(Ignore);  // it would write to standard error
  snd_config_update_free_global();    // the settings may be others now
  if (snd_pcm_open(&Device, "default", SND_PCM_STREAM_PLAYBACK, SND_PCM_NONBLOCK) < 0) Device = nullptr;
  if (!Device) return false;
  if (snd_pcm_set_params(Device, SND_PCM_FORMAT_S16, SND_PCM_ACCESS_RW_INTERLEAVED, 1, unsigned(Rate), 1,
                         BufferMicroseconds) < 0)
    Close();
  return Device;
}

void AlsaStream::Close() {
  if (Device) snd_pcm_close(Device);
  Device = nullptr;
}

void AlsaStream::Restart() {
  Flush();
  if (Device) snd_pcm_prepare(Device);
}

void AlsaStream::Flush() {
  if (Device) snd_pcm_drop(Device);
}

std::size_t AlsaStream::Room() {
  if (!Device) return 0;
  const snd_pcm_sframes_t room = snd_pcm_avail_update(Device);
  return room >= 0 || Recover(room) ? std::size_t(std::max<long>(room, 0)) : 0;
}

void AlsaStream::Write(std::span<const std::int16_t> samples) {
  if (!Device) return;
  const snd_pcm_sframes_t written = snd_pcm_writei(Device, samples.data(), samples.size());
  if (written < 0 && !Recover(written)) return;
  // By itself it would begin with a full buffer only.
  if (snd_pcm_state(Device) == SND_PCM_STATE_PREPARED) snd_pcm_start(Device);
}

std::optional<std::int64_t> AlsaStream::Unheard() {
  snd_pcm_sframes_t frames = 0;
  if (!Device || snd_pcm_state(Device) != SND_PCM_STATE_RUNNING) return 0;
  return snd_pcm_delay(Device, &frames) < 0 ? 0 : std::max<std::int64_t>(frames, 0);
}

// After it had nothing to play, or was asleep; false when it is gone.
bool AlsaStream::Recover(long error) {
  if (error == -EAGAIN || snd_pcm_recover(Device, int(error), 1) >= 0) return true;
  Close();
  return false;
}

}  // namespace qves
