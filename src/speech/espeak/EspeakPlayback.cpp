#include "speech/espeak/EspeakPlayback.h"

#include <algorithm>
#include <chrono>
#include <vector>

#include "speech/SpeechText.h"

namespace qves {
namespace {

using std::chrono::microseconds;
using std::chrono::milliseconds;

constexpr int AudibleLevel = 8;  // of 32767
constexpr int LongestLeadMilliseconds = 60;
constexpr auto LongestStall = milliseconds(1500);  // of a server that takes or plays nothing
constexpr auto LongestPause = milliseconds(50);

bool IsAudible(std::int16_t sample) {
  return sample > AudibleLevel || sample < -AudibleLevel;
}

}  // namespace

EspeakPlayback::EspeakPlayback(SoundStream& stream, int samplesPerSecond, const Utterance& text,
                               Playing& playing)
    : Stream(stream),
      Rate(samplesPerSecond),
      Text(text),
      Now(playing),
      LeadLeft(std::int64_t(samplesPerSecond) * LongestLeadMilliseconds / 1000) {
  const std::vector<std::size_t> characters = CharacterPositions(text.Text, text.Marks);
  for (std::size_t i = 0; i < characters.size(); ++i) Marks.push_back({characters[i], text.Marks[i].Number});
}

bool EspeakPlayback::Run(milliseconds pauseBefore) {
  Stream.Restart();
  const std::vector<std::int16_t> pause(std::size_t(Rate * pauseBefore.count() / 1000));
  Lead = -std::int64_t(pause.size());
  WriteAll(pause);
  espeak_Synth(Text.Text.c_str(), Text.Text.size() + 1, 0, POS_CHARACTER, 0, espeakCHARS_UTF8, nullptr, this);
  const bool heard = !Broken && WaitUntil([&] { return Played() >= Written; });
  if (Now.Stopped() || !heard)
    Stream.Flush();
  else
    ReachMarks(NotYet);
  return heard;
}

int EspeakPlayback::Receive(short* samples, int count, espeak_EVENT* events) {
  auto* self = static_cast<EspeakPlayback*>(events->user_data);
  if (!self) return 1;
  const std::size_t length = samples && count > 0 ? std::size_t(count) : 0;
  return self->Take({samples, length}, events) ? 0 : 1;
}

bool EspeakPlayback::Take(std::span<const std::int16_t> samples, const espeak_EVENT* events) {
  for (; events->type != espeakEVENT_LIST_TERMINATED; ++events) {
    if (events->type == espeakEVENT_WORD || events->type == espeakEVENT_SENTENCE) PlaceMarks(*events);
  }
  Broken = !WriteAll(WithoutLead(samples)) && !Now.Stopped();
  return !Broken && !Now.Stopped();
}

// The event's text position counts characters from 1.
void EspeakPlayback::PlaceMarks(const espeak_EVENT& event) {
  for (Mark& mark : Marks) {
    if (std::int64_t(mark.Character) >= event.text_position) return;
    mark.Sample = std::min<std::int64_t>(mark.Sample, event.sample);
  }
}

// All samples up to this one have been heard.
void EspeakPlayback::ReachMarks(std::int64_t sample) {
  for (; !Marks.empty() && Marks.front().Sample <= sample; Marks.pop_front())
    Now.ReachMark(Marks.front().Number);
}

// The silence before the first sound would only delay it.
std::span<const std::int16_t> EspeakPlayback::WithoutLead(std::span<const std::int16_t> samples) {
  if (Audible) return samples;
  const auto first = std::find_if(samples.begin(), samples.end(), IsAudible);
  const std::int64_t silent = std::min<std::int64_t>(first - samples.begin(), LeadLeft);
  LeadLeft -= silent;
  Lead += silent;
  Audible = silent < std::int64_t(samples.size());
  return samples.subspan(std::size_t(silent));
}

bool EspeakPlayback::WriteAll(std::span<const std::int16_t> samples) {
  while (!samples.empty()) {
    if (!WaitUntil([&] { return Stream.Room() > 0; }) || Now.Stopped()) return false;
    const std::size_t now = std::min(samples.size(), Stream.Room());
    Stream.Write(samples.first(now));
    Written += std::int64_t(now);
    samples = samples.subspan(now);
  }
  return true;
}

// Or until the text is stopped; false when the stream has failed.
bool EspeakPlayback::WaitUntil(const std::function<bool()>& reached) {
  while (true) {
    Now.Changed.Clear();
    if (Now.Stopped() || reached()) return true;
    if (!Stream.Alive() || Stalled()) return false;
    Pause();
  }
}

// Until something happens, or the next mark or the end is due.
void EspeakPlayback::Pause() {
  const std::int64_t played = Played();
  ReachMarks(played + Lead);
  const std::int64_t due = Marks.empty() ? Written : std::min(Written, Marks.front().Sample - Lead);
  const auto wait =
      microseconds(std::max<std::int64_t>(due - played, 0) * 1'000'000 / Rate) + milliseconds(1);
  Stream.Wait(SteadyClock::now() + std::min<SteadyClock::duration>(wait, LongestPause));
}

std::int64_t EspeakPlayback::Played() {
  const auto unheard = Stream.Unheard();
  return unheard ? std::max<std::int64_t>(Written - *unheard, 0) : 0;
}

bool EspeakPlayback::Stalled() {
  const std::int64_t played = Played();
  const auto now = SteadyClock::now();
  if (played > LastPlayed) LastProgress = now;
  LastPlayed = std::max(played, LastPlayed);
  return now - LastProgress > LongestStall;
}

}  // namespace qves
