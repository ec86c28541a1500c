#include "speech/SpeechWorker.h"

#include <algorithm>
#include <iterator>
#include <optional>

namespace qves {
namespace {

constexpr auto LongestFarewell = std::chrono::milliseconds(50);

// Takes the outdated texts out of the queue.
std::vector<Utterance> TakeOutdated(std::deque<Utterance>& queue) {
  const auto kept = std::stable_partition(queue.begin(), queue.end(),
                                          [](const Utterance& text) { return !text.Ticket.Outdated(); });
  std::vector<Utterance> outdated(std::make_move_iterator(kept), std::make_move_iterator(queue.end()));
  queue.erase(kept, queue.end());
  return outdated;
}

}  // namespace

void Signal::Notify() {
  {
    const std::lock_guard lock(Mutex);
    ++Happened;
  }
  Changed.notify_all();
}

std::uint64_t Signal::Count() const {
  const std::lock_guard lock(Mutex);
  return Happened;
}

void Signal::Wait(std::uint64_t seen, SteadyClock::time_point deadline) {
  std::unique_lock lock(Mutex);
  const auto happened = [&] { return Happened != seen; };
  if (deadline == SteadyClock::time_point::max())
    Changed.wait(lock, happened);
  else
    Changed.wait_until(lock, deadline, happened);
}

struct SpeechWorker::State {
  std::unique_ptr<SpeechPlayer> Player;
  HandBack Back;
  Signal Wake;
  std::atomic<bool> Quit = false;

  std::mutex Mutex;  // of what follows
  std::deque<Utterance> Queue;
  bool Finished = false;
  std::condition_variable FinishedChanged;

  std::optional<Utterance> Next() {
    const std::lock_guard lock(Mutex);
    if (Queue.empty()) return std::nullopt;
    Utterance next = std::move(Queue.front());
    Queue.pop_front();
    return next;
  }

  // Gives back the text that could not be played and those behind it.
  void GiveBack(Utterance text) {
    std::vector<Utterance> all;
    all.push_back(std::move(text));
    {
      const std::lock_guard lock(Mutex);
      std::move(Queue.begin(), Queue.end(), std::back_inserter(all));
      Queue.clear();
    }
    Back(std::move(all));
  }
};

SpeechWorker::SpeechWorker(std::unique_ptr<SpeechPlayer> player, HandBack handBack)
    : Shared(std::make_shared<State>()) {
  Shared->Player = std::move(player);
  Shared->Back = std::move(handBack);
  Thread = std::thread([state = Shared] { Run(*state); });
}

SpeechWorker::~SpeechWorker() {
  Shared->Quit = true;
  Shared->Wake.Notify();
  bool finished = false;
  if (std::this_thread::get_id() != Thread.get_id()) {
    std::unique_lock lock(Shared->Mutex);
    finished = Shared->FinishedChanged.wait_for(lock, LongestFarewell, [&] { return Shared->Finished; });
  }
  if (finished)
    Thread.join();
  else
    Thread.detach();
}

void SpeechWorker::Speak(Utterance text) {
  std::vector<Utterance> outdated;
  {
    const std::lock_guard lock(Shared->Mutex);
    outdated = TakeOutdated(Shared->Queue);
    Shared->Queue.push_back(std::move(text));
  }
  Shared->Wake.Notify();
}

void SpeechWorker::Interrupt() {
  std::vector<Utterance> outdated;
  {
    const std::lock_guard lock(Shared->Mutex);
    outdated = TakeOutdated(Shared->Queue);
  }
  Shared->Wake.Notify();
}

void SpeechWorker::Run(State& state) {
  state.Player->Start(state.Wake);
  while (!state.Quit) {
    const std::uint64_t seen = state.Wake.Count();
    std::optional<Utterance> text = state.Next();
    if (!text) {
      state.Wake.Wait(seen, state.Player->Rest());
      continue;
    }
    PlayControl control(state.Wake, text->Ticket, state.Quit);
    if (control.Interrupted() || state.Player->Play(*text, control) || state.Quit) continue;
    text->DropFront(control.Spoken);
    state.GiveBack(*std::move(text));
  }
  state.Player.reset();
  const std::lock_guard lock(state.Mutex);
  state.Finished = true;
  state.FinishedChanged.notify_all();
}

}  // namespace qves
