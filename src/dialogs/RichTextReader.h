// Follows the groups and control words of a rich text.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "dialogs/RichTextBuilder.h"
#include "dialogs/RichTextTokens.h"

namespace qves {

class RichTextReader {
 public:
  /// A text that begins with the group of a rich text.
  explicit RichTextReader(std::string_view source) : Tokens(source) {}

  RichText Read();

 private:
  /// Where a group's text goes.
  enum class Destination { Body, Label, Numbering, Colors, Skipped };

  struct Group {
    TextStyle Style;
    ParagraphLooks Looks;
    bool Hidden = false;
    int FallbackLength = 1;
    Destination To = Destination::Body;
  };

  using Action = void (*)(RichTextReader&, const RichToken&);
  /// What a control word stands for: a character, the group's destination, or something to do.
  using Meaning = std::variant<char32_t, Destination, Action>;
  static const Meaning* Find(std::string_view word);

  // Groups deeper than this are skipped.
  static constexpr std::size_t MostGroups = 200;
  static constexpr std::size_t MostColors = 10'000;

  Group& Here() { return Groups.back(); }
  void Handle(const RichToken& token);
  void Open();
  void Close();
  void Enter(Destination destination);
  void EndLabel(const Group& label);

  void ReadWord(const RichToken& token, bool starred);
  void ReadByte(unsigned char byte);
  void ReadText(std::string_view text);
  char32_t TakeCharacter(std::string_view& text, bool utf8) const;
  void ReadColors(std::string_view text);

  void Put(char32_t code);
  void Append(std::string_view text);
  void EndParagraph();
  void EndLine();
  /// Ends a paragraph that has begun.
  void BreakParagraph();
  void SetPlain();
  void PutUnicode(std::optional<int> number);
  void SetColorPart(int shift, int value);
  void SetColor(int index);

  RichTokenReader Tokens;
  RichTextBuilder Document;
  std::vector<Group> Groups;
  std::vector<int> Palette;
  int NextColor = -1;
  std::string LabelText;  // a list's bullet or number, as far as it is read
  int CodePage = 1252;
  char32_t HighSurrogate = 0;
  int Fallback = 0;          // how many characters are left of a Unicode character's replacement
  std::size_t Skipping = 0;  // how many groups are open that are skipped
  bool Starred = false;      // a word follows that names a destination
};

}  // namespace qves
