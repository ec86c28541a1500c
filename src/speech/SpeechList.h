// The one list of engines, over the voices of all back ends.
#pragma once

#include <memory>
#include <mutex>
#include <vector>

#include "platform/Outside.h"
#include "platform/TTS.h"
#include "speech/SpeechDriver.h"
#include "speech/SpeechReporter.h"

namespace qves {

/// Leads each text to the back end of its voice or, while that one fails, to the next that does not.
class SpeechRoute {
 public:
  void Add(std::shared_ptr<SpeechDriver> driver);
  const std::shared_ptr<SpeechDriver>& Driver(int number) const { return Drivers[std::size_t(number)]; }
  int DriverCount() const { return int(Drivers.size()); }
  void Speak(Utterance text);
  void Interrupt();
  /// A back end cannot speak these texts.
  void TakeBack(int number, std::vector<Utterance> texts);

 private:
  void Lead(Utterance text);

  std::mutex Mutex;  // keeps the order of texts that come from two threads
  std::vector<std::shared_ptr<SpeechDriver>> Drivers;
};

class SpeechList : public TTS {
 public:
  explicit SpeechList(EventPump& pump);
  ~SpeechList() override;
  SpeechList(const SpeechList&) = delete;
  SpeechList& operator=(const SpeechList&) = delete;

  /// Adds a back end. One that is not listed only stands in for those that fail.
  void Add(const DriverMaker& maker, bool listed);

  int Count() const override;
  TtsEngineInfo Item(int index) const override;
  std::unique_ptr<TtsEngine> Open(int index) override;
  void SetListener(TtsListener* listener) override;

 private:
  const Voice* VoiceAt(int index) const;

  std::shared_ptr<SpeechReporter> Reporter;
  std::shared_ptr<SpeechRoute> Route;
  std::vector<int> ListedDrivers;
  mutable std::vector<Voice> Voices;  // as they were counted last
};

}  // namespace qves
