#include "services/VoiceMessages.h"

#include "services/MessageIds.h"
#include "text/Text.h"

namespace qves {
namespace {

struct WordRow {
  std::string VoiceWords::*Word;
  int Message;
};

constexpr WordRow SpokenWords[] = {
    {&VoiceWords::Separator, DecimalSeparatorMessage},
    {&VoiceWords::Point, PointMessage},
    {&VoiceWords::SpokenMinus, MinusMessage},
};

/// They have blanks around where they are spoken.
constexpr WordRow HeardWords[] = {
    {&VoiceWords::HeardPoint, PointMessage},
    {&VoiceWords::LeftParen, 4040},
    {&VoiceWords::Plus, PlusMessage},
    {&VoiceWords::Minus, MinusMessage},
    {&VoiceWords::Times, TimesMessage},
    {&VoiceWords::DividedBy, DividedByMessage},
    {&VoiceWords::Equals, 1720},
    {&VoiceWords::Of, 1721},
    {&VoiceWords::About, 1722},
    {&VoiceWords::TimesTenToThe, 1723},
};

/// A function as a tape line writes it, and the name of its button.
constexpr std::pair<std::string_view, int> Functions[] = {{"Sqr", SquareRootMessage},
                                                          {"Int", 1006},
                                                          {"sin", 1008},
                                                          {"cos", 1010},
                                                          {"tan", 1012},
                                                          {"Not", 1014},
                                                          {"ln", 1022},
                                                          {"log", 1024}};

constexpr int MonthCount = 12;

}  // namespace

VoiceWords ReadVoiceWords(const MessageStore& messages) {
  VoiceWords words;
  for (const WordRow& row : SpokenWords) words.*row.Word = messages.GetMessage(row.Message);
  for (const WordRow& row : HeardWords) words.*row.Word = Trimmed(messages.GetMessage(row.Message));
  if (words.HeardPoint.empty()) words.HeardPoint = messages.GetMessage(CharacterNameMessages + '.');
  for (const auto& [written, message] : Functions)
    words.Functions.emplace_back(written, messages.GetMessage(message));
  for (int month = 0; month < MonthCount; ++month)
    words.Months.emplace_back(messages.GetMessage(FirstMonthMessage + month),
                              messages.GetMessage(FirstFullMonthMessage + month));
  return words;
}

}  // namespace qves
