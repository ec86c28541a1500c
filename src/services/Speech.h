// The speech service: everything the calculator says goes through here.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "model/Form.h"
#include "platform/Platform.h"
#include "services/AppSettings.h"
#include "services/Messages.h"
#include "services/SpeechTurn.h"
#include "services/VerbosityTable.h"

namespace qves {

/// The longest that ShutDownSpeech waits, in milliseconds.
inline constexpr int ShutDownWait = 3000;

class SpeechService {
 public:
  SpeechService(Platform& platform, const AppSettings& settings, const MessageStore& messages)
      : Outside(platform), Settings(settings), Messages(messages) {}

  /// Chooses the engine that matches (texts: "" is any; language 0 is any), else one of the language, else
  /// the first, now and when more engines are known; applies the voice settings and gets both speakers. False
  /// when there is no engine or it fails.
  bool CreateSpeech(std::string_view voice, std::string_view manufacturer, std::string_view product,
                    int language);
  /// Stops speech and releases the speech objects, waiting no longer than ShutDownWait in all. Faults when
  /// the deadline leaves the signed 32-bit range of the tick count; that arithmetic is wanted as it is.
  void ShutDownSpeech();
  /// Releases the speech objects without a wait.
  void ReleaseSpeech();

  /// Silences what is being spoken and says the text at once. `value` is where a value stands in it, and what
  /// it is.
  void SpeakText(std::string_view text, ValueSpan value = {}) { Say(SpeechHow::Now, text, value); }
  /// Says the text after what is being spoken.
  void SpeakTextQueued(std::string_view text, ValueSpan value = {}) { Say(SpeechHow::Queued, text, value); }
  /// Says a help after the name before it, unless speech is to be brief.
  void SpeakHelp(std::string_view text);
  /// Reads a long text, with marks that are told when they are reached: after what is being spoken, or
  /// silencing that. It is not what LastSpokenText repeats.
  void ReadAloud(std::string_view text, std::span<const BookMark> marks, bool queued, ValueKind kind);
  void StopSpeech();

  /// What handles an event calls this when it has: all that was spoken meanwhile goes to the voice, but what
  /// the event itself cut off again.
  void EndTurn();
  /// Told of every turn; null: nobody is.
  void SetObserver(SpeechObserver* observer) { Observer = observer; }
  /// The text that the voice is given for it.
  std::string VoicedTextOf(const SpeechAct& act) const;
  /// The voice has come to a mark of what is read aloud.
  void BookMarkReached(std::int32_t number);

  /// Speed, volume and pitch of the settings are those of what is spoken from now on.
  void ApplyVoiceSettings();
  /// Whether what is spoken is heard. While the voice is off by the settings nothing is handed to it.
  bool IsAloud() const { return PrimarySpeaker && Settings.OwnVoice != OwnVoiceOff; }
  /// Says again, at once, what was said last.
  void RepeatSpeech();
  /// The last text handed to SpeakText or SpeakTextQueued while there was a speaker.
  const std::string& LastSpokenText() const { return LastText; }

  /// The text with a blank between any two adjacent digits; unchanged without an engine.
  std::string TranslateForSpeech(std::string_view text) const;
  /// What to speak for a number text.
  std::string SpeechFormatNumber(std::string_view text) const;
  /// The characters of a number text or another one, each by its name, with a blank between any two.
  std::string Spelled(std::string_view text) const;
  /// What to speak for one typed character.
  std::string SpeakableChar(std::string_view character) const;

  /// Hands the engine and the speaker to every control of the form, and takes them back.
  void AttachSpeakingControls(Form& form, const VerbosityTable& verbosity) const;
  void DetachSpeakingControls(Form& form) const;

 private:
  void Say(SpeechHow how, std::string_view text, ValueSpan value);
  void HandOver(SpeechAct act);
  VoicingRules Rules() const;
  void ReadNextPiece(bool now);
  template <class Talker>
  void WaitWhileBusy(const Talker& talker, std::int32_t deadline);

  Platform& Outside;
  const AppSettings& Settings;
  const MessageStore& Messages;
  std::unique_ptr<TtsEngine> SpeechEngine;
  TtsSpeaker* PrimarySpeaker = nullptr;
  TtsSpeaker* SecondSpeaker = nullptr;
  std::string LastText;
  ValueSpan LastValue;  ///< in that text
  VoiceWords Words;
  std::vector<SpeechAct> Turn;
  PiecewiseReading Reading;
  SpeechObserver* Observer = nullptr;
};

}  // namespace qves
