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
  explicit EspeakDriver(DriverLinks links) : Links(std::move(links)) {}

  void Prepare() override { Worker(); }

  std::vector<Voice> Voices() override {
    Worker();
    return Box->Wait();
  }

  int MinimumPitch() const override { return 0; }
  int MaximumPitch() const override { return 100; }
  void Speak(Utterance text) override { Worker().Speak(std::move(text)); }

  void Interrupt() override {
    const std::lock_guard lock(Mutex);
    if (OwnWorker) OwnWorker->Interrupt();
  }

  bool Usable() const override { return !Box->Failed(); }
  void PutDown() override {}  // without its data the library never speaks, and the voices tell that

 private:
  // The thread starts when it is first needed: a back end that only stands in costs nothing.
  SpeechWorker& Worker() {
    const std::lock_guard lock(Mutex);
    if (!OwnWorker) OwnWorker.emplace(std::make_unique<EspeakPlayer>(Box, Links.Number), Links.HandBack);
    return *OwnWorker;
  }

  DriverLinks Links;
  std::shared_ptr<EspeakVoiceBox> Box = std::make_shared<EspeakVoiceBox>(Links.VoicesChanged);
  std::mutex Mutex;  // of the worker's coming to be
  std::optional<SpeechWorker> OwnWorker;
};

}  // namespace

std::shared_ptr<SpeechDriver> MakeEspeakDriver(DriverLinks links) {
  return std::make_shared<EspeakDriver>(std::move(links));
}

}  // namespace qves
