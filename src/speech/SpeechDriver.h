// What a back end offers to the list of engines.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "speech/Utterance.h"

namespace qves {

/// One back end. No call blocks, but Voices() as it says; all may come from any thread.
class SpeechDriver {
 public:
  virtual ~SpeechDriver() = default;
  /// Begins what is better begun before it is needed.
  virtual void Prepare() = 0;
  /// The voices known by now, the best for the desktop's user first. May wait for a library in this process
  /// to read its voices, half a second at most.
  virtual std::vector<Voice> Voices() = 0;
  virtual int MinimumPitch() const = 0;
  virtual int MaximumPitch() const = 0;
  /// Speaks the text after those that it has.
  virtual void Speak(Utterance text) = 0;
  /// Texts have become outdated: silences and drops them.
  virtual void Interrupt() = 0;
  /// False while it is known to fail.
  virtual bool Usable() const = 0;
  /// It has just handed its texts back: it counts as failing for a while.
  virtual void PutDown() = 0;
};

/// What a driver calls, from any thread.
struct DriverLinks {
  int Number = 0;  ///< the back end's number in the list
  std::function<void()> VoicesChanged;
  std::function<void(std::vector<Utterance>)> HandBack;  ///< it cannot speak these
};

using DriverMaker = std::function<std::shared_ptr<SpeechDriver>(DriverLinks)>;

}  // namespace qves
