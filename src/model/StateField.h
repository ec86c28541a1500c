// A named value of a form's engine, for those who look into it from outside.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace qves {

struct StateField {
  std::string_view Name;
  std::variant<bool, double, std::string, std::vector<std::string>, std::vector<double>> Value;
};

using StateFields = std::vector<StateField>;

}  // namespace qves
