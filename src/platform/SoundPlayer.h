// Plays sound files.
#pragma once

#include <string>

namespace qves {

class SoundPlayer {
 public:
  virtual ~SoundPlayer() = default;
  /// Plays the file in place of what is being played. With `wait` it returns when the sound has ended, or
  /// after some seconds at the latest; without, at once. False, soon, when it cannot be played: no such file,
  /// no sound in it, no sound device.
  virtual bool Play(const std::string& path, bool wait) = 0;
};

}  // namespace qves
