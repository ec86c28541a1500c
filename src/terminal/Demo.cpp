#include "terminal/Demo.h"

#include <ostream>

#include "services/AppSettings.h"
#include "terminal/ScriptSession.h"

namespace qves {
namespace {

/// What is heard to its end: a text spoken at once cuts off those before it.
std::string Heard(const Json& spoken) {
  std::string heard;
  for (const Json& said : spoken)
    heard = (said["how"] == "queued" ? heard + " " : "") + said.value("text", "");
  return heard;
}

}  // namespace

void PlayDemo(const Options& options, std::ostream& out) {
  Options standard = options;
  standard.View = StandardView;
  ScriptSession session(standard);
  out << "A short calculation in the Standard view, key by key.\n";
  int line = 0;
  for (const std::string_view key : {"7", "+", "5", "Enter"}) {
    const Json report = session.Run(++line, "key " + std::string(key));
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
