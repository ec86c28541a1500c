// The keys of every view that are about the voice: its speed, its volume, how much it says, whether it
// speaks.
#include "services/MessageIds.h"
#include "services/VoiceLevels.h"
#include "views/View.h"

namespace qves {

/// Said as fast as it is from now on.
void View::ChangeSpeed(int wordsPerMinute) {
  StepSpeed(Common.Settings, wordsPerMinute);
  Common.Speech.ApplyVoiceSettings();
  Common.Speech.SpeakText(
      FillPlaceholders(Message(SpeedMessage), {std::to_string(VoiceSpeed(Common.Settings))}));
}

void View::ChangeVolume(int percent) {
  StepVolume(Common.Settings, percent);
  Common.Speech.ApplyVoiceSettings();
  Common.Speech.SpeakText(
      FillPlaceholders(Message(VolumeMessage), {std::to_string(VoicePercent(Common.Settings))}));
}

void View::SwitchVoice() {
  int& choice = Common.Settings.OwnVoice;
  if (choice == OwnVoiceOff) {
    choice = OwnVoiceAuto;
    return Common.Speech.SpeakText(Message(VoiceOnMessage));
  }
  Frame.StopReading();
  Common.Speech.SpeakText(Message(VoiceOffMessage));
  choice = OwnVoiceOff;
}

void View::SwitchDetail() {
  int& detail = Common.Settings.Detail;
  detail = detail == FullSpeech ? BriefSpeech : FullSpeech;
  Common.Speech.SpeakText(Message(detail == FullSpeech ? FullSpeechMessage : BriefSpeechMessage));
}

/// As it is shown, whatever of it is heard else.
void View::SpellDisplay() {
  Common.Speech.SpeakText(Common.Speech.Spelled(Display->Text), Spelling);
}

}  // namespace qves
