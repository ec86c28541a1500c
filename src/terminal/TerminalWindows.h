// The window system of a program without windows: no other programs' windows, lock keys that toggle with each
// press.
#pragma once

#include <set>

#include "platform/WindowSystem.h"

namespace qves {

class TerminalWindows : public WindowSystem {
 public:
  std::vector<TopLevelWindow> TopLevelWindows() override { return {}; }
  void SendKeyDown(std::uint64_t, int) override {}
  bool RestoreAndActivate(std::uint64_t) override { return false; }
  bool LockKeyIsOn(int keyCode) override { return LocksOn.contains(keyCode); }
  bool AnotherInstanceRuns() override { return false; }
  void SetApplicationTitle(std::string_view) override {}
  void ActivateApplication(std::string_view) override {}

  /// A press of a lock key.
  void Toggle(int keyCode) {
    if (!LocksOn.insert(keyCode).second) LocksOn.erase(keyCode);
  }

 private:
  std::set<int> LocksOn;
};

}  // namespace qves
