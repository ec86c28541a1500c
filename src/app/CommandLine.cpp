#include "app/CommandLine.h"

#include <filesystem>

#include "app/ViewList.h"

namespace qves {

std::string ViewWords(std::string_view separator, std::string_view lastSeparator) {
  std::string words;
  const auto rows = Views();
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i > 0) words += i + 1 < rows.size() ? separator : lastSeparator;
    words += rows[i].Word;
  }
  return words;
}

std::string SetView(CommonOptions& options, const std::string& value) {
  for (const ViewRow& row : Views())
    if (row.Word == value) {
      options.View = row.Identity.CalcView;
      return "";
    }
  return ViewWords(", ", " or ");
}

std::string SetHome(CommonOptions& options, const std::string& value) {
  options.Home = value;
  std::error_code ignored;
  std::filesystem::create_directories(value, ignored);
  return std::filesystem::is_directory(value, ignored) ? "" : "a folder";
}

}  // namespace qves
