#include "terminal/ScriptSession.h"

#include <filesystem>
#include <optional>

#include "speech/SpeechModule.h"
#include "terminal/Chord.h"
#include "terminal/Report.h"
#include "text/Integers.h"
#include "text/Text.h"
#include "text/Utf8.h"

namespace qves {
namespace {

bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

std::string_view Trim(std::string_view text) {
  return Trimmed(text, " \t\r");
}

/// The first word of the text; the text keeps what follows, without blanks around.
std::string_view TakeWord(std::string_view& text) {
  std::size_t end = 0;
  while (end < text.size() && !IsBlank(text[end])) ++end;
  const std::string_view word = text.substr(0, end);
  text = Trim(text.substr(end));
  return word;
}

std::string_view NameOf(SpeechHow how) {
  constexpr std::string_view names[] = {"now", "queued", "stop"};
  return names[static_cast<std::size_t>(how)];
}

std::string Quoted(std::string_view text) {
  return "\"" + std::string(text.substr(0, 60)) + "\"";
}

}  // namespace

struct ScriptSession::Command {
  std::string_view Name;
  Handler Run;
};

const ScriptSession::Command ScriptSession::Commands[] = {
    {"key", &ScriptSession::Key},       {"keys", &ScriptSession::Keys},
    {"click", &ScriptSession::Click},   {"focus", &ScriptSession::Focus},
    {"select", &ScriptSession::Select}, {"menu", &ScriptSession::ChooseMenu},
    {"answer", &ScriptSession::Answer}, {"heard", &ScriptSession::Heard},
    {"state", &ScriptSession::State},   {"quit", &ScriptSession::Quit},
};

ScriptSession::ScriptSession(const Options& options)
    : Directories(options.Home),
      Files(Directories.ConfinedTo(), Directories.ProgramFolder()),
      RegistryStore(Files, Directories.ConfigFolder() + "/QVES/registry.ini"),
      Language(options.DecimalComma),
      Time(options.Today),
      Random(options.Seed),
      RealSpeech(options.Speech ? LoadSpeech(*options.Speech, Events) : nullptr),
      Sounds(Files),
      Outside{RealSpeech ? *RealSpeech : SilentSpeech,
              Hints,
              WindowMessages,
              Windows,
              Files,
              Directories,
              RegistryStore,
              Language,
              Time,
              Events,
              Random,
              Sounds,
              FileDialog,
              Sheet},
      Common(Outside),
      App(Common.All, *this),
      TellsVoiced(options.Voiced) {
  Files.RefuseRelativePaths();  // the messages are those of the program's own folder
  Common.All.Sounds.OnPlayed([this](std::string_view eventName) { Played.emplace_back(eventName); });
  Common.All.Speech.SetObserver(this);
  App.Main({options.View});
  Common.All.Speech.EndTurn();
  // The lines report what they do themselves; the start is over.
  Spoken.clear();
  Files.TakeWritten();
}

ScriptSession::~ScriptSession() {
  App.Leave();
}

const std::string& ScriptSession::Run(int lineNumber, std::string_view line) {
  if (RealSpeech) Events.ProcessEvents(0);  // what it has told since the line before
  const std::string error = IsUtf8(line) ? Perform(Trim(line)) : "the line is not UTF-8";
  Errors = Errors || !error.empty();
  Events.ProcessEvents(0);
  Common.All.Speech.EndTurn();
  Report(lineNumber, line, error);
  return Line.Text();
}

std::string ScriptSession::Perform(std::string_view line) {
  std::string_view argument = line;
  const std::string_view name = TakeWord(argument);
  for (const Command& command : Commands)
    if (command.Name == name) return (this->*command.Run)(argument);
  return "unknown command " + Quoted(name);
}

std::string ScriptSession::Key(std::string_view argument) {
  const auto event = ParseChord(argument);
  if (!event) return Quoted(argument) + " is no key";
  Press(*event);
  return "";
}

std::string ScriptSession::Keys(std::string_view argument) {
  if (argument.empty()) return "keys wants a text";
  for (const char& c : argument)
    if (!IsBlank(c) && !ParseChord({&c, 1})) return "the text holds a character that no key types";
  for (const char& c : argument)
    if (!IsBlank(c)) Press(*ParseChord({&c, 1}));
  return "";
}

void ScriptSession::Press(const KeyEvent& event) {
  if (event.Code == KeyCapsLock || event.Code == KeyNumLock || event.Code == KeyScrollLock)
    Windows.Toggle(event.Code);
  App.KeyDown(event);
  Common.All.Speech.EndTurn();
  App.KeyUp(event.Code);
  Common.All.Speech.EndTurn();
}

std::string ScriptSession::WithControl(std::string_view argument, void (Form::*action)(Control&)) {
  const std::string_view name = TakeWord(argument);
  const auto index = argument.empty() ? NoIndex : ParseInteger(argument);
  if (name.empty() || !index) return "a control's name is wanted, and its index in an array";
  Form* form = App.ActiveForm();
  if (!form) return "";
  Control* control = form->Find(name, *index);
  if (!control)
    return "no control " + Quoted(name) + (argument.empty() ? "" : " with index " + std::string(argument));
  (form->*action)(*control);
  return "";
}

std::string ScriptSession::Click(std::string_view argument) {
  return WithControl(argument, &Form::MouseClick);
}

std::string ScriptSession::Focus(std::string_view argument) {
  return WithControl(argument, &Form::FocusByUser);
}

std::string ScriptSession::Select(std::string_view argument) {
  const std::string_view name = TakeWord(argument);
  const auto item = ParseInteger(argument);
  if (name.empty() || !item) return "a list's name is wanted, and the index of the item";
  Form* form = App.ActiveForm();
  if (!form) return "";
  auto* list = dynamic_cast<ListControl*>(form->Find(name));
  if (!list) return Quoted(name) + " is no list of this form";
  if (*item < 0 || *item >= list->ItemCount()) return "the list has no item " + std::string(argument);
  form->Choose(*list, *item);
  return "";
}

std::string ScriptSession::ChooseMenu(std::string_view argument) {
  const auto id = ParseInteger(argument);
  if (!id) return "menu wants the number of a message";
  Form* form = App.ActiveForm();
  return !form || form->ChooseMenu(*id) ? "" : "the form has no menu item " + std::to_string(*id);
}

std::string ScriptSession::Answer(std::string_view argument) {
  std::error_code error;
  FileDialog.Answer = argument.empty() ? "" : std::filesystem::absolute(argument, error).string();
  return error ? "the path has no folder" : "";
}

std::string ScriptSession::Heard(std::string_view argument) {
  const auto count = ParseInteger(argument);
  if (!argument.empty() && (!count || *count < 0)) return "heard wants a number of bookmarks, or nothing";
  SilentSpeech.ReadOn(count);
  return "";
}

std::string ScriptSession::State(std::string_view argument) {
  if (!argument.empty()) return "state stands alone";
  WantsState = true;
  return "";
}

std::string ScriptSession::Quit(std::string_view argument) {
  if (!argument.empty()) return "quit stands alone";
  App.Leave();
  return "";
}

void ScriptSession::TextAppended(Form&, TextBox& box, std::size_t from) {
  if (box.Has(MultiLine)) TapeAdded.append(box.Text, from);
}

void ScriptSession::TurnEnded(std::span<const SpeechAct> acts, std::size_t firstHeard) {
  for (const SpeechAct& act : acts) {
    const bool isHeard = act.IsAloud && act.How != SpeechHow::Stop && &act >= &acts[firstHeard];
    Spoken.push_back({NameOf(act.How), act.Text, std::nullopt});
    if (isHeard && TellsVoiced) Spoken.back().Voiced = Common.All.Speech.VoicedTextOf(act);
  }
}

void ScriptSession::Report(int lineNumber, std::string_view line, const std::string& error) {
  Line.Clear();
  Line.Begin('{');
  Line.Field("line", lineNumber);
  Line.Field("command", line);
  if (!error.empty()) Line.Field("error", std::string_view(error));
  ReportForm(Line, App.ActiveForm(), TapeAdded);
  ReportSpeech(Line, Spoken);
  ReportList(Line, "sounds", Played);
  ReportList(Line, "files", Files.TakeWritten());
  if (std::exchange(WantsState, false)) ReportState(Line, App.ActiveForm());
  Line.End('}');
  TapeAdded.clear();
  Spoken.clear();
  Played.clear();
}

}  // namespace qves
