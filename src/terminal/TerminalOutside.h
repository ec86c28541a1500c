// The outside of a program without a window, a desktop or sounds.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <utility>

#include "platform/Clipboard.h"
#include "platform/FileStore.h"
#include "platform/FixedSizeFileDialog.h"
#include "platform/Outside.h"
#include "platform/SoundPlayer.h"
#include "platform/WindowSystem.h"

namespace qves {

/// No other programs' windows, and lock keys that toggle with each press.
class TerminalWindows : public WindowSystem {
 public:
  std::vector<TopLevelWindow> TopLevelWindows() override { return {}; }
  void SendKeyDown(std::uint64_t, int) override {}
  bool RestoreAndActivate(std::uint64_t) override { return false; }
  bool LockKeyIsOn(int keyCode) override { return LocksOn.contains(keyCode); }
  bool AnotherInstanceRuns() override { return false; }
  void SetApplicationTitle(std::string_view) override {}
  void ActivateApplication(std::string_view) override {}

  /// A press of a lock key.
  void Toggle(int keyCode) {
    if (!LocksOn.insert(keyCode).second) LocksOn.erase(keyCode);
  }

 private:
  std::set<int> LocksOn;
};

/// It is told how it writes.
struct GivenLocale : Locale {
  explicit GivenLocale(bool decimalComma) : DecimalComma(decimalComma) {}
  bool WritesDecimalComma() override { return DecimalComma; }
  const bool DecimalComma;
};

/// It is answered before it is shown.
struct AnsweredFileDialog : FixedSizeFileDialog {
  std::string Show(const FileDialogSpec&) override { return std::exchange(Answer, {}); }
  std::string Answer;  ///< what the next dialog returns; "" is a cancel
};

/// It holds what it is given, and notes what is copied.
struct GivenClipboard : Clipboard {
  std::string ReadText(std::size_t most) override { return Text.substr(0, most); }
  void WriteText(std::string_view text) override { Copied = Text = text; }

  std::string Text;
  std::optional<std::string> Copied;  ///< since it was looked at last
};

/// Plays every wave file, without a sound.
struct SilentSounds : SoundPlayer {
  explicit SilentSounds(FileStore& files) : Files(files) {}
  bool Play(const std::string& path, bool) override {
    std::string error;
    const auto content = Files.Read(path, error);
    return content && content->starts_with("RIFF") && content->substr(0, 12).ends_with("WAVE");
  }
  FileStore& Files;
};

}  // namespace qves
