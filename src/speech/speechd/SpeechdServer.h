// Where the desktop's speech server listens, and how it is started.
#pragma once

#include <string>

#include "speech/Wake.h"

namespace qves {

class SpeechdServer {
 public:
  /// Where SPEECHD_ADDRESS says ("unix_socket:PATH" or "inet_socket:IP:PORT"), else the user's own server.
  SpeechdServer();
  /// A socket that never blocks, or -1 when nobody listens there.
  int Connect() const;
  /// Starts it the way its own library does, unless the user's settings forbid that. Returns when it listens
  /// or has failed, at the deadline at the latest.
  void Start(TimePoint deadline) const;

 private:
  std::string Path;  // of the socket; empty: it is reached by the network
  std::string Host;
  std::string Port;
};

}  // namespace qves
