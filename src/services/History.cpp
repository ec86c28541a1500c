#include "services/History.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <utility>

#include "text/Integers.h"
#include "text/Text.h"
#include "text/Utf8.h"

namespace qves {
namespace {

constexpr std::array Radices = {16, 10, 8, 2};  // by the list index of the base

/// A double is read back as it was.
constexpr int AllDigits = 17;

/// "7 + 5 = 12", a tab, the value with all its digits, a tab, the base.
void WriteLine(const FinishedCalculation& calculation, std::string& content) {
  std::array<char, 32> value;
  const auto end = std::to_chars(value.data(), value.data() + value.size(), calculation.Value,
                                 std::chars_format::general, AllDigits);
  const int radix = Radices[static_cast<std::size_t>(calculation.Base)];
  content.append(calculation.Line).append("\t").append(value.data(), end.ptr);
  content.append("\t").append(std::to_string(radix)).append("\n");
}

bool ReadWhole(std::string_view text, double& number) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() && std::isfinite(number);
}

/// Whether a line is one that a calculation has.
bool IsReadable(std::string_view text) {
  constexpr std::size_t longest = 1000;
  const auto isControl = [](char c) { return (c >= '\0' && c < ' ') || c == '\x7F'; };
  return !text.empty() && text.size() <= longest && IsUtf8(text) && std::ranges::none_of(text, isControl);
}

std::optional<FinishedCalculation> ReadLine(std::string_view line) {
  const std::size_t first = line.find('\t');
  const std::size_t second = first == line.npos ? line.npos : line.find('\t', first + 1);
  if (second == line.npos || !IsReadable(line.substr(0, first))) return std::nullopt;
  FinishedCalculation calculation{std::string(line.substr(0, first))};
  if (!ReadWhole(line.substr(first + 1, second - first - 1), calculation.Value)) return std::nullopt;
  const auto found = std::ranges::find(Radices, ParseInteger(line.substr(second + 1)).value_or(0));
  if (found == Radices.end()) return std::nullopt;
  calculation.Base = static_cast<int>(found - Radices.begin());
  return calculation;
}

/// The newest are kept.
void Append(std::deque<FinishedCalculation>& lines, FinishedCalculation calculation) {
  lines.push_back(std::move(calculation));
  if (lines.size() > History::MostLines) lines.pop_front();
}

}  // namespace

void History::Add(FinishedCalculation calculation) {
  Load();
  Append(Calculations, std::move(calculation));
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
  if (!Settings.KeepHistory) return;
  if (auto kept = ReadFile()) Calculations = std::move(kept->Lines);
}

/// Nothing, with a line in the log, where there is a file that cannot be read.
std::optional<History::Kept> History::ReadFile() {
  const std::string path = Path();
  if (!Outside.Files.IsFile(path) && !Outside.Files.IsFolder(path)) return Kept();
  std::string error;
  auto content = Outside.Files.Read(path, error);
  if (!content) {
    Complain(error + "; it is left alone, and no calculations are kept");
    return std::nullopt;
  }
  Kept kept;
  int damaged = 0;
  ForEachLine(*content, [&](int, std::string_view line) {
    if (auto calculation = ReadLine(line))
      Append(kept.Lines, std::move(*calculation));
    else if (!line.empty())
      ++damaged;
  });
  if (damaged == 0) return kept;
  Complain(std::to_string(damaged) + (damaged == 1 ? " line is" : " lines are") +
           " no calculation; the rest is used");
  kept.Damaged = std::move(*content);
  return kept;
}

/// Another copy of the program may have written meanwhile: its lines stay.
void History::Save() {
  if (NewOnes == 0 || !Settings.KeepHistory) return;
  const auto lock = Outside.Files.Lock(Folder());
  auto kept = ReadFile();
  if (!kept || !SaveDamaged(kept->Damaged)) return;
  for (auto one = Calculations.end() - static_cast<std::ptrdiff_t>(NewOnes); one != Calculations.end(); ++one)
    Append(kept->Lines, *one);
  std::string content;
  for (const FinishedCalculation& one : kept->Lines) WriteLine(one, content);
  std::string error;
  if (Outside.Files.Write(Path(), content, error, FileReaders::OwnerOnly))
    NewOnes = 0;
  else
    Complain("cannot be written (" + error + "); this session's calculations are not kept");
}

/// Puts a damaged file aside, before it is written anew.
bool History::SaveDamaged(const std::string& content) {
  if (content.empty()) return true;
  const std::string copy = Path() + ".damaged";
  std::string error;
  const bool isSaved = Outside.Files.Write(copy, content, error, FileReaders::OwnerOnly);
  Complain(isSaved ? "what it was is kept as " + copy
                   : "cannot be copied (" + error + "); it is left alone, and no calculations are kept");
  return isSaved;
}

std::string History::Folder() const {
  return Outside.Directories.StateFolder() + "/QVES";
}

std::string History::Path() const {
  return Folder() + "/History.txt";
}

/// Once, also when it is found at the end again.
void History::Complain(const std::string& what) {
  if (std::exchange(LastComplaint, what) == what) return;
  Log.WriteErrorLog(HistoryErrorCode, Path() + ": " + what);
}

}  // namespace qves
