// Plays texts through the server, one at a time, and finds out when it fails.
#pragma once

#include <atomic>
#include <memory>
#include <string>

#include "speech/SpeechText.h"
#include "speech/SpeechWorker.h"
#include "speech/speechd/SpeechdLink.h"
#include "speech/speechd/SpeechdVoices.h"

namespace qves {

/// What the driver and its player know of the server. Times are of SteadyClock, as its counts.
struct SpeechdHealth {
  std::atomic<SteadyClock::rep> DownUntil = 0;
  std::atomic<bool> Hung = false;  ///< the last failure was a call that did not come back
};

/// How a connection speaks; what is not set is as the user has it in the server's own settings.
struct SpeechdManner {
  std::string Module;
  std::string VoiceName;
  std::optional<int> Rate;
  std::optional<int> Volume;
  std::optional<int> Pitch;
  bool Markup = false;

  /// Whether `wanted` can be had by setting, as a connection's settings can be changed but not unset.
  bool CanBecome(const SpeechdManner& wanted) const;
};
SpeechdManner MannerOf(const Utterance& text, int backEnd);

class SpeechdPlayer : public SpeechPlayer {
 public:
  SpeechdPlayer(int backEnd, bool eager, std::shared_ptr<SpeechdHealth> health,
                std::shared_ptr<SpeechdVoiceList> voices);
  void Start(Signal& wake) override;
  bool Play(const Utterance& text, PlayControl& control) override;

 private:
  struct Passage;
  bool Connect(Signal& wake);
  SpeechdLink::Result TryOpen(bool spawn, std::chrono::milliseconds longest, Signal& wake);
  bool PlayPiece(Passage& passage);
  bool Say(Passage& passage);
  bool Follow(Passage& passage);
  bool FollowEvents(Passage& passage);
  bool StillAnswers(Passage& passage);
  bool Cancel();
  bool Do(SpeechdLink::Call call);

  int BackEnd;
  bool Eager;
  std::shared_ptr<SpeechdHealth> Health;
  std::shared_ptr<SpeechdVoiceList> Voices;
  std::unique_ptr<SpeechdLink> Link;
  SpeechdManner Manner;  // of the link
  int Failures = 0;      // since a text was spoken to its end
};

}  // namespace qves
