#include "services/History.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdio>
#include <optional>

#include "text/Integers.h"
#include "text/Text.h"
#include "text/Utf8.h"

namespace qves {
namespace {

constexpr std::array Radices = {16, 10, 8, 2};  // by the list index of the base

/// "7 + 5 = 12", a tab, the value with 17 digits, a tab, the base.
std::string WriteLine(const FinishedCalculation& calculation) {
  char numbers[64];
  const int radix = Radices[static_cast<std::size_t>(calculation.NumberBase)];
  std::snprintf(numbers, sizeof numbers, "\t%.17G\t%d\n", calculation.Value, radix);
  return calculation.Line + numbers;
}

bool ReadWhole(std::string_view text, double& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size();
}

std::optional<FinishedCalculation> ReadLine(std::string_view line) {
  const std::size_t first = line.find('\t');
  const std::size_t second = first == line.npos ? line.npos : line.find('\t', first + 1);
  if (second == line.npos || !IsUtf8(line)) return std::nullopt;
  FinishedCalculation calculation{std::string(line.substr(0, first))};
  if (!ReadWhole(line.substr(first + 1, second - first - 1), calculation.Value)) return std::nullopt;
  const auto found = std::ranges::find(Radices, ParseInteger(line.substr(second + 1)).value_or(0));
  if (found == Radices.end()) return std::nullopt;
  calculation.NumberBase = static_cast<int>(found - Radices.begin());
  return calculation;
}

template <class Lines>
void KeepNewest(Lines& lines) {
  while (lines.size() > History::MostLines) lines.pop_front();
}

}  // namespace

void History::Add(FinishedCalculation calculation) {
  Load();
  Calculations.push_back(std::move(calculation));
  KeepNewest(Calculations);
  NewOnes = std::min(NewOnes + 1, MostLines);
  Walking = false;  // the next step leads to the newest again
}

int History::Count() {
  Load();
  return static_cast<int>(Calculations.size());
}

const FinishedCalculation* History::Walk(int step) {
  Load();
  if (Calculations.empty()) return nullptr;
  const std::size_t last = Calculations.size() - 1;
  if (!Walking)
    At = last;
  else if (step < 0 ? At > 0 : At < last)
    At = step < 0 ? At - 1 : At + 1;
  Walking = true;
  return &Calculations[At];
}

const FinishedCalculation* History::Heard() {
  Load();
  if (Calculations.empty()) return nullptr;
  return Walking ? &Calculations[At] : &Calculations.back();
}

void History::Clear() {
  Loaded = true;
  Calculations.clear();
  NewOnes = 0;
  Walking = false;
  std::string error;
  if (Outside.Files.IsFile(Path()) && !Outside.Files.Write(Path(), "", error, FileReaders::OwnerOnly))
    Complain("cannot be emptied: " + error);
}

void History::Load() {
  if (Loaded) return;
  Loaded = true;
  if (Settings.KeepHistory) ReadFile(Calculations);
}

/// False, with a line in the log, where there is a file that cannot be read: it is left as it is.
bool History::ReadFile(Lines& lines) {
  const std::string path = Path();
  if (!Outside.Files.IsFile(path) && !Outside.Files.IsFolder(path)) return true;
  std::string error;
  const auto content = Outside.Files.Read(path, error);
  if (!content) {
    Complain(error + "; the history begins anew and is not kept");
    return false;
  }
  int damaged = 0;
  ForEachLine(*content, [&](int, std::string_view line) {
    if (auto calculation = ReadLine(line))
      lines.push_back(std::move(*calculation));
    else if (!line.empty())
      ++damaged;
  });
  KeepNewest(lines);
  if (damaged == 0) return true;
  const std::string copy = path + ".damaged";
  Complain(std::to_string(damaged) + " lines are no calculations; they are left out, " +
           (Outside.Files.Write(copy, *content, error, FileReaders::OwnerOnly) ? "the file is kept as " + copy
                                                                               : "a copy failed: " + error));
  return true;
}

/// Another copy of the program may have written meanwhile: its lines stay.
void History::Save() {
  if (NewOnes == 0 || !Settings.KeepHistory) return;
  Lines lines;
  if (!ReadFile(lines)) return;
  lines.insert(lines.end(), Calculations.end() - static_cast<std::ptrdiff_t>(NewOnes), Calculations.end());
  KeepNewest(lines);
  std::string content;
  for (const FinishedCalculation& one : lines) content += WriteLine(one);
  std::string error;
  if (Outside.Files.Write(Path(), content, error, FileReaders::OwnerOnly))
    NewOnes = 0;
  else
    Complain("cannot be written (" + error + "); this session's calculations are not kept");
}

std::string History::Path() const {
  return Outside.Directories.StateFolder() + "/QVES/History.txt";
}

void History::Complain(const std::string& what) {
  Log.WriteErrorLog(HistoryErrorCode, Path() + ": " + what);
}

}  // namespace qves
