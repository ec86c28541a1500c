// From the library's word and sentence events to the marks of a text.
#pragma once

#include <espeak-ng/speak_lib.h>

#include <cstdint>
#include <deque>
#include <vector>

#include "speech/SpeechBackEnd.h"

namespace qves {

/// The library loses marks in markup that lie between two sentences, so the marks are found by the positions
/// of the words. They are reported in order and none is lost: at the latest, when all of the text has been
/// heard.
class MarkTracker {
 public:
  MarkTracker(const Utterance& text, const Playing& playing);
  /// The word or sentence that begins at a character (from 1) has its first sample at `sample`.
  void Meet(int characterPosition, std::int64_t sample);
  /// All samples up to this one have been heard.
  void Heard(std::int64_t sample);
  /// All has been heard.
  void HeardAll();
  /// The sample of the next mark that waits to be heard; -1 when there is none.
  std::int64_t Next() const { return Met.empty() ? -1 : Met.front().Sample; }

 private:
  struct MetMark {
    std::int64_t Sample;
    std::int32_t Number;
  };

  const std::vector<BookMark>& Marks;
  const Playing& Now;
  std::vector<std::size_t> Positions;  // of the text's marks, in characters
  std::size_t Unmet = 0;               // the first mark that is not in Met yet
  std::deque<MetMark> Met;
};

/// True for the events that tell where a word or sentence begins.
inline bool TellsPosition(const espeak_EVENT& event) {
  return (event.type == espeakEVENT_WORD || event.type == espeakEVENT_SENTENCE) && event.text_position > 0;
}

}  // namespace qves
