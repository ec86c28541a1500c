#include "speech/espeak/EspeakLibrary.h"

#include <espeak-ng/espeak_ng.h>

#include <chrono>

#include "speech/SpeechScales.h"

namespace qves {
namespace {

constexpr auto LongestTurn = std::chrono::seconds(2);

// The library has one state in a process, and so has this.
struct ProcessState {
  std::timed_mutex InUse;
  int Rate = 0;  // 0: not initialised
  EspeakLibrary::Mode Output = EspeakLibrary::Mode::Off;
};

ProcessState& Library() {
  static ProcessState& library = *new ProcessState;  // outlives threads that are left behind
  return library;
}

// Short buffers bring the first samples out early.
constexpr int BufferMilliseconds = 20;

void SetParameter(espeak_PARAMETER parameter, std::optional<int> value) {
  const int wanted = value ? *value : espeak_GetParameter(parameter, 0);
  if (espeak_GetParameter(parameter, 1) != wanted) espeak_SetParameter(parameter, wanted, 0);
}

template <typename T, typename Scale>
std::optional<int> Scaled(const std::optional<T>& value, Scale scale) {
  return value ? std::optional<int>(scale(*value)) : std::nullopt;
}

}  // namespace

bool EspeakLibrary::Use(Mode wanted, t_espeak_callback* callback) {
  if (CurrentMode == wanted) return true;
  if (!Initialise()) return false;
  if (Library().Output == Mode::Playback) espeak_Cancel();
  if (Library().Output != wanted) {
    const auto output = wanted == Mode::Synthesis ? ENOUTPUT_MODE_SYNCHRONOUS : ENOUTPUT_MODE_SPEAK_AUDIO;
    if (espeak_ng_InitializeOutput(output, BufferMilliseconds, nullptr) != ENS_OK) return false;
    Library().Output = wanted;
  }
  espeak_SetSynthCallback(callback);
  CurrentMode = wanted;
  return true;
}

bool EspeakLibrary::Initialise() {
  if (!Turn) Turn = std::unique_lock(Library().InUse, LongestTurn);
  if (!Turn) return false;
  int& rate = Library().Rate;
  if (rate <= 0)
    rate =
        espeak_Initialize(AUDIO_OUTPUT_SYNCHRONOUS, BufferMilliseconds, nullptr, espeakINITIALIZE_DONT_EXIT);
  return rate > 0;
}

int EspeakLibrary::Rate() const {
  return Library().Rate;
}

std::vector<EspeakVoice> EspeakLibrary::Voices() const {
  std::vector<EspeakVoice> voices;
  const espeak_VOICE** list = espeak_ListVoices(nullptr);
  for (; list && *list; ++list) {
    const espeak_VOICE& voice = **list;
    if (voice.name && voice.identifier)
      voices.push_back({voice.name, voice.identifier, UnpackLanguages(voice.languages)});
  }
  return voices;
}

void EspeakLibrary::Apply(const std::string& voiceName, const VoiceSettings& settings) {
  if (!voiceName.empty() && voiceName != CurrentVoice) ApplyVoice(voiceName);
  SetParameter(espeakRATE, Scaled(settings.WordsPerMinute, EspeakRate));
  SetParameter(espeakVOLUME, Scaled(settings.Volume, EspeakVolume));
  SetParameter(espeakPITCH, Scaled(settings.Pitch, [](double pitch) { return FromFraction(pitch, 0, 100); }));
}

void EspeakLibrary::ApplyVoice(const std::string& name) {
  espeak_SetVoiceByName(name.c_str());
  CurrentVoice = name;
}

}  // namespace qves
