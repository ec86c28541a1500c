// The pieces a rich text is written in: braces, control words, bytes in hexadecimal, and text between them.
#pragma once

#include <optional>
#include <string_view>

namespace qves {

enum class RichTokenKind { End, Open, Close, Word, Byte, Text };

struct RichToken {
  RichTokenKind Kind = RichTokenKind::End;
  std::string_view Text;  // a control word's or symbol's name, or text as it stands
  std::optional<int> Number;

  /// What a word that switches a look says: on, unless its number is 0.
  bool On() const { return Number != 0; }
  int Or(int usual) const { return Number.value_or(usual); }
};

class RichTokenReader {
 public:
  explicit RichTokenReader(std::string_view source) : Rest(source) {}

  /// The next piece. A symbol that only escapes a character comes as text or as the word of the same meaning;
  /// binary data is left out.
  RichToken Next();

 private:
  std::string_view Take(std::size_t length);
  RichToken Escaped();
  RichToken Symbol();
  RichToken HexByte();
  RichToken Word();
  std::optional<int> Number();

  std::string_view Rest;
};

}  // namespace qves
