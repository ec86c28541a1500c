// A text on its way to be spoken, and what it shares with its speaker.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/TTS.h"
#include "speech/SpeechReporter.h"

namespace qves {

/// What a speaker, its texts and the threads that play them have in common.
class SpeakerState : public std::enable_shared_from_this<SpeakerState> {
 public:
  SpeakerState(std::shared_ptr<SpeechReporter> reporter, TtsSpeaker& speaker);
  /// The speaker is destroyed: nothing of it is reported any more. On the calculator's thread.
  void Retire();
  /// All texts of before are outdated.
  void Interrupt() { ++CurrentGeneration; }
  std::uint64_t Generation() const { return CurrentGeneration; }
  bool Busy() const { return Texts > 0; }
  void AddText() { ++Texts; }
  /// A text has been spoken or dropped. With the last one the speaker has stopped.
  void RemoveText();
  /// A mark of a text of the given generation is heard.
  void ReachMark(std::uint64_t ofGeneration, std::int32_t number);

 private:
  std::shared_ptr<SpeechReporter> Reporter;
  TtsSpeaker* Speaker;  // used on the calculator's thread only
  std::atomic<std::uint64_t> CurrentGeneration = 0;
  std::atomic<int> Texts = 0;
};

/// A text's place among its speaker's: counts it as long as it lives.
class SpeechTicket {
 public:
  explicit SpeechTicket(std::shared_ptr<SpeakerState> state);
  ~SpeechTicket();
  SpeechTicket(SpeechTicket&&) noexcept = default;
  SpeechTicket& operator=(SpeechTicket&& other) noexcept;
  SpeechTicket(const SpeechTicket&) = delete;
  SpeechTicket& operator=(const SpeechTicket&) = delete;
  /// Its speaker has been silenced since.
  bool Outdated() const { return State->Generation() != Generation; }
  void ReachMark(std::int32_t number) const { State->ReachMark(Generation, number); }

 private:
  std::shared_ptr<SpeakerState> State;
  std::uint64_t Generation;
};

struct Voice {
  TtsEngineInfo Info;
  std::string Key;  ///< its name for the library; empty: the library's own default
  int BackEnd = 0;  ///< the back end's number in the list
};

/// What was never set is left to the back end.
struct VoiceSettings {
  std::optional<int> WordsPerMinute;
  std::optional<std::int32_t> Volume;  ///< 0 to 65535
  std::optional<double> Pitch;         ///< from 0, the lowest, to 1, the highest
};

struct Utterance {
  std::string Text;             ///< clean
  std::vector<BookMark> Marks;  ///< in order
  std::shared_ptr<const Voice> Speaking;
  VoiceSettings Settings;
  SpeechTicket Ticket;

  /// So many bytes, no more than there are and to a character's start, have been spoken: what is left is the
  /// rest with its marks, one at its start included.
  void DropFront(std::size_t length);
};

}  // namespace qves
