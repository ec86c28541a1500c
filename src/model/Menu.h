// The menu bar of a form, as data.
#pragma once

#include <string>
#include <vector>

namespace qves {

struct MenuItem {
  int Id = 0;           ///< the message that is its caption
  std::string Caption;  ///< with "&" before the mnemonic
};

struct Menu {
  int Id = 0;
  std::string Caption;
  std::vector<MenuItem> Items;
};

}  // namespace qves
