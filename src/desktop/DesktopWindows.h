// The desktop's windows, lock keys and running copies.
#pragma once

#include <functional>
#include <set>

#include "desktop/InstanceLock.h"
#include "desktop/X11Desktop.h"

namespace qves {

class DesktopWindows : public X11Desktop {
 public:
  /// `home`: copies that share it are copies of one program.
  explicit DesktopWindows(const std::string& home) : Instance(home) {}

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
  InstanceLock Instance;
  std::string Title;
  std::set<int> Toggled;  ///< lock keys pressed an odd number of times
};

}  // namespace qves
