#include "desktop/SessionEnd.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <thread>

namespace qves {
namespace {

constexpr int EndingSignals[] = {SIGTERM, SIGHUP, SIGINT};

/// A signal handler has no argument of its own, and a blocked signal (the other way to read one from a
/// handle) would stay blocked in the speech server that this process may start.
std::atomic<int> SignalPipe{-1};

void NoteSignal(int) {
  const int savedError = errno;
  const char mark = 0;
  if (const int pipe = SignalPipe.load(); pipe >= 0) [[maybe_unused]]
    const ssize_t written = write(pipe, &mark, 1);
  errno = savedError;
}

void SetHandler(void (*handler)(int)) {
  struct sigaction action {};
  action.sa_handler = handler;
  action.sa_flags = SA_RESTART;
  for (const int signal : EndingSignals) sigaction(signal, &action, nullptr);
}

}  // namespace

EndSignals::EndSignals(std::function<void()> ended) {
  if (pipe2(Handles, O_CLOEXEC | O_NONBLOCK) != 0) return;
  SignalPipe = Handles[1];
  Incoming = std::make_unique<QSocketNotifier>(Handles[0], QSocketNotifier::Read);
  QObject::connect(Incoming.get(), &QSocketNotifier::activated, [this, ended = std::move(ended)] {
    char marks[16];
    while (read(Handles[0], marks, sizeof marks) > 0) {
    }
    ended();
  });
  SetHandler(NoteSignal);
}

EndSignals::~EndSignals() {
  if (!Incoming) return;
  SetHandler(SIG_DFL);
  SignalPipe = -1;
  Incoming.reset();
  for (const int handle : Handles) close(handle);
}

struct LostDisplayGuard::State {
  std::function<void()> Lost;
  std::thread::id Owner = std::this_thread::get_id();
  bool Armed = true;
};

LostDisplayGuard::LostDisplayGuard(std::function<void()> lost) : Shared(new State{.Lost = std::move(lost)}) {
  // The exit handler outlives this object, and so does what it looks at.
  on_exit(
      [](int, void* argument) {
        const std::unique_ptr<State> state(static_cast<State*>(argument));
        if (state->Armed && state->Owner == std::this_thread::get_id()) state->Lost();
      },
      Shared);
}

LostDisplayGuard::~LostDisplayGuard() {
  Shared->Armed = false;
}

}  // namespace qves
