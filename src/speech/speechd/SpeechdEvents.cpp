#include "speech/speechd/SpeechdEvents.h"

#include <cstdlib>
#include <map>

namespace qves {
namespace {

// The library's callbacks bring the client's number and no data of ours, so this table of the process leads
// from one to the other. It is never destroyed, as a thread of the library may still call while the process
// ends.
struct ListenerTable {
  std::mutex Mutex;
  std::map<std::size_t, std::weak_ptr<SpeechdEvents>> Listeners;
};

ListenerTable& Listeners() {
  static ListenerTable& table = *new ListenerTable;
  return table;
}

void Deliver(std::size_t client, SpeechdEvent event) {
  ListenerTable& table = Listeners();
  std::shared_ptr<SpeechdEvents> events;
  {
    const std::lock_guard lock(table.Mutex);
    const auto at = table.Listeners.find(client);
    if (at != table.Listeners.end()) events = at->second.lock();
  }
  if (events) events->Add(std::move(event));
}

void OnEvent(std::size_t message, std::size_t client, SPDNotificationType type) {
  Deliver(client, {message, type, {}});
}

void OnMark(std::size_t message, std::size_t client, SPDNotificationType type, char* mark) {
  Deliver(client, {message, type, mark ? mark : ""});
}

// The library's own question for it crashes when the server has died.
int ClientNumber(SPDConnection& connection) {
  char* reply = nullptr;
  const int result = spd_execute_command_with_reply(&connection, AskClientNumber, &reply);
  const std::string text = reply ? reply : "";
  std::free(reply);
  const std::size_t at = text.find('-');
  return result < 0 || at == std::string::npos ? -1 : std::atoi(text.c_str() + at + 1);
}

void Register(std::size_t client, const std::shared_ptr<SpeechdEvents>& events) {
  ListenerTable& table = Listeners();
  const std::lock_guard lock(table.Mutex);
  std::erase_if(table.Listeners, [](const auto& entry) { return entry.second.expired(); });
  table.Listeners[client] = events;
}

}  // namespace

void SpeechdEvents::Add(SpeechdEvent event) {
  const std::lock_guard lock(Mutex);
  if (!Waker) return;
  Events.push_back(std::move(event));
  Waker->Notify();
}

std::optional<SpeechdEvent> SpeechdEvents::Next() {
  const std::lock_guard lock(Mutex);
  if (Events.empty()) return std::nullopt;
  SpeechdEvent event = std::move(Events.front());
  Events.pop_front();
  return event;
}

void SpeechdEvents::SetWaker(Signal* signal) {
  const std::lock_guard lock(Mutex);
  Waker = signal;
}

bool ListenTo(SPDConnection& connection, const std::shared_ptr<SpeechdEvents>& events) {
  const int client = ClientNumber(connection);
  if (client < 0) return false;
  Register(std::size_t(client), events);
  connection.callback_begin = connection.callback_end = connection.callback_cancel = OnEvent;
  connection.callback_im = OnMark;
  constexpr auto wanted = SPDNotification(SPD_BEGIN | SPD_END | SPD_CANCEL | SPD_INDEX_MARKS);
  return spd_set_notification_on(&connection, wanted) >= 0;
}

}  // namespace qves
