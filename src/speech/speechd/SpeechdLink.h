// A connection to the server whose calls cannot hold anybody up.
#pragma once

#include <speech-dispatcher/libspeechd.h>

#include <chrono>
#include <functional>
#include <memory>

#include "speech/speechd/SpeechdEvents.h"

namespace qves {

/// Calls the server on a thread of its own. A call that does not come back in time is left behind with its
/// thread and its connection; the link is then of no more use.
class SpeechdLink {
 public:
  /// A call: negative on failure, as the library's.
  using Call = std::function<int(SPDConnection&)>;
  /// `returnedLate` is called, on that thread, when a call that was left behind comes back after all.
  explicit SpeechdLink(std::function<void()> returnedLate);
  /// Does not wait: the thread closes the connection when it can.
  ~SpeechdLink();
  SpeechdLink(const SpeechdLink&) = delete;
  SpeechdLink& operator=(const SpeechdLink&) = delete;

  enum class Result { Done, Refused, NoAnswer };
  /// Connects; `spawn` also starts a server.
  Result Open(bool spawn, std::chrono::milliseconds longest, Signal& wake);
  Result Do(Call call, std::chrono::milliseconds longest);
  std::optional<SpeechdEvent> NextEvent();

 private:
  struct State;
  static void Run(const std::shared_ptr<State>& state);
  Result Execute(std::function<int(State&)> call, std::chrono::milliseconds longest);

  std::shared_ptr<State> Shared;
};

/// Opens a connection; null on failure. From then on a server that has died does not end this process by
/// SIGPIPE, as long as the connection is used on this thread only.
SPDConnection* OpenSpeechd(const char* name, SPDConnectionMode mode, bool spawn);

/// Whether a server seems to run already: its socket is there.
bool SpeechdRuns();

}  // namespace qves
