#include "voicing/VoicedText.h"

#include <algorithm>
#include <utility>

#include "text/Characters.h"
#include "voicing/SpokenNumber.h"

namespace qves {
namespace {

constexpr std::string_view Blanks = " \t\r\n";
constexpr std::string_view BaseDigits = "0123456789ABCDEF";

bool IsBlank(char c) {
  return Blanks.find(c) != std::string_view::npos;
}

/// Whether a word that comes next has to be kept apart from what stands there.
bool IsGlued(char neighbour) {
  return IsWordCharacter(neighbour) || neighbour == '-' || neighbour == '(' || neighbour == ')';
}

/// Goes through a spoken text from left to right and writes the voiced one.
class Voicing {
 public:
  Voicing(std::string_view text, const VoicingRules& rules, ValueSpan value, std::span<const BookMark> marks)
      : Text(text), Rules(rules), Words(rules.Words), Value(value), Marks(marks) {
    Out.Text.reserve(text.size() + text.size() / 2);
    Out.Marks.reserve(marks.size());
  }

  MarkedText Run() {
    while (At < Text.size()) {
      if (!TakeValue() && !TakeParen() && !TakeNumber() && !TakeSign() && !TakeFunction() &&
          !TakeFunctionEnd())
        Copy();
      PauseBehindValue();
    }
    Marks.MoveUpTo(Text.size(), Out);
    return std::move(Out);
  }

 private:
  void Copy() {
    Marks.MoveUpTo(At, Out);
    Out.Text += Text[At++];
  }

  /// Writes words in place of so many bytes.
  void Say(std::string_view words, std::size_t length) {
    if (!Out.Text.empty() && IsWordCharacter(Out.Text.back())) Out.Text += ' ';
    Marks.MoveUpTo(At, Out);
    Out.Text += words;
    At += length;
  }

  void SayWord(std::string_view word, std::size_t length) {
    if (!Out.Text.empty() && Out.Text.back() == ')') Out.Text += ' ';
    Say(word, length);
    if (At < Text.size() && IsGlued(Text[At])) Out.Text += ' ';
  }

  /// Several numbers of a base, or dates, may stand in a value with words between them.
  bool TakeValue() {
    if (!IsInValue()) return false;
    switch (Value.Kind) {
      case ValueKind::Number:
      case ValueKind::Characters:
      case ValueKind::Prose:
        return false;
      case ValueKind::BaseDigits:
        return TakeBaseDigits();
      case ValueKind::DateNumber:
        return TakeDateNumber();
      case ValueKind::DateText:
        return TakeDateText();
    }
    return false;
  }

  bool TakeBaseDigits() {
    if (At > 0 && IsWordCharacter(Text[At - 1])) return false;
    const std::string_view rest = TextOfNumber().substr(At);
    std::string digits;
    std::size_t length = 0;
    for (; length < rest.size() && BelongsToWord(rest, length); ++length)
      if (rest[length] != ' ') digits += rest[length];
    const bool isNumber = length > 0 && digits.find_first_not_of(BaseDigits) == std::string::npos;
    if (!isNumber) return false;
    Say(BaseDigitsInWords(digits), length);
    // A voice would take it for the article of the word that follows.
    if (digits.back() == 'A' && At < Text.size() && Text[At] == ' ') Out.Text += ',';
    return true;
  }

  /// The plus of an exponent is no digit, so that "1E+20" is no number of a base.
  bool BelongsToWord(std::string_view text, std::size_t at) const {
    if (text[at] != ' ') return IsWordCharacter(text[at]) || text[at] == '+';
    const bool isBetweenDigits =
        at > 0 && IsDigit(text[at - 1]) && at + 1 < text.size() && IsDigit(text[at + 1]);
    return Rules.DigitsApart && isBetweenDigits;
  }

  bool TakeDateNumber() {
    const auto date = FindNumber(TextOfNumber(), At, Rules);
    if (date) Say(DateNumberInWords(*date, Rules), date->Length);
    return date.has_value();
  }

  bool TakeDateText() {
    if (At != Value.Start) return false;
    const std::string_view value = Text.substr(At, Value.Length);
    Say(InFull(Rules.DigitsApart ? Joined(value) : std::string(value)), value.size());
    return true;
  }

  /// A date text whose digits were spoken apart: its last four are the year.
  static std::string Joined(std::string_view date) {
    constexpr std::size_t yearDigits = 4;
    const std::size_t first = std::min(date.find_first_of("0123456789"), date.size());
    std::string digits(date.substr(first));
    std::erase(digits, ' ');
    if (digits.size() > yearDigits) digits.insert(digits.size() - yearDigits, 1, ' ');
    return std::string(date.substr(0, first)) + digits;
  }

