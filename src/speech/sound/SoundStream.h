// Samples on their way to be heard, by whatever the machine has for it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "speech/Wake.h"

namespace qves {

/// One channel of 16-bit samples. All calls come from one thread, and none but Wait makes it wait.
class SoundStream {
 public:
  virtual ~SoundStream() = default;
  /// It has not failed.
  virtual bool Alive() = 0;
  /// What is written next is heard at once, in place of what is not heard yet.
  virtual void Restart() = 0;
  /// Drops what is not heard yet.
  virtual void Flush() = 0;
  /// How many samples may be written now.
  virtual std::size_t Room() = 0;
  virtual void Write(std::span<const std::int16_t> samples) = 0;
  /// How many of the written samples are still to be heard; nothing as long as that is not known.
  virtual std::optional<std::int64_t> Unheard() = 0;
  /// Lets the sound device sleep until the next Restart.
  virtual void Sleep() = 0;
  /// It has failed, or takes nothing any more: the next one is connected anew.
  virtual void Close() = 0;
  /// Returns when the stream may have changed, or the thread is woken, or at the deadline.
  virtual void Wait(TimePoint deadline) = 0;
};

}  // namespace qves
