#include "app/frmCTLApp.h"

#include "services/MessageIds.h"
#include "text/Text.h"

namespace qves {
namespace {

constexpr std::string_view Dots = "...";

}  // namespace

frmCTLApp::frmCTLApp(Services& services, Callbacks callbacks)
    : Common(services), Calls(std::move(callbacks)) {
  Common.Outside.Hints.SetListener(this);
  Common.Outside.WindowMessages.SetListener(this);
  Common.Outside.Speech.SetListener(this);
}

frmCTLApp::~frmCTLApp() {
  Common.Outside.Hints.SetListener(nullptr);
  Common.Outside.WindowMessages.SetListener(nullptr);
  Common.Outside.Speech.SetListener(nullptr);
}

bool frmCTLApp::KeyDown(const KeyEvent& event) {
  NoteKey(event);
  if (BelongsToDesktop(event)) return false;
  if (MenuActive) {
    if (event.Code != KeyF1) return false;
    DescribeMenuItem();
    return true;
  }
  if (!IsModifier(event.Code) && Describe(event)) return true;
  bool handled = event.Code == KeyEscape && FocusCancelControl();
  if (KeyTarget) KeyTarget->NotifyKeyDown(handled, event);
  return handled;
}

void frmCTLApp::KeyUp(int keyCode) {
  // Alone it is a key only when it is let go.
  if (keyCode == KeyControl && CtrlAlone && !Describe({KeyControl})) Common.Speech.StopSpeech();
  CtrlAlone = false;
}

bool frmCTLApp::FocusCancelControl() {
  Form* form = Calls.ActiveForm();
  return form && form->FocusCancelControl();
}

void frmCTLApp::MenuItemHighlighted(std::string_view text, std::string_view mnemonic, bool hasSubMenu) {
  MenuActive = true;
  if (Common.Settings.DontSpeak) return;
  const MessageStore& messages = Common.Messages;
  MenuMnemonic = mnemonic;
  MenuHintText = ReplaceAll(text, "Ctrl+", messages.GetMessage(ControlPlusMessage) + " ");
  MenuHintText = ReplaceAll(MenuHintText, "Shift+", messages.GetMessage(ShiftPlusMessage) + " ");
  if (MenuHintText.find(Dots) != std::string::npos) {
    // Only the last three characters go when the dots end the text; else every "..." does.
    MenuHintText =
        MenuHintText.ends_with(Dots) && MenuHintText.find(Dots) == MenuHintText.size() - Dots.size()
            ? MenuHintText.substr(0, MenuHintText.size() - Dots.size())
            : ReplaceAll(MenuHintText, Dots, "");
    MenuHintText += ". " + messages.GetMessage(OpensDialogMessage);
  }
  MenuHasSubMenu = hasSubMenu;
  Common.Speech.SpeakText(hasSubMenu ? MenuHintText + ". " + messages.GetMessage(HasSubMenuMessage)
                                     : MenuHintText);
}

void frmCTLApp::MenusClosed(bool chosen) {
  MenuActive = false;
  Form* form = Calls.ActiveForm();
  if (form && !chosen) form->Returned();
}

void frmCTLApp::DescribeMenuItem() {
  std::string text = MenuHintText + ". ";
  if (!MenuMnemonic.empty())
    text += FillPlaceholders(Common.Messages.GetMessage(MnemonicMessage),
                             {Common.Speech.SpeakableChar(MenuMnemonic)});
  if (MenuHasSubMenu) text += " " + Common.Messages.GetMessage(MoreItemsMessage);
  Common.Speech.SpeakText(text);
}

void frmCTLApp::QueryUnload(int reason) {
  if (reason != SessionEnding) return;
  const auto unload = Calls.UnloadView;  // this form goes with the view
  unload();
}

void frmCTLApp::BookMarkReached(std::int32_t number, TtsSpeaker& speaker) {
  Common.Speech.BookMarkReached(number);
  if (BookMarkTarget) BookMarkTarget->NotifyBookMark(number, speaker);
}

void frmCTLApp::SpeechStopped(TtsSpeaker& speaker) {
  if (SpeechStoppedTarget) SpeechStoppedTarget->NotifySpeechStopped(speaker);
}

}  // namespace qves
