// The way of events to the calculator's thread.
#pragma once

#include <functional>
#include <memory>
#include <mutex>

#include "platform/Outside.h"
#include "platform/TTS.h"

namespace qves {

/// Brings reports of any thread to the listener, on the calculator's thread. What is still on its way when
/// the listener changes is dropped.
class SpeechReporter {
 public:
  explicit SpeechReporter(EventPump& pump);
  /// On the calculator's thread. Null: nobody listens.
  void SetListener(TtsListener* listener);
  /// On the calculator's thread: the pump is used no more, by whichever thread is still running.
  void Close();
  /// From any thread.
  void Post(std::function<void(TtsListener&)> report);

 private:
  struct Ear {
    TtsListener* Listener;  // read and written on the calculator's thread only
  };

  std::mutex Mutex;  // of what follows
  EventPump* Pump;
  std::shared_ptr<Ear> CurrentEar;
};

}  // namespace qves
