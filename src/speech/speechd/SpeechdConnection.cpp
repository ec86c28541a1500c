#include "speech/speechd/SpeechdConnection.h"

#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

#include "text/Integers.h"

namespace qves {
namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr int FirstEvent = 700;

bool WaitFor(int file, short events, TimePoint deadline) {
  pollfd waited{file, events, 0};
  return ::poll(&waited, 1, MillisecondsTo(deadline)) > 0;
}

std::optional<SpeechdReply> Take(std::deque<SpeechdReply>& replies) {
  if (replies.empty()) return std::nullopt;
  SpeechdReply first = std::move(replies.front());
  replies.pop_front();
  return first;
}

}  // namespace

SpeechdConnection::~SpeechdConnection() {
  ::close(File);
}

std::optional<SpeechdReply> SpeechdConnection::Ask(std::string_view command, TimePoint deadline,
                                                   const Wake* wake) {
  IsUnanswered = true;
  if (!Send(std::string(command) + std::string(LineEnd), deadline)) return std::nullopt;
  while (!IsLost) {
    Receive();
    if (auto answer = Take(Answers)) {
      IsUnanswered = false;
      return answer;
    }
    if (SteadyClock::now() >= deadline || (wake && wake->Notified())) break;
    if (wake)
      wake->Wait(deadline, File, POLLIN);
    else
      WaitFor(File, POLLIN, deadline);
  }
  return std::nullopt;
}

std::optional<SpeechdReply> SpeechdConnection::NextEvent() {
  if (Events.empty()) Receive();
  return Take(Events);
}

bool SpeechdConnection::HasAnswered() const {
  return WaitFor(File, POLLIN, TimePoint());
}

bool SpeechdConnection::Send(std::string_view line, TimePoint deadline) {
  while (!line.empty() && !IsLost) {
    const ssize_t sent = ::send(File, line.data(), line.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (sent >= 0)
      line.remove_prefix(std::size_t(sent));
    else if (errno != EAGAIN)
      IsLost = true;
    else if (!WaitFor(File, POLLOUT, deadline))
      return false;
  }
  return !IsLost;
}

void SpeechdConnection::Receive() {
  char bytes[16384];
  while (!IsLost) {
    const ssize_t count = ::recv(File, bytes, sizeof bytes, MSG_DONTWAIT);
    if (count < 0 && errno == EAGAIN) break;
    IsLost = count <= 0;
    if (!IsLost) Unread.append(bytes, std::size_t(count));
  }
  std::size_t from = 0;
  for (std::size_t end; (end = Unread.find(LineEnd, from)) != std::string::npos; from = end + LineEnd.size())
    TakeLine(std::string_view(Unread).substr(from, end - from));
  Unread.erase(0, from);
}

// "NNN-text" in all lines of a reply but the last, which is "NNN text".
void SpeechdConnection::TakeLine(std::string_view line) {
  constexpr std::size_t codeLength = 3;
  if (line.size() <= codeLength) return;
  if (line[codeLength] == '-') {
    Coming.Lines.emplace_back(line.substr(codeLength + 1));
    return;
  }
  Coming.Code = ParseInteger(line.substr(0, codeLength)).value_or(0);
  (Coming.Code >= FirstEvent ? Events : Answers).push_back(std::exchange(Coming, {}));
}

std::string SpeechdText(std::string_view text) {
  return (text.starts_with('.') ? "." : "") + std::string(text) + std::string(LineEnd) + ".";
}

}  // namespace qves
