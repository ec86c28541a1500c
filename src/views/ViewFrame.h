// What a view asks of the application around it.
#pragma once

#include <any>
#include <functional>
#include <string>
#include <vector>

namespace qves {

class Form;

/// What tells a view from the others.
struct ViewIdentity {
  int CalcView = 0;     ///< its number in the settings
  int NameMessage = 0;  ///< its name, and its item in the View menu
};

class ViewFrame {
 public:
  virtual ~ViewFrame() = default;
  /// Of the view that is current.
  virtual ViewIdentity Identity() const = 0;
  /// What the current view left behind in its life before; empty in its first one. It is the view's own.
  virtual std::any& LeftBehind() = 0;
  /// The items of the View menu.
  virtual std::vector<int> ViewItems() const = 0;
  /// Unloads the current view and shows the one of that View-menu item; says its name when it is current.
  virtual void ChooseView(int menuItem) = 0;
  /// Unloads the current view; the program ends.
  virtual void Exit() = 0;
  /// Creates the hidden host form if need be and makes `keyTarget` the receiver of keys.
  virtual void LoadHostForm(Form& keyTarget) = 0;
  /// The view is leaving: no more keys for it.
  virtual void LeaveKeys() = 0;
  virtual void UnloadHostForm() = 0;
  virtual bool IsSwitching() const = 0;
  /// Whether the view has the keyboard: no dialog is open above it.
  virtual bool IsActive(const Form& view) const = 0;
  /// Stops what the form that has the keyboard reads aloud.
  virtual void StopReading() = 0;
  /// Opens the dialog of that Help-menu item; false when it is no such item.
  virtual bool OpenHelp(int menuItem) = 0;
  /// Opens the dialog that reads the report of the statistics.
  virtual void OpenResult() = 0;
  /// Opens the dialog that asks for one of these columns of a table; `choose` is called with its index when
  /// the user has chosen one.
  virtual void OpenColumns(std::vector<std::string> names, std::function<void(std::size_t)> choose) = 0;
  /// The view has finished its load.
  virtual void ViewLoaded() = 0;
  /// True once: the first view after start-up speaks the welcome.
  virtual bool TakeWelcome() = 0;
};

}  // namespace qves
