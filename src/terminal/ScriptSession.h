// The calculator without a window: commands in, and out comes what was shown and spoken.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "app/CalculatorApp.h"
#include "posix/BaseDirectories.h"
#include "posix/EventQueue.h"
#include "posix/IniRegistry.h"
#include "posix/PosixFileStore.h"
#include "posix/SeededRandom.h"
#include "posix/SystemClock.h"
#include "services/ServiceSet.h"
#include "spreadsheet/InverseT.h"
#include "terminal/JsonLine.h"
#include "terminal/Options.h"
#include "terminal/Report.h"
#include "terminal/SilentTts.h"
#include "terminal/TerminalOutside.h"

namespace qves {

class ScriptSession : private AppObserver, private FormObserver, private SpeechObserver {
 public:
  explicit ScriptSession(const Options& options);
  ~ScriptSession() override;

  /// Runs one command. The JSON object tells what it did; it has "error" when the line is no command. It is
  /// good until the next call.
  const std::string& Run(int lineNumber, std::string_view line);
  bool HadErrors() const { return Errors; }

 private:
  struct Command;
  using Handler = std::string (ScriptSession::*)(std::string_view argument);

  // The commands. Each returns why it is none, "" when it is one.
  std::string Key(std::string_view argument);
  std::string Keys(std::string_view argument);
  std::string Click(std::string_view argument);
  std::string Focus(std::string_view argument);
  std::string Select(std::string_view argument);
  std::string ChooseMenu(std::string_view argument);
  std::string Answer(std::string_view argument);
  std::string SetClipboard(std::string_view argument);
  std::string Heard(std::string_view argument);
  std::string State(std::string_view argument);
  std::string Quit(std::string_view argument);

  std::string Perform(std::string_view line);
  std::string WithControl(std::string_view argument, void (Form::*action)(Control&));
  void Press(const KeyEvent& event);
  void CopySelection();
  void Report(int lineNumber, std::string_view line, const std::string& error);

  void FormShown(Form& form) override { form.AddObserver(*this); }
  void TextAppended(Form&, TextBox& box, std::size_t from) override;
  void TurnEnded(std::span<const SpeechAct> acts, std::size_t firstHeard) override;

  static const Command Commands[];

  BaseDirectories Directories;
  PosixFileStore Files;
  IniRegistry RegistryStore;
  GivenLocale Language;
  SystemClock Time;
  EventQueue Events;
  SeededRandom Random;
  TerminalWindows Windows;
  HintNotify Hints;
  AppWMSpy WindowMessages;
  std::unique_ptr<TTS> RealSpeech;  ///< null: the silent one speaks
  SilentTts SilentSpeech;
  SilentSounds Sounds;
  AnsweredFileDialog FileDialog;
  InverseT Sheet;
  GivenClipboard Clip;
  Platform Outside;
  ServiceSet Common;
  CalculatorApp App;

  JsonLine Line;
  Transcript Spoken;
  const bool TellsVoiced;
  std::string TapeAdded;
  std::vector<std::string> Played;  ///< names of the events that sounded
  bool WantsState = false;
  bool Errors = false;
};

}  // namespace qves
