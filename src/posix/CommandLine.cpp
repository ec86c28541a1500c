#include "posix/CommandLine.h"

#include <filesystem>
#include <utility>

#include "services/AppSettings.h"

namespace qves {
namespace {

constexpr std::pair<std::string_view, int> ViewNames[] = {{"standard", StandardView},
                                                          {"scientific", ScientificView},
                                                          {"business", BusinessView},
                                                          {"statistics", StatisticsView}};

}  // namespace

bool SetView(CommonOptions& options, const std::string& value) {
  for (const auto& [name, view] : ViewNames)
    if (name == value) {
      options.View = view;
      return true;
    }
  return false;
}

bool SetHome(CommonOptions& options, const std::string& value) {
  options.Home = value;
  std::error_code ignored;
  std::filesystem::create_directories(value, ignored);
  return std::filesystem::is_directory(value, ignored);
}

}  // namespace qves
