// The desktop's windows, lock keys and running copies.
#pragma once

#include <functional>
#include <memory>
#include <set>

#include "desktop/InstanceLock.h"
#include "desktop/X11Desktop.h"
#include "platform/WindowSystem.h"

namespace qves {

class DesktopWindows : public WindowSystem {
 public:
  /// `instanceFolder`: copies that share it are copies of one program. `onX11`: the desktop is an X server's.
  DesktopWindows(std::string instanceFolder, bool onX11)
      : Instance(std::move(instanceFolder)), OnX11(onX11) {}

  std::vector<TopLevelWindow> TopLevelWindows() override;
  void SendKeyDown(std::uint64_t window, int keyCode) override;
  bool RestoreAndActivate(std::uint64_t window) override;
  bool LockKeyIsOn(int keyCode) override;
  bool AnotherInstanceRuns() override { return !Instance.Acquire(); }
  void SetApplicationTitle(std::string_view title) override { Title = title; }
  /// There is one application of that title: the first copy, which is asked to show itself.
  void ActivateApplication(std::string_view title) override;

  /// Calls `raise` when a later copy asks this one to show itself, with an activation token or "".
  void ListenForCopies(std::function<void(const std::string& token)> raise) {
    Instance.Listen(std::move(raise));
  }
  /// To be told of every press of a key that is not a repetition.
  void NoteKeyPress(int keyCode);

 private:
  X11Desktop* X11();

  InstanceLock Instance;
  bool OnX11;
  bool Connected = false;
  std::unique_ptr<X11Desktop> Server;
  std::string Title;
  std::set<int> Toggled;  ///< lock keys pressed an odd number of times
};

}  // namespace qves
