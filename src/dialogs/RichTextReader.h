// Follows the groups and control words of a rich text.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <variant>
#include <vector>

#include "model/RichText.h"

namespace qves {

class RichTextReader {
 public:
  /// A text that begins with the brace of a rich text.
  explicit RichTextReader(std::string_view source) : Rest(source.substr(1)) {}

  RichText Read();

 private:
  /// Where a group's text goes. A group within another goes where that does, or to what stands later here.
  enum class Destination { Body, Label, Colors, Skipped };

  struct Group {
    TextStyle Style;
    int LeftIndent = 0;
    int FirstIndent = 0;
    bool Hidden = false;
    int FallbackLength = 1;
    Destination To = Destination::Body;
  };

  using Number = std::optional<int>;
  using Action = void (*)(RichTextReader&, Number);
  /// What a control word or symbol stands for: a character or something to do.
  using Meaning = std::variant<char32_t, Action>;
  static const std::unordered_map<std::string_view, Meaning>& Words();

  Group& Here() { return Groups.back(); }
  bool IsBody() { return Here().To <= Destination::Label; }
  void Step();
  void Open();
  void Close();
  void Enter(Destination destination);
  void EndLabel();

  void ReadEscape();
  void SkipBytes(int count);
  void ReadHexByte();
  void ReadText(std::string_view text);
  void ReadColors(std::string_view text);

  void Put(char32_t code);
  void PutUnicode(int number);
  void PutByte(char byte);
  void Append(std::string_view text);
  void EndParagraph();
  void EndLine();
  void SetColorPart(int shift, int value);
  void SetColor(int index);

  // Deeper groups are read as if they were one of this depth.
  static constexpr std::size_t MostGroups = 200;

  std::string_view Rest;
  RichText Document;
  Paragraph Current;
  bool Continued = false;  // the paragraph goes on after a line break
  std::vector<Group> Groups = std::vector<Group>(1);
  std::size_t TooDeep = 0;  // how many groups are open beyond those
  std::vector<int> Palette;
  int NextColor = -1;
  std::string CodePage = "CP1252";
  std::u32string Characters;  // of the code page, once they are needed
  char32_t HighSurrogate = 0;
  int Fallback = 0;  // how many characters are left of a Unicode character's replacement
};

}  // namespace qves
