// What a dialog asks of the application around it.
#pragma once

namespace qves {

class Form;

class DialogFrame {
 public:
  virtual ~DialogFrame() = default;
  /// The dialog is left: it is unloaded, and the form below it has the keyboard again.
  virtual void CloseDialog(Form& dialog) = 0;
  /// The form that is told of bookmarks and of the end of speech; null: none.
  virtual void SetReadingTarget(Form* form) = 0;
};

}  // namespace qves
