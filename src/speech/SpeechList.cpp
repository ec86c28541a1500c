#include "speech/SpeechList.h"

#include <pthread.h>

#include <chrono>
#include <thread>
#include <utility>

#include "speech/SpeechEngine.h"

namespace qves {
namespace {

constexpr auto LongestFarewell = std::chrono::milliseconds(50);

}  // namespace

SpeechList::SpeechList(std::shared_ptr<SpeechQueue> queue) : Queue(std::move(queue)) {
  std::packaged_task<void()> run([of = Queue] { of->Run(); });
  Ended = run.get_future();
  std::thread thread(std::move(run));
  pthread_setname_np(thread.native_handle(), "speech");
  thread.detach();
}

SpeechList::~SpeechList() {
  Queue->Close();
  Ended.wait_for(LongestFarewell);
}

// A list that is still to be read may hold what is wanted, so this one is not looked at.
std::unique_ptr<TtsEngine> SpeechList::Open(TtsChooser choose) {
  return std::make_unique<SpeechEngine>(Queue, std::move(choose));
}

}  // namespace qves
