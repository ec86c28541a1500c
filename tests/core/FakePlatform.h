// One fake stands for the whole outside: files in memory, a recording speech, windows in a list, a clock that
// ticks when it is told to.
#pragma once

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "platform/Platform.h"

namespace qves {

struct FakeFiles : FileStore {
  std::map<std::string, std::string> Content;
  std::vector<std::string> FolderList = {"/docs"};
  bool ReadOnly = false;

  std::optional<std::string> Read(const std::string& path, std::string& error) override {
    if (const auto found = Content.find(path); found != Content.end()) return found->second;
    error = IsFolder(path) ? "Is a directory" : "No such file or directory";
    return std::nullopt;
  }
  bool Write(const std::string& path, std::string_view content, std::string& error,
             FileReaders = FileReaders::Everybody) override {
    if (!ReadOnly) Content[path] = content;
    error = "Read-only file system";
    return !ReadOnly;
  }
  bool Append(const std::string& path, std::string_view text, std::string& error) override {
    error = "No space left on device";
    if (!ReadOnly) Content[path] += text;
    return !ReadOnly;
  }
  bool IsFile(const std::string& path) override { return Content.contains(path); }
  bool IsFolder(const std::string& path) override {
    return std::find(FolderList.begin(), FolderList.end(), path) != FolderList.end();
  }
  bool MakeFolder(const std::string& path) override {
    if (!ReadOnly) FolderList.push_back(path);
    return !ReadOnly;
  }
};

struct FakeDirectories : DirectoryManager {
  std::string UserName() override { return "anna"; }
  std::string ProgramFolder() override { return "/program"; }
  std::string ConfigFolder() override { return "/home/LocalService/.config"; }
  std::string StateFolder() override { return "/home/anna/.local/state"; }
  std::string DocumentsFolder() override { return "/home/anna/Documents"; }
};

struct FakeRegistry : Registry {
  std::map<std::string, std::string> Values;  ///< key, "|", value name
  bool ReadOnly = false;
  std::optional<std::string> Read(std::string_view key, std::string_view value) override {
    const auto found = Values.find(std::string(key) + "|" + std::string(value));
    if (found == Values.end()) return std::nullopt;
    return found->second;
  }
  bool Write(std::string_view key, std::string_view value, std::string_view text,
             std::string& error) override {
    error = "Access denied";
    if (!ReadOnly) Values[std::string(key) + "|" + std::string(value)] = text;
    return !ReadOnly;
  }
};

/// Plays every file that begins as a wave file does.
struct FakeSounds : SoundPlayer {
  FakeFiles& Files;
  std::vector<std::string> Asked;  ///< the paths, " and wait" behind them

  explicit FakeSounds(FakeFiles& files) : Files(files) {}
  bool Play(const std::string& path, bool wait) override {
    Asked.push_back(path + (wait ? " and wait" : ""));
    const auto found = Files.Content.find(path);
    return found != Files.Content.end() && found->second.starts_with("RIFF");
  }
};

struct FakeLocale : Locale {
  bool DecimalComma = false;
  bool WritesDecimalComma() override { return DecimalComma; }
};

struct FakeClock : Clock {
  std::int32_t Ticks = 1000;
  std::int32_t Step = 0;  ///< how far each look moves it on
  std::int32_t TickCount() override {
    Ticks += Step;
    return Ticks - Step;
  }
  Date Today() override { return {2026, 1, 31}; }
  std::string LocalDateTime() override { return "2026-01-31T10:20:30"; }
};

struct FakeEvents : EventPump {
  int Runs = 0;
  std::function<void()> OnRun;
  void Post(std::function<void()> event) override { event(); }
  void ProcessEvents(int) override {
    ++Runs;
    if (OnRun) OnRun();
  }
};

struct FakeRandom : RandomSource {
  double Next() override { return 0.25; }
};

struct FakeWindows : WindowSystem {
  std::vector<TopLevelWindow> Windows;
  std::vector<std::string> Deeds;  ///< what was asked, in order
  bool SecondCopy = false;
  bool LockOn = false;

  std::vector<TopLevelWindow> TopLevelWindows() override { return Windows; }
  void SendKeyDown(std::uint64_t window, int keyCode) override {
    Deeds.push_back("key " + std::to_string(keyCode) + " to " + std::to_string(window));
  }
  bool RestoreAndActivate(std::uint64_t window) override {
    Deeds.push_back("activate " + std::to_string(window));
    return true;
  }
  bool LockKeyIsOn(int) override { return LockOn; }
  bool AnotherInstanceRuns() override { return SecondCopy; }
  void SetApplicationTitle(std::string_view title) override {
    Deeds.push_back("title " + std::string(title));
  }
  void ActivateApplication(std::string_view title) override {
    Deeds.push_back("raise " + std::string(title));
  }
};

/// Speaks into `Said`: "now ...", "queued ...", "stop". Stops of the speaker that never speaks are not said.
struct FakeTts : TTS {
  std::vector<TtsEngineInfo> Known = {{"Maker", "Product", "Voice", 9}};
  std::vector<std::string> Said;
  std::vector<std::string> Settings;  ///< "open 1", "speed 170", ...
  bool BusyNow = false;
  bool Broken = false;
  TtsListener* Listener = nullptr;

