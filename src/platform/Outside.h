// The small outside things: folders, registry, clock, random numbers and event queue.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace qves {

/// Where the desktop keeps things. Paths have no slash at their end.
class DirectoryManager {
 public:
  virtual ~DirectoryManager() = default;
  virtual std::string UserName() = 0;
  virtual std::string ProgramFolder() = 0;    ///< of the program, or of its installed data
  virtual std::string ConfigFolder() = 0;     ///< the user's settings, of all programs
  virtual std::string StateFolder() = 0;      ///< what programs remember of a user's work
  virtual std::string DocumentsFolder() = 0;  ///< the user's documents
};

/// The registry: text values under keys written with "\" between their parts. "" is a key's default value.
class Registry {
 public:
  virtual ~Registry() = default;
  virtual std::optional<std::string> Read(std::string_view key, std::string_view value) = 0;
  /// False on failure, with the reason in `error`.
  virtual bool Write(std::string_view key, std::string_view value, std::string_view text,
                     std::string& error) = 0;
};

/// How the desktop's language writes things.
class Locale {
 public:
  virtual ~Locale() = default;
  /// Whether numbers are written with a decimal comma.
  virtual bool WritesDecimalComma() = 0;
};

struct Date {
  int Year = 1;
  int Month = 1;
  int Day = 1;
};

class Clock {
 public:
  virtual ~Clock() = default;
  /// Milliseconds since some start, signed 32-bit, as the waits compare it.
  virtual std::int32_t TickCount() = 0;
  virtual Date Today() = 0;
  /// The local date and time in ISO 8601.
  virtual std::string LocalDateTime() = 0;
};

class RandomSource {
 public:
  virtual ~RandomSource() = default;
  /// The next random number, in [0, 1).
  virtual double Next() = 0;
};

/// The queue of the calculator's one thread.
class EventPump {
 public:
  virtual ~EventPump() = default;
  /// Queues an event; may be called from any thread.
  virtual void Post(std::function<void()> event) = 0;
  /// Runs what is pending, waiting for more no longer than given.
  virtual void ProcessEvents(int waitMilliseconds) = 0;
};

}  // namespace qves
