// The one list of engines, over the voices of all back ends.
#pragma once

#include <future>
#include <memory>
#include <vector>

#include "platform/TTS.h"
#include "speech/SpeechQueue.h"

namespace qves {

class SpeechList : public TTS {
 public:
  /// Starts the queue's thread. The queue has its back ends.
  explicit SpeechList(std::shared_ptr<SpeechQueue> queue);
  /// Does not wait for a back end that hangs: the thread is left behind, with all that it needs.
  ~SpeechList() override;
  SpeechList(const SpeechList&) = delete;
  SpeechList& operator=(const SpeechList&) = delete;

  std::vector<TtsEngineInfo> Engines() const override { return Queue->Engines(); }
  std::unique_ptr<TtsEngine> Open(TtsChooser choose) override;
  void SetListener(TtsListener* listener) override { Queue->SetListener(listener); }

 private:
  std::shared_ptr<SpeechQueue> Queue;
  std::future<void> Ended;
};

}  // namespace qves
