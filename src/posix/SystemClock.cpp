#include "posix/SystemClock.h"

#include <chrono>
#include <ctime>

namespace qves {
namespace {

std::tm LocalTime() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  ::localtime_r(&now, &local);
  return local;
}

}  // namespace

std::int32_t SystemClock::TickCount() {
  using namespace std::chrono;
  static const auto start = steady_clock::now();
  return static_cast<std::int32_t>(duration_cast<milliseconds>(steady_clock::now() - start).count());
}

Date SystemClock::Today() {
  if (FixedToday) return *FixedToday;
  const std::tm local = LocalTime();
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday};
}

std::string SystemClock::LocalDateTime() {
  const std::tm local = LocalTime();
  char text[32];
  const std::size_t length = std::strftime(text, sizeof text, "%Y-%m-%dT%H:%M:%S", &local);
  return {text, length};
}

}  // namespace qves
