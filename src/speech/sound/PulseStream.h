// A playback stream of the desktop's sound server.
#pragma once

#include <pulse/pulseaudio.h>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "speech/sound/SoundStream.h"

namespace qves {

/// The server is heard and answered within the calls, so no thread is needed for it.
class PulseStream : public SoundStream {
 public:
  enum class Link { Ready, NoServer, NoAnswer };

  PulseStream(Wake& changed, int samplesPerSecond);
  ~PulseStream() override;
  PulseStream(const PulseStream&) = delete;
  PulseStream& operator=(const PulseStream&) = delete;

  /// Connects when not connected. Waits for an answer no longer than given, and only once.
  Link Connect(std::chrono::milliseconds longest);
  bool Alive() override;
  void Restart() override;
  void Flush() override;
  std::size_t Room() override;
  void Write(std::span<const std::int16_t> samples) override;
  std::optional<std::int64_t> Unheard() override;
  void Sleep() override;
  void Close() override;
  void Wait(TimePoint deadline) override;

 private:
  bool Begin();
  bool OpenStream();
  Link State();
  void SetCorked(bool wanted);
  void SendAndReceive();
  void WaitForServer(TimePoint deadline);

  int Rate;
  pa_mainloop* Loop;
  pa_io_event* Woken = nullptr;
  pa_context* Context = nullptr;
  pa_stream* Stream = nullptr;
  bool Corked = false;
  bool Restarted = false;
  std::size_t Burst = 0;  // bytes that may be written before the server asks for them
};

}  // namespace qves
