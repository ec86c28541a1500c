#include "engine/Announcer.h"

namespace qves {
namespace {
constexpr int ErrorMessage = 1202;
}

void Announcer::Say(std::string_view text) {
  Speech.SpeakText(text);
  HasSpoken = true;
}

void Announcer::SayMessage(int id, std::string_view numberText) {
  Say(FillPlaceholders(Messages.GetMessage(id), {Speech.SpeechFormatNumber(numberText)}));
}

void Announcer::SayMore(std::string_view text) {
  if (HasSpoken)
    Speech.SpeakTextQueued(text);
  else
    Say(text);
}

void Announcer::SayValue(std::string_view numberText, std::string_view leadIn) {
  SayMore(std::string(leadIn) + Speech.SpeechFormatNumber(numberText));
}

void Announcer::SayError() {
  SayMore(Messages.GetMessage(ErrorMessage));
}

}  // namespace qves
