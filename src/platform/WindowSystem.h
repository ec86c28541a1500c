// Windows of this and other programs, lock keys, and the test for another running copy.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace qves {

struct TopLevelWindow {
  std::uint64_t Id = 0;
  std::string Title;
  bool Visible = false;
};

class WindowSystem {
 public:
  virtual ~WindowSystem() = default;
  /// The top-level windows of all programs, front to back; none where the desktop does not tell.
  virtual std::vector<TopLevelWindow> TopLevelWindows() = 0;
  /// Sends a key-down message for the key code to the window.
  virtual void SendKeyDown(std::uint64_t window, int keyCode) = 0;
  /// Restores the window and brings it to the front; false when that cannot be done.
  virtual bool RestoreAndActivate(std::uint64_t window) = 0;

  /// The toggle state of NumLock, Caps Lock or Scroll Lock.
  virtual bool LockKeyIsOn(int keyCode) = 0;

  /// True when another copy of this program was running first.
  virtual bool AnotherInstanceRuns() = 0;
  virtual void SetApplicationTitle(std::string_view title) = 0;
  /// Activates the running application of that title, if it can.
  virtual void ActivateApplication(std::string_view title) = 0;
};

}  // namespace qves