  struct FakeSpeaker : TtsSpeaker {
    FakeTts& Owner;
    bool Speaks;
    FakeSpeaker(FakeTts& owner, bool speaks) : Owner(owner), Speaks(speaks) {}
    void SpeakNow(std::string_view text, std::span<const BookMark>) override {
      Note("now " + std::string(text));
    }
    void SpeakQueued(std::string_view text, std::span<const BookMark>) override {
      Note("queued " + std::string(text));
    }
    void Stop() override { Note("stop"); }
    bool Busy() const override { return Owner.BusyNow; }
    void Note(std::string what) {
      if (Speaks) Owner.Said.push_back(std::move(what));
    }
  };
  struct FakeEngine : TtsEngine {
    FakeTts& Owner;
    FakeSpeaker First;
    FakeSpeaker Second;
    explicit FakeEngine(FakeTts& owner) : Owner(owner), First(owner, false), Second(owner, true) {}
    bool Initialise() override { return !Owner.Broken; }
    void SetSpeed(int speed) override { Owner.Settings.push_back("speed " + std::to_string(speed)); }
    void SetVolume(std::int32_t volume) override {
      Owner.Settings.push_back("volume " + std::to_string(volume));
    }
    void SetPitch(int pitch) override { Owner.Settings.push_back("pitch " + std::to_string(pitch)); }
    int MinimumPitch() const override { return 0; }
    int MaximumPitch() const override { return 100; }
    TtsSpeaker* Speaker(int number) override { return number == 1 ? &First : &Second; }
    bool Busy() const override { return Owner.BusyNow; }
  };

  std::vector<TtsEngineInfo> Engines() const override { return Known; }
  std::unique_ptr<TtsEngine> Open(TtsChooser choose) override {
    const int index = choose(Known);
    if (index < 1 || index > static_cast<int>(Known.size())) return nullptr;
    Settings.push_back("open " + std::to_string(index));
    return std::make_unique<FakeEngine>(*this);
  }
  void SetListener(TtsListener* listener) override { Listener = listener; }
};

struct FakeFileDialog : FixedSizeFileDialog {
  std::string Answer;
  FileDialogSpec Asked;
  std::string Show(const FileDialogSpec& spec) override {
    Asked = spec;
    return Answer;
  }
};

/// A spreadsheet that knows one value.
struct FakeSpreadsheet : Spreadsheet {
  std::optional<double> Value = 2.5;
  int Calls = 0;
  std::optional<double> TInv(double, double) override {
    ++Calls;
    return Value;
  }
};

struct FakeClipboard : Clipboard {
  std::string Text;
  std::string ReadText(std::size_t most) override { return Text.substr(0, most); }
  void WriteText(std::string_view text) override { Text = text; }
};

struct FakePlatform {
  FakeTts Speech;
  HintNotify Hints;
  AppWMSpy WindowMessages;
  FakeWindows Windows;
  FakeFiles Files;
  FakeDirectories Directories;
  FakeRegistry RegistryStore;
  FakeLocale TheLocale;
  FakeClock TheClock;
  FakeEvents Events;
  FakeRandom Random;
  FakeSounds Sounds{Files};
  FakeFileDialog FileDialog;
  FakeSpreadsheet TheSpreadsheet;
  FakeClipboard Clip;
  Platform All{Speech,      Hints,         WindowMessages, Windows,        Files,
               Directories, RegistryStore, TheLocale,      TheClock,       Events,
               Random,      Sounds,        FileDialog,     TheSpreadsheet, Clip};

  FakePlatform() {
    Files.Content["/program/Messages.txt"] =
        "2\tTemporary\n3\tSettings\n6\tCalc\n7\tHost\n20\tControl plus\n21\tShift plus\n22\tOpens a dialog.\n"
        "23\tHas a sub-menu.\n24\tThe mnemonic for this menu item is %%.\n25\tMore.\n61\tNum on\n62\tNum "
        "off\n"
        "99\t2000\n402\tnew line\n1208\t times \n3026\t%% of %%\n";
    Files.Content["/program/CalcMsg.txt"] =
        "100\tQVES\n101\tWelcome.\n303\tE&xit\n304\tScientific View\n305\tStatistics View\n306\tStandard "
        "View\n"
        "1073\tpoint\n"
        "1081\t.\n1202\tError\n1204\t minus "
        "\n1901\tleft\n1902\tnothing\n1905\tOff\n1906\tOn\n1909\tControl\n1910\tShift\n1911\tF%%"
        "\n4043\tplus\n4059\tsemicolon\n1413\tbottom\n1414\ttop\n4038\tampersand\n";
  }

  const std::string HostFile = "/home/anna/.config/QVES/Settings/Host.ost";
  const std::string OwnFile = "/home/anna/.config/QVES/Settings/Calc.ost";
  std::string ErrorLog() { return Files.Content["/home/anna/Documents/QVES/Temporary/Error Log.txt"]; }
};

}  // namespace qves
