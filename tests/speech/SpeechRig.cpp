#include "SpeechRig.h"

#include <signal.h>
#include <stdlib.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>

namespace qves {
namespace {

using std::chrono::milliseconds;
using Ticks = std::chrono::steady_clock;

constexpr int RecordedRate = 16000;

std::string Contents(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream out;
  out << file.rdbuf();
  return out.str();
}

bool Run(const std::string& command) {
  return std::system((command + " >/dev/null 2>&1").c_str()) == 0;
}

// The number in a file; 0 when there is none.
int PidIn(const std::string& path) {
  return std::atoi(Contents(path).c_str());
}

void SendSignal(const std::string& pidFile, int signal) {
  if (const int pid = PidIn(pidFile); pid > 1) kill(pid, signal);
}

}  // namespace

void TestPump::Post(std::function<void()> event) {
  const std::lock_guard lock(Mutex);
  Events.push_back(std::move(event));
}

void TestPump::ProcessEvents(int waitMilliseconds) {
  std::deque<std::function<void()>> pending;
  {
    const std::lock_guard lock(Mutex);
    pending.swap(Events);
  }
  for (const auto& event : pending) event();
  if (pending.empty()) std::this_thread::sleep_for(milliseconds(waitMilliseconds));
}

bool ReachedWithin(TestPump& pump, milliseconds longest, const std::function<bool()>& reached) {
  const auto deadline = Ticks::now() + longest * Slowness;
  while (!reached()) {
    if (Ticks::now() > deadline) return false;
    pump.ProcessEvents(5);
  }
  return true;
}

void TestListener::BookMarkReached(std::int32_t number, TtsSpeaker& speaker) {
  Reports.push_back("mark " + std::to_string(number) + " of " + NumberOf(speaker));
}

void TestListener::SpeechStopped(TtsSpeaker& speaker) {
  Reports.push_back("stopped " + NumberOf(speaker));
}

std::string TestListener::NumberOf(const TtsSpeaker& speaker) const {
  for (const int number : {1, 2}) {
    if (Engine && Engine->Speaker(number) == &speaker) return std::to_string(number);
  }
  return "?";
}

milliseconds TimeOf(const std::function<void()>& call) {
  const auto start = Ticks::now();
  call();
  return std::chrono::duration_cast<milliseconds>(Ticks::now() - start);
}

TtsChooser Named(const std::string& manufacturer, const std::string& voice) {
  return [=](const std::vector<TtsEngineInfo>& engines) {
    for (std::size_t i = 0; i < engines.size(); ++i) {
      if (engines[i].Manufacturer == manufacturer && (voice.empty() || engines[i].VoiceName == voice))
        return int(i) + 1;
    }
    return 0;
  };
}

std::optional<TtsEngineInfo> Find(const TTS& list, const std::string& manufacturer,
                                  const std::string& voice) {
  const std::vector<TtsEngineInfo> engines = list.Engines();
  const int index = Named(manufacturer, voice)(engines);
  return index > 0 ? std::optional(engines[std::size_t(index) - 1]) : std::nullopt;
}

TestEnvironment::~TestEnvironment() {
  for (const auto& [name, value] : Before) {
    if (value)
      setenv(name.c_str(), value->c_str(), 1);
    else
      unsetenv(name.c_str());
  }
}

void TestEnvironment::Set(const std::string& name, const std::string& value) {
  const char* old = std::getenv(name.c_str());
  Before.emplace(name, old ? std::optional<std::string>(old) : std::nullopt);
  setenv(name.c_str(), value.c_str(), 1);
}

PrivateDesktop::PrivateDesktop() {
  std::string pattern = (std::filesystem::temp_directory_path() / "speechXXXXXX").string();
  Path = mkdtemp(pattern.data());
  for (const char* name : {"XDG_RUNTIME_DIR", "HOME"}) Variables.Set(name, Path);
  Variables.Set("XDG_CONFIG_HOME", Path + "/.config");
  Variables.Set("XDG_CACHE_HOME", Path + "/.cache");
  Variables.Set("PULSE_SERVER", "unix:" + Path + "/pulse/native");
  Variables.Set("SPEECHD_ADDRESS", "unix_socket:" + Path + "/speech-dispatcher/speechd.sock");
  Variables.Set("LC_ALL", "C");
}

PrivateDesktop::~PrivateDesktop() {
  // Servers that are ending may still write into it.
  TestPump pump;
  ReachedWithin(pump, milliseconds(2000), [this] {
    std::error_code ignored;
    std::filesystem::remove_all(Path, ignored);
    std::this_thread::sleep_for(milliseconds(20));
    return !std::filesystem::exists(Path);
  });
}

PrivateSound::PrivateSound(const PrivateDesktop& desktop)
    : Folder(desktop.Folder()), Recording(Folder + "/recording.raw") {
  IsReady =
      Run("pulseaudio -n --daemonize=yes --exit-idle-time=60 --log-target=null -L module-native-protocol-unix"
          " -L 'module-null-sink sink_name=null rate=48000 channels=2 norewinds=1'") &&
      Run("command -v parec");
  if (!IsReady) return;
  std::filesystem::remove(Recording);  // of a server before
  const std::string record =
      "timeout 300 parec --device=null.monitor --format=s16le --channels=1 --latency-msec=20 --rate=" +
      std::to_string(RecordedRate) + " > " + Recording + " & echo $! > " + Folder;
  static_cast<void>(std::system((record + "/recorder.pid").c_str()));
  TestPump pump;
  IsReady = ReachedWithin(pump, std::chrono::seconds(10), [this] { return !Contents(Recording).empty(); });
}

PrivateSound::~PrivateSound() {
  SendSignal(Folder + "/recorder.pid", SIGTERM);
  Signal(SIGCONT);
  Signal(SIGTERM);
}

void PrivateSound::Signal(int signal) const {
  SendSignal(Folder + "/pulse/pid", signal);
}

int PrivateSound::LoudestOfLast(milliseconds span) const {
  const std::string bytes = Contents(Recording);
  const std::size_t count = bytes.size() / 2;
  const std::size_t wanted = std::size_t(span.count()) * RecordedRate / 1000;
  int loudest = 0;
  for (std::size_t i = count - std::min(count, wanted); i < count; ++i) {
    const auto low = static_cast<unsigned char>(bytes[2 * i]);
    const auto high = static_cast<signed char>(bytes[2 * i + 1]);
    loudest = std::max(loudest, std::abs(high * 256 + low));
  }
  return loudest;
}

PrivateSpeechServer::PrivateSpeechServer(PrivateDesktop& desktop) : Folder(desktop.Folder()) {
  const std::string program = Folder + "/server";
  std::ofstream(program) << "#!/bin/sh\nexec speech-dispatcher \"$@\"\n";
  std::filesystem::permissions(program, std::filesystem::perms::owner_all);
  desktop.Environment().Set("SPEECHD_CMD", program);
  const std::string settings = Folder + "/.config/speech-dispatcher";
  std::filesystem::create_directories(settings + "/modules");
  std::ofstream(settings + "/speechd.conf") << "LogLevel 1\nTimeout 2\n"
                                               "AddModule \"capture\" \"sd_generic\" \"capture.conf\"\n"
                                               "DefaultModule capture\n";
  // The time that a text takes lets a test interrupt it.
  std::ofstream(settings + "/modules/capture.conf")
      << "GenericExecuteSynth \"echo \\'$DATA\\' >> " << Folder << "/spoken; sleep 0.4\"\n"
      << "GenericLanguage \"en\" \"en\" \"utf-8\"\n"
      << "AddVoice \"en\" \"MALE1\" \"first\"\nAddVoice \"de\" \"MALE1\" \"second\"\n";
}

PrivateSpeechServer::~PrivateSpeechServer() {
  Signal(SIGCONT);
  Signal(SIGTERM);
}

bool PrivateSpeechServer::Installed() {
  return Run("command -v speech-dispatcher");
}

std::string PrivateSpeechServer::Spoken() const {
  std::string spoken = Contents(Folder + "/spoken");
  std::replace(spoken.begin(), spoken.end(), '\n', '|');
  return spoken;
}

void PrivateSpeechServer::Signal(int signal) const {
  SendSignal(Folder + "/speech-dispatcher/pid/speech-dispatcher.pid", signal);
}

void PrivateSpeechServer::Remove() const {
  std::filesystem::remove(Folder + "/server");
}

}  // namespace qves
