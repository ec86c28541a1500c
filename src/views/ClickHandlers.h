// What a click of each control array does, in every view.
#pragma once

#include <string_view>

#include "engine/EntryEngine.h"

namespace qves {

struct ClickRow {
  std::string_view Array;
  void (EntryEngine::*Operation)(const PressedKey&);
  bool TakesFocus;  ///< the focus follows the key to the control; not with unary operators, equals and
                    ///< backspace
};

/// The row of that control or array; null when it has none.
const ClickRow* FindClickRow(std::string_view array);

}  // namespace qves
