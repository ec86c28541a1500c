// The speech engine control: a list of engines (one a voice) of all back ends, and what an engine and its
// speakers do.
//
// No call of any class here blocks: a back end queues the work for a thread of its own and returns at once,
// also when its speech server hangs, dies or was never there. Whatever a back end has to tell arrives at the
// listener as a queued event on the calculator's one thread.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "text/MarkedText.h"

namespace qves {

class TtsSpeaker {
 public:
  virtual ~TtsSpeaker() = default;
  /// Silences what is being spoken and drops what is queued, then speaks the text (UTF-8). An empty text only
  /// silences.
  virtual void SpeakNow(std::string_view text, std::span<const BookMark> marks = {}) = 0;
  /// Speaks the text (UTF-8) after what is being spoken and queued.
  virtual void SpeakQueued(std::string_view text, std::span<const BookMark> marks = {}) = 0;
  /// Silences the speaker and drops what is queued.
  virtual void Stop() = 0;
  /// True while the speaker speaks or has text queued.
  virtual bool Busy() const = 0;
};

class TtsEngine {
 public:
  virtual ~TtsEngine() = default;
  /// Makes the engine ready; false when it cannot speak at all.
  virtual bool Initialise() = 0;
  virtual void SetSpeed(int wordsPerMinute) = 0;
  /// From 0 (silent) to 65535 (full). A larger value counts as full, a negative one as 0.
  virtual void SetVolume(std::int32_t volume) = 0;
  /// From MinimumPitch to MaximumPitch.
  virtual void SetPitch(int pitch) = 0;
  virtual int MinimumPitch() const = 0;
  virtual int MaximumPitch() const = 0;
  /// Speaker 1 or 2, owned by the engine; null for any other number.
  virtual TtsSpeaker* Speaker(int number) = 0;
  virtual bool Busy() const = 0;
};

/// What the settings are matched against.
struct TtsEngineInfo {
  std::string Manufacturer;
  std::string Product;
  std::string VoiceName;
  bool operator==(const TtsEngineInfo&) const = default;

  int LanguageId = 0;  ///< the low ten bits are the primary language (9 English, 7 German, 12 French, ...)
};

/// Told, on the calculator's thread, what the speakers report.
class TtsListener {
 public:
  virtual ~TtsListener() = default;
  virtual void BookMarkReached(std::int32_t number, TtsSpeaker& speaker) = 0;
  virtual void SpeechStopped(TtsSpeaker& speaker) = 0;
};

/// Takes one engine out of a list: its number, counted from 1; what lies outside the list is none.
using TtsChooser = std::function<int(const std::vector<TtsEngineInfo>&)>;

class TTS {
 public:
  virtual ~TTS() = default;
  /// The engines known by now, the best for the desktop's user first.
  virtual std::vector<TtsEngineInfo> Engines() const = 0;
  /// The engine that is chosen; null when there is none. A list that is still to be read is not waited for:
  /// the engine's texts are, and it is chosen then. When the list has grown it is chosen anew, with the next
  /// text that interrupts. So `choose` may be called later and on any thread.
  virtual std::unique_ptr<TtsEngine> Open(TtsChooser choose) = 0;
  /// Null: nobody listens. Events of before are dropped.
  virtual void SetListener(TtsListener* listener) = 0;
};

}  // namespace qves
