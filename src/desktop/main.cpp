// The calculator in a window.
#include <fontconfig/fontconfig.h>
#include <xcb/xcb.h>

#include <QSessionManager>
#include <QSettings>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <future>
#include <iostream>

#include "app/CalculatorApp.h"
#include "desktop/DesktopClipboard.h"
#include "desktop/DesktopLocale.h"
#include "desktop/DesktopShell.h"
#include "desktop/LateTts.h"
#include "desktop/Options.h"
#include "desktop/SessionEnd.h"
#include "desktop/TurnApplication.h"
#include "posix/BaseDirectories.h"
#include "posix/IniRegistry.h"
#include "posix/PosixFileStore.h"
#include "posix/SeededRandom.h"
#include "posix/SystemClock.h"
#include "services/ServiceSet.h"
#include "sounds/ModuleSounds.h"
#include "speech/SpeechModule.h"
#include "spreadsheet/InverseT.h"

namespace qves {
namespace {

constexpr int BadUsage = 2;

void PrepareEnvironment() {
  // Before the toolkit starts: it does not notice a screen reader that is switched on later, and an input
  // method would keep dead keys from the calculator.
  qputenv("QT_LINUX_ACCESSIBILITY_ALWAYS_ON", "1");
  qputenv("QT_IM_MODULE", "none");
  // A speech server that goes away must not take the calculator with it.
  std::signal(SIGPIPE, SIG_IGN);
}

int Complain(const std::string& reason) {
  std::cerr << "qvescalc: " << reason << " (try --help)\n";
  return BadUsage;
}

/// Whether the toolkit will find a display; without one it would abort with a page of its own.
bool HasDisplay(const Options& options) {
  const bool isChosen = std::ranges::any_of(options.ToolkitArguments, [](const std::string& argument) {
    return argument == "-platform" || argument == "-display";
  });
  if (isChosen || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") ||
      !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY"))
    return true;
  if (qEnvironmentVariableIsEmpty("DISPLAY")) return false;
  xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
  const bool answers = xcb_connection_has_error(connection) == 0;
  xcb_disconnect(connection);
  return answers;
}

/// Runs the calculator in the toolkit's event loop; the exit status.
int RunCalculator(const Options& options, QtEventPump& events, LateTts& speech,
                  TurnApplication& application) {
  BaseDirectories directories(options.Home);
  PosixFileStore files(directories.ConfinedTo(), directories.ProgramFolder());
  IniRegistry registry(files, directories.ConfigFolder() + "/QVES/registry.ini");
  DesktopLocale locale;
  SystemClock clock;
  SeededRandom random;
  HintNotify hints;
  AppWMSpy windowMessages;
  DesktopWindows windows(options.Home);
  ModuleSounds sounds(events);
  // Where the toolkit's file dialog keeps its own state.
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope,
                     QString::fromStdString(directories.ConfigFolder()));
  QtFileDialog fileDialog;
  InverseT inverseT;
  DesktopClipboard clipboard;
  Platform platform{speech, hints,  windowMessages, windows, files,      directories, registry, locale,
                    clock,  events, random,         sounds,  fileDialog, inverseT,    clipboard};
  ServiceSet services(platform);

  DesktopShell shell({services.All.Settings, hints, windowMessages, windows, events, fileDialog});
  fileDialog.Says = {
      .Speak = [&services](const std::string& text) { services.All.Speech.SpeakText(text, Prose); },
      .Character = [&services](const std::string& text) { return services.All.Speech.SpeakableChar(text); },
      .Message = [&services](int id) { return services.All.Messages.GetMessage(id); }};
  CalculatorApp app(services.All, shell);
  shell.Attach(app);
  if (!app.Main({options.View})) return 0;
  services.All.Speech.EndTurn();
  application.OnHandled = [&services] { services.All.Speech.EndTurn(); };

  windows.ListenForCopies([&shell](const std::string& token) { shell.Raise(token); });
  const EndSignals endSignals([&shell] { shell.EndSession(); });
  QObject::connect(
      qApp, &QGuiApplication::commitDataRequest, qApp, [&shell] { shell.EndSession(); },
      Qt::DirectConnection);
  const LostDisplayGuard guard([&] {
    shell.Detach();
    events.Detach();
    app.Leave();
  });
  const int status = QCoreApplication::exec();
  application.OnHandled = [] {};
  app.Leave();
  return status;
}

int Main(int argc, char** argv) {
  std::string error;
  const auto options = ParseOptions({argv + 1, argv + argc}, error);
  if (!options) return Complain(error);
  if (options->Help || options->Version) {
    std::cout << (options->Help ? HelpText() : "qvescalc " QVES_VERSION "\n");
    return 0;
  }
  if (!HasDisplay(*options)) return Complain("there is no display (DISPLAY or WAYLAND_DISPLAY)");

  PrepareEnvironment();
  QtEventPump events;
  // The toolkit finds the list of fonts ready when it needs it.
  const auto fonts = std::async(std::launch::async, FcInit);
  std::vector<std::string> words = options->ToolkitArguments;
  std::vector<char*> toolkitArguments{argv[0]};
  for (std::string& word : words) toolkitArguments.push_back(word.data());
  int toolkitCount = static_cast<int>(toolkitArguments.size());
  toolkitArguments.push_back(nullptr);
  TurnApplication application(toolkitCount, toolkitArguments.data());
  if (toolkitCount > 1) return Complain(std::string("unknown option ") + toolkitArguments[1]);
  // A view that does not exist has no window, and the program goes on all the same.
  QGuiApplication::setQuitOnLastWindowClosed(false);
  QGuiApplication::setDesktopFileName("qvescalc");
  LateTts speech([&] { return LoadSpeech(options->Speech, events); });
  return RunCalculator(*options, events, speech, application);
}

}  // namespace
}  // namespace qves

int main(int argc, char** argv) {
  return qves::Main(argc, argv);
}
