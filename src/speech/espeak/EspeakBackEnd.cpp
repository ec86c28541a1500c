#include "speech/espeak/EspeakBackEnd.h"

#include <espeak-ng/speak_lib.h>

#include <chrono>
#include <utility>

#include "speech/LanguageIds.h"
#include "speech/espeak/EspeakPlayback.h"
#include "speech/espeak/EspeakVoices.h"

namespace qves {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr auto LongestTurn = seconds(2);  // of another one with the library
constexpr auto LongestConnect = milliseconds(1000);
constexpr auto SettledAfter = milliseconds(1);
constexpr auto SleepAfter = seconds(10);
constexpr auto FollowsWithin = milliseconds(100);
constexpr auto PauseBetween = milliseconds(150);  // of two texts that follow each other

// The library, free or in use. It outlives threads that are left behind.
std::timed_mutex& Library() {
  static auto& library = *new std::timed_mutex;
  return library;
}

// Samples a second, 0 or less when the library does not find its data. Once initialised it stays so.
int LibraryRate() {
  static const int rate = espeak_Initialize(AUDIO_OUTPUT_SYNCHRONOUS, 0, nullptr, espeakINITIALIZE_DONT_EXIT);
  return rate;
}

void SetParameter(espeak_PARAMETER parameter, int wanted) {
  if (espeak_GetParameter(parameter, 1) != wanted) espeak_SetParameter(parameter, wanted, 0);
}

}  // namespace

bool EspeakBackEnd::Start() {
  if (Started) return !Offered.empty();
  Started = true;
  Turn = std::unique_lock(Library(), std::chrono::system_clock::now() + LongestTurn);
  if (!Turn || LibraryRate() <= 0) return false;
  espeak_SetSynthCallback(EspeakPlayback::Receive);
  Offered = EspeakVoices(DesktopLanguage(), this);
  Server.emplace(Changed, LibraryRate());
  Device.emplace(Changed, LibraryRate());
  return !Offered.empty();
}

const std::vector<Voice>& EspeakBackEnd::Voices() {
  Start();
  return Offered;
}

bool EspeakBackEnd::Play(Utterance& text, Playing& playing) {
  if (!Start()) return false;
  Apply(text);
  // A server that was lost since the last text is noticed only now: the next one gets the text from its
  // start.
  if (!PlayOn(Output(), text, playing)) PlayOn(Output(), text, playing);
  LastPlayed = SteadyClock::now();
  LastStopped = playing.Stopped();
  return true;
}

// False: the stream was lost before anything was heard.
bool EspeakBackEnd::PlayOn(SoundStream* stream, const Utterance& text, Playing& playing) {
  if (!stream || playing.Stopped()) return true;
  Awake = stream;
  const bool follows = !LastStopped && SteadyClock::now() < LastPlayed + FollowsWithin;
  EspeakPlayback playback(*stream, LibraryRate(), text, playing);
  if (playback.Run(follows ? PauseBetween : milliseconds(0))) return true;
  const bool lost = !stream->Alive() && !playback.HasBegun();
  stream->Close();
  return !lost;
}

// The sound server; without one the device. Null: nothing would be heard.
SoundStream* EspeakBackEnd::Output() {
  switch (Server->Connect(LongestConnect)) {
    case PulseStream::Link::Ready:
      Device->Close();
      return &*Server;
    case PulseStream::Link::NoServer:
      return Device->Open() ? &*Device : nullptr;
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
  const std::string& key = text.Speaking.Key;
  if (key != CurrentKey) espeak_SetVoiceByName(key.c_str());
  CurrentKey = key;
  const VoiceSettings& settings = text.Settings;
  SetParameter(espeakRATE, Scaled(settings.WordsPerMinute, SpeedScale, SpeedScale));
  SetParameter(espeakVOLUME, Scaled(settings.Volume, VolumeScale, {0, 100}));  // without amplification
  SetParameter(espeakPITCH, settings.Pitch ? Scaled(*settings.Pitch, PitchScale, {0, 100})
                                           : espeak_GetParameter(espeakPITCH, 0));
}

}  // namespace qves
