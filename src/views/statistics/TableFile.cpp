#include "views/statistics/TableFile.h"

#include <algorithm>

#include "formulas/ForeignNumber.h"
#include "services/TextEncoding.h"
#include "views/statistics/Cells.h"

namespace qves {
namespace {

constexpr std::size_t MostColumns = 1000;
constexpr std::size_t SampleSize = 20'000;

bool IsNumber(std::string_view text) {
  return ReadForeignNumber(text, {}).has_value();
}

/// The lines at the start of a text from which its separator is found.
std::string_view SampleOf(std::string_view text) {
  if (text.size() <= SampleSize) return text;
  text = text.substr(0, SampleSize);
  return text.substr(0, text.find_last_of("\r\n"));
}

/// What a separator makes of a text.
struct Shape {
  int Rows = 0;    ///< that are not empty
  int Parted = 0;  ///< of them, those of more than one cell
  int Widest = 1;  ///< cells
  int Numbers = 0;

  double Share() const { return Rows == 0 ? 0 : static_cast<double>(Numbers) / Rows / Widest; }
};

void AddRow(Shape& shape, int cells) {
  ++shape.Rows;
  if (cells > 1) ++shape.Parted;
  shape.Widest = std::max(shape.Widest, cells);
}

template <class IsANumber>
Shape ShapeOf(std::string_view text, std::string_view separators, const IsANumber& isNumber) {
  Shape shape;
  CellReader reader(text, separators);
  int cells = 0;
  bool filled = false;
  while (const auto cell = reader.Next()) {
    ++cells;
    filled = filled || !cell->Text.empty();
    if (isNumber(cell->Text)) ++shape.Numbers;
    if (!cell->EndsRow) continue;
    if (filled) AddRow(shape, cells);
    cells = 0;
    filled = false;
  }
  return shape;
}

std::string_view FirstLine(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of("\r\n"), text.size()));
  return text.substr(0, text.find_first_of("\r\n"));
}

/// Of two whole numbers or of one with a decimal comma: "1,5".
bool MayBeAPair(std::string_view line) {
  return ShownDecimalMark(line) == ',' && line.find_first_not_of("0123456789,+-") == std::string_view::npos;
}

/// The lines that are one number each. A comma in the header parts them; without a header "1,5" is one number
/// where a decimal comma is usual.
Shape UnpartedShape(std::string_view text, bool decimalComma) {
  const std::string_view first = FirstLine(text);
  const bool header = !IsNumber(first);
  const bool parted = header && first.find(',') != std::string_view::npos;
  const bool pairs = !header && !decimalComma;
  return ShapeOf(text, "", [&](std::string_view line) {
    const bool comma = line.find(',') != std::string_view::npos;
    return IsNumber(line) && !(comma && (parted || (pairs && MayBeAPair(line))));
  });
}

/// Tabs and semicolons are in no number: where most lines have one it separates. Commas and blanks may be,
/// and what leaves the most numbers decides, first of all no separator.
std::string_view FindSeparators(std::string_view text, bool decimalComma) {
  for (const std::string_view sure : {"\t", ";"})
    if (const Shape shape = ShapeOf(text, sure, IsNumber); 2 * shape.Parted > shape.Rows) return sure;
  std::string_view best;
  double most = UnpartedShape(text, decimalComma).Share();
  for (const std::string_view each : {std::string_view(","), Blanks})
    if (const double share = ShapeOf(text, each, IsNumber).Share(); share > most) {
      best = each;
      most = share;
    }
  return best;
}

class TableBuilder {
 public:
  explicit TableBuilder(bool decimalComma) : Style{.DecimalComma = decimalComma} {}

  void Add(const Cell& cell) {
    if (!cell.Text.empty()) ++Filled;
    if (Index < MostColumns) AddTo(Index, cell.Text);
    ++Index;
    if (cell.EndsRow) EndRow();
  }

  std::vector<TableColumn> Finish() {
    for (std::size_t i = 0; i < Columns.size(); ++i) Complete(Columns[i], i);
    std::erase_if(Columns, [](const TableColumn& column) { return column.Values.empty(); });
    return std::move(Columns);
  }

 private:
  void AddTo(std::size_t index, std::string_view text) {
    if (!NumberSeen) Row.emplace_back(text);
    const auto value = ReadForeignNumber(text, Style);
    if (!value) return;
    NumberSeen = true;
    if (Columns.size() <= index) Columns.resize(index + 1);
    Columns[index].Values.push_back(*value);
  }

  /// The header is the fullest row above the first number, of equal ones the first: titles have fewer cells.
  void EndRow() {
    if (!NumberSeen && Filled > HeaderFilled) {
      HeaderFilled = Filled;
      Header = Row;
    }
    if (Lines > 0 || Filled > 0) ++Lines;
    if (Filled > 0) LastLine = Lines;
    Row.clear();
    Index = 0;
    Filled = 0;
  }

  void Complete(TableColumn& column, std::size_t index) const {
    column.Number = static_cast<int>(index) + 1;
    if (index < Header.size()) column.Name = Header[index];
    std::replace_if(
        column.Name.begin(), column.Name.end(), [](char c) { return c >= 0 && c < ' '; }, ' ');
    column.LinesLeftOut = LastLine - (HeaderFilled > 0 ? 1 : 0) - static_cast<int>(column.Values.size());
  }

  ForeignStyle Style;
  std::vector<TableColumn> Columns;
  std::vector<std::string> Header;
  std::vector<std::string> Row;  ///< kept until the first number
  int HeaderFilled = 0;          ///< its cells with a text
  int Filled = 0;
  std::size_t Index = 0;
  int Lines = 0;     ///< from the first that is not empty
  int LastLine = 0;  ///< that is not empty
  bool NumberSeen = false;
};

}  // namespace

std::vector<TableColumn> ReadTable(std::string_view bytes, bool decimalComma) {
  const std::string text = ToUtf8(bytes);
  const std::string_view separators = FindSeparators(SampleOf(text), decimalComma);
  TableBuilder table(HasDecimalComma(text, separators, decimalComma));
  CellReader cells(text, separators);
  while (const auto cell = cells.Next()) table.Add(*cell);
  return table.Finish();
}

}  // namespace qves
