#include "engine/Announcer.h"

namespace qves {
namespace {
constexpr int ErrorMessage = 1202;
}

void Announcer::Say(std::string_view text) {
  Speech.SpeakText(text);
  HasSpoken = true;
}

void Announcer::SayValue(std::string_view numberText, std::string_view leadIn) {
  Say(std::string(leadIn) + Speech.SpeechFormatNumber(numberText));
}

void Announcer::SayError() {
  const std::string& error = Messages.GetMessage(ErrorMessage);
  if (HasSpoken)
    Speech.SpeakTextQueued(error);
  else
    Say(error);
}

}  // namespace qves
