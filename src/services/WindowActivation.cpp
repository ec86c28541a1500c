#include "services/WindowActivation.h"

#include "model/KeyEvent.h"
#include "text/Text.h"

namespace qves {

bool ActivateWindowByTitle(WindowSystem& windows, std::string_view fragment) {
  for (const TopLevelWindow& window : windows.TopLevelWindows()) {
    if (window.Title.empty() || !ContainsIgnoringCase(window.Title, fragment)) continue;
    // The calendar wants its F3 first. The calculator's own fragment never asks for it; the routine is for
    // any fragment, and so this stays.
    if (ContainsIgnoringCase(fragment, "Appointment Calendar") && window.Visible)
      windows.SendKeyDown(window.Id, KeyF3);
    windows.RestoreAndActivate(window.Id);
    return true;
  }
  return false;
}

}  // namespace qves
