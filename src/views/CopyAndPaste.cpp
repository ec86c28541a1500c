// What goes to the clipboard, and what comes from it.
#include "formulas/ForeignNumber.h"
#include "model/ArithmeticFault.h"
#include "services/DecimalMark.h"
#include "services/MessageIds.h"
#include "text/Text.h"
#include "views/View.h"

namespace qves {
namespace {

/// In bytes; what is longer is no list that a person would add to the data.
constexpr std::size_t LongestPaste = 1 << 20;

}  // namespace

void View::Copy() {
  if (!Engine->ShowsValue()) return Common.Speech.SpeakText(Message(ErrorMessage));
  RememberCopy();
  Common.Outside.Clip.WriteText(Engine->DisplayText());
  const Wording words = WithValue(CopiedMessage);
  Says.Say(words.Text, words.Value);
}

/// Whatever a decimal comma is to the user, our own texts have the point.
void View::RememberCopy() {
  if (Engine->ShowsValue()) Common.Copied = {Engine->DisplayText(), Engine->Base()};
}

void View::Paste() {
  Says.BeginKey();
  const std::string text = Common.Outside.Clip.ReadText(LongestPaste + 1);
  try {
    if (text.size() > LongestPaste || !PasteText(text)) Common.Speech.SpeakText(Message(NoNumberMessage));
  } catch (const ArithmeticFault& fault) {
    Engine->FailAloud(fault.Reason());
  }
  NoteStep(Message(PasteStepMessage));
}

/// A text that keeps its digits as they are: our own, and bare digits of a number base; else nothing.
WrittenNumber View::AsWritten(std::string_view text) const {
  if (text == Common.Copied.Text) return Common.Copied;
  const int base = Engine->Base();
  return base == NumberBase::Decimal ? WrittenNumber() : WrittenNumber{Upper(Trimmed(text, " \t\r\n")), base};
}

bool View::PasteText(std::string_view text) {
  const WrittenNumber written = AsWritten(text);
  if (ReadInBase(written.Base, written.Text)) {
    Engine->BeginKey();
    Engine->TakeText(written.Text, written.Base);
    SayPasted();
    return true;
  }
  const bool comma = WritesDecimalComma(Common.Settings, Common.Outside.Language);
  const auto value = ReadForeignNumber(text, {Engine->Base(), comma});
  if (value) PasteNumber(*value);
  return value.has_value();
}

void View::PasteNumber(double value) {
  Engine->BeginKey();
  Engine->TakeNumber(value);
  SayPasted();
}

void View::SayPasted() {
  const Wording words = WithValue(PastedMessage);
  Says.Say(words.Text, words.Value);
}

}  // namespace qves
