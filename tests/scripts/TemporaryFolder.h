// A folder that goes with the test.
#pragma once

#include <stdlib.h>

#include <filesystem>
#include <string>

namespace qves {

struct TemporaryFolder {
  TemporaryFolder() {
    std::string pattern = std::filesystem::temp_directory_path() / "qves-test-XXXXXX";
    Path = ::mkdtemp(pattern.data());
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(Path, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  std::filesystem::path Path;
};

}  // namespace qves
