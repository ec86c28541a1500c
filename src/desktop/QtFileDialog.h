// The toolkit's own dialog in which the user chooses a file.
#pragma once

#include <functional>
#include <string>

#include "platform/FixedSizeFileDialog.h"

class QFileDialog;
class QWidget;

namespace qves {

class QtFileDialog : public FixedSizeFileDialog {
 public:
  /// Runs an event loop of its own until the dialog is left. A second dialog is cancelled at once.
  std::string Show(const FileDialogSpec& spec) override;

  bool IsOpen() const { return Dialog != nullptr; }
  /// Closes what is in front: a pop-up or message of the dialog, or the dialog as Escape does. It is left
  /// when the event in hand has ended, and not before what it has opened is closed.
  void CloseFront();

  /// The window above which the dialog stands.
  std::function<QWidget*()> Owner = [] { return nullptr; };
  /// Speaks what the user has come to in the dialog, in place of what is being said.
  std::function<void(const std::string&)> Speak = [](const std::string&) {};

 private:
  void SpeakMoves();

  QFileDialog* Dialog = nullptr;
};

}  // namespace qves
