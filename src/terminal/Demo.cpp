#include "terminal/Demo.h"

#include <stdlib.h>

#include <filesystem>
#include <ostream>

#include "services/AppSettings.h"
#include "terminal/ScriptSession.h"

namespace qves {
namespace {

using Json = nlohmann::ordered_json;
namespace fs = std::filesystem;

/// What is heard to its end: a text spoken at once cuts off those before it.
std::string Heard(const Json& spoken) {
  std::string heard;
  for (const Json& said : spoken)
    heard = (said["how"] == "queued" ? heard + " " : "") + said.value("text", "");
  return heard;
}

/// The demonstration leaves the user's own settings alone.
struct TemporaryHome {
  TemporaryHome() {
    std::string pattern = fs::temp_directory_path(Ignored) / "qvescalc-XXXXXX";
    if (::mkdtemp(pattern.data())) Folder = pattern;
  }
  ~TemporaryHome() {
    if (!Folder.empty()) fs::remove_all(Folder, Ignored);
  }
  TemporaryHome(const TemporaryHome&) = delete;
  TemporaryHome& operator=(const TemporaryHome&) = delete;

  std::error_code Ignored;
  std::string Folder;
};

}  // namespace

void PlayDemo(const Options& options, std::ostream& out) {
  const TemporaryHome home;
  Options standard = options;
  standard.View = StandardView;
  standard.Home = home.Folder;
  ScriptSession session(standard);
  out << "A short calculation in the Standard view, key by key.\n";
  int line = 0;
  for (const std::string_view key : {"7", "+", "5", "Enter"}) {
    const Json report = Json::parse(session.Run(++line, "key " + std::string(key)));
    out << "Key " << key << ": the display shows " << report["display"].get<std::string>() << ", heard is \""
        << Heard(report["spoken"]) << "\"";
    for (const Json& tape : report["tape"]) out << ", the tape gets " << tape.get<std::string>();
    out << ".\n";
  }
  out << "\nTo calculate by script: printf 'keys 7+5\\nkey =\\n' | ./run --script\n"
         "For the window and the voice, start ./run on a desktop.\n"
         "All options: ./run --script --help\n";
}

}  // namespace qves
