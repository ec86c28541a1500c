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
  explicit Lock(pa_threaded_mainloop* loopToLock) : loop(loopToLock) {
    if (loop) pa_threaded_mainloop_lock(loop);
  }
  ~Lock() {
    if (loop) pa_threaded_mainloop_unlock(loop);
  }
  Lock(const Lock&) = delete;
  Lock& operator=(const Lock&) = delete;

 private:
  pa_threaded_mainloop* loop;
};

PulseStream::PulseStream(Signal& signal, int samplesPerSecond) : wake(signal), rate(samplesPerSecond) {}

PulseStream::~PulseStream() {
  Disconnect();
  if (!loop) return;
  pa_threaded_mainloop_stop(loop);
  pa_threaded_mainloop_free(loop);
}

bool PulseStream::StartLoop() {
  if (loop) return true;
  loop = pa_threaded_mainloop_new();
  if (loop && pa_threaded_mainloop_start(loop) < 0) {
    pa_threaded_mainloop_free(loop);
    loop = nullptr;
  }
  return loop != nullptr;
}

PulseStream::Link PulseStream::Connect(std::chrono::milliseconds longest) {
  if (Alive()) return Link::Ready;
  Disconnect();
  if (!StartLoop() || !Begin()) return Link::NoServer;
  const auto deadline = SteadyClock::now() + longest;
  while (true) {
    const std::uint64_t seen = wake.Count();
    const Link state = State();
    if (state == Link::Ready) return state;
    if (state == Link::NoServer || SteadyClock::now() >= deadline) {
      Disconnect();
      return state;
    }
    wake.Wait(seen, deadline);
  }
}

bool PulseStream::Begin() {
  const Lock lock(loop);
  context = pa_context_new(pa_threaded_mainloop_get_api(loop), "qvescalc");
  if (!context) return false;
  pa_context_set_state_callback(context, ContextChanged, this);
  // Starting a server is the desktop's affair.
  return pa_context_connect(context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) >= 0;
}

// NoAnswer: not decided yet.
PulseStream::Link PulseStream::State() {
  const Lock lock(loop);
  if (!PA_CONTEXT_IS_GOOD(pa_context_get_state(context))) return Link::NoServer;
  if (pa_context_get_state(context) != PA_CONTEXT_READY) return Link::NoAnswer;
  if (!stream && !OpenStream()) return Link::NoServer;
  const pa_stream_state_t state = pa_stream_get_state(stream);
  if (state == PA_STREAM_READY) return Link::Ready;
  return PA_STREAM_IS_GOOD(state) ? Link::NoAnswer : Link::NoServer;
}

bool PulseStream::OpenStream() {
  const pa_sample_spec format = {PA_SAMPLE_S16NE, std::uint32_t(rate), 1};
  pa_proplist* properties = pa_proplist_new();
  pa_proplist_sets(properties, PA_PROP_MEDIA_ROLE, "a11y");
  stream = pa_stream_new_with_proplist(context, "speech", &format, nullptr, properties);
  pa_proplist_free(properties);
  if (!stream) return false;
  pa_stream_set_state_callback(stream, StreamChanged, this);
  pa_stream_set_write_callback(stream, RoomChanged, this);
  pa_buffer_attr buffers;
  buffers.maxlength = std::uint32_t(-1);
  buffers.tlength = BytesFor(ServerBufferMilliseconds, rate);
  buffers.prebuf = 0;
  buffers.minreq = BytesFor(RequestMilliseconds, rate);
  buffers.fragsize = std::uint32_t(-1);
  constexpr auto flags = pa_stream_flags_t(PA_STREAM_INTERPOLATE_TIMING | PA_STREAM_AUTO_TIMING_UPDATE |
                                           PA_STREAM_EARLY_REQUESTS | PA_STREAM_START_CORKED);
  corked = true;
  return pa_stream_connect_playback(stream, nullptr, &buffers, flags, nullptr, nullptr) >= 0;
}

void PulseStream::Disconnect() {
  const Lock lock(loop);
  if (stream) {
    pa_stream_set_state_callback(stream, nullptr, nullptr);
    pa_stream_set_write_callback(stream, nullptr, nullptr);
    pa_stream_disconnect(stream);
    pa_stream_unref(stream);
  }
  if (context) {
    pa_context_set_state_callback(context, nullptr, nullptr);
    pa_context_disconnect(context);
    pa_context_unref(context);
  }
  stream = nullptr;
  context = nullptr;
}

bool PulseStream::Alive() {
  const Lock lock(loop);
  return stream && pa_stream_get_state(stream) == PA_STREAM_READY;
}

void PulseStream::Restart() {
  const Lock lock(loop);
  if (!stream) return;
  restarted = true;
  burst = BytesFor(ServerBufferMilliseconds, rate);
  SetCorked(false);
}

void PulseStream::Flush() {
  const Lock lock(loop);
  if (stream) Forget(pa_stream_flush(stream, nullptr, nullptr));
}

void PulseStream::Cork() {
  const Lock lock(loop);
  if (stream) SetCorked(true);
}

void PulseStream::SetCorked(bool wanted) {
  if (corked != wanted) Forget(pa_stream_cork(stream, wanted, nullptr, nullptr));
  corked = wanted;
}

std::size_t PulseStream::Room() {
  const Lock lock(loop);
  if (!stream) return 0;
  if (burst > 0) return burst / SampleSize;
  const std::size_t bytes = pa_stream_writable_size(stream);
  return bytes == std::size_t(-1) ? 0 : bytes / SampleSize;
}

void PulseStream::Write(std::span<const std::int16_t> samples) {
  const Lock lock(loop);
  if (!stream) return;
  const std::size_t bytes = samples.size_bytes();
  // After a silence the server's place for new samples lies in the past.
  const pa_seek_mode_t place = restarted ? PA_SEEK_RELATIVE_ON_READ : PA_SEEK_RELATIVE;
  pa_stream_write(stream, samples.data(), bytes, nullptr, 0, place);
  if (restarted) Forget(pa_stream_update_timing_info(stream, nullptr, nullptr));
  restarted = false;
  burst -= bytes < burst ? bytes : burst;
}

std::optional<std::int64_t> PulseStream::Unheard() {
  const Lock lock(loop);
  pa_usec_t latency = 0;
  int negative = 0;
  if (!stream || pa_stream_get_latency(stream, &latency, &negative) < 0) return std::nullopt;
  return negative ? 0 : std::int64_t(latency) * rate / 1'000'000;
}

void PulseStream::ContextChanged(pa_context*, void* self) {
  static_cast<PulseStream*>(self)->wake.Notify();
}

void PulseStream::StreamChanged(pa_stream*, void* self) {
  static_cast<PulseStream*>(self)->wake.Notify();
}

void PulseStream::RoomChanged(pa_stream*, std::size_t, void* self) {
  static_cast<PulseStream*>(self)->wake.Notify();
}

}  // namespace qves
