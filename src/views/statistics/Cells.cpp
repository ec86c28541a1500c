#include "views/statistics/Cells.h"

#include <algorithm>

#include "formulas/ForeignNumber.h"
#include "text/Text.h"

namespace qves {
namespace {

constexpr std::string_view LineEnds = "\r\n";

bool Holds(std::string_view characters, char c) {
  return characters.find(c) != std::string_view::npos;
}

}  // namespace

CellReader::CellReader(std::string_view text, std::string_view separators)
    : Rest(text), CellEnds(separators), AtBlanks(Holds(separators, ' ')) {
  CellEnds += LineEnds;
}

std::optional<Cell> CellReader::Next() {
  if (Rest.empty() && !MoreInRow) return std::nullopt;
  SkipBlanks();
  const std::size_t quoted = QuotedLength();
  const std::string_view text = quoted > 0 ? TakeQuoted(quoted) : TakePlain();
  SkipBlanks();
  MoreInRow = TakeSeparator();
  if (!MoreInRow) TakeLineEnd();
  return Cell{text, !MoreInRow};
}

void CellReader::SkipBlanks() {
  const std::string_view skipped = AtBlanks ? Blanks : " ";
  Rest.remove_prefix(std::min(Rest.find_first_not_of(skipped), Rest.size()));
}

/// How long the cell is with its quotes; 0 when it is no quoted one.
std::size_t CellReader::QuotedLength() const {
  if (!Rest.starts_with('"')) return 0;
  std::size_t end = Rest.find('"', 1);
  while (end != std::string_view::npos && Rest.substr(end + 1).starts_with('"'))
    end = Rest.find('"', end + 2);
  if (end == std::string_view::npos) return 0;
  const std::size_t next = AtBlanks ? end + 1 : std::min(Rest.find_first_not_of(' ', end + 1), Rest.size());
  return next == Rest.size() || Holds(CellEnds, Rest[next]) ? end + 1 : 0;
}

std::string_view CellReader::TakeQuoted(std::size_t length) {
  const std::string_view text = Rest.substr(1, length - 2);
  Rest.remove_prefix(length);
  if (!Holds(text, '"')) return text;
  Unquoted = ReplaceAll(text, "\"\"", "\"");
  return Unquoted;
}

std::string_view CellReader::TakePlain() {
  const std::string_view text = Rest.substr(0, Rest.find_first_of(CellEnds));
  Rest.remove_prefix(text.size());
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

bool CellReader::TakeSeparator() {
  if (Rest.empty() || Holds(LineEnds, Rest.front())) return false;
  if (!AtBlanks) Rest.remove_prefix(1);
  return true;
}

void CellReader::TakeLineEnd() {
  Rest.remove_prefix(Rest.starts_with(LineEnds) ? LineEnds.size() : std::min<std::size_t>(1, Rest.size()));
}

bool HasDecimalComma(std::string_view text, std::string_view separators, bool usual) {
  if (!Holds(text, '.') && !Holds(text, ',')) return usual;
  bool commas = !Holds(separators, ',');
  CellReader cells(text, separators);
  while (const auto cell = cells.Next()) {
    if (const char mark = ShownDecimalMark(cell->Text); mark != 0) return mark == ',';
    commas = commas || Holds(cell->Text, ',');
  }
  return usual && commas;
}

std::vector<double> ReadForeignNumbers(std::string_view text, bool decimalComma) {
  constexpr std::string_view separators = "\t;";
  const ForeignStyle style{.DecimalComma = HasDecimalComma(text, separators, decimalComma)};
  std::vector<double> numbers;
  CellReader cells(text, separators);
  while (const auto cell = cells.Next())
    if (const auto number = ReadForeignNumber(cell->Text, style)) numbers.push_back(*number);
  return numbers;
}

}  // namespace qves
