#include "speech/speechd/SpeechdDriver.h"

#include <chrono>
#include <mutex>
#include <optional>
#include <utility>

#include "speech/SpeechWorker.h"
#include "speech/speechd/SpeechdPlayer.h"

namespace qves {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr auto ListAfter = milliseconds(3000);  // the first texts have the server for themselves
constexpr auto EagerListAfter = milliseconds(1500);
constexpr auto TryAgainAfter = seconds(30);
constexpr auto TryHungAgainAfter = seconds(600);  // or as soon as one of its calls comes back

class SpeechdDriver : public SpeechDriver {
 public:
  SpeechdDriver(DriverLinks driverLinks, bool connectAtOnce)
      : links(std::move(driverLinks)), eager(connectAtOnce) {}
  ~SpeechdDriver() override { voices->Close(); }
  SpeechdDriver(const SpeechdDriver&) = delete;
  SpeechdDriver& operator=(const SpeechdDriver&) = delete;

  void Prepare() override {
    if (eager) Worker();
    if (eager || SpeechdRuns()) voices->Begin(eager ? EagerListAfter : ListAfter, eager);
  }

  std::vector<Voice> Voices() override { return voices->Get(); }
  int MinimumPitch() const override { return -100; }
  int MaximumPitch() const override { return 100; }

  void Speak(Utterance text) override {
    Worker().Speak(std::move(text));
    voices->Begin(ListAfter, false);
  }

  void Interrupt() override {
    const std::lock_guard lock(mutex);
    if (worker) worker->Interrupt();
  }

  bool Usable() const override { return SteadyClock::now().time_since_epoch().count() >= health->DownUntil; }

  void PutDown() override {
    const SteadyClock::duration pause = health->Hung ? TryHungAgainAfter : TryAgainAfter;
    health->DownUntil = (SteadyClock::now() + pause).time_since_epoch().count();
  }

 private:
  SpeechWorker& Worker() {
    const std::lock_guard lock(mutex);
    if (!worker) {
      auto player = std::make_unique<SpeechdPlayer>(links.Number, eager, health, voices);
      worker.emplace(std::move(player), links.HandBack);
    }
    return *worker;
  }

  DriverLinks links;
  bool eager;
  std::shared_ptr<SpeechdHealth> health = std::make_shared<SpeechdHealth>();
  std::shared_ptr<SpeechdVoiceList> voices =
      std::make_shared<SpeechdVoiceList>(links.Number, links.VoicesChanged);
  std::mutex mutex;  // of the worker's coming to be
  std::optional<SpeechWorker> worker;
};

}  // namespace

std::shared_ptr<SpeechDriver> MakeSpeechdDriver(DriverLinks links, bool eager) {
  return std::make_shared<SpeechdDriver>(std::move(links), eager);
}

}  // namespace qves
