// The server's notifications, from the library's thread to the one that waits for them.
#pragma once

#include <speech-dispatcher/libspeechd.h>

#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "speech/SpeechWorker.h"

namespace qves {

/// A question to the server that changes nothing.
inline constexpr char AskClientNumber[] = "HISTORY GET CLIENT_ID";

struct SpeechdEvent {
  std::size_t Message = 0;
  SPDNotificationType Type = SPD_EVENT_BEGIN;
  std::string Mark;
};

/// The notifications of one connection, in order.
class SpeechdEvents {
 public:
  void Add(SpeechdEvent event);
  std::optional<SpeechdEvent> Next();
  /// Whom to wake when one comes; null: nobody, as nobody will look.
  void SetWaker(Signal* signal);

 private:
  std::mutex Mutex;
  std::deque<SpeechdEvent> Events;
  Signal* Waker = nullptr;
};

/// Lets the connection's notifications arrive at `events`, as long as somebody holds those. False on failure.
bool ListenTo(SPDConnection& connection, const std::shared_ptr<SpeechdEvents>& events);

}  // namespace qves
