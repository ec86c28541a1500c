#include "posix/BaseDirectories.h"

#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace qves {
namespace {

namespace fs = std::filesystem;

/// An absolute path of the environment; "" when unset, empty or relative.
std::string EnvironmentPath(const char* name) {
  const char* value = std::getenv(name);
  return value && value[0] == '/' ? value : "";
}

std::string FindHome() {
  if (std::string home = EnvironmentPath("HOME"); !home.empty()) return home;
  const passwd* user = ::getpwuid(::getuid());
  if (user && user->pw_dir && user->pw_dir[0] == '/') return user->pw_dir;
  return "/tmp/qvescalc-" + std::to_string(::getuid());
}

/// The executable's folder, or the installed data folder when the messages are not beside the executable.
std::string FindProgramFolder() {
  std::error_code error;
  const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
  if (fs::exists(folder / "CalcMsg.txt", error)) return folder;
  const fs::path installed = folder.parent_path() / "share" / "qvescalc";
  return fs::exists(installed / "CalcMsg.txt", error) ? installed : folder;
}

}  // namespace

BaseDirectories::BaseDirectories(std::string home)
    : Confined(!home.empty()),
      HomeFolder(Confined ? fs::absolute(home).lexically_normal().string() : FindHome()),
      Program(FindProgramFolder()) {
  while (HomeFolder.size() > 1 && HomeFolder.ends_with('/')) HomeFolder.pop_back();
}

std::string BaseDirectories::UserName() {
  // Below a given home that word stands for itself.
  if (Confined) return "LocalService";
  const passwd* user = ::getpwuid(::getuid());
  return user && user->pw_name ? user->pw_name : "";
}

std::string BaseDirectories::ConfigFolder() {
  return BaseFolder("XDG_CONFIG_HOME", "/.config");
}

std::string BaseDirectories::StateFolder() {
  return BaseFolder("XDG_STATE_HOME", "/.local/state");
}

std::string BaseDirectories::BaseFolder(const char* variable, const char* usual) const {
  const std::string folder = Confined ? "" : EnvironmentPath(variable);
  return folder.empty() ? HomeFolder + usual : folder;
}

std::string BaseDirectories::DocumentsFolder() {
  const std::string folder = Confined ? "" : FromUserDirs("XDG_DOCUMENTS_DIR");
  return folder.empty() ? HomeFolder + "/Documents" : folder;
}

/// A line such as XDG_DOCUMENTS_DIR="$HOME/Dokumente" of the desktop's list of user folders.
std::string BaseDirectories::FromUserDirs(const std::string& name) {
  std::ifstream list(ConfigFolder() + "/user-dirs.dirs");
  const std::string begin = name + "=\"";
  for (std::string line; std::getline(list, line);) {
    if (!line.starts_with(begin) || !line.ends_with('"') || line.size() < begin.size() + 2) continue;
    std::string path = line.substr(begin.size(), line.size() - begin.size() - 1);
    if (path.starts_with("$HOME")) path = HomeFolder + path.substr(5);
    while (path.size() > 1 && path.ends_with('/')) path.pop_back();
    if (path.starts_with('/')) return path;
  }
  return "";
}

}  // namespace qves
