// The hidden host form: keyboard hook, menu hints, speech notifications and the end of the session, forwarded
// to the form that is current. It lives as long as one view.
#pragma once

#include <functional>
#include <string>

#include "model/Form.h"
#include "platform/Notifiers.h"
#include "platform/TTS.h"
#include "services/Services.h"

namespace qves {

class frmCTLApp : private HintListener, private QueryUnloadListener, private TtsListener {
 public:
  struct Callbacks {
    std::function<Form*()> ActiveForm;
    std::function<void()> UnloadView;
  };

  frmCTLApp(Services& services, Callbacks callbacks);
  ~frmCTLApp() override;
  frmCTLApp(const frmCTLApp&) = delete;
  frmCTLApp& operator=(const frmCTLApp&) = delete;

  void SetKeyTarget(Form* view) { KeyTarget = view; }
  void SetBookMarkTarget(Form* form) { BookMarkTarget = form; }
  void SetSpeechStoppedTarget(Form* form) { SpeechStoppedTarget = form; }
  bool IsMenuActive() const { return MenuActive; }

  /// The keyboard hook: sees every key before the view does. True: the key is swallowed.
  bool KeyDown(const KeyEvent& event);
  /// Any key: the release of Ctrl alone stops speech everywhere.
  void NoteKey(const KeyEvent& event) { CtrlAlone = event.Code == KeyControl; }
  void KeyUp(int keyCode);

 private:
  void MenuItemHighlighted(std::string_view text, std::string_view mnemonic, bool hasSubMenu) override;
  void MenusClosed(bool chosen) override;
  void QueryUnload(int reason) override;
  void BookMarkReached(std::int32_t number, TtsSpeaker& speaker) override;
  void SpeechStopped(TtsSpeaker& speaker) override;
  void DescribeMenuItem();
  bool FocusCancelControl();
  bool Describe(const KeyEvent& event) const { return KeyTarget && KeyTarget->DescribeKey(event); }

  Services& Common;
  Callbacks Calls;
  Form* KeyTarget = nullptr;
  Form* BookMarkTarget = nullptr;
  Form* SpeechStoppedTarget = nullptr;
  bool MenuActive = false;
  std::string MenuHintText;
  std::string MenuMnemonic;
  bool MenuHasSubMenu = false;
  bool CtrlAlone = false;
};

}  // namespace qves
