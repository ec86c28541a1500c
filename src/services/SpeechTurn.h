// What is spoken while one event is handled, and a long text on its way to the voice.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "voicing/VoicedText.h"

namespace qves {

enum class SpeechHow { Now, Queued, Stop };

struct SpeechAct {
  SpeechHow How = SpeechHow::Now;
  std::string Text;
  ValueSpan Value;
  std::vector<BookMark> Marks;  ///< of a text that is read aloud
  bool IsAloud = true;          ///< false: said while the voice was off

  bool Interrupts() const { return IsAloud && How != SpeechHow::Queued; }
};

class SpeechObserver {
 public:
  virtual ~SpeechObserver() = default;
  /// All that was spoken in a turn, in order. Of those from `firstHeard` on the voice gets what is said
  /// aloud.
  virtual void TurnEnded(std::span<const SpeechAct> acts, std::size_t firstHeard) = 0;
};

/// A text that is read aloud, cut into pieces at its marks: the voice has one piece more than it needs, and a
/// long text begins as soon as a short one.
class PiecewiseReading {
 public:
  PiecewiseReading() = default;
  PiecewiseReading(std::string text, std::vector<BookMark> marks, ValueKind kind)
      : Kind(kind), Text(std::move(text)), Marks(std::move(marks)) {}

  bool IsOver() const { return Start == Text.size(); }
  /// The next piece, the offsets of its marks within it.
  MarkedText Next();
  /// Whether that mark begins the piece taken last.
  bool IsNewest(std::int32_t mark) const { return mark == Newest; }

  ValueKind Kind = ValueKind::Number;  ///< what the numbers of the text are

 private:
  std::string Text;
  std::vector<BookMark> Marks;  ///< in order
  std::size_t Start = 0;        ///< of the next piece
  std::size_t NextMark = 0;
  std::int32_t Newest = -1;
};

}  // namespace qves
