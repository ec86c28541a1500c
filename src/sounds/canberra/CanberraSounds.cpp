#include "sounds/canberra/CanberraSounds.h"

#include <chrono>
#include <future>
#include <system_error>
#include <thread>

#include "sounds/canberra/SoundContext.h"

namespace qves {
namespace {

using std::chrono::milliseconds;
using SteadyClock = std::chrono::steady_clock;

constexpr milliseconds LongestStart{500};
constexpr milliseconds LongestSound{5000};
constexpr int PollMilliseconds = 10;

}  // namespace

struct CanberraSounds::State {
  SoundContext Context;
  std::atomic<bool> Busy = false;

  static bool Start(const std::shared_ptr<State>& state, const std::string& path, const SoundEnded& ended);
};

/// Starts the sound on a thread of its own. A call that hangs keeps that thread, and what it needs, for
/// itself.
bool CanberraSounds::State::Start(const std::shared_ptr<State>& state, const std::string& path,
                                  const SoundEnded& ended) try {
  std::promise<bool> answer;
  auto started = answer.get_future();
  std::thread([held = state, path, ended, answer = std::move(answer)]() mutable {
    const bool isStarted = held->Context.Start(path, ended);
    held->Busy = false;
    held.reset();
    answer.set_value(isStarted);
  }).detach();
  return started.wait_for(LongestStart) == std::future_status::ready && started.get();
} catch (const std::system_error&) {  // no thread to be had
  state->Busy = false;
  return false;
}

CanberraSounds::CanberraSounds(EventPump& pump) : Pump(pump), Shared(std::make_shared<State>()) {}

CanberraSounds::~CanberraSounds() = default;

bool CanberraSounds::Play(const std::string& path, bool wait) {
  const auto ended = std::make_shared<std::atomic<bool>>(false);
  if (Shared->Busy.exchange(true) || !State::Start(Shared, path, ended)) return false;
  const auto deadline = SteadyClock::now() + LongestSound;
  while (wait && !*ended && SteadyClock::now() < deadline) Pump.ProcessEvents(PollMilliseconds);
  return true;
}

}  // namespace qves
