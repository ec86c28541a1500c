// The one list of engines, over the voices of all back ends.
#pragma once

#include <functional>
#include <future>
#include <memory>
#include <thread>
#include <vector>

#include "platform/Outside.h"
#include "platform/TTS.h"
#include "speech/SpeechQueue.h"

namespace qves {

/// `changed` is what the back end is to wait with.
using BackEndMaker = std::function<std::unique_ptr<SpeechBackEnd>(Wake& changed)>;

class SpeechList : public TTS {
 public:
  /// The listed ones in order of preference; those that stand in speak when all of them fail.
  SpeechList(EventPump& pump, const std::vector<BackEndMaker>& listed,
             const std::vector<BackEndMaker>& standIns);
  /// Does not wait for a back end that hangs: the thread is left behind, with all that it needs.
  ~SpeechList() override;
  SpeechList(const SpeechList&) = delete;
  SpeechList& operator=(const SpeechList&) = delete;

  std::vector<TtsEngineInfo> Engines() const override { return Queue->Engines(); }
  std::unique_ptr<TtsEngine> Open(TtsChooser choose) override;
  void SetListener(TtsListener* listener) override { Queue->SetListener(listener); }

 private:
  bool Empty;
  std::shared_ptr<SpeechQueue> Queue;
  std::future<void> Ended;
  std::thread Thread;
};

}  // namespace qves
