#include "views/statistics/FreeFormat.h"

#include <algorithm>
#include <utility>

#include "formulas/Numbers.h"
#include "model/ArithmeticFault.h"
#include "text/Text.h"

namespace qves {
namespace {

constexpr std::string_view LineEnds = "\r\n";
constexpr std::string_view Gaps = " \t\r\n";
constexpr std::string_view FieldEnds = " \t\r\n,";
constexpr std::size_t LongestQuoted = 40;

class FreeFormatReader {
 public:
  explicit FreeFormatReader(std::string_view text) : Rest(WithoutByteOrderMark(text)) {}

  /// The next field, "" for an empty one before a comma; nothing at the end.
  std::optional<std::string_view> NextField() {
    for (SkipGap(); Rest.starts_with(','); SkipGap()) {
      Take(1);
      if (!std::exchange(AfterField, false)) return "";
    }
    if (Rest.empty()) return std::nullopt;
    AfterField = true;
    return Rest.front() == '"' ? TakeQuoted() : Take(Rest.find_first_of(FieldEnds));
  }

  int Line = 1;
  bool Broken = false;  ///< the field at hand is no number whatever its text

 private:
  std::string_view Take(std::size_t length) {
    const std::string_view taken = Rest.substr(0, length);
    Rest.remove_prefix(taken.size());
    return taken;
  }

  void SkipGap() {
    const std::string_view gap = Take(std::min(Rest.find_first_not_of(Gaps), Rest.size()));
    for (std::size_t i = 0; i < gap.size(); ++i)
      if (LineEnds.find(gap[i]) != std::string_view::npos && !gap.substr(i).starts_with(LineEnds)) {
        ++Line;
        AfterField = false;
      }
  }

  /// What stands between the quotes: nothing, a quote that is never closed, or one that something follows
  /// breaks the field.
  std::string_view TakeQuoted() {
    Take(1);
    const std::string_view field = Take(Rest.find('"'));
    Broken = field.empty() || Rest.empty();
    Take(1);
    Broken = Broken || (!Rest.empty() && FieldEnds.find(Rest.front()) == std::string_view::npos);
    return field;
  }

  std::string_view Rest;
  bool AfterField = false;  ///< a comma would only end the field before it
};

/// The value of a field; nothing when it has none.
std::optional<double> ValueOf(std::string_view field) {
  if (field.empty()) return 0;
  try {
    return ParseNumber(field);
  } catch (const ArithmeticFault&) {
    return std::nullopt;  // it is beyond a double
  }
}

FreeFormatFault NoNumber(int line, std::string_view field) {
  const std::string word(field.substr(0, LongestQuoted));
  return {line, "\"" + word + "\" is no number that can be kept", word};
}

}  // namespace

std::optional<FreeFormatFault> ReadFreeFormat(std::string_view text,
                                              const std::function<bool(double)>& take) {
  FreeFormatReader reader(text);
  while (const auto field = reader.NextField()) {
    const auto value = reader.Broken ? std::nullopt : ValueOf(*field);
    if (!value) return NoNumber(reader.Line, *field);
    if (!take(*value)) return FreeFormatFault{reader.Line, "there is no room for more numbers", "", true};
  }
  return std::nullopt;
}

}  // namespace qves
