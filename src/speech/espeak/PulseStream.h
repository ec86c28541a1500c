// A playback stream of the desktop's sound server that never makes anybody wait.
#pragma once

#include <pulse/pulseaudio.h>

#include <atomic>
#include <chrono>
#include <cstdint>
#include <optional>
#include <span>

#include "speech/SpeechWorker.h"

namespace qves {

/// One channel of 16-bit samples. All calls come from one thread; the signal is notified when the stream's
/// state changes or there is room for more samples.
class PulseStream {
 public:
  enum class Link { Ready, NoServer, NoAnswer };

  PulseStream(Signal& wake, int samplesPerSecond);
  ~PulseStream();
  PulseStream(const PulseStream&) = delete;
  PulseStream& operator=(const PulseStream&) = delete;

  /// Connects when not connected; waits for the server's answer no longer than given.
  Link Connect(std::chrono::milliseconds longest);
  /// The server is there and has not failed since.
  bool Alive();
  /// What is written next is heard at once, in place of what is not heard yet.
  void Restart();
  /// Drops what is not heard yet.
  void Flush();
  /// How many samples may be written now.
  std::size_t Room();
  void Write(std::span<const std::int16_t> samples);
  /// How many of the written samples are still to be heard; nothing as long as the server has not told.
  std::optional<std::int64_t> Unheard();
  /// Lets the sound device sleep until the next Restart.
  void Cork();

 private:
  class Lock;
  static void ContextChanged(pa_context* context, void* self);
  static void StreamChanged(pa_stream* stream, void* self);
  static void RoomChanged(pa_stream* stream, std::size_t bytes, void* self);
  bool StartLoop();
  bool Begin();
  bool OpenStream();
  Link State();
  void Disconnect();
  void SetCorked(bool wanted);

  Signal& Wake;
  int Rate;
  pa_threaded_mainloop* Loop = nullptr;
  pa_context* Context = nullptr;
  pa_stream* Stream = nullptr;
  bool Corked = false;
  bool Restarted = false;
  std::size_t Burst = 0;  // bytes that may be written before the server asks for them
};

}  // namespace qves
