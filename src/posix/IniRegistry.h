// The registry's stand-in: a text file with a section a key and a line a value. A default value has an empty
// name.
#pragma once

#include <string>

#include "platform/FileStore.h"
#include "platform/Outside.h"

namespace qves {

class IniRegistry : public Registry {
 public:
  IniRegistry(FileStore& files, std::string path) : Files(files), Path(std::move(path)) {}

  /// Nothing when the key or the value is missing, or the file cannot be read.
  std::optional<std::string> Read(std::string_view key, std::string_view value) override;
  bool Write(std::string_view key, std::string_view value, std::string_view text,
             std::string& error) override;

 private:
  FileStore& Files;
  std::string Path;
};

}  // namespace qves
