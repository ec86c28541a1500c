// How quickly the espeak-ng back end speaks and stops, beside the bare library in the same process.
//
// The bare library and the back end speak in turn, text by text, on the same machine in the same state: the
// same voice and speed, both idle before for as long, each as often the first. Medians in microseconds. Needs
// pulseaudio: it plays into a private server without a sound device.
#include <dlfcn.h>
#include <espeak-ng/espeak_ng.h>
#include <espeak-ng/speak_lib.h>
#include <pulse/stream.h>
#include <signal.h>
#include <stdlib.h>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <functional>
#include <mutex>
#include <string>
#include <thread>
#include <vector>

#include "EnglishVoice.h"
#include "speech/Pauses.h"
#include "speech/SpeechBackEnds.h"
#include "speech/espeak/EspeakPlayback.h"
#include "voicing/VoicedText.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int Rounds = 60;
constexpr auto Rest = std::chrono::milliseconds(20);  // while a text is spoken, and after it
constexpr const char* Texts[] = {"7", "5", "plus", "= 12", "memory recall"};

std::atomic<Clock::rep> firstSamples = 0;  // when a sample came out; 0: not yet
std::atomic<Clock::rep> flushed = 0;       // when the stream was silenced
std::atomic<int> silentLead = 0;           // samples before the first audible one
std::atomic<bool> audible = false;
std::atomic<long> allSamples = 0;

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

double Microseconds(Clock::duration time) {
  return std::chrono::duration<double, std::micro>(time).count();
}

double Quantile(std::vector<double> values, double part) {
  const auto place = values.begin() + std::ptrdiff_t(double(values.size() - 1) * part);
  std::nth_element(values.begin(), place, values.end());
  return *place;
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

int TakeSamples(short* samples, int count, espeak_EVENT*) {
  if (samples && count > 0) allSamples += count;
  if (samples && count > 0) NoteSamples(samples, std::size_t(count));
  return 0;
}

void Synthesize(const char* text) {
  espeak_Synth(text, std::strlen(text) + 1, 0, POS_CHARACTER, 0, espeakCHARS_UTF8, nullptr, nullptr);
}

// As spoken and as voiced.
void PrintSecondsOfSpeech() {
  const auto seconds = [](const std::string& text) {
    allSamples = 0;
    Synthesize(text.c_str());
    return double(allSamples.load()) / espeak_ng_GetSampleRate();
  };
  espeak_SetSynthCallback(TakeSamples);
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

// The bare library on a thread that waits for texts.
class BareThread {
 public:
  ~BareThread() {
    Say(nullptr);
    Thread.join();
  }
  void Say(const char* text) {
    {
      const std::lock_guard lock(Mutex);
      Text = text;
      Waiting = true;
    }
    Changed.notify_one();
  }

 private:
  void Run() {
    while (const char* text = Next()) Synthesize(text);
  }
  const char* Next() {
    std::unique_lock lock(Mutex);
    Changed.wait(lock, [this] { return Waiting; });
    Waiting = false;
    return Text;
  }

  std::mutex Mutex;
  std::condition_variable Changed;
  bool Waiting = false;
  const char* Text = nullptr;
  std::thread Thread{[this] { Run(); }};
};

// One way to speak a text and to silence it, and the times of all texts so far.
struct Way {
  const char* Name;
  t_espeak_callback* Callback;
  std::function<void(const char*)> Speak;
  std::function<void()> Stop;
  std::vector<double> Call = {}, StopCall = {}, Any = {}, Audible = {}, Flush = {};

  void Take(const char* text) {
    espeak_SetSynthCallback(Callback);
    silentLead = 0;
    audible = false;
    firstSamples = flushed = 0;
    const auto start = Clock::now();
    Speak(text);
    Call.push_back(Microseconds(Clock::now() - start));
    std::this_thread::sleep_for(Rest);
    const auto stop = Clock::now();
    Stop();
    StopCall.push_back(Microseconds(Clock::now() - stop));
    std::this_thread::sleep_for(Rest);
    Any.push_back(Microseconds(Clock::duration(firstSamples.load()) - start.time_since_epoch()));
    Audible.push_back(Any.back() + silentLead * 1e6 / espeak_ng_GetSampleRate());
    Flush.push_back(Microseconds(Clock::duration(flushed.load()) - stop.time_since_epoch()));
  }
  void Forget() { *this = {Name, Callback, Speak, Stop}; }
};

// In all orders, as each one finds the caches as the one before it has left them.
void MeasureInTurn(std::vector<Way>& ways) {
  std::vector<std::size_t> order = {0, 1, 2};
  for (int round = -1; round < Rounds; ++round) {
    for (const char* text : Texts)
      for (const std::size_t way : order) ways[way].Take(text);
    if (round < 0)
      for (Way& way : ways) way.Forget();
    else
      std::next_permutation(order.begin(), order.end());
  }
}

void Print(const std::vector<Way>& ways) {
  const Way& ours = ways[0];
  const Way& bare = ways[1];
  std::puts("microseconds from the call to               any sample   audible sample");
  for (const Way& way : ways)
    std::printf("%-40s  %11.1f  %15.1f\n", way.Name, Quantile(way.Any, 0.5), Quantile(way.Audible, 0.5));
  std::vector<double> ratios;
  for (std::size_t i = 0; i < ours.Any.size(); ++i) ratios.push_back(ours.Any[i] / bare.Any[i]);
  std::printf("%-40s  %11.2f  %15.3f\n", "ratio, back end to bare on its thread",
              Quantile(ours.Any, 0.5) / Quantile(bare.Any, 0.5),
              Quantile(ours.Audible, 0.5) / Quantile(bare.Audible, 0.5));
  std::printf("its median and quartiles, text by text           %.2f  (%.2f to %.2f)\n",
              Quantile(ratios, 0.5), Quantile(ratios, 0.25), Quantile(ratios, 0.75));
  std::printf("SpeakNow call                                   %8.1f\n", Quantile(ours.Call, 0.5));
  std::printf("Stop call                                       %8.1f\n", Quantile(ours.StopCall, 0.5));
  std::printf("Stop until the stream is silenced               %8.1f\n", Quantile(ours.Flush, 0.5));
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
  NoPump pump;
  const auto list = qves::MakeSpeech(qves::SpeechChoice::EspeakNg, pump);
  while (list->Engines().empty()) std::this_thread::sleep_for(std::chrono::milliseconds(1));
  const auto engine = list->Open([](const auto&) { return 1; });
  if (!engine) return std::puts("espeak-ng has no voices"), 1;
  qves::TtsSpeaker& speaker = *engine->Speaker(2);
  std::this_thread::sleep_for(10 * Rest);  // until the sound server is connected
  BareThread thread;
  const auto nothing = [] {};
  std::vector<Way> ways = {
      {"back end, into the sound stream", qves::EspeakPlayback::Receive,
       [&](const char* text) { speaker.SpeakNow(text); }, [&] { speaker.Stop(); }},
      {"bare library, on a thread", TakeSamples, [&](const char* text) { thread.Say(text); }, nothing},
      {"bare library, within the call", TakeSamples, Synthesize, nothing}};
  MeasureInTurn(ways);
  Print(ways);
  PrintSecondsOfSpeech();
  return 0;
}
