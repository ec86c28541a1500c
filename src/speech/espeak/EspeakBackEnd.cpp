#include "speech/espeak/EspeakBackEnd.h"

#include <espeak-ng/speak_lib.h>

#include <algorithm>
#include <chrono>
#include <thread>
#include <utility>

#include "speech/LanguageIds.h"
#include "speech/espeak/EspeakPlayback.h"
#include "speech/espeak/EspeakVoices.h"

namespace qves {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr auto LongestTurn = seconds(2);
constexpr auto LongestConnect = milliseconds(1000);
constexpr auto SettledAfter = milliseconds(1);
constexpr auto SleepAfter = seconds(10);
constexpr auto FollowsWithin = milliseconds(100);
constexpr auto PauseBetween = milliseconds(150);  // of two texts that follow each other
constexpr int BufferMilliseconds = 20;            // short ones bring the first samples out early

// The library, free or in use. It outlives threads that are left behind.
std::mutex& Library() {
  static auto& library = *new std::mutex;
  return library;
}

std::unique_lock<std::mutex> TakeLibrary() {
  std::unique_lock turn(Library(), std::try_to_lock);
  for (const TimePoint deadline = SteadyClock::now() + LongestTurn; !turn && SteadyClock::now() < deadline;
       turn.try_lock())
    std::this_thread::sleep_for(milliseconds(5));
  return turn;
}

// Samples a second, 0 or less when the library does not find its data. Once initialised it stays so.
int LibraryRate() {
  static const int rate =
      espeak_Initialize(AUDIO_OUTPUT_SYNCHRONOUS, BufferMilliseconds, nullptr, espeakINITIALIZE_DONT_EXIT);
  return rate;
}

void SetParameter(espeak_PARAMETER parameter, int wanted) {
  if (espeak_GetParameter(parameter, 1) != wanted) espeak_SetParameter(parameter, wanted, 0);
}

}  // namespace

bool EspeakBackEnd::Start() {
  if (Started) return !Offered.empty();
  Started = true;
  Turn = TakeLibrary();
  if (!Turn || LibraryRate() <= 0) return false;
  espeak_SetSynthCallback(EspeakPlayback::Receive);
  Offered = OfferedVoices(InstalledVoices(), DesktopLanguage(), this);
  Server.emplace(Changed, LibraryRate());
  Device.emplace(Changed, LibraryRate());
  return !Offered.empty();
}

const std::vector<Voice>& EspeakBackEnd::Voices() {
  Start();
  return Offered;
}

bool EspeakBackEnd::Play(const Utterance& text, Playing& playing) {
  if (!Start()) return false;
  SoundStream* stream = Output();
  if (!stream || playing.Stopped()) return true;
  Apply(text);
  Awake = stream;
  const bool follows = !LastStopped && SteadyClock::now() < LastPlayed + FollowsWithin;
  EspeakPlayback playback(*stream, LibraryRate(), text, playing);
  if (!playback.Run(follows ? PauseBetween : milliseconds(0))) stream->Close();
  LastPlayed = SteadyClock::now();
  LastStopped = playing.Stopped();
  return true;
}

// The sound server; without one the device. Null: nothing would be heard.
SoundStream* EspeakBackEnd::Output() {
  switch (Server->Connect(LongestConnect)) {
    case PulseStream::Link::Ready:
      Device->Close();
      return &*Server;
    case PulseStream::Link::NoServer:
      return HasSoundDevice(Places) && Device->Open() ? &*Device : nullptr;
    case PulseStream::Link::NoAnswer:
      break;  // the device may lead to the same server and hang
  }
  return nullptr;
}

TimePoint EspeakBackEnd::Rest() {
  if (Server && !std::exchange(LookedForServer, true)) Server->Connect(LongestConnect);
  if (!Awake) return TimePoint::max();
  const TimePoint now = SteadyClock::now();
  if (now < LastPlayed + SettledAfter) return LastPlayed + SettledAfter;
  Awake->Alive();  // the server's last answers are read now and not with the next text
  if (now < LastPlayed + SleepAfter) return LastPlayed + SleepAfter;
  Awake->Sleep();
  Awake = nullptr;
  return TimePoint::max();
}

void EspeakBackEnd::Apply(const Utterance& text) {
  const std::string& key = KeyFor(text.Speaking);
  if (key != CurrentKey) espeak_SetVoiceByName(key.c_str());
  CurrentKey = key;
  const VoiceSettings& settings = text.Settings;
  SetParameter(espeakRATE, EspeakRate(settings.WordsPerMinute));
  SetParameter(espeakVOLUME, EspeakVolume(settings.Volume));
  SetParameter(espeakPITCH,
               settings.Pitch ? EspeakPitch(*settings.Pitch) : espeak_GetParameter(espeakPITCH, 0));
}

// A text of another back end's voice is spoken by the best voice of its language.
const std::string& EspeakBackEnd::KeyFor(const Voice& voice) const {
  if (voice.Owner == this) return voice.Key;
  const auto own = std::find_if(Offered.begin(), Offered.end(), [&](const Voice& offered) {
    return offered.Info.LanguageId == voice.Info.LanguageId;
  });
  return own == Offered.end() ? Offered.front().Key : own->Key;
}

}  // namespace qves
