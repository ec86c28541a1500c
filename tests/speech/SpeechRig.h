// What the speech tests share: an event queue, a listener that remembers, private sound and speech servers.
#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "platform/Outside.h"
#include "platform/TTS.h"

namespace qves {

/// How much longer anything may take than in a plain build; with sanitizers, more than once as long.
inline constexpr int Slowness = QVES_SLOWNESS;

/// For calls that return at once, on a machine that may be busy.
inline constexpr std::chrono::milliseconds Prompt{250 * Slowness};

class TestPump : public EventPump {
 public:
  void Post(std::function<void()> event) override;
  void ProcessEvents(int waitMilliseconds) override;

 private:
  std::mutex Mutex;
  std::deque<std::function<void()>> Events;
};

/// Handles events until `reached` holds; false when that takes longer, by the measure of a plain build.
bool ReachedWithin(TestPump& pump, std::chrono::milliseconds longest, const std::function<bool()>& reached);

/// Remembers reports as texts: "mark 3 of 2", "stopped 2".
class TestListener : public TtsListener {
 public:
  explicit TestListener(TtsEngine* engine = nullptr) : Engine(engine) {}
  void BookMarkReached(std::int32_t number, TtsSpeaker& speaker) override;
  void SpeechStopped(TtsSpeaker& speaker) override;
  std::vector<std::string> Reports;

 private:
  std::string NumberOf(const TtsSpeaker& speaker) const;
  TtsEngine* Engine;
};

/// How long a call takes.
std::chrono::milliseconds TimeOf(const std::function<void()>& call);

/// Chooses the first engine with this manufacturer and voice ("": any).
TtsChooser Named(const std::string& manufacturer, const std::string& voice);

/// What is known of that engine; nothing as long as it is not in the list.
std::optional<TtsEngineInfo> Find(const TTS& list, const std::string& manufacturer, const std::string& voice);

/// Environment variables for the time of a test.
class TestEnvironment {
 public:
  TestEnvironment() = default;
  ~TestEnvironment();
  TestEnvironment(const TestEnvironment&) = delete;
  TestEnvironment& operator=(const TestEnvironment&) = delete;
  void Set(const std::string& name, const std::string& value);

 private:
  std::map<std::string, std::optional<std::string>> Before;
};

/// A runtime and home folder of the test's own, removed at the end. No sound server answers in it.
class PrivateDesktop {
 public:
  PrivateDesktop();
  ~PrivateDesktop();
  PrivateDesktop(const PrivateDesktop&) = delete;
  PrivateDesktop& operator=(const PrivateDesktop&) = delete;
  const std::string& Folder() const { return Path; }
  TestEnvironment& Environment() { return Variables; }

 private:
  std::string Path;
  TestEnvironment Variables;
};

/// With a sound server that plays into nothing, and a recording of what it plays.
class PrivateSound {
 public:
  explicit PrivateSound(const PrivateDesktop& desktop);
  ~PrivateSound();
  PrivateSound(const PrivateSound&) = delete;
  PrivateSound& operator=(const PrivateSound&) = delete;
  bool Ready() const { return IsReady; }
  /// The loudest sample that was recorded in the last `span`, of 32767.
  int LoudestOfLast(std::chrono::milliseconds span) const;
  void Signal(int signal) const;

 private:
  std::string Folder;
  std::string Recording;
  bool IsReady = false;
};

/// The settings of a speech server whose module writes the texts to a file, each followed by "|", instead of
/// speaking.
class PrivateSpeechServer {
 public:
  explicit PrivateSpeechServer(PrivateDesktop& desktop);
  ~PrivateSpeechServer();
  PrivateSpeechServer(const PrivateSpeechServer&) = delete;
  PrivateSpeechServer& operator=(const PrivateSpeechServer&) = delete;
  /// False where speech-dispatcher is not installed.
  static bool Installed();
  /// What has been spoken.
  std::string Spoken() const;
  void Signal(int signal) const;
  /// From now on none can be started.
  void Remove() const;

 private:
  std::string Folder;
};

}  // namespace qves
