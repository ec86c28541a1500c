// The dialog that asks which column of a table is meant.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "dialogs/DialogFrame.h"
#include "model/Form.h"
#include "services/Services.h"

namespace qves {

class ColumnDialog : public Form {
 public:
  /// `choose` is called with the index of the chosen name, when OK has closed the dialog.
  ColumnDialog(std::vector<std::string> names, std::function<void(std::size_t)> choose, Services& services,
               DialogFrame& frame);

  void Form_Load() override;
  void Form_Unload() override;

 private:
  void OnClick(Control& control) override;
  void OnChoose(ListControl& list) override;
  void OnListEnd(ListControl&, int step) override;
  void OnGotFocus(Control& control) override;
  KeyUse OnControlKey(Control& control, const KeyEvent& event) override;

  std::string ChosenWords() const;
  /// What the control says when the user comes to it.
  std::string WordsOf(const Control& control) const;

  Services& Common;
  DialogFrame& Frame;
  std::function<void(std::size_t)> Choose;
  SharedList<std::string> Names;
  ListView* Columns = nullptr;
};

}  // namespace qves
