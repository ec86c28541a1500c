// The columns of numbers in a file that a spreadsheet or a measuring program has written.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace qves {

struct TableColumn {
  std::string Name;  ///< as the header has it; may be empty
  std::vector<double> Values;
  int LinesLeftOut = 0;  ///< lines without a number here, the header and empty lines at both ends not counted
  int Number = 1;        ///< of all columns of the table, counted from 1
};

/// The columns of a file's bytes that hold a number, in their order; at most the first 1,000 of a line.
/// Encoding, separator (tab, semicolon, comma, blanks or none), header and decimal mark are found from the
/// text; `decimalComma`: how "1,234" is meant, and "1,5" on a line by itself, where the text does not tell.
std::vector<TableColumn> ReadTable(std::string_view bytes, bool decimalComma);

}  // namespace qves
