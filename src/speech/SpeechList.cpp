#include "speech/SpeechList.h"

#include <pthread.h>

#include <chrono>
#include <utility>

#include "speech/SpeechEngine.h"

namespace qves {
namespace {

constexpr auto LongestFarewell = std::chrono::milliseconds(50);

}  // namespace

SpeechList::SpeechList(EventPump& pump, const std::vector<BackEndMaker>& listed,
                       const std::vector<BackEndMaker>& standIns)
    : Empty(listed.empty()), Queue(std::make_shared<SpeechQueue>(pump)) {
  for (const BackEndMaker& make : listed) Queue->Add(make(Queue->Changed()), true);
  for (const BackEndMaker& make : standIns) Queue->Add(make(Queue->Changed()), false);
  std::packaged_task<void()> run([queue = Queue] { queue->Run(); });
  Ended = run.get_future();
  if (Empty) return;
  Thread = std::thread(std::move(run));
  pthread_setname_np(Thread.native_handle(), "speech");
}

SpeechList::~SpeechList() {
  Queue->Close();
  if (Empty) return;
  if (Ended.wait_for(LongestFarewell) == std::future_status::ready)
    Thread.join();
  else
    Thread.detach();
}

// A list that is still to be read may hold what is wanted, so this one is not looked at.
std::unique_ptr<TtsEngine> SpeechList::Open(TtsChooser choose) {
  if (Empty) return nullptr;
  return std::make_unique<SpeechEngine>(Queue, std::move(choose));
}

}  // namespace qves
