// Numbers out of a text that anybody may have typed.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace qves {

/// Why a text was not read to its end.
struct FreeFormatFault {
  int Line = 1;  ///< counted from 1
  std::string Reason;
  std::string Word = {};  ///< the field that is no number, or its beginning
  bool IsFull = false;    ///< there was no room
};

/// Hands each number of the text to `take`, in order, until the text ends or `take` gives false, which means
/// that it has no room. Fields end at a comma, at blanks (tabs too) or at a line end (LF, CR or both); an
/// empty field, between two commas or before the first of a line, is 0; a text in double quotes is one field.
/// A byte-order mark at the start is skipped. A field that is no number, or one beyond a double, ends the
/// reading with a fault.
std::optional<FreeFormatFault> ReadFreeFormat(std::string_view text, const std::function<bool(double)>& take);

}  // namespace qves
