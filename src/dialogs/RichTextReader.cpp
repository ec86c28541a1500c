#include "dialogs/RichTextReader.h"

#include <algorithm>
#include <utility>

#include "dialogs/CodePages.h"
#include "text/Characters.h"
#include "text/Text.h"
#include "text/Utf8.h"

namespace qves {
namespace {

constexpr std::string_view Blanks = " \t";

bool IsPrintable(char c) {
  return c >= ' ' && c <= '~';
}

bool IsShown(char32_t code) {
  return IsCharacter(code) && (!IsControl(code) || code == '\t');
}

// A label of one character is a bullet; only a digit would be a number. Letters are bullets of symbol fonts.
bool IsBullet(std::string_view label) {
  return !label.empty() && FirstCharacter(label).Length == label.size() && !IsDigit(label[0]);
}

}  // namespace

RichText RichTextReader::Read() {
  do {
    const RichToken token = Tokens.Next();
    if (token.Kind == RichTokenKind::End) break;
    Handle(token);
  } while (!Groups.empty());
  return Document.Finish();
}

void RichTextReader::Handle(const RichToken& token) {
  if (token.Kind == RichTokenKind::Open) return Open();
  if (token.Kind == RichTokenKind::Close) return Close();
  if (Skipping > 0) return;
  const bool starred = std::exchange(Starred, false);
  if (token.Kind == RichTokenKind::Word) return ReadWord(token, starred);
  if (token.Kind == RichTokenKind::Byte) return ReadByte(static_cast<unsigned char>(*token.Number));
  ReadText(token.Text);
}

void RichTextReader::Open() {
  Starred = false;
  const bool isFallback = Skipping == 0 && Fallback > 0;
  if (isFallback) --Fallback;
  if (isFallback || Skipping > 0 || Groups.size() == MostGroups)
    ++Skipping;
  else
    Groups.push_back(Groups.empty() ? Group() : Here());
}

void RichTextReader::Close() {
  Starred = false;
  if (Skipping > 0) {
    --Skipping;
    return;
  }
  Fallback = 0;
  const Group closed = Here();
  Groups.pop_back();
  if (Groups.empty()) return;
  if (closed.To == Destination::Numbering) Here().Looks.Bullet = closed.Looks.Bullet;
  if (closed.To == Destination::Label && Here().To != Destination::Label) EndLabel(closed);
}

void RichTextReader::Enter(Destination destination) {
  // The document's own group is no destination, whatever a broken text says in it.
  if (Groups.size() == 1) return;
  if (destination == Destination::Skipped) {
    Close();
    Skipping = 1;
    return;
  }
  Here().To = destination;
  Here().Looks.Bullet &= destination != Destination::Numbering;
}

void RichTextReader::EndLabel(const Group& label) {
  const std::string text = std::exchange(LabelText, {});
  if (IsBullet(Trimmed(text, Blanks)))
    Document.MarkBullet();
  else if (Here().To == Destination::Body && !Trimmed(text, Blanks).empty())
    Document.Append(text, label.Style, Here().Looks);
}

void RichTextReader::ReadWord(const RichToken& token, bool starred) {
  if (token.Text == "*") {
    Starred = true;
    return;
  }
  const Meaning* const meaning = Find(token.Text);
  const auto* const destination = std::get_if<Destination>(meaning);
  if (starred || destination) return Enter(destination ? *destination : Destination::Skipped);
  if (const auto* const code = std::get_if<char32_t>(meaning))
    return Fallback > 0 ? static_cast<void>(--Fallback) : Put(*code);
  Fallback = 0;
  if (const auto* const action = std::get_if<Action>(meaning)) (*action)(*this, token);
}

void RichTextReader::ReadByte(unsigned char byte) {
  if (Fallback > 0)
    --Fallback;
  else
    Put(FromCodePage(CodePage, byte));
}

void RichTextReader::ReadText(std::string_view text) {
  if (Here().To == Destination::Colors) return ReadColors(text);
  const bool utf8 = IsUtf8(text);
  for (; Fallback > 0 && !text.empty(); --Fallback) TakeCharacter(text, utf8);
  while (!text.empty()) {
    const auto* const end = std::find_if_not(text.begin(), text.end(), IsPrintable);
    Append(text.substr(0, static_cast<std::size_t>(end - text.begin())));
    text.remove_prefix(static_cast<std::size_t>(end - text.begin()));
    if (!text.empty()) Put(TakeCharacter(text, utf8));
  }
}

// Bare bytes that make no UTF-8 are of the code page.
char32_t RichTextReader::TakeCharacter(std::string_view& text, bool utf8) const {
  const char first = text.front();
  const Utf8Character character = FirstCharacter(text);
  text.remove_prefix(utf8 ? character.Length : 1);
  if (utf8) return character.Code;
  return FromCodePage(CodePage, static_cast<unsigned char>(first));
}

void RichTextReader::ReadColors(std::string_view text) {
  for (auto ends = std::count(text.begin(), text.end(), ';'); ends > 0 && Palette.size() < MostColors; --ends)
    Palette.push_back(std::exchange(NextColor, -1));
}

void RichTextReader::Put(char32_t code) {
  constexpr char32_t lineSeparator = 0x2028;
  constexpr char32_t paragraphSeparator = 0x2029;
  if (code == lineSeparator) return EndLine();
  if (code == paragraphSeparator) return EndParagraph();
  if (IsShown(code)) Append(Utf8(code));
}

void RichTextReader::Append(std::string_view text) {
  HighSurrogate = 0;
  if (Here().Hidden) return;
  if (Here().To == Destination::Label) LabelText += text;
  if (Here().To == Destination::Body) Document.Append(text, Here().Style, Here().Looks);
}

void RichTextReader::EndParagraph() {
  if (Here().To == Destination::Body) Document.EndParagraph(Here().Looks);
}

void RichTextReader::EndLine() {
  if (Here().To == Destination::Body) Document.EndLine(Here().Looks);
}

void RichTextReader::BreakParagraph() {
  if (Document.InParagraph()) EndParagraph();
}

void RichTextReader::SetPlain() {
  Here().Style = {};
  Here().Hidden = false;
}

void RichTextReader::PutUnicode(std::optional<int> number) {
  if (!number) return;
  Fallback = Here().FallbackLength;
  const auto code = static_cast<char32_t>(*number < 0 ? *number + 0x10000 : *number);
  const char32_t high = std::exchange(HighSurrogate, 0);
  if (code >= 0xD800 && code < 0xDC00)
    HighSurrogate = code;
  else if (code >= 0xDC00 && code < 0xE000 && high != 0)
    Put(0x10000 + ((high - 0xD800) << 10) + (code - 0xDC00));
  else
    Put(code);
}

void RichTextReader::SetColorPart(int shift, int value) {
  if (Here().To != Destination::Colors) return;
  const int others = std::max(NextColor, 0) & ~(0xFF << shift);
  NextColor = others | std::clamp(value, 0, 0xFF) << shift;
}

void RichTextReader::SetColor(int index) {
  const auto at = static_cast<std::size_t>(std::max(index, 0));
  Here().Style.Color = at < Palette.size() ? Palette[at] : -1;
}

}  // namespace qves
