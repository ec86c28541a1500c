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

constexpr auto ListAfter = milliseconds(3000);  // the start has the machine for itself
constexpr auto EagerListAfter = milliseconds(1500);
constexpr auto TryAgainAfter = seconds(30);
constexpr auto TryHungAgainAfter = seconds(600);  // or as soon as one of its calls comes back

class SpeechdDriver : public SpeechDriver {
 public:
  SpeechdDriver(DriverLinks links, bool eager) : Links(std::move(links)), Eager(eager) {}
  ~SpeechdDriver() override { List->Close(); }
  SpeechdDriver(const SpeechdDriver&) = delete;
  SpeechdDriver& operator=(const SpeechdDriver&) = delete;

  void Prepare() override {
    if (Eager) Worker();
    if (Eager || SpeechdRuns()) List->Begin(Eager ? EagerListAfter : ListAfter, Eager);
  }

  std::vector<Voice> Voices() override { return List->Get(); }
  int MinimumPitch() const override { return -100; }
  int MaximumPitch() const override { return 100; }

  void Speak(Utterance text) override {
    Worker().Speak(std::move(text));
    if (!Eager) List->Forgo();
  }

  void Interrupt() override {
    const std::lock_guard lock(Mutex);
    if (OwnWorker) OwnWorker->Interrupt();
  }

  bool Usable() const override { return SteadyClock::now().time_since_epoch().count() >= Health->DownUntil; }

  void PutDown() override {
    const SteadyClock::duration pause = Health->Hung ? TryHungAgainAfter : TryAgainAfter;
    Health->DownUntil = (SteadyClock::now() + pause).time_since_epoch().count();
  }

 private:
  SpeechWorker& Worker() {
    const std::lock_guard lock(Mutex);
    if (!OwnWorker) {
      auto player = std::make_unique<SpeechdPlayer>(Links.Number, Eager, Health, List);
      OwnWorker.emplace(std::move(player), Links.HandBack);
    }
    return *OwnWorker;
  }

  DriverLinks Links;
  bool Eager;
  std::shared_ptr<SpeechdHealth> Health = std::make_shared<SpeechdHealth>();
  std::shared_ptr<SpeechdVoiceList> List =
      std::make_shared<SpeechdVoiceList>(Links.Number, Links.VoicesChanged);
  std::mutex Mutex;  // of the worker's coming to be
  std::optional<SpeechWorker> OwnWorker;
};

}  // namespace

std::shared_ptr<SpeechDriver> MakeSpeechdDriver(DriverLinks links, bool eager) {
  return std::make_shared<SpeechdDriver>(std::move(links), eager);
}

}  // namespace qves
