#include "views/LockKeys.h"

#include "model/KeyEvent.h"

namespace qves {
namespace {

struct LockRow {
  int Code;
  int OnMessage;
  int OffMessage;
};

constexpr LockRow LockTable[] = {{KeyNumLock, 61, 62}, {KeyCapsLock, 63, 64}, {KeyScrollLock, 65, 66}};

}  // namespace

void AnnounceLockKey(Services& services, int keyCode) {
  for (const LockRow& row : LockTable) {
    if (row.Code != keyCode) continue;
    const bool on = services.Outside.Windows.LockKeyIsOn(keyCode);
    services.Speech.SpeakText(services.Messages.GetMessage(on ? row.OnMessage : row.OffMessage));
  }
}

}  // namespace qves
