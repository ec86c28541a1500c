// The thread that plays a back end's texts one after another.
#pragma once

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "speech/Utterance.h"

namespace qves {

using SteadyClock = std::chrono::steady_clock;

/// Wakes a thread when anything has happened that it may wait for.
class Signal {
 public:
  void Notify();
  std::uint64_t Count() const;
  /// Returns when something has happened since `seen` was counted, or at the deadline.
  void Wait(std::uint64_t seen, SteadyClock::time_point deadline);
  void WaitFor(std::uint64_t seen, SteadyClock::duration longest) {
    Wait(seen, SteadyClock::now() + longest);
  }

 private:
  mutable std::mutex Mutex;
  std::condition_variable Changed;
  std::uint64_t Happened = 0;
};

/// What a player looks at while it plays a text.
class PlayControl {
 public:
  PlayControl(Signal& wake, const SpeechTicket& ticket, const std::atomic<bool>& quit)
      : Wake(wake), Ticket(ticket), Quit(quit) {}
  /// True when the text is to be silenced.
  bool Interrupted() const { return Quit || Ticket.Outdated(); }
  Signal& Wake;  ///< notified whenever Interrupted() may have changed
  /// Set by a player that gives up: how many bytes of the text, to a character's start, another back end need
  /// not speak.
  std::size_t Spoken = 0;

 private:
  const SpeechTicket& Ticket;
  const std::atomic<bool>& Quit;
};

/// How a back end plays. Everything is called on the worker's thread, the destructor included.
class SpeechPlayer {
 public:
  virtual ~SpeechPlayer() = default;
  virtual void Start(Signal& wake) = 0;
  /// Plays the text until it has been heard or is interrupted. False: this back end cannot speak it.
  virtual bool Play(const Utterance& text, PlayControl& control) = 0;
  /// Called when there is nothing to play; returns when to call again.
  virtual SteadyClock::time_point Rest() { return SteadyClock::time_point::max(); }
};

class SpeechWorker {
 public:
  using HandBack = std::function<void(std::vector<Utterance>)>;
  SpeechWorker(std::unique_ptr<SpeechPlayer> player, HandBack handBack);
  /// Does not wait for a player that hangs: its thread is left behind, with all that it needs.
  ~SpeechWorker();
  SpeechWorker(const SpeechWorker&) = delete;
  SpeechWorker& operator=(const SpeechWorker&) = delete;
  void Speak(Utterance text);
  void Interrupt();

 private:
  struct State;
  static void Run(State& state);

  std::shared_ptr<State> Shared;
  std::thread Thread;
};

}  // namespace qves
