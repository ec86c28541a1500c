// The speech server's line protocol (SSIP) over a socket that never blocks.
#pragma once

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "speech/Wake.h"

namespace qves {

/// What the server says: 2xx to a command that it has done, 7xx by itself.
struct SpeechdReply {
  int Code = 0;
  std::vector<std::string> Lines;  ///< without the last, which is for people
};

class SpeechdConnection {
 public:
  /// Takes the socket over.
  explicit SpeechdConnection(int socket) : File(socket) {}
  ~SpeechdConnection();
  SpeechdConnection(const SpeechdConnection&) = delete;
  SpeechdConnection& operator=(const SpeechdConnection&) = delete;

  /// Sends a command, or the text after "SPEAK", and waits for the answer: until the deadline, or until
  /// `wake` is notified, where one is given. After that the connection is of no use but for HasAnswered().
  std::optional<SpeechdReply> Ask(std::string_view command, TimePoint deadline, const Wake* wake = nullptr);
  /// What the server has said by itself, in order.
  std::optional<SpeechdReply> NextEvent();
  /// The server has closed it.
  bool Lost() const { return IsLost; }
  /// The server has not answered in time.
  bool Hangs() const { return IsUnanswered; }
  /// There is something to read, the end included.
  bool HasAnswered() const;
  /// To wait for what NextEvent gives.
  int Descriptor() const { return File; }

 private:
  bool Send(std::string_view line, TimePoint deadline);
  void Receive();
  void TakeLine(std::string_view line);

  int File;
  bool IsLost = false;
  bool IsUnanswered = false;
  std::string Unread;  // the line that is still incomplete
  SpeechdReply Coming;
  std::deque<SpeechdReply> Answers;
  std::deque<SpeechdReply> Events;
};

/// A text as the protocol takes it: it ends at a line with nothing but a dot.
std::string SpeechdText(std::string_view text);

}  // namespace qves
