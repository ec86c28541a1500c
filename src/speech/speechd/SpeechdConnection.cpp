#include "speech/speechd/SpeechdConnection.h"

#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>

#include "text/Integers.h"

namespace qves {
namespace {

constexpr std::string_view LineEnd = "\r\n";
constexpr int FirstEvent = 700;

}  // namespace

SpeechdConnection::~SpeechdConnection() {
  ::close(File);
}

std::optional<SpeechdReply> SpeechdConnection::Ask(std::string_view command, TimePoint deadline, int wake) {
  Send(std::string(command) + std::string(LineEnd), deadline);
  Receive();
  while (Good() && !Answer) {
    if (WaitFor({File, POLLIN, 0}, deadline, wake))
      Receive();
    else
      Now = State::Hanging;
  }
  return std::exchange(Answer, std::nullopt);
}

std::optional<SpeechdReply> SpeechdConnection::NextEvent() {
  if (Events.empty()) Receive();
  if (Events.empty()) return std::nullopt;
  SpeechdReply first = std::move(Events.front());
  Events.pop_front();
  return first;
}

bool SpeechdConnection::HasAnswered() const {
  return WaitFor({File, POLLIN, 0}, TimePoint());
}

void SpeechdConnection::Send(std::string_view line, TimePoint deadline) {
  while (!line.empty() && Good()) {
    const ssize_t sent = ::send(File, line.data(), line.size(), MSG_NOSIGNAL | MSG_DONTWAIT);
    if (sent >= 0)
      line.remove_prefix(std::size_t(sent));
    else if (errno != EAGAIN)
      Now = State::Lost;
    else if (!WaitFor({File, POLLOUT, 0}, deadline))
      Now = State::Hanging;
  }
}

void SpeechdConnection::Receive() {
  char bytes[16384];
  while (Good()) {
    const ssize_t count = ::recv(File, bytes, sizeof bytes, MSG_DONTWAIT);
    if (count < 0 && errno == EAGAIN) break;
    if (count <= 0) Now = State::Lost;
    Unread.append(bytes, std::size_t(std::max<ssize_t>(count, 0)));
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
  SpeechdReply reply = std::exchange(Coming, {});
  if (reply.Code >= FirstEvent)
    Events.push_back(std::move(reply));
  else
    Answer = std::move(reply);
}

}  // namespace qves
