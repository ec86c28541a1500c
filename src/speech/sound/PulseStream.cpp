#include "speech/sound/PulseStream.h"

#include <algorithm>

namespace qves {
namespace {

constexpr std::size_t SampleSize = sizeof(std::int16_t);
constexpr int ServerBufferMilliseconds = 250;
constexpr int RequestMilliseconds = 10;           // also the delay that the server aims at
constexpr std::int64_t LongestWait = 60'000'000;  // microseconds

std::uint32_t BytesFor(int milliseconds, int rate) {
  return std::uint32_t(std::int64_t(rate) * milliseconds / 1000) * std::uint32_t(SampleSize);
}

// Operations are never waited for.
void Forget(pa_operation* operation) {
  if (operation) pa_operation_unref(operation);
}

}  // namespace

PulseStream::PulseStream(Wake& changed, int samplesPerSecond)
    : Rate(samplesPerSecond), Loop(pa_mainloop_new()) {
  const auto nothing = [](pa_mainloop_api*, pa_io_event*, int, pa_io_event_flags_t, void*) {};
  pa_mainloop_api* api = pa_mainloop_get_api(Loop);
  Woken = api->io_new(api, changed.Descriptor(), PA_IO_EVENT_NULL, nothing, nullptr);
}

PulseStream::~PulseStream() {
  Close();
  pa_mainloop_get_api(Loop)->io_free(Woken);
  pa_mainloop_free(Loop);
}

void PulseStream::SendAndReceive() {
  while (pa_mainloop_iterate(Loop, 0, nullptr) > 0) continue;
}

void PulseStream::Wait(TimePoint deadline) {
  const pa_mainloop_api* api = pa_mainloop_get_api(Loop);
  api->io_enable(Woken, PA_IO_EVENT_INPUT);
  WaitForServer(deadline);
  api->io_enable(Woken, PA_IO_EVENT_NULL);
}

void PulseStream::WaitForServer(TimePoint deadline) {
  const auto left = std::chrono::ceil<std::chrono::microseconds>(deadline - SteadyClock::now()).count();
  if (pa_mainloop_prepare(Loop, int(std::clamp<std::int64_t>(left, 0, LongestWait))) >= 0 &&
      pa_mainloop_poll(Loop) >= 0)
    pa_mainloop_dispatch(Loop);
}

// A server that has not answered in time is not waited for again: it is used as soon as it has answered.
PulseStream::Link PulseStream::Connect(std::chrono::milliseconds longest) {
  SendAndReceive();
  if (State() == Link::NoServer) Close();
  const TimePoint deadline = SteadyClock::now() + (Context ? std::chrono::milliseconds(0) : longest);
  if (!Context && !Begin()) return Link::NoServer;
  while (State() == Link::NoAnswer && SteadyClock::now() < deadline) WaitForServer(deadline);
  return State();
}

bool PulseStream::Begin() {
  Context = pa_context_new(pa_mainloop_get_api(Loop), "qvescalc");
  if (!Context) return false;
  // Starting a server is the desktop's affair.
  return pa_context_connect(Context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) >= 0;
}

// NoAnswer: not decided yet.
PulseStream::Link PulseStream::State() {
  if (!Context) return Link::NoServer;
  if (!PA_CONTEXT_IS_GOOD(pa_context_get_state(Context))) return Link::NoServer;
  if (pa_context_get_state(Context) != PA_CONTEXT_READY) return Link::NoAnswer;
  if (!Stream && !OpenStream()) return Link::NoServer;
  const pa_stream_state_t state = pa_stream_get_state(Stream);
  if (state == PA_STREAM_READY) return Link::Ready;
  return PA_STREAM_IS_GOOD(state) ? Link::NoAnswer : Link::NoServer;
}

bool PulseStream::OpenStream() {
  const pa_sample_spec format = {PA_SAMPLE_S16NE, std::uint32_t(Rate), 1};
  pa_proplist* properties = pa_proplist_new();
  pa_proplist_sets(properties, PA_PROP_MEDIA_ROLE, "a11y");
  Stream = pa_stream_new_with_proplist(Context, "speech", &format, nullptr, properties);
  pa_proplist_free(properties);
  if (!Stream) return false;
  pa_buffer_attr buffers;
  buffers.maxlength = std::uint32_t(-1);
  buffers.tlength = BytesFor(ServerBufferMilliseconds, Rate);
  buffers.prebuf = 0;
  buffers.minreq = BytesFor(RequestMilliseconds, Rate);
  buffers.fragsize = std::uint32_t(-1);
  constexpr auto flags = pa_stream_flags_t(PA_STREAM_INTERPOLATE_TIMING | PA_STREAM_AUTO_TIMING_UPDATE |
                                           PA_STREAM_EARLY_REQUESTS | PA_STREAM_START_CORKED);
  Corked = true;
  return pa_stream_connect_playback(Stream, nullptr, &buffers, flags, nullptr, nullptr) >= 0;
}

void PulseStream::Close() {
  if (Stream) {
    pa_stream_disconnect(Stream);
    pa_stream_unref(Stream);
  }
  if (Context) {
    pa_context_disconnect(Context);
    pa_context_unref(Context);
  }
  Stream = nullptr;
  Context = nullptr;
}

bool PulseStream::Alive() {
  SendAndReceive();
  return Stream && pa_stream_get_state(Stream) == PA_STREAM_READY;
}

void PulseStream::Restart() {
  if (!Stream) return;
  Restarted = true;
  Burst = BytesFor(ServerBufferMilliseconds, Rate);
  SetCorked(false);
}

void PulseStream::Flush() {
  if (Stream) Forget(pa_stream_flush(Stream, nullptr, nullptr));
  SendAndReceive();
}

void PulseStream::Sleep() {
  if (Stream) SetCorked(true);
}

void PulseStream::SetCorked(bool wanted) {
  if (Corked == wanted) return;
  Corked = wanted;
  Forget(pa_stream_cork(Stream, wanted, nullptr, nullptr));
  SendAndReceive();
}

std::size_t PulseStream::Room() {
  if (!Stream) return 0;
  if (Burst > 0) return Burst / SampleSize;
  const std::size_t bytes = pa_stream_writable_size(Stream);
  return bytes == std::size_t(-1) ? 0 : bytes / SampleSize;
}

void PulseStream::Write(std::span<const std::int16_t> samples) {
  if (!Stream) return;
  const std::size_t bytes = samples.size_bytes();
  // After a silence the server's place for new samples lies in the past.
  const pa_seek_mode_t place = Restarted ? PA_SEEK_RELATIVE_ON_READ : PA_SEEK_RELATIVE;
  pa_stream_write(Stream, samples.data(), bytes, nullptr, 0, place);
  if (Restarted) Forget(pa_stream_update_timing_info(Stream, nullptr, nullptr));
  Restarted = false;
  Burst -= std::min(bytes, Burst);
  SendAndReceive();
}

std::optional<std::int64_t> PulseStream::Unheard() {
  pa_usec_t latency = 0;
  int negative = 0;
  if (!Stream || pa_stream_get_latency(Stream, &latency, &negative) < 0) return std::nullopt;
  return negative ? 0 : std::int64_t(latency) * Rate / 1'000'000;
}

}  // namespace qves
