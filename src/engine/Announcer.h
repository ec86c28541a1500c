// What the engine says of a key, and how: the first words of a key interrupt, an error after them follows
// them.
#pragma once

#include <string_view>

#include "services/Messages.h"
#include "services/Speech.h"

namespace qves {

class Announcer {
 public:
  Announcer(SpeechService& speech, const MessageStore& messages) : Speech(speech), Messages(messages) {}

  /// A new key: nothing has been said of it.
  void BeginKey() { HasSpoken = false; }

  /// Says the key's echo or name at once.
  void Say(std::string_view text, ValueSpan value = {});
  void SayMessage(int id) { Say(Messages.GetMessage(id)); }
  /// Says the message with a number text, as it is spoken, in its placeholder.
  void SayMessage(int id, std::string_view numberText);
  /// Says it at once, or after what the key has said already.
  void SayMore(std::string_view text, ValueSpan value = {});
  /// The same for a number text, after a lead-in ("" for none).
  void SayValue(std::string_view numberText, ValueKind kind, std::string_view leadIn);
  /// The help of the key, after its name.
  void SayHelp(std::string_view text) { Speech.SpeakHelp(text); }
  /// The same for "Error".
  void SayError();

  const std::string& Message(int id) const { return Messages.GetMessage(id); }

 private:
  SpeechService& Speech;
  const MessageStore& Messages;
  bool HasSpoken = false;
};

}  // namespace qves
