// A dialog that shows a document and reads it aloud: a reader and an OK button.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "dialogs/DialogFrame.h"
#include "dialogs/Sentences.h"
#include "model/Form.h"
#include "services/Services.h"

namespace qves {

/// What tells one of these dialogs from another.
struct ReadingDialogSpec {
  std::string_view FormName;
  std::string_view ReaderName;
  int TitleMessage = 0;
  int HelpMessage = 0;
  bool IsReport = false;  ///< figures, which the reader's help introduces; else a text about the calculator
};

class ReadingDialog : public Form {
 public:
  ReadingDialog(const ReadingDialogSpec& spec, RichText document, Services& services, DialogFrame& frame);

  void Form_Load() override;
  void Form_Unload() override;
  bool StopReading() override;
  void NotifyBookMark(int bookMark, TtsSpeaker& speaker) override;
  void NotifySpeechStopped(TtsSpeaker& speaker) override;

 private:
  void OnClick(Control& control) override;
  void OnGotFocus(Control& control) override;
  KeyUse OnControlKey(Control& control, const KeyEvent& event) override;

  /// What the numbers of the document are.
  ValueKind Numbers() const { return IsReport ? ValueKind::Number : ValueKind::Prose; }
  bool ReaderKey(const KeyEvent& event);
  /// After what is being spoken, or at once.
  void ReadOn(bool queued);
  void ShowSentence();
  bool MoveCaret(const KeyEvent& event);

  const bool IsReport;
  const ControlSpec ReaderSpec;
  const ControlSpec OkSpec;
  Services& Common;
  DialogFrame& Frame;
  Reader* Document = nullptr;
  std::vector<TextSpan> Sentences;
  std::size_t Sentence = 0;  ///< the one that is being read, or was when the reading stopped
  bool Reading = false;
  bool HeardAll = false;  ///< the reading has come to the end of the text
};

}  // namespace qves
