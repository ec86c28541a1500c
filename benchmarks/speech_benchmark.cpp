// How quickly the espeak-ng back end speaks and stops, beside the bare library in the same run.
//
// Medians of many texts, in microseconds. Needs pulseaudio: it plays into a private server without a sound
// device.
#include <dlfcn.h>
#include <espeak-ng/espeak_ng.h>
#include <espeak-ng/speak_lib.h>
#include <pulse/stream.h>
#include <signal.h>
#include <stdlib.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <functional>
#include <string>
#include <thread>
#include <vector>

#include "EnglishVoice.h"
#include "speech/Pauses.h"
#include "speech/SpeechBackEnds.h"
#include "voicing/VoicedText.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int Rounds = 200;
constexpr auto Rest = std::chrono::milliseconds(20);  // after each text: both find the caches equally cold
constexpr int LibrarySpeed = 175;  // the bare library's own: both make the same samples
constexpr const char* Texts[] = {"7", "5", "plus", "= 12", "memory recall"};

std::atomic<Clock::rep> firstSamples = 0;  // when a sample came out; 0: not yet
std::atomic<Clock::rep> flushed = 0;       // when the stream was silenced
std::atomic<int> silentLead = 0;           // samples before the first audible one
std::atomic<bool> audible = false;

void Note(std::atomic<Clock::rep>& moment) {
  Clock::rep unset = 0;
  moment.compare_exchange_strong(unset, Clock::now().time_since_epoch().count());
}

void NoteSamples(const std::int16_t* samples, std::size_t count) {
  Note(firstSamples);
  const std::int16_t* end = samples + count;
  const std::int16_t* first =
      std::find_if(samples, end, [](int sample) { return sample > 8 || sample < -8; });
  if (audible) return;
  silentLead += int(first - samples);
  audible = first != end;
}

void Reset() {
  firstSamples = 0;
  silentLead = 0;
  audible = false;
}

// Microseconds from `start` to the moment, which may still have to come.
double Until(Clock::time_point start, const std::atomic<Clock::rep>& moment) {
  const auto deadline = start + std::chrono::seconds(2);
  while (moment == 0 && Clock::now() < deadline) std::this_thread::sleep_for(std::chrono::microseconds(50));
  const Clock::duration taken = Clock::duration(moment.load()) - start.time_since_epoch();
  return std::chrono::duration<double, std::micro>(taken).count();
}

double Median(std::vector<double> values) {
  std::nth_element(values.begin(), values.begin() + std::ptrdiff_t(values.size() / 2), values.end());
  return values[values.size() / 2];
}

// The median over all rounds but the first of each text.
double Measure(const std::function<double(const char*)>& once) {
  std::vector<double> taken;
  for (const char* text : Texts) once(text);
  for (int i = 0; i < Rounds; ++i) taken.push_back(once(Texts[std::size_t(i) % std::size(Texts)]));
  return Median(std::move(taken));
}

