// The cells of a table in a text, and the numbers in them.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qves {

/// What CellReader takes apart at blanks.
inline constexpr std::string_view Blanks = " \t";

struct Cell {
  std::string_view Text;  ///< without quotes and blanks around it
  bool EndsRow = false;
};

/// Takes a text apart at line ends (LF, CR or both) and at any of the separators. Where a blank is one of
/// them, many blanks are one separator and those around a line none. A cell in double quotes may hold
/// separators and line ends, and two quotes for one; a quote that is not closed before a separator is an
/// ordinary character.
class CellReader {
 public:
  CellReader(std::string_view text, std::string_view separators);

  /// The next cell, valid until the one after it is asked for; nothing at the end of the text.
  std::optional<Cell> Next();

 private:
  void SkipBlanks();
  std::size_t QuotedLength() const;
  std::string_view TakeQuoted(std::size_t length);
  std::string_view TakePlain();
  bool TakeSeparator();
  void TakeLineEnd();

  std::string_view Rest;
  std::string CellEnds;
  bool AtBlanks;           ///< separators are blanks
  bool MoreInRow = false;  ///< a separator has promised a cell
  std::string Unquoted;
};

/// Whether the numbers of a text have a decimal comma: its first cell that can be read in one way only
/// decides; without one, `usual`, but the comma separates no cells and decimals at once.
bool HasDecimalComma(std::string_view text, std::string_view separators, bool usual);

/// The numbers of a UTF-8 text of cells between line ends, tabs and semicolons; what is no number is left
/// out. `decimalComma`: how "1,234" is meant where the other cells do not tell.
std::vector<double> ReadForeignNumbers(std::string_view text, bool decimalComma);

}  // namespace qves
