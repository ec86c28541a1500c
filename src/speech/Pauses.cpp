#include "speech/Pauses.h"

#include "text/Characters.h"

namespace qves {
namespace {

constexpr std::string_view Punctuation = ".,;:!?";

bool IsLineEnd(char c) {
  return c == '\r' || c == '\n';
}

bool IsPartOfWord(char c) {
  return IsWordCharacter(c) || c == '\'';
}

class Pausing {
 public:
  Pausing(std::string_view text, std::span<const BookMark> marks) : Text(text), Marks(marks) {}

  MarkedText Run() {
    Out.Text.reserve(Text.size() + Text.size() / 16);
    for (; At < Text.size(); ++At) {
      if (IsLineEnd(Text[At])) EndLine();
      Marks.MoveUpTo(At, Out);
      Out.Text += Text[At];
      if (EndsLetterA() || EndsThreeEqualLetters()) Out.Text += ',';
    }
    Marks.MoveUpTo(Text.size(), Out);
    return std::move(Out);
  }

 private:
  void EndLine() {
    const std::size_t last = Out.Text.find_last_not_of(" \t");
    if (last == std::string::npos || IsLineEnd(Out.Text[last])) return;
    if (Punctuation.find(Out.Text[last]) == std::string_view::npos) Out.Text += '.';
  }

  /// A single letter is here, and no part of a word.
  bool IsLoneLetter(std::size_t at) const {
    return at < Text.size() && IsLetter(Text[at]) && (at == 0 || !IsPartOfWord(Text[at - 1])) &&
           (at + 1 >= Text.size() || !IsPartOfWord(Text[at + 1]));
  }

  bool PausesNext() const {
    return At + 1 >= Text.size() || Punctuation.find(Text[At + 1]) != std::string_view::npos ||
           IsLineEnd(Text[At + 1]);
  }

  bool EndsLetterA() const {
    return Text[At] == 'A' && IsLoneLetter(At) && !PausesNext() && !BeginsSentence();
  }

  /// Where an "A" is the article.
  bool BeginsSentence() const {
    const std::size_t before = At == 0 ? std::string_view::npos : Text.find_last_not_of(" \t", At - 1);
    if (before == std::string_view::npos || IsLineEnd(Text[before])) return true;
    return std::string_view(".!?:").find(Text[before]) != std::string_view::npos;
  }

  bool EndsThreeEqualLetters() const {
    const auto isSame = [&](std::size_t at) { return IsLoneLetter(at) && Text[at] == Text[At]; };
    const bool areThree = At >= 4 && IsLoneLetter(At) && isSame(At - 2) && isSame(At - 4) &&
                          Text[At - 1] == ' ' && Text[At - 3] == ' ';
    return areThree && !PausesNext() && Text[At + 1] == ' ' && isSame(At + 2);
  }

  std::string_view Text;
  MarkMover Marks;
  MarkedText Out;
  std::size_t At = 0;
};

}  // namespace

MarkedText WithPauses(std::string_view text, std::span<const BookMark> marks) {
  return Pausing(text, marks).Run();
}

}  // namespace qves
