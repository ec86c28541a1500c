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

EspeakPlayer::EspeakPlayer(std::shared_ptr<EspeakVoiceBox> voiceBox, int number)
    : box(std::move(voiceBox)), backEnd(number) {}

void EspeakPlayer::Start(Signal& wake) {
  if (library.Use(EspeakLibrary::Mode::Synthesis, StreamPlayback::Receive))
    voices = OfferedVoices(library.Voices(), DesktopLanguage(), backEnd);
  box->Fill(voices);
  if (voices.empty()) return;
  stream.emplace(wake, library.Rate());
  playback.emplace(wake);
  library.Apply(voices.front().Key, {});
  if (stream->Connect(LongestConnect) == PulseStream::Link::Ready) output = Output::Stream;
}

bool EspeakPlayer::Play(const Utterance& text, PlayControl& control) {
  if (voices.empty()) return false;
  output = ChooseOutput();
  if (output == Output::Nothing || control.Interrupted()) return true;
  library.Apply(KeyFor(*text.Speaking), text.Settings);
  if (!PlayOn(output, text, control)) output = Output::Nothing;
  lastPlayed = SteadyClock::now();
  lastInterrupted = control.Interrupted();
  return true;
}

bool EspeakPlayer::PlayOn(Output chosen, const Utterance& text, PlayControl& control) {
  if (chosen == Output::Library) return playback->Run(text, control);
  awake = true;
  const bool follows = !lastInterrupted && SteadyClock::now() < lastPlayed + FollowsWithin;
  return StreamPlayback(*stream, library.Rate(), text, control).Run(follows ? PauseBetween : milliseconds(0));
}

SteadyClock::time_point EspeakPlayer::Rest() {
  if (!awake) return SteadyClock::time_point::max();
  if (SteadyClock::now() < lastPlayed + SleepAfter) return lastPlayed + SleepAfter;
  stream->Cork();
  awake = false;
  return SteadyClock::time_point::max();
}

// The stream when its server answers; looks for it again from time to time.
EspeakPlayer::Output EspeakPlayer::ChooseOutput() {
  if (output == Output::Stream && stream->Alive()) return output;
  if (output != Output::Stream && SteadyClock::now() < nextLook) return output;
  nextLook = SteadyClock::now() + LookAgain;
  switch (stream->Connect(LongestConnect)) {
    case PulseStream::Link::Ready:
      return library.Use(EspeakLibrary::Mode::Synthesis, StreamPlayback::Receive) ? Output::Stream
                                                                                  : Output::Nothing;
    case PulseStream::Link::NoServer:
      return OutputWithoutStream();
    case PulseStream::Link::NoAnswer:
      break;  // the library's own output would hang on the same server
  }
  return Output::Nothing;
}

EspeakPlayer::Output EspeakPlayer::OutputWithoutStream() {
  return library.Use(EspeakLibrary::Mode::Playback, LibraryPlayback::Receive) ? Output::Library
                                                                              : Output::Nothing;
}

// A text of another back end's voice is spoken by the best voice of its language.
const std::string& EspeakPlayer::KeyFor(const Voice& voice) const {
  if (voice.BackEnd == backEnd) return voice.Key;
  for (const Voice& own : voices) {
    if (own.Info.LanguageId == voice.Info.LanguageId) return own.Key;
  }
  return voices.front().Key;
}

}  // namespace qves
