#include "engine/Announcer.h"

#include "services/MessageIds.h"

namespace qves {
void Announcer::Say(std::string_view text, ValueSpan value) {
  Speech.SpeakText(text, value);
  HasSpoken = true;
}

void Announcer::SayMessage(int id, std::string_view numberText) {
  Say(FillPlaceholders(Messages.GetMessage(id), {Speech.SpeechFormatNumber(numberText)}));
}

void Announcer::SayMore(std::string_view text, ValueSpan value) {
  if (HasSpoken)
    Speech.SpeakTextQueued(text, value);
  else
    Say(text, value);
}

void Announcer::SayValue(std::string_view numberText, ValueKind kind, std::string_view leadIn) {
  const std::string number = Speech.SpeechFormatNumber(numberText);
  SayMore(std::string(leadIn) + number, {leadIn.size(), number.size(), kind});
}

void Announcer::SayError() {
  SayMore(Messages.GetMessage(ErrorMessage));
}

}  // namespace qves