  /// A date text with its month in full. The day and the year are no values to be taken apart.
  std::string InFull(std::string_view date) const {
    for (const auto& [brief, full] : Words.Months) {
      const std::size_t at = date.find(" " + brief + " ");
      if (!full.empty() && at != std::string_view::npos)
        return std::string(date.substr(0, at + 1)) + full + std::string(date.substr(at + 1 + brief.size()));
    }
    return std::string(date);
  }

  bool TakeNumber() {
    const char c = Text[At];
    const bool mayBegin = IsDigit(c) || c == '-' || Words.SpokenMinus.starts_with(c);
    if (!mayBegin) return false;
    const auto number = FindNumber(TextOfNumber(), At, Rules);
    if (number) Say(NumberInWords(*number, Rules), number->Length);
    return number.has_value();
  }

  bool IsInValue() const { return At >= Value.Start && At < Value.Start + Value.Length; }

  /// An open parenthesis that is shown is heard.
  bool TakeParen() {
    if (Text[At] != '(' || !IsInValue() || Words.LeftParen.empty()) return false;
    SayWord(Words.LeftParen, 1);
    return true;
  }

  /// The place of an item in its list is another number.
  void PauseBehindValue() {
    const bool isBehind = Value.Length > 0 && At == Value.Start + Value.Length;
    if (isBehind && At + 1 < Text.size() && Text[At] == ' ' && IsDigit(Text[At + 1])) Out.Text += ',';
  }

  /// A number that was spoken with its digits apart ends where its value does: digits of others may follow.
  std::string_view TextOfNumber() const {
    return IsInValue() ? Text.substr(0, Value.Start + Value.Length) : Text;
  }

  /// "=" anywhere, the other signs between blanks.
  bool TakeSign() {
    const std::string* word = WordOf(Text[At]);
    if (!word || word->empty()) return false;
    const bool isAlone = At > 0 && IsBlank(Text[At - 1]) && At + 1 < Text.size() && IsBlank(Text[At + 1]);
    if (Text[At] != '=' && !isAlone) return false;
    SayWord(*word, 1);
    return true;
  }

  const std::string* WordOf(char sign) const {
    switch (sign) {
      case '=':
        return &Words.Equals;
      case '+':
        return &Words.Plus;
      case '-':
        return &Words.Minus;
      case '*':
        return &Words.Times;
      case '/':
        return &Words.DividedBy;
      default:
        return nullptr;
    }
  }

  /// "Sqr(" of the tape.
  bool TakeFunction() {
    if (At > 0 && IsWordCharacter(Text[At - 1])) return false;
    for (const auto& [written, said] : Words.Functions) {
      if (said.empty() || !Text.substr(At).starts_with(written)) continue;
      if (At + written.size() >= Text.size() || Text[At + written.size()] != '(') continue;
      ++OpenFunctions;
      SayWord(said + " " + Words.Of, written.size() + 1);
      return true;
    }
    return false;
  }

  bool TakeFunctionEnd() {
    if (OpenFunctions == 0 || Text[At] != ')') return false;
    --OpenFunctions;
    ++At;
    return true;
  }

  std::string_view Text;
  const VoicingRules& Rules;
  const VoiceWords& Words;
  ValueSpan Value;
  MarkMover Marks;
  MarkedText Out;
  std::size_t At = 0;
  int OpenFunctions = 0;
};

/// Whether there is nothing in the text that is ever voiced otherwise.
bool IsPlain(std::string_view text) {
  return text.find_first_of("0123456789=+-*/") == std::string_view::npos;
}

/// A spelled text. A voice takes the letter A for the article, unless it is a capital with a pause behind it.
std::string SpelledOut(std::string_view text) {
  std::string out;
  for (std::size_t at = 0; at < text.size(); ++at) {
    const bool isAlone = (at == 0 || text[at - 1] == ' ') && (at + 1 == text.size() || text[at + 1] == ' ');
    const bool isLetterA = isAlone && (text[at] == 'A' || text[at] == 'a');
    out += isLetterA ? 'A' : text[at];
    if (isLetterA && at + 1 < text.size()) out += ',';
  }
  return out;
}

}  // namespace

MarkedText MakeVoiced(std::string_view spoken, const VoicingRules& rules, ValueSpan value,
                      std::span<const BookMark> marks) {
  if (value.Kind == ValueKind::Characters && rules.Reading != NumberReading::Voice)
    return {SpelledOut(spoken), {}};
  const bool isLeftAlone = rules.Reading == NumberReading::Voice || !rules.Words.Complete();
  if (isLeftAlone || (value.Length == 0 && IsPlain(spoken)))
    return {std::string(spoken), {marks.begin(), marks.end()}};
  VoicingRules used = rules;
  if (value.Kind != ValueKind::Number) used.Decimals = AllDecimals;
  return Voicing(spoken, used, value, marks).Run();
}

}  // namespace qves
