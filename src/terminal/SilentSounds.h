// Event sounds of a program that makes none.
#pragma once

#include <string>

#include "platform/FileStore.h"
#include "platform/SoundPlayer.h"

namespace qves {

class SilentSounds : public SoundPlayer {
 public:
  explicit SilentSounds(FileStore& files) : Files(files) {}

  /// True for every wave file.
  bool Play(const std::string& path, bool) override {
    std::string error;
    const auto content = Files.Read(path, error);
    return content && content->starts_with("RIFF") && content->substr(0, 12).ends_with("WAVE");
  }

 private:
  FileStore& Files;
};

}  // namespace qves
