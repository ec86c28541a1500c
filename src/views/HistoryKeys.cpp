// The keys of the history, in every view.
#include <algorithm>

#include "model/ArithmeticFault.h"
#include "services/MessageIds.h"
#include "text/Characters.h"
#include "views/View.h"

namespace qves {

void View::Record(FinishedCalculation calculation) {
  Common.Past.Add(std::move(calculation));
}

void View::HearEarlier() {
  TellCalculation(Common.Past.Walk(-1));
}

void View::HearLater() {
  TellCalculation(Common.Past.Walk(1));
}

/// Its place among how many, and its line.
void View::TellCalculation(const FinishedCalculation* calculation) {
  if (!calculation) return Common.Speech.SpeakText(Message(HistoryEmptyMessage));
  const ValueKind kind = KindOfLine(*calculation);
  // The letters of another number base are digits and no name.
  const std::string line = kind == ValueKind::BaseDigits ? Common.Speech.SpeechFormatNumber(calculation->Line)
                                                         : LineInWords(calculation->Line);
  const std::string text =
      FillPlaceholders(Message(HistoryPlaceMessage),
                       {std::to_string(Common.Past.Place()), std::to_string(Common.Past.Count())}) +
      " ";
  // Within a number's span a parenthesis would be heard; a function's is none.
  const std::size_t length = kind == ValueKind::Number ? 0 : line.size();
  Common.Speech.SpeakText(text + line, {text.size(), length, kind});
}

/// As the tape is spoken. A name before the result, as that of a register, stays as it is: its hyphens are no
/// signs.
std::string View::LineInWords(const std::string& line) const {
  const std::size_t sign = std::min(line.find(" = "), line.size());
  const bool isName =
      sign < line.size() && std::none_of(line.begin(), line.begin() + static_cast<int>(sign), IsDigit);
  const std::size_t name = isName ? sign : 0;
  return line.substr(0, name) + Common.Speech.SpeechFormatNumber(line.substr(name));
}

/// Only a date begins with the name of a weekday.
ValueKind View::KindOfLine(const FinishedCalculation& calculation) const {
  if (calculation.Base != NumberBase::Decimal) return ValueKind::BaseDigits;
  constexpr int weekdays = 7;
  for (int id = FirstWeekdayMessage; id < FirstWeekdayMessage + weekdays; ++id)
    if (!Message(id).empty() && calculation.Line.starts_with(Message(id) + ",")) return ValueKind::DateText;
  return ValueKind::Number;
}

/// The result heard last, as MR takes the memory.
void View::TakeFromHistory() {
  const FinishedCalculation* heard = Common.Past.Heard();
  if (!heard) return Common.Speech.SpeakText(Message(HistoryEmptyMessage));
  Engine->BeginKey();
  try {
    Engine->TakeNumber(heard->Value);
    const Wording words = WithValue(TakenMessage);
    Says.Say(words.Text, words.Value);
  } catch (const ArithmeticFault& fault) {
    OnFault(fault);
  }
  NoteStep(Message(TakeStepMessage));
}

}  // namespace qves
