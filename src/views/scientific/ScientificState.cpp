#include "views/scientific/ScientificState.h"

namespace qves {

StateFields Describe(const ScientificState& state) {
  std::vector<std::string> texts;
  std::vector<std::string> ops;
  for (const OuterOperand& outer : state.ParenStack.Copy()) {
    texts.push_back(outer.Text);
    ops.push_back(outer.Op);
  }
  StateFields fields = Describe(static_cast<const EntryState&>(state));
  fields.insert(fields.end(), {{"NotationMode", state.Form == EntryForm::Notation},
                               {"ExponentEntry", state.Form == EntryForm::Exponent},
                               {"ExpMantissa", state.ExpMantissa},
                               {"ExpSign", state.ExpSign},
                               {"ExpDigits", state.ExpDigits},
                               {"NumBase", double{1} * state.NumBase},
                               {"PrevNumBase", double{1} * state.NumBase},  // differs only within a change
                               {"ParenDepth", double{1} * state.ParenDepth},
                               {"ParenEntryStack", texts},
                               {"ParenOpStack", ops},
                               {"ParenJustOpened", state.ParenJustOpened}});
  return fields;
}

}  // namespace qves
