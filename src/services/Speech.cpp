#include "services/Speech.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

#include "model/ArithmeticFault.h"
#include "services/MessageIds.h"
#include "services/VoiceLevels.h"
#include "services/VoiceMessages.h"
#include "text/Integers.h"

namespace qves {
namespace {

constexpr int PrimaryLanguageMask = 1023;
constexpr int PitchSteps = 19;  // step 1 is the minimum, step 20 the maximum

bool Wants(std::string_view setting, std::string_view item) {
  return setting.empty() || setting == item;
}

struct Wish {
  std::string Voice;
  std::string Manufacturer;
  std::string Product;
  int Language = 0;

  bool Matches(const TtsEngineInfo& item) const {
    return Wants(Voice, item.VoiceName) && Wants(Product, item.Product) &&
           Wants(Manufacturer, item.Manufacturer) &&
           (Language == 0 || Language == (item.LanguageId & PrimaryLanguageMask));
  }
};

/// The number of the first engine that matches, from 1; -1 when there is none.
int FindEngine(const std::vector<TtsEngineInfo>& engines, const Wish& wish) {
  const auto found = std::ranges::find_if(engines, [&](const auto& item) { return wish.Matches(item); });
  return found == engines.end() ? -1 : static_cast<int>(found - engines.begin()) + 1;
}

/// The engine that matches all, else one of the language, else the first.
int ChooseEngine(const std::vector<TtsEngineInfo>& engines, const Wish& wish) {
  int index = FindEngine(engines, wish);
  if (index < 0) index = FindEngine(engines, {"", "", "", wish.Language});
  return index < 0 ? 1 : index;
}

}  // namespace

bool SpeechService::CreateSpeech(std::string_view voice, std::string_view manufacturer,
                                 std::string_view product, int language) {
  Words = ReadVoiceWords(Messages);
  ReleaseSpeech();
  const Wish wish{std::string(voice), std::string(manufacturer), std::string(product), language};
  SpeechEngine = Outside.Speech.Open([wish](const auto& engines) { return ChooseEngine(engines, wish); });
  if (!SpeechEngine || !SpeechEngine->Initialise()) return false;
  ApplyVoiceSettings();
  PrimarySpeaker = SpeechEngine->Speaker(2);
  SecondSpeaker = SpeechEngine->Speaker(1);
  return true;
}

void SpeechService::ApplyVoiceSettings() {
  if (!SpeechEngine) return;
  SpeechEngine->SetSpeed(VoiceSpeed(Settings));
  SpeechEngine->SetVolume(VoiceVolume(Settings));
  if (Settings.SystemPitch == -1) return;
  const double lowest = SpeechEngine->MinimumPitch();
  const double step = (SpeechEngine->MaximumPitch() - lowest) / PitchSteps;
  SpeechEngine->SetPitch(static_cast<int>(std::nearbyint(lowest + step * (Settings.SystemPitch - 1))));
}

void SpeechService::ShutDownSpeech() {
  StopSpeech();
  EndTurn();  // so that it is silent before the wait
  const std::int64_t end = std::int64_t{Outside.Time.TickCount()} + ShutDownWait;
  if (end > std::numeric_limits<std::int32_t>::max())
    throw ArithmeticFault(FaultReason::OutOfRange, "the tick count overflows");
  const auto deadline = static_cast<std::int32_t>(end);
  if (PrimarySpeaker) WaitWhileBusy(*PrimarySpeaker, deadline);
  PrimarySpeaker = nullptr;
  if (SecondSpeaker) WaitWhileBusy(*SecondSpeaker, deadline);
  SecondSpeaker = nullptr;
  if (SpeechEngine) WaitWhileBusy(*SpeechEngine, deadline);
  SpeechEngine.reset();
}

template <class Talker>
void SpeechService::WaitWhileBusy(const Talker& talker, std::int32_t deadline) {
  constexpr int slice = 5;
  while (talker.Busy()) {
    Outside.Events.ProcessEvents(slice);
    if (Outside.Time.TickCount() > deadline) return;
  }
}

void SpeechService::ReleaseSpeech() {
  PrimarySpeaker = SecondSpeaker = nullptr;
  SpeechEngine.reset();
}

void SpeechService::Say(SpeechHow how, std::string_view text, ValueSpan value) {
  if (!PrimarySpeaker) return;
  Turn.push_back({how, std::string(text), value, {}, IsAloud()});
  LastText = text;
  LastValue = value;
}

void SpeechService::SpeakHelp(std::string_view text) {
  if (Settings.Detail == FullSpeech) SpeakTextQueued(text, Prose);
}

void SpeechService::RepeatSpeech() {
  SpeakText(std::string(LastText), LastValue);
}

/// Nothing may be queued behind it before its end: the voice has two pieces at a time, and what is queued
/// meanwhile would be heard between them. So whatever else its dialog says interrupts the reading.
void SpeechService::ReadAloud(std::string_view text, std::span<const BookMark> marks, bool queued,
                              ValueKind kind) {
  if (!PrimarySpeaker) return;
  Turn.push_back({queued ? SpeechHow::Queued : SpeechHow::Now,
                  std::string(text),
                  {0, 0, kind},
                  {marks.begin(), marks.end()},
                  IsAloud()});
}

void SpeechService::StopSpeech() {
  if (PrimarySpeaker) Turn.push_back({SpeechHow::Stop, "", {}, {}, IsAloud()});
}

void SpeechService::EndTurn() {
  if (Turn.empty()) return;
  std::size_t firstHeard = Turn.size() - 1;
  while (firstHeard > 0 && !Turn[firstHeard].Interrupts()) --firstHeard;
  if (Observer) Observer->TurnEnded(Turn, firstHeard);
  for (SpeechAct& act : std::span(Turn).subspan(firstHeard)) HandOver(std::move(act));
  Turn.clear();
}

void SpeechService::HandOver(SpeechAct act) {
  if (!PrimarySpeaker || !act.IsAloud) return;
  const bool now = act.How == SpeechHow::Now;
  if (act.How != SpeechHow::Queued) Reading = {};
  if (act.How == SpeechHow::Stop) {
    PrimarySpeaker->Stop();
    if (SecondSpeaker) SecondSpeaker->Stop();
  } else if (!act.Marks.empty()) {
    Reading = {std::move(act.Text), std::move(act.Marks), act.Value.Kind};
    ReadNextPiece(now);
    ReadNextPiece(false);
  } else if (now) {
    PrimarySpeaker->SpeakNow(VoicedTextOf(act));
  } else {
    PrimarySpeaker->SpeakQueued(VoicedTextOf(act));
  }
}

void SpeechService::ReadNextPiece(bool now) {
  if (!PrimarySpeaker || Reading.IsOver()) return;
  const MarkedText piece = Reading.Next();
  const MarkedText voiced = MakeVoiced(piece.Text, Rules(), {0, 0, Reading.Kind}, piece.Marks);
  if (now)
    PrimarySpeaker->SpeakNow(voiced.Text, voiced.Marks);
  else
    PrimarySpeaker->SpeakQueued(voiced.Text, voiced.Marks);
}

void SpeechService::BookMarkReached(std::int32_t number) {
  if (Reading.IsNewest(number)) ReadNextPiece(false);
}

VoicingRules SpeechService::Rules() const {
  auto reading = static_cast<NumberReading>(Settings.ReadNumbersAs);
  if (reading == NumberReading::AsHost)
    reading = Settings.ReadAsDigits ? NumberReading::Digits : NumberReading::Natural;
  return {Words, reading, Settings.SpokenDecimals, Settings.ReadAsDigits};
}

/// A text of one character is that character's name. All else that a voice is given is made by the rules.
std::string SpeechService::VoicedTextOf(const SpeechAct& act) const {
  const VoicingRules rules = Rules();
  if (act.Text.size() == 1 && rules.Reading != NumberReading::Voice) return SpeakableChar(act.Text);
  return MakeVoiced(act.Text, rules, act.Value).Text;
}

void SpeechService::AttachSpeakingControls(Form& form, const VerbosityTable& verbosity) const {
  const auto base = ParseInteger<std::int16_t>(Messages.GetMessage(MsgBaseMessage)).value_or(0);
  for (const auto& control : form.Controls())
    control->Speaking = {base,
                         SpeechEngine.get(),
                         PrimarySpeaker,
                         false,
                         static_cast<int>(verbosity.VerbosityMode(ListPositionEntry)),
                         verbosity.VerbosityText(ListPositionEntry)};
}

void SpeechService::DetachSpeakingControls(Form& form) const {
  for (const auto& control : form.Controls()) {
    control->Speaking.Voice = nullptr;
    control->Speaking.Referee = nullptr;
    control->Speaking.Quiescent = true;
  }
}

}  // namespace qves