template <typename Function>
Function Original(const char* name) {
  return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

class NoPump : public qves::EventPump {
 public:
  void Post(std::function<void()>) override {}
  void ProcessEvents(int) override {}
};

long allSamples = 0;

int TakeSamples(short* samples, int count, espeak_EVENT*) {
  if (samples && count > 0) allSamples += count;
  if (samples && count > 0) NoteSamples(samples, std::size_t(count));
  return 0;
}

// The silence before the first audible sample, in microseconds.
double Lead() {
  return silentLead * 1e6 / espeak_ng_GetSampleRate();
}

// As spoken and as voiced. The library is set up to speak within the call.
void PrintSecondsOfSpeech() {
  const auto seconds = [](const std::string& text) {
    allSamples = 0;
    espeak_Synth(text.c_str(), text.size() + 1, 0, POS_CHARACTER, 0, espeakCHARS_UTF8, nullptr, nullptr);
    return double(allSamples) / espeak_ng_GetSampleRate();
  };
  const struct {
    const char* Text;
    qves::ValueKind Kind;
  } texts[] = {{"= 0point333333333333333", qves::ValueKind::Number},
               {"=  minus 6point5", qves::ValueKind::Number},
               {"11010101010101010101010101010101", qves::ValueKind::BaseDigits},
               {"DEADBEEF", qves::ValueKind::BaseDigits}};
  std::puts("seconds of speech                             as spoken  as voiced");
  for (const auto& [text, kind] : texts) {
    const std::string voiced = qves::MakeVoiced(text, {qves::English}, {0, std::strlen(text), kind}).Text;
    std::printf("%-44s  %9.2f  %9.2f\n", text, seconds(text), seconds(qves::WithPauses(voiced, {}).Text));
  }
}

struct FirstSample {
  double Any;
  double Audible;
};

FirstSample BareFirstSample(espeak_AUDIO_OUTPUT output) {
  espeak_Initialize(output, 0, nullptr, 0);
  espeak_SetSynthCallback(TakeSamples);
  std::vector<double> audibleTimes;
  espeak_SetVoiceByName("English (Great Britain)");
  const double median = Measure([&](const char* text) {
    Reset();
    const auto start = Clock::now();
    espeak_Synth(text, std::strlen(text) + 1, 0, POS_CHARACTER, 0, espeakCHARS_UTF8, nullptr, nullptr);
    const double taken = Until(start, firstSamples);
    espeak_Synchronize();
    audibleTimes.push_back(taken + Lead());
    std::this_thread::sleep_for(Rest);
    return taken;
  });
  if (output == AUDIO_OUTPUT_SYNCHRONOUS) PrintSecondsOfSpeech();
  espeak_Terminate();
  return {median, Median(audibleTimes)};
}

struct BackEndTimes {
  FirstSample First;
  double SpeakCall;
  double StopToFlush;
  double StopCall;
};

// Each text is stopped after a while, so that the next begins with the stream silent.
BackEndTimes MeasureBackEnd(qves::TtsSpeaker& speaker) {
  std::vector<double> speakCalls, stops, stopCalls, audibleTimes;
  const auto since = [](Clock::time_point start) {
    return std::chrono::duration<double, std::micro>(Clock::now() - start).count();
  };
  const double first = Measure([&](const char* text) {
    Reset();
    const auto start = Clock::now();
    speaker.SpeakNow(text);
    speakCalls.push_back(since(start));
    const double taken = Until(start, firstSamples);
    std::this_thread::sleep_for(Rest);
    audibleTimes.push_back(taken + Lead());
    flushed = 0;
    const auto stop = Clock::now();
    speaker.Stop();
    stopCalls.push_back(since(stop));
    stops.push_back(Until(stop, flushed));
    std::this_thread::sleep_for(std::chrono::milliseconds(2));
    return taken;
  });
  return {{first, Median(audibleTimes)}, Median(speakCalls), Median(stops), Median(stopCalls)};
}

// A sound server in a folder of its own, ended with this object.
class SoundServer {
 public:
  SoundServer() {
    char pattern[] = "/tmp/speech_benchmarkXXXXXX";
    Folder = mkdtemp(pattern);
    setenv("XDG_RUNTIME_DIR", Folder.c_str(), 1);
    setenv("PULSE_SERVER", ("unix:" + Folder + "/pulse/native").c_str(), 1);
    Ready = system(
                "pulseaudio -n --daemonize=yes --log-target=null -L module-native-protocol-unix"
                " -L 'module-null-sink rate=48000 norewinds=1'") == 0;
  }
  ~SoundServer() {
    int pid = 0;
    std::ifstream(Folder + "/pulse/pid") >> pid;
    if (pid > 1) kill(pid, SIGTERM);
    static_cast<void>(system(("rm -rf " + Folder).c_str()));
  }
  SoundServer(const SoundServer&) = delete;
  SoundServer& operator=(const SoundServer&) = delete;
  bool Ready = false;

 private:
  std::string Folder;
};

}  // namespace

// These stand before the library's own functions of the same names and call them.
extern "C" int pa_stream_write(pa_stream* stream, const void* data, size_t bytes, pa_free_cb_t free,
                               int64_t offset, pa_seek_mode_t seek) {
  static const auto original = Original<decltype(&pa_stream_write)>("pa_stream_write");
  NoteSamples(static_cast<const std::int16_t*>(data), bytes / sizeof(std::int16_t));
  return original(stream, data, bytes, free, offset, seek);
}

extern "C" pa_operation* pa_stream_flush(pa_stream* stream, pa_stream_success_cb_t done, void* data) {
  static const auto original = Original<decltype(&pa_stream_flush)>("pa_stream_flush");
  pa_operation* operation = original(stream, done, data);
  Note(flushed);
  return operation;
}

int main() {
  const SoundServer server;
  if (!server.Ready) return std::puts("pulseaudio is needed"), 1;
  const FirstSample inCall = BareFirstSample(AUDIO_OUTPUT_SYNCHRONOUS);
  const FirstSample onThread = BareFirstSample(AUDIO_OUTPUT_RETRIEVAL);
  NoPump pump;
  const auto list = qves::MakeSpeech(qves::SpeechChoice::EspeakNg, pump);
  while (list->Engines().empty()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  const auto engine = list->Open([](const auto&) { return 1; });
  if (!engine) return std::puts("espeak-ng has no voices"), 1;
  engine->SetSpeed(LibrarySpeed);
  const BackEndTimes ours = MeasureBackEnd(*engine->Speaker(2));
  std::puts("microseconds from the call to               any sample   audible sample");
  const auto print = [](const char* what, const FirstSample& times) {
    std::printf("%-40s  %11.1f  %15.1f\n", what, times.Any, times.Audible);
  };
  print("bare library, within the call", inCall);
  print("bare library, on its own thread", onThread);
  print("back end, into the sound stream", ours.First);
  std::printf("%-40s  %11.2f  %15.3f\n", "ratio, back end to bare on its thread",
              ours.First.Any / onThread.Any, ours.First.Audible / onThread.Audible);
  std::printf("SpeakNow call                                   %8.1f\n", ours.SpeakCall);
  std::printf("Stop call                                       %8.1f\n", ours.StopCall);
  std::printf("Stop until the stream is silenced               %8.1f\n", ours.StopToFlush);
  return 0;
}
