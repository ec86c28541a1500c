#include "speech/SpeechQueue.h"

#include <algorithm>
#include <utility>

#include "speech/Pauses.h"
#include "speech/SpeechText.h"

namespace qves {
namespace {

// The voice itself; for a back end that stands in for its own, that one's first of the language, or its
// first.
Voice VoiceOf(SpeechBackEnd& backEnd, const Voice& wanted) {
  if (wanted.Owner == &backEnd) return wanted;
  const std::vector<Voice>& voices = backEnd.Voices();
  const auto same = std::find_if(voices.begin(), voices.end(), [&](const Voice& voice) {
    return voice.Info.LanguageId == wanted.Info.LanguageId;
  });
  if (same != voices.end()) return *same;
  return voices.empty() ? Voice{} : voices.front();
}

}  // namespace

void SpeechQueue::Add(std::unique_ptr<SpeechBackEnd> backEnd, bool listed) {
  BackEnds.push_back(std::move(backEnd));
  Listed += listed;
}

void SpeechQueue::Speak(QueuedText text) {
  if (text.Interrupts) ++text.Speaker->Silenced;
  text.Silenced = text.Speaker->Silenced;
  {
    const std::lock_guard lock(Mutex);
    if (Closed) return;
    if (text.Interrupts) Drop(*text.Speaker);
    Texts.push_back(std::move(text));
  }
  Woken.Notify();
}

void SpeechQueue::Silence(const std::shared_ptr<SpeakerRecord>& speaker) {
  ++speaker->Silenced;
  {
    const std::lock_guard lock(Mutex);
    if (Drop(*speaker) && !BusyNow(*speaker)) ReportStopped(speaker);
  }
  Woken.Notify();
}

// Drops the speaker's texts and stops the one that is being played; true when some still waited.
bool SpeechQueue::Drop(const SpeakerRecord& speaker) {
  if (Current == &speaker) StopCurrent = true;
  return std::erase_if(Texts, [&](const QueuedText& text) { return text.Speaker.get() == &speaker; }) > 0;
}

bool SpeechQueue::Busy(const SpeakerRecord& speaker) const {
  const std::lock_guard lock(Mutex);
  return BusyNow(speaker);
}

bool SpeechQueue::BusyNow(const SpeakerRecord& speaker) const {
  return Current == &speaker || std::any_of(Texts.begin(), Texts.end(), [&](const QueuedText& text) {
           return text.Speaker.get() == &speaker;
         });
}

std::vector<TtsEngineInfo> SpeechQueue::Engines() const {
  const std::lock_guard lock(Mutex);
  std::vector<TtsEngineInfo> engines;
  for (const Voice& voice : Voices) engines.push_back(voice.Info);
  return engines;
}

void SpeechQueue::SetListener(TtsListener* listener) {
  const std::lock_guard lock(Mutex);
  if (CurrentEar) CurrentEar->Listener = nullptr;
  CurrentEar = listener && !Closed ? std::make_shared<Ear>(Ear{listener}) : nullptr;
}

void SpeechQueue::Close() {
  SetListener(nullptr);
  {
    const std::lock_guard lock(Mutex);
    Closed = true;
    Texts.clear();
    StopCurrent = true;
  }
  Woken.Notify();
}

void SpeechQueue::Run() {
  ListVoices();
  for (Woken.Clear(); !Closed; Woken.Clear()) {
    if (std::optional<QueuedText> text = Next()) {
      Play(*text);
      Finish(*text);
    } else {
      Woken.Wait(Rest());
    }
  }
  BackEnds.clear();
}

std::optional<QueuedText> SpeechQueue::Next() {
  const std::lock_guard lock(Mutex);
  if (Texts.empty()) return std::nullopt;
  QueuedText next = std::move(Texts.front());
  Texts.pop_front();
  Current = next.Speaker.get();
  StopCurrent = false;
  return next;
}

void SpeechQueue::Finish(const QueuedText& text) {
  const std::lock_guard lock(Mutex);
  Current = nullptr;
  if (!BusyNow(*text.Speaker)) ReportStopped(text.Speaker);
}

// By the back end of the voice or, while that one fails, by the next that does not.
void SpeechQueue::Play(QueuedText& text) {
  std::optional<Voice>& chosen = text.Engine->Chosen;
  if (text.Interrupts || !chosen) Choose(*text.Engine);
  if (!chosen) return;
  MarkedText& said = text.What;
  said = WithPauses(CleanText(said.Text), OrderedMarks(said.Marks, said.Text.size()));
  Playing playing(Woken, StopCurrent, [&](std::int32_t number) { ReportMark(text, number); });
  for (SpeechBackEnd* backEnd : InOrder(*chosen)) {
    text.What.Speaking = VoiceOf(*backEnd, *chosen);
    if (playing.Stopped() || backEnd->Play(text.What, playing)) return;
  }
}

// The voice's own back end, then the others.
std::vector<SpeechBackEnd*> SpeechQueue::InOrder(const Voice& voice) const {
  std::vector<SpeechBackEnd*> order;
  for (const auto& backEnd : BackEnds) order.push_back(backEnd.get());
  std::stable_partition(order.begin(), order.end(),
                        [&](const SpeechBackEnd* backEnd) { return backEnd == voice.Owner; });
  return order;
}

// Anew only when the list has grown.
void SpeechQueue::Choose(EngineVoice& engine) const {
  if (engine.Among == Voices.size()) return;
  engine.Among = Voices.size();
  const int index = engine.Choose(Engines());
  const bool found = index >= 1 && std::size_t(index) <= Voices.size();
  engine.Chosen = found ? std::optional(Voices[std::size_t(index) - 1]) : std::nullopt;
}

void SpeechQueue::ListVoices() {
  std::size_t count = 0;
  for (std::size_t i = 0; i < Listed; ++i) count += BackEnds[i]->Voices().size();
  if (count == Voices.size()) return;
  const std::lock_guard lock(Mutex);
  Voices.clear();
  for (std::size_t i = 0; i < Listed; ++i)
    Voices.insert(Voices.end(), BackEnds[i]->Voices().begin(), BackEnds[i]->Voices().end());
}

TimePoint SpeechQueue::Rest() {
  TimePoint next = TimePoint::max();
  for (const auto& backEnd : BackEnds) next = std::min(next, backEnd->Rest());
  ListVoices();
  return next;
}

// With the mutex held.
void SpeechQueue::Report(std::function<void(TtsListener&)> event) {
  if (!CurrentEar) return;
  Pump->Post([ear = CurrentEar, event = std::move(event)] {
    if (ear->Listener) event(*ear->Listener);
  });
}

void SpeechQueue::ReportStopped(const std::shared_ptr<SpeakerRecord>& speaker) {
  // A speaker that has been given another text by the time of delivery has not stopped: that text will report
  // it.
  Report([self = shared_from_this(), speaker](TtsListener& listener) {
    if (speaker->Speaker && !self->Busy(*speaker)) listener.SpeechStopped(*speaker->Speaker);
  });
}

void SpeechQueue::ReportMark(const QueuedText& text, std::int32_t number) {
  const std::lock_guard lock(Mutex);
  Report([speaker = text.Speaker, silenced = text.Silenced, number](TtsListener& listener) {
    if (speaker->Speaker && speaker->Silenced == silenced)
      listener.BookMarkReached(number, *speaker->Speaker);
  });
}

}  // namespace qves
