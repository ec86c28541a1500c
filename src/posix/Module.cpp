#include "posix/Module.h"

#include <dlfcn.h>

#include <filesystem>

namespace qves {
namespace {

namespace fs = std::filesystem;

void* Open(const char* module) {
  std::error_code error;
  const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
  for (const fs::path& path : {folder / module, folder.parent_path() / "lib" / "qvescalc" / module})
    if (fs::exists(path, error)) return ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL | RTLD_NODELETE);
  return nullptr;
}

}  // namespace

void* FindInModule(const char* module, const char* function, std::string& error) {
  void* opened = Open(module);
  void* found = opened ? ::dlsym(opened, function) : nullptr;
  if (found) return found;
  const char* reason = ::dlerror();
  error = reason ? reason : std::string(module) + " is missing";
  return nullptr;
}

}  // namespace qves
