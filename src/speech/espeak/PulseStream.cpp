#include "speech/espeak/PulseStream.h"

namespace qves {
namespace {

constexpr std::size_t SampleSize = sizeof(std::int16_t);
constexpr int ServerBufferMilliseconds = 250;
constexpr int RequestMilliseconds = 10;  // also the delay that the server aims at

std::uint32_t BytesFor(int milliseconds, int rate) {
  return std::uint32_t(std::int64_t(rate) * milliseconds / 1000) * std::uint32_t(SampleSize);
}

// Operations are never waited for.
void Forget(pa_operation* operation) {
  if (operation) pa_operation_unref(operation);
}

}  // namespace

class PulseStream::Lock {
 public:
  explicit Lock(pa_threaded_mainloop* loop) : Loop(loop) {
    if (Loop) pa_threaded_mainloop_lock(Loop);
  }
  ~Lock() {
    if (Loop) pa_threaded_mainloop_unlock(Loop);
  }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;

 private:
  pa_threaded_mainloop* Loop;
};

PulseStream::PulseStream(Signal& wake, int samplesPerSecond) : Wake(wake), Rate(samplesPerSecond) {}

PulseStream::~PulseStream() {
  Disconnect();
  if (!Loop) return;
  pa_threaded_mainloop_stop(Loop);
  pa_threaded_mainloop_free(Loop);
}

bool PulseStream::StartLoop() {
  if (Loop) return true;
  Loop = pa_threaded_mainloop_new();
  if (Loop && pa_threaded_mainloop_start(Loop) < 0) {
    pa_threaded_mainloop_free(Loop);
    Loop = nullptr;
  }
  return Loop != nullptr;
}

PulseStream::Link PulseStream::Connect(std::chrono::milliseconds longest) {
  if (Alive()) return Link::Ready;
  Disconnect();
  if (!StartLoop() || !Begin()) return Link::NoServer;
  const auto deadline = SteadyClock::now() + longest;
  while (true) {
    const std::uint64_t seen = Wake.Count();
    const Link state = State();
    if (state == Link::Ready) return state;
    if (state == Link::NoServer || SteadyClock::now() >= deadline) {
      Disconnect();
      return state;
    }
    Wake.Wait(seen, deadline);
  }
}

bool PulseStream::Begin() {
  const Lock lock(Loop);
  Context = pa_context_new(pa_threaded_mainloop_get_api(Loop), "qvescalc");
  if (!Context) return false;
  pa_context_set_state_callback(Context, ContextChanged, this);
  // Starting a server is the desktop's affair.
  return pa_context_connect(Context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) >= 0;
}

// NoAnswer: not decided yet.
PulseStream::Link PulseStream::State() {
  const Lock lock(Loop);
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
  pa_stream_set_state_callback(Stream, StreamChanged, this);
  pa_stream_set_write_callback(Stream, RoomChanged, this);
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

void PulseStream::Disconnect() {
  const Lock lock(Loop);
  if (Stream) {
    pa_stream_set_state_callback(Stream, nullptr, nullptr);
    pa_stream_set_write_callback(Stream, nullptr, nullptr);
    pa_stream_disconnect(Stream);
    pa_stream_unref(Stream);
  }
  if (Context) {
    pa_context_set_state_callback(Context, nullptr, nullptr);
    pa_context_disconnect(Context);
    pa_context_unref(Context);
  }
  Stream = nullptr;
  Context = nullptr;
}

bool PulseStream::Alive() {
  const Lock lock(Loop);
  return Stream && pa_stream_get_state(Stream) == PA_STREAM_READY;
}

void PulseStream::Restart() {
  const Lock lock(Loop);
  if (!Stream) return;
  Restarted = true;
  Burst = BytesFor(ServerBufferMilliseconds, Rate);
  SetCorked(false);
}

void PulseStream::Flush() {
  const Lock lock(Loop);
  if (Stream) Forget(pa_stream_flush(Stream, nullptr, nullptr));
}

void PulseStream::Cork() {
  const Lock lock(Loop);
  if (Stream) SetCorked(true);
}

void PulseStream::SetCorked(bool wanted) {
  if (Corked != wanted) Forget(pa_stream_cork(Stream, wanted, nullptr, nullptr));
  Corked = wanted;
}

std::size_t PulseStream::Room() {
  const Lock lock(Loop);
  if (!Stream) return 0;
  if (Burst > 0) return Burst / SampleSize;
  const std::size_t bytes = pa_stream_writable_size(Stream);
  return bytes == std::size_t(-1) ? 0 : bytes / SampleSize;
}

void PulseStream::Write(std::span<const std::int16_t> samples) {
  const Lock lock(Loop);
  if (!Stream) return;
  const std::size_t bytes = samples.size_bytes();
  // After a silence the server's place for new samples lies in the past.
  const pa_seek_mode_t place = Restarted ? PA_SEEK_RELATIVE_ON_READ : PA_SEEK_RELATIVE;
  pa_stream_write(Stream, samples.data(), bytes, nullptr, 0, place);
  if (Restarted) Forget(pa_stream_update_timing_info(Stream, nullptr, nullptr));
  Restarted = false;
  Burst -= bytes < Burst ? bytes : Burst;
}

std::optional<std::int64_t> PulseStream::Unheard() {
  const Lock lock(Loop);
  pa_usec_t latency = 0;
  int negative = 0;
  if (!Stream || pa_stream_get_latency(Stream, &latency, &negative) < 0) return std::nullopt;
  return negative ? 0 : std::int64_t(latency) * Rate / 1'000'000;
}

void PulseStream::ContextChanged(pa_context*, void* self) {
  static_cast<PulseStream*>(self)->Wake.Notify();
}

void PulseStream::StreamChanged(pa_stream*, void* self) {
  static_cast<PulseStream*>(self)->Wake.Notify();
}

void PulseStream::RoomChanged(pa_stream*, std::size_t, void* self) {
  static_cast<PulseStream*>(self)->Wake.Notify();
}

}  // namespace qves
