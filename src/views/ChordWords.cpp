#include "views/ChordWords.h"

#include <algorithm>
#include <optional>

#include "model/UsKeyboard.h"
#include "services/MessageIds.h"
#include "text/Utf8.h"

namespace qves {
namespace {

constexpr int KeyF24 = KeyF1 + 23;

struct NamedKey {
  int Code;
  int Message;
};

constexpr NamedKey NamedKeys[] = {
    {KeyControl, ControlWordMessage},
    {KeyBackspace, 1913},
    {KeyTab, 1914},
    {12, 1915},
    {KeyEnter, 1916},
    {19, 1917},
    {KeyCapsLock, 1918},
    {KeyEscape, 1919},
    {KeySpace, 1920},
    {KeyPageUp, 1921},
    {KeyPageDown, 1922},
    {KeyEnd, 1923},
    {KeyHome, 1924},
    {KeyLeft, 1925},
    {KeyUp, 1926},
    {KeyRight, 1927},
    {KeyDown, 1928},
    {44, 1929},
    {KeyInsert, 1930},
    {KeyDelete, 1931},
    {93, 1932},
    {KeyNumLock, 1933},
    {KeyScrollLock, 1934},
};

struct PadSign {
  int Code;
  char Sign;
};

constexpr PadSign PadSigns[] = {{KeyPadMultiply, '*'},
                                {KeyPadAdd, '+'},
                                {KeyPadSubtract, '-'},
                                {KeyPadDecimal, '.'},
                                {KeyPadDivide, '/'}};

/// What the code counts in, of a row of keys that follow each other.
std::optional<std::string> NumberOf(int code, int first, int last, int firstNumber) {
  if (code < first || code > last) return std::nullopt;
  return std::to_string(code - first + firstNumber);
}

class Naming {
 public:
  explicit Naming(const Services& services) : Messages(services.Messages), Speech(services.Speech) {}

  /// Of a key that is called the same on every keyboard.
  std::string OfKey(int code) const {
    if (const auto* key = std::ranges::find(NamedKeys, code, &NamedKey::Code); key != std::end(NamedKeys))
      return Messages.GetMessage(key->Message);
    if (const auto number = NumberOf(code, KeyF1, KeyF24, 1)) return Filled(FunctionKeyMessage, *number);
    if (const auto digit = NumberOf(code, KeyPad0, KeyPad9, 0)) return Filled(KeypadMessage, *digit);
    if (const auto* key = std::ranges::find(PadSigns, code, &PadSign::Code); key != std::end(PadSigns))
      return Filled(KeypadMessage, OfSign(key->Sign));
    const bool isPlain = (code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z');
    return isPlain ? std::string(1, static_cast<char>(code)) : "";
  }

  std::string OfCharacter(char32_t character) const { return Speech.SpeakableChar(Utf8(character)); }

  std::string OfUsKey(int code) const {
    const auto* key = std::ranges::find(UsKeys, code, &UsKey::Code);
    return key == std::end(UsKeys) ? "" : OfSign(key->Plain);
  }

  std::string Modified(int shift, const std::string& name) const {
    if (name.empty()) return name;
    std::string words;
    if ((shift & ControlBit) != 0) words += Messages.GetMessage(ControlWordMessage) + " ";
    if ((shift & ShiftBit) != 0) words += Messages.GetMessage(ShiftWordMessage) + " ";
    return words + name;
  }

 private:
  std::string OfSign(char sign) const { return Speech.SpeakableChar({&sign, 1}); }
  std::string Filled(int message, const std::string& value) const {
    return FillPlaceholders(Messages.GetMessage(message), {value});
  }

  const MessageStore& Messages;
  const SpeechService& Speech;
};

}  // namespace

std::string ChordInWords(const KeyEvent& event, const Services& services) {
  const Naming naming(services);
  const std::string name = (event.Shift & AltBit) == 0 ? naming.OfKey(event.Code) : "";
  if (!name.empty()) return naming.Modified(event.Shift, name);
  if (event.Character != 0) return naming.OfCharacter(event.Character);
  return naming.Modified(event.Shift, naming.OfUsKey(event.Code));
}

}  // namespace qves
