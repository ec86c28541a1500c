#include "dialogs/RichTextReader.h"

#include <algorithm>
#include <charconv>
#include <utility>

#include "dialogs/CodePage.h"
#include "text/Characters.h"
#include "text/Text.h"
#include "text/Utf8.h"

namespace qves {
namespace {

bool IsPrintable(char c) {
  return c >= ' ' && c <= '~';
}

bool IsText(char c) {
  return c != '\\' && c != '{' && c != '}' && c != '\r' && c != '\n';
}

std::string_view Take(std::string_view& text, std::size_t length) {
  const std::string_view taken = text.substr(0, length);
  text.remove_prefix(taken.size());
  return taken;
}

template <class Condition>
std::string_view TakeWhile(std::string_view& text, Condition condition) {
  return Take(text,
              static_cast<std::size_t>(std::find_if_not(text.begin(), text.end(), condition) - text.begin()));
}

/// Nothing when there is none, or none that an int holds.
std::optional<int> TakeNumber(std::string_view& text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  Take(text, static_cast<std::size_t>(end - text.data()));
  return error == std::errc() ? std::optional(number) : std::nullopt;
}

/// A label of one character is a bullet; only a digit would be a number. Letters are bullets of symbol fonts.
bool IsBullet(std::string_view label) {
  constexpr std::size_t longest = 16;
  if (label.size() > longest) return false;
  const std::string_view text = Trimmed(label, " \t");
  return !text.empty() && FirstCharacter(text).Length == text.size() && !IsDigit(text.front());
}

}  // namespace

RichText RichTextReader::Read() {
  while (!Rest.empty() && !(Rest.front() == '}' && Groups.size() == 1)) Step();
  Groups.resize(1);
  if (!Current.Runs.empty()) EndParagraph();
  return std::move(Document);
}

void RichTextReader::Step() {
  if (const std::string_view text = TakeWhile(Rest, IsText); !text.empty()) return ReadText(text);
  const char sign = Take(Rest, 1).front();
  if (sign == '{') return Open();
  if (sign == '}') return Close();
  if (sign == '\\') ReadEscape();
}

void RichTextReader::Open() {
  Fallback = 0;
  if (Groups.size() == MostGroups)
    ++TooDeep;
  else
    Groups.push_back(Groups.back());
}

void RichTextReader::Close() {
  Fallback = 0;
  if (TooDeep > 0) {
    --TooDeep;
    return;
  }
  const Destination closed = Here().To;
  Groups.pop_back();
  if (closed == Destination::Label && Here().To != Destination::Label) EndLabel();
}

/// The document's own group is no destination, whatever a broken text says in it.
void RichTextReader::Enter(Destination destination) {
  if (Groups.size() > 1) Here().To = std::max(Here().To, destination);
}

/// A label stands at the start of its paragraph.
void RichTextReader::EndLabel() {
  if (Current.Runs.size() != 1 || !IsBullet(Current.Runs.front().Text)) return;
  Current.Runs.clear();
  Current.Bullet = true;
}

void RichTextReader::ReadEscape() {
  std::string_view word = TakeWhile(Rest, IsLetter);
  const bool isSymbol = word.empty();
  if (isSymbol) word = Take(Rest, 1);
  if (word == "'") return ReadHexByte();
  const Number number = isSymbol ? std::nullopt : TakeNumber(Rest);
  if (!isSymbol && Rest.starts_with(' ')) Take(Rest, 1);
  const auto found = Words().find(word);
  if (found == Words().end()) return;
  if (const auto* character = std::get_if<char32_t>(&found->second)) return Put(*character);
  Fallback = 0;
  std::get<Action>(found->second)(*this, number);
}

void RichTextReader::SkipBytes(int count) {
  Take(Rest, static_cast<std::size_t>(std::max(count, 0)));
}

void RichTextReader::ReadHexByte() {
  const std::string_view digits = Rest.substr(0, 2);
  unsigned char byte = 0;
  if (std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16).ptr != digits.data() + 2)
    return;
  Take(Rest, 2);
  PutByte(static_cast<char>(byte));
}

/// Bare bytes that make no UTF-8 are of the code page.
void RichTextReader::ReadText(std::string_view text) {
  if (Here().To == Destination::Colors) return ReadColors(text);
  if (Fallback == 0) Append(TakeWhile(text, IsPrintable));
  for (const bool isUtf8 = IsUtf8(text); !text.empty();) {
    if (isUtf8)
      Put(FirstCharacter(text).Code);
    else
      PutByte(text.front());
    Take(text, isUtf8 ? FirstCharacter(text).Length : 1);
    if (Fallback == 0) Append(TakeWhile(text, IsPrintable));
  }
}

void RichTextReader::ReadColors(std::string_view text) {
  for (const char c : text)
    if (c == ';') Palette.push_back(std::exchange(NextColor, -1));
}

void RichTextReader::Put(char32_t code) {
  constexpr char32_t lineSeparator = 0x2028;
  constexpr char32_t paragraphSeparator = 0x2029;
  if (std::exchange(Fallback, std::max(Fallback - 1, 0)) > 0) return;
  if (code == lineSeparator || code == paragraphSeparator) return EndLine();
  if (code == '\t' || (!IsControl(code) && IsCharacter(code))) Append(Utf8(code));
}

void RichTextReader::PutUnicode(int number) {
  const auto code = static_cast<char32_t>(number < 0 ? number + 0x10000 : number);
  const char32_t high = std::exchange(HighSurrogate, code >= 0xD800 && code < 0xDC00 ? code : 0);
  const bool isPair = high != 0 && code >= 0xDC00 && code < 0xE000;
  Put(isPair ? 0x10000 + ((high - 0xD800) << 10) + (code - 0xDC00) : code);
  Fallback = Here().FallbackLength;
}

void RichTextReader::PutByte(char byte) {
  if (Characters.empty()) Characters = CharactersOf(CodePage);
  Put(Characters[static_cast<unsigned char>(byte)]);
}

void RichTextReader::Append(std::string_view text) {
  if (text.empty() || Here().Hidden || !IsBody()) return;
  auto& runs = Current.Runs;
  if (runs.empty() || runs.back().Style != Here().Style) runs.push_back({{}, Here().Style});
  runs.back().Text += text;
}

void RichTextReader::EndParagraph() {
  if (!IsBody()) return;
  Current.LeftIndent = Here().LeftIndent;
  Current.FirstIndent = std::exchange(Continued, false) ? 0 : Here().FirstIndent;
  Document.Paragraphs.push_back(std::exchange(Current, {}));
}

void RichTextReader::EndLine() {
  EndParagraph();
  Continued = IsBody();
}

void RichTextReader::SetColorPart(int shift, int value) {
  const int others = std::max(NextColor, 0) & ~(0xFF << shift);
  NextColor = others | std::clamp(value, 0, 0xFF) << shift;
}

void RichTextReader::SetColor(int index) {
  const auto at = static_cast<std::size_t>(std::max(index, 0));
  Here().Style.Color = at < Palette.size() ? Palette[at] : -1;
}

}  // namespace qves
