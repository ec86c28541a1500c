// What to speak for a number and for a character.
#include <algorithm>

#include "services/MessageIds.h"
#include "services/Speech.h"
#include "text/Characters.h"
#include "text/Text.h"
#include "text/Utf8.h"

namespace qves {

std::string SpeechService::TranslateForSpeech(std::string_view text) const {
  if (!SpeechEngine) return std::string(text);
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (i > 0 && IsDigit(text[i - 1]) && IsDigit(text[i])) out += ' ';
    out += text[i];
  }
  return out;
}

std::string SpeechService::SpeechFormatNumber(std::string_view text) const {
  std::string out = Settings.ReadAsDigits ? TranslateForSpeech(text) : std::string(text);
  const std::string& separator = Messages.GetMessage(DecimalSeparatorMessage);
  // No blanks around the word for the point: it is spoken close to its digits, as wanted.
  if (!separator.empty()) out = ReplaceAll(out, separator, Messages.GetMessage(PointMessage));
  out = ReplaceAll(out, "-", Messages.GetMessage(MinusMessage));
  return ReplaceAll(out, "*", Messages.GetMessage(TimesMessage));
}

std::string SpeechService::Spelled(std::string_view text) const {
  const std::string& separator = Messages.GetMessage(DecimalSeparatorMessage);
  const std::string minus(Trimmed(Messages.GetMessage(MinusMessage)));
  std::string out;
  while (!text.empty()) {
    const std::string_view one = text.substr(0, std::max<std::size_t>(FirstCharacter(text).Length, 1));
    if (!out.empty()) out += ' ';
    out += one == separator ? Messages.GetMessage(PointMessage) : one == "-" ? minus : SpeakableChar(one);
    text.remove_prefix(one.size());
  }
  return out;
}

std::string SpeechService::SpeakableChar(std::string_view character) const {
  if (character.empty()) return "";
  if (character[0] == 11 || character[0] == 13) return Messages.GetMessage(LineBreakMessage) + " ";
  if (!SpeechEngine || character.size() > 1) return std::string(character);
  // No engine library tells a character's name, so all engines share the names of the message file.
  const std::string& name =
      Messages.GetMessage(CharacterNameMessages + static_cast<unsigned char>(character[0]));
  return name.empty() ? std::string(character) : name;
}

}  // namespace qves
