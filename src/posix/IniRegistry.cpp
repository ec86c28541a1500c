#include "posix/IniRegistry.h"

#include "text/Text.h"

namespace qves {

std::optional<std::string> IniRegistry::Read(std::string_view key, std::string_view value) {
  std::string error;
  const auto content = Files.Read(Path, error);
  if (!content) return std::nullopt;
  const std::string section = "[" + std::string(key) + "]";
  const std::string name = std::string(value) + "=";
  bool inside = false;
  std::optional<std::string> found;
  ForEachLine(*content, [&](int, std::string_view line) {
    if (line.starts_with('['))
      inside = line == section;
    else if (inside && !found && line.starts_with(name))
      found = std::string(line.substr(name.size()));
  });
  return found;
}

bool IniRegistry::Write(std::string_view key, std::string_view value, std::string_view text,
                        std::string& error) {
  std::string content;
  if (Files.IsFile(Path) || Files.IsFolder(Path)) {
    const auto old = Files.Read(Path, error);
    if (!old) return false;  // what cannot be read is not overwritten
    content = *old;
  }
  const std::string section = "[" + std::string(key) + "]";
  const std::string name = std::string(value) + "=";
  const std::string entry = name + std::string(text) + "\n";
  std::string out;
  bool inside = false;
  bool written = false;
  const auto finishSection = [&] {
    if (inside && !written) out += entry;
    written = written || inside;
  };
  ForEachLine(content, [&](int, std::string_view line) {
    if (line.starts_with('[')) {
      finishSection();
      inside = line == section;
    } else if (inside && line.starts_with(name)) {
      if (!written) out += entry;
      written = true;
      return;
    }
    out.append(line) += '\n';
  });
  finishSection();
  if (!written) out += section + "\n" + entry;
  return Files.Write(Path, out, error);
}

}  // namespace qves
