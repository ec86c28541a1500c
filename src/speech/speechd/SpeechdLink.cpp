#include "speech/speechd/SpeechdLink.h"

#include <signal.h>
#include <sys/stat.h>

#include <cstdlib>
#include <thread>
#include <utility>

namespace qves {

struct SpeechdLink::State {
  std::function<void()> ReturnedLate;
  std::shared_ptr<SpeechdEvents> Events = std::make_shared<SpeechdEvents>();
  SPDConnection* Connection = nullptr;  // used on the link's thread only

  std::mutex Mutex;  // of what follows
  std::condition_variable Changed;
  std::function<int(State&)> Job;
  std::optional<int> Answer;
  bool LeftBehind = false;
  bool Quit = false;

  // Waits for the next job; empty: there will be none.
  std::function<int(State&)> NextJob() {
    std::unique_lock lock(Mutex);
    Changed.wait(lock, [this] { return Quit || Job; });
    return Quit ? nullptr : std::exchange(Job, nullptr);
  }

  // False when nobody waits for the answer any more.
  bool GiveAnswer(int answer) {
    const std::lock_guard lock(Mutex);
    Answer = answer;
    Changed.notify_all();
    return !LeftBehind;
  }
};

SpeechdLink::SpeechdLink(std::function<void()> returnedLate) : Shared(std::make_shared<State>()) {
  Shared->ReturnedLate = std::move(returnedLate);
  std::thread([state = Shared] { Run(state); }).detach();
}

SpeechdLink::~SpeechdLink() {
  Shared->Events->SetWaker(nullptr);
  const std::lock_guard lock(Shared->Mutex);
  Shared->Quit = true;
  Shared->Changed.notify_all();
}

void SpeechdLink::Run(const std::shared_ptr<State>& state) {
  while (const auto job = state->NextJob()) {
    if (state->GiveAnswer(job(*state))) continue;
    state->ReturnedLate();
    break;
  }
  if (state->Connection) spd_close(state->Connection);
}

SpeechdLink::Result SpeechdLink::Open(bool spawn, std::chrono::milliseconds longest, Signal& wake) {
  Shared->Events->SetWaker(&wake);
  const auto open = [spawn](State& own) {
    own.Connection = OpenSpeechd("main", SPD_MODE_THREADED, spawn);
    return own.Connection && ListenTo(*own.Connection, own.Events) ? 0 : -1;
  };
  return Execute(open, longest);
}

SpeechdLink::Result SpeechdLink::Do(Call call, std::chrono::milliseconds longest) {
  return Execute([call = std::move(call)](State& own) { return own.Connection ? call(*own.Connection) : -1; },
                 longest);
}

SpeechdLink::Result SpeechdLink::Execute(std::function<int(State&)> call, std::chrono::milliseconds longest) {
  std::unique_lock lock(Shared->Mutex);
  if (Shared->LeftBehind) return Result::NoAnswer;
  Shared->Answer.reset();
  Shared->Job = std::move(call);
  Shared->Changed.notify_all();
  if (!Shared->Changed.wait_for(lock, longest, [this] { return Shared->Answer.has_value(); })) {
    Shared->LeftBehind = true;
    return Result::NoAnswer;
  }
  return *Shared->Answer >= 0 ? Result::Done : Result::Refused;
}

std::optional<SpeechdEvent> SpeechdLink::NextEvent() {
  return Shared->Events->Next();
}

namespace {

// Not before a server has been started, which would inherit it.
void BlockBrokenPipes() {
  sigset_t signals;
  sigemptyset(&signals);
  sigaddset(&signals, SIGPIPE);
  pthread_sigmask(SIG_BLOCK, &signals, nullptr);
}

}  // namespace

// The library writes its error text whether it is asked for or not.
SPDConnection* OpenSpeechd(const char* name, SPDConnectionMode mode, bool spawn) {
  char* error = nullptr;
  SPDConnection* connection = spd_open2("qvescalc", name, nullptr, mode, nullptr, spawn, &error);
  std::free(error);
  BlockBrokenPipes();
  return connection;
}

bool SpeechdRuns() {
  char* error = nullptr;
  SPDConnectionAddress* address = spd_get_default_address(&error);
  std::free(error);
  if (!address) return false;
  struct stat found;
  const bool runs = address->method != SPD_METHOD_UNIX_SOCKET ||
                    (address->unix_socket_name && stat(address->unix_socket_name, &found) == 0);
  SPDConnectionAddress__free(address);
  return runs;
}

}  // namespace qves
