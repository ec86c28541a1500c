#include "speech/espeak/EspeakDriver.h"

#include <mutex>
#include <optional>
#include <utility>

#include "speech/SpeechWorker.h"
#include "speech/espeak/EspeakPlayer.h"
#include "speech/espeak/EspeakVoices.h"

namespace qves {
namespace {

class EspeakDriver : public SpeechDriver {
 public:
  explicit EspeakDriver(DriverLinks driverLinks) : links(std::move(driverLinks)) {}

  void Prepare() override { Worker(); }

  std::vector<Voice> Voices() override {
    Worker();
    return voices->Wait();
  }

  int MinimumPitch() const override { return 0; }
  int MaximumPitch() const override { return 100; }
  void Speak(Utterance text) override { Worker().Speak(std::move(text)); }

  void Interrupt() override {
    const std::lock_guard lock(mutex);
    if (worker) worker->Interrupt();
  }

  bool Usable() const override { return !voices->Failed(); }
  void PutDown() override {}  // without its data the library never speaks, and the voices tell that

 private:
  // The thread starts when it is first needed: a back end that only stands in costs nothing.
  SpeechWorker& Worker() {
    const std::lock_guard lock(mutex);
    if (!worker) worker.emplace(std::make_unique<EspeakPlayer>(voices, links.Number), links.HandBack);
    return *worker;
  }

  DriverLinks links;
  std::shared_ptr<EspeakVoiceBox> voices = std::make_shared<EspeakVoiceBox>(links.VoicesChanged);
  std::mutex mutex;  // of the worker's coming to be
  std::optional<SpeechWorker> worker;
};

}  // namespace

std::shared_ptr<SpeechDriver> MakeEspeakDriver(DriverLinks links) {
  return std::make_shared<EspeakDriver>(std::move(links));
}

}  // namespace qves
