#include "speech/espeak/MarkTracker.h"

#include <limits>

#include "speech/SpeechText.h"

namespace qves {

MarkTracker::MarkTracker(const Utterance& utterance)
    : text(utterance), positions(CharacterPositions(utterance.Text, utterance.Marks)) {}

void MarkTracker::Meet(int characterPosition, std::int64_t sample) {
  while (unmet < positions.size() && positions[unmet] + 1 <= std::size_t(characterPosition))
    met.push_back({sample, text.Marks[unmet++].Number});
}

void MarkTracker::Heard(std::int64_t sample) {
  for (; !met.empty() && met.front().Sample <= sample; met.pop_front())
    text.Ticket.ReachMark(met.front().Number);
}

void MarkTracker::HeardAll() {
  Heard(std::numeric_limits<std::int64_t>::max());
  while (unmet < positions.size()) text.Ticket.ReachMark(text.Marks[unmet++].Number);
}

}  // namespace qves
