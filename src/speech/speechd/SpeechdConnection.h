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

  /// Sends a command, or the text after "SPEAK", and waits for the answer: until the deadline, or until the
  /// file `wake`, where one is given, is readable. Without an answer the connection is not good any more.
  std::optional<SpeechdReply> Ask(std::string_view command, TimePoint deadline, int wake = -1);
  /// What the server has said by itself, in order.
  std::optional<SpeechdReply> NextEvent();
  /// The server has neither closed it nor failed to answer in time.
  bool Good() const { return Now == State::Good; }
  /// The server has not answered in time.
  bool Hangs() const { return Now == State::Hanging; }
  /// There is something to read, the end included.
  bool HasAnswered() const;
  /// To wait for what NextEvent gives.
  int Descriptor() const { return File; }

 private:
  enum class State { Good, Hanging, Lost };

  void Send(std::string_view line, TimePoint deadline);
  void Receive();
  void TakeLine(std::string_view line);

  int File;
  State Now = State::Good;
  std::string Unread;  // the line that is still incomplete
  SpeechdReply Coming;
  std::optional<SpeechdReply> Answer;
  std::deque<SpeechdReply> Events;
};

}  // namespace qves
