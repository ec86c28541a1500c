#include "speech/espeak/EspeakPlayer.h"

#include <chrono>
#include <utility>

#include "speech/LanguageIds.h"
#include "speech/espeak/StreamPlayback.h"

namespace qves {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr auto LongestConnect = milliseconds(1000);
constexpr auto LookAgain = seconds(5);
constexpr auto SleepAfter = seconds(10);
constexpr auto FollowsWithin = milliseconds(100);
constexpr auto PauseBetween = milliseconds(150);  // of two texts that follow each other

}  // namespace

EspeakPlayer::EspeakPlayer(std::shared_ptr<EspeakVoiceBox> box, int backEnd)
    : Box(std::move(box)), BackEnd(backEnd) {}

void EspeakPlayer::Start(Signal& wake) {
  if (Library.Use(EspeakLibrary::Mode::Synthesis, StreamPlayback::Receive))
    Voices = OfferedVoices(Library.Voices(), DesktopLanguage(), BackEnd);
  Box->Fill(Voices);
  if (Voices.empty()) return;
  Stream.emplace(wake, Library.Rate());
  Playback.emplace(wake);
  Library.Apply(Voices.front().Key, {});
  if (Stream->Connect(LongestConnect) == PulseStream::Link::Ready) CurrentOutput = Output::Stream;
}

bool EspeakPlayer::Play(const Utterance& text, PlayControl& control) {
  if (Voices.empty()) return false;
  CurrentOutput = ChooseOutput();
  if (CurrentOutput == Output::Nothing || control.Interrupted()) return true;
  Library.Apply(KeyFor(*text.Speaking), text.Settings);
  if (!PlayOn(CurrentOutput, text, control)) CurrentOutput = Output::Nothing;
  LastPlayed = SteadyClock::now();
  LastInterrupted = control.Interrupted();
  return true;
}

bool EspeakPlayer::PlayOn(Output chosen, const Utterance& text, PlayControl& control) {
  if (chosen == Output::Library) return Playback->Run(text, control);
  Awake = true;
  const bool follows = !LastInterrupted && SteadyClock::now() < LastPlayed + FollowsWithin;
  return StreamPlayback(*Stream, Library.Rate(), text, control).Run(follows ? PauseBetween : milliseconds(0));
}

SteadyClock::time_point EspeakPlayer::Rest() {
  if (!Awake) return SteadyClock::time_point::max();
  if (SteadyClock::now() < LastPlayed + SleepAfter) return LastPlayed + SleepAfter;
  Stream->Cork();
  Awake = false;
  return SteadyClock::time_point::max();
}

// The stream when its server answers; looks for it again from time to time.
EspeakPlayer::Output EspeakPlayer::ChooseOutput() {
  if (CurrentOutput == Output::Stream && Stream->Alive()) return CurrentOutput;
  NoticeDevice();
  if (CurrentOutput != Output::Stream && SteadyClock::now() < NextLook) return CurrentOutput;
  NextLook = SteadyClock::now() + LookAgain;
  switch (Stream->Connect(LongestConnect)) {
    case PulseStream::Link::Ready:
      return Library.Use(EspeakLibrary::Mode::Synthesis, StreamPlayback::Receive) ? Output::Stream
                                                                                  : Output::Nothing;
    case PulseStream::Link::NoServer:
      if (!DeviceThere) NextLook = {};  // there is nothing that looking with each text could delay
      return OutputWithoutStream();
    case PulseStream::Link::NoAnswer:
      break;  // the library's own output would hang on the same server
  }
  return Output::Nothing;
}

// A sound device that has come or gone is a reason to look at once.
void EspeakPlayer::NoticeDevice() {
  const bool there = HasSoundDevice(Places);
  if (there != DeviceThere) NextLook = {};
  DeviceThere = there;
}

// Without a device the library would only complain on standard error.
EspeakPlayer::Output EspeakPlayer::OutputWithoutStream() {
  if (!DeviceThere) return Output::Nothing;
  return Library.Use(EspeakLibrary::Mode::Playback, LibraryPlayback::Receive) ? Output::Library
                                                                              : Output::Nothing;
}

// A text of another back end's voice is spoken by the best voice of its language.
const std::string& EspeakPlayer::KeyFor(const Voice& voice) const {
  if (voice.BackEnd == BackEnd) return voice.Key;
  for (const Voice& own : Voices) {
    if (own.Info.LanguageId == voice.Info.LanguageId) return own.Key;
  }
  return Voices.front().Key;
}

}  // namespace qves
