// The views there are: one row each.
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "services/Services.h"
#include "views/ViewFrame.h"

namespace qves {

struct ViewRow {
  ViewIdentity Identity;
  std::string_view Word;   ///< on a command line
  std::string_view About;  ///< the documents of its Help menu
  std::string_view HotKeys;
  std::string_view Inverse;
  std::unique_ptr<Form> (*Make)(Services&, ViewFrame&);
};

/// In the order of the View menu.
std::span<const ViewRow> Views();

}  // namespace qves
