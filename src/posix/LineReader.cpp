#include "posix/LineReader.h"

#include <poll.h>
#include <signal.h>
#include <unistd.h>

#include <cerrno>

namespace qves {
namespace {

volatile sig_atomic_t Arrived = 0;  // all that a signal handler may touch

void Note(int number) {
  Arrived = number;
}

constexpr int EndingSignals[] = {SIGTERM, SIGINT, SIGHUP};

/// The ending signals are blocked while it lives, but for the wait that takes `Before()` as its mask.
class BlockedSignals {
 public:
  BlockedSignals() {
    sigset_t blocked;
    sigemptyset(&blocked);
    for (const int number : EndingSignals) sigaddset(&blocked, number);
    sigprocmask(SIG_BLOCK, &blocked, &Mask);
  }
  ~BlockedSignals() { sigprocmask(SIG_SETMASK, &Mask, nullptr); }
  BlockedSignals(const BlockedSignals&) = delete;
  BlockedSignals& operator=(const BlockedSignals&) = delete;
  const sigset_t* Before() const { return &Mask; }

 private:
  sigset_t Mask;
};

}  // namespace

LineReader::LineReader(int descriptor) : Descriptor(descriptor) {
  struct sigaction action {};
  action.sa_handler = Note;
  for (const int number : EndingSignals) sigaction(number, &action, nullptr);
}

bool LineReader::Next(std::string& line) {
  std::size_t from = At;
  while (EndingSignal() == 0) {
    const std::size_t end = Buffer.find('\n', from);
    if (end != std::string::npos) {
      line.assign(Buffer, At, end - At);
      At = end + 1;
      return true;
    }
    Buffer.erase(0, At);
    At = 0;
    from = Buffer.size();
    if (!Fill()) break;
  }
  line.swap(Buffer);
  Buffer.clear();
  return !line.empty() && EndingSignal() == 0;
}

bool LineReader::Fill() {
  // No signal between the look at the flag and the wait: it would be noticed only with the next input.
  const BlockedSignals blocked;
  pollfd input{Descriptor, POLLIN, 0};
  char chunk[65536];
  while (EndingSignal() == 0) {
    if (ppoll(&input, 1, nullptr, blocked.Before()) < 0) continue;
    const ssize_t count = ::read(Descriptor, chunk, sizeof chunk);
    if (count < 0 && errno == EINTR) continue;
    if (count <= 0) return false;
    Buffer.append(chunk, static_cast<std::size_t>(count));
    return true;
  }
  return false;
}

int LineReader::EndingSignal() const {
  return Arrived;
}

}  // namespace qves
