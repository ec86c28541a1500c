// The toolkit's own dialog in which the user chooses a file.
#pragma once

#include <functional>
#include <string>

#include "desktop/WidgetWords.h"
#include "model/KeyEvent.h"
#include "platform/FixedSizeFileDialog.h"

class QFileDialog;
class QLineEdit;

namespace qves {

class QtFileDialog : public FixedSizeFileDialog {
 public:
  /// Runs an event loop of its own until the dialog is left. A second dialog is cancelled at once.
  std::string Show(const FileDialogSpec& spec) override;
  bool TakesFocus() const override { return true; }

  bool IsOpen() const { return Dialog != nullptr; }
  /// Closes what is in front: a pop-up or message of the dialog, or the dialog as Escape does. It is left
  /// when the event in hand has ended, and not before what it has opened is closed.
  void CloseFront();

  /// The window above which the dialog stands.
  std::function<QWidget*()> Owner = [] { return nullptr; };
  /// A key while the dialog is open; true: it is used.
  bool KeyDown(const KeyEvent& event);

  struct Voice {
    /// Speaks in place of what is being said.
    std::function<void(const std::string&)> Speak = [](const std::string&) {};
    /// What to speak for what has been typed: of one character its name.
    std::function<std::string(const std::string&)> Character = [](const std::string& text) { return text; };
    MessageText Message = [](int) { return std::string(); };
  };
  Voice Says;

 private:
  void Speak(const QStringList& words) const;
  void SpeakMoves();
  void SpeakTyping(QLineEdit& edit);

  QFileDialog* Dialog = nullptr;
};

}  // namespace qves
