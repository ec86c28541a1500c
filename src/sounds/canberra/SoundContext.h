// The connection to the desktop's sound, for one thread at a time.
#pragma once

#include <canberra.h>

#include <atomic>
#include <memory>
#include <string>

namespace qves {

/// Set when a sound has ended, on a thread of the library's.
using SoundEnded = std::shared_ptr<std::atomic<bool>>;

class SoundContext {
 public:
  SoundContext() = default;
  ~SoundContext() { Close(); }
  SoundContext(const SoundContext&) = delete;
  SoundContext& operator=(const SoundContext&) = delete;

  /// Starts the sound in place of the one before. A sound server that hangs is waited for, without limit.
  bool Start(const std::string& path, const SoundEnded& ended);

 private:
  bool Open();
  void Close();
  bool TryStart(const std::string& path, const SoundEnded& ended);

  ca_context* Context = nullptr;
};

}  // namespace qves
