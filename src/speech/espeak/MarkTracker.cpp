#include "speech/espeak/MarkTracker.h"

#include <limits>

#include "speech/SpeechText.h"

namespace qves {

MarkTracker::MarkTracker(const Utterance& text, const Playing& playing)
    : Marks(text.Marks), Now(playing), Positions(CharacterPositions(text.Text, text.Marks)) {}

void MarkTracker::Meet(int characterPosition, std::int64_t sample) {
  while (Unmet < Positions.size() && Positions[Unmet] + 1 <= std::size_t(characterPosition))
    Met.push_back({sample, Marks[Unmet++].Number});
}

void MarkTracker::Heard(std::int64_t sample) {
  for (; !Met.empty() && Met.front().Sample <= sample; Met.pop_front()) Now.ReachMark(Met.front().Number);
}

void MarkTracker::HeardAll() {
  Heard(std::numeric_limits<std::int64_t>::max());
  while (Unmet < Positions.size()) Now.ReachMark(Marks[Unmet++].Number);
}

}  // namespace qves
