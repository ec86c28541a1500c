#include "desktop/SessionEnd.h"

#include <sys/eventfd.h>

#include <atomic>
#include <cerrno>
#include <csignal>
#include <cstdlib>

namespace qves {
namespace {

constexpr int EndingSignals[] = {SIGTERM, SIGHUP, SIGINT};

/// A signal handler has no argument of its own, and a blocked signal (the other way to read one from a
/// handle) would stay blocked in the speech server that this process may start. It is never closed, as a
/// signal may come at any time.
std::atomic<int> SignalCount{-1};

void NoteSignal(int) {
  const int savedError = errno;
  eventfd_write(SignalCount, 1);
  errno = savedError;
}

void SetHandler(void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  for (const int signal : EndingSignals) sigaction(signal, &action, nullptr);
}

std::atomic<const LostDisplayGuard*> Guard{nullptr};

}  // namespace

EndSignals::EndSignals(std::function<void()> ended)
    : Incoming(SignalCount = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK), QSocketNotifier::Read) {
  QObject::connect(&Incoming, &QSocketNotifier::activated, [ended = std::move(ended)] {
    eventfd_t count = 0;
    eventfd_read(SignalCount, &count);
    ended();
  });
  SetHandler(NoteSignal);
}

EndSignals::~EndSignals() {
  SetHandler(SIG_DFL);
}

LostDisplayGuard::LostDisplayGuard(std::function<void()> lost) : Lost(std::move(lost)) {
  Guard = this;
  std::atexit(Exiting);
}

LostDisplayGuard::~LostDisplayGuard() {
  Guard = nullptr;
}

void LostDisplayGuard::Exiting() {
  const LostDisplayGuard* guard = Guard;
  if (guard && guard->Owner == std::this_thread::get_id()) guard->Lost();
}

}  // namespace qves
