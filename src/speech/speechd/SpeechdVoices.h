// The voices that the server offers, read in the background.
#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <vector>

#include "speech/Utterance.h"

namespace qves {

/// What a voice's key holds: the server's module and its name for the voice, both empty for the user's own
/// default.
struct SpeechdVoiceKey {
  std::string Module;
  std::string Name;
};
std::string PackKey(const SpeechdVoiceKey& key);
SpeechdVoiceKey UnpackKey(const std::string& packed);

/// The list begins with the user's own default. The others are added by a thread that nobody waits for: it
/// takes two seconds, most of it reading.
class SpeechdVoiceList : public std::enable_shared_from_this<SpeechdVoiceList> {
 public:
  SpeechdVoiceList(int backEnd, std::function<void()> changed);
  std::vector<Voice> Get() const;
  /// Lists once; further calls do nothing. `spawn`: starts a server when none runs.
  void Begin(std::chrono::milliseconds delay, bool spawn);
  /// The voice that is wanted is found already: the server is not kept busy with a list.
  void Forgo();
  /// True while the server may be slow to answer because it lists.
  bool Listing() const;
  /// No more changes are told.
  void Close();

 private:
  void Run(std::chrono::milliseconds delay, bool spawn);
  bool WaitFor(std::chrono::milliseconds delay);
  void SetListing(bool now);

  int BackEnd;
  mutable std::mutex Mutex;  // of what follows
  std::condition_variable ClosedChanged;
  std::function<void()> Changed;
  std::vector<Voice> Voices;
  bool Begun = false;
  bool ListingNow = false;
  bool Forgone = false;
  bool Closed = false;
};

}  // namespace qves
