// Where the user is, and what the view holds.
#include "engine/Buttons.h"
#include "services/MessageIds.h"
#include "text/Text.h"
#include "views/Telling.h"
#include "views/View.h"

namespace qves {
namespace {

/// The operators whose sign has a word of its own; any other is called what its button is.
constexpr std::pair<std::string_view, int> SignWords[] = {
    {Buttons::Add.Caption, PlusMessage},        {Buttons::Subtract.Caption, MinusMessage},
    {Buttons::Multiply.Caption, TimesMessage},  {Buttons::Divide.Caption, DividedByMessage},
    {OpenGroupCaption, OpenParenthesisMessage},
};

void Append(std::string& text, std::string_view between, std::string_view part) {
  if (!text.empty() && !part.empty()) text += between;
  text += part;
}

}  // namespace

void View::SayWhere() {
  const Wording words = WhereAmI().Spoken();
  Common.Speech.SpeakText(words.Text, words.Value);
}

void View::SayHeld() {
  const Telling held = ReadBack();
  SetStatusLine(held.Shown());
  Common.Speech.SpeakText(held.Spoken().Text, held.Spoken().Value);
}

Telling View::WhereAmI() const {
  Telling where(Common.Speech);
  if (Engine->InError())
    where.Add(Message(ReasonMessage), {Message(FirstReasonMessage + static_cast<int>(Engine->Reason()))});
  where.Add(ViewName());
  AddModes(where);
  const ValueKind shown = Engine->DisplayKind();
  const ValueKind other = shown == ValueKind::BaseDigits ? shown : ValueKind::Number;
  AddOpenCalculation(where, other);
  if (Engine->ShowsValue() && Engine->DisplayText() != "0")
    where.Add(Message(CurrentValueMessage), {where.Number(Engine->DisplayText())}, shown);
  if (const auto memory = Engine->StoredNumber())
    where.Add(Message(MemoryHoldsMessage), {where.Number(*memory)}, other);
  return where;
}

/// "2 times, open parenthesis, 3 plus."
void View::AddOpenCalculation(Telling& telling, ValueKind kind) const {
  ToldValue calculation("");
  for (const OpenOperand& open : Engine->OpenCalculation()) {
    ToldValue told = telling.Number(open.Number);
    const std::string words = WordsOfOperator(open.Operator);
    Append(told.Spoken, " ", words);
    Append(told.Shown, " ", words);
    Append(calculation.Spoken, ", ", told.Spoken);
    Append(calculation.Shown, ", ", told.Shown);
  }
  if (!calculation.Spoken.empty()) telling.Add(Placeholder, {calculation}, kind);
}

std::string View::WordsOfOperator(std::string_view caption) const {
  for (const auto& [sign, message] : SignWords)
    if (sign == caption) return std::string(Trimmed(Message(message)));
  for (const auto& control : Controls())
    if (control->Caption == caption) return control->SpokenName;
  return std::string(caption);
}

void View::ShowOpenLine() {
  std::string line;
  for (const OpenOperand& open : Engine->OpenCalculation()) {
    Append(line, " ", open.Number);
    Append(line, " ", open.Operator);
  }
  SetOpenLine(line);
}

void View::AddModes(Telling& telling) const {
  AddChoices(telling, ChoicesTold::Changed);
  AddChecked(telling);
}

void View::AddChoices(Telling& telling, ChoicesTold which) const {
  auto start = AtStart.Options.begin() + static_cast<std::ptrdiff_t>(Boxes.size());
  for (const ListBox* list : OptionLists)
    if (const int first = *start++; which == ChoicesTold::All || list->ListIndex != first)
      telling.Add(list->Chosen().SpokenText);
}

void View::AddChecked(Telling& telling) const {
  for (const CheckBox* box : Boxes)
    if (box->Checked) telling.Add(box->SpokenName + " " + StateOf(*box));
}

Telling View::ReadBack() const {
  return WhereAmI();
}

}  // namespace qves
