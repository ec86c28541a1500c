// The controls that bring outside events to the hidden host form: the menu hints and the window messages. A
// shell raises them through the listener; without one they are dropped.
#pragma once

#include <string_view>

namespace qves {

template <class Listener>
class Notifier {
 public:
  void SetListener(Listener* listener) { Current = listener; }
  Listener* GetListener() const { return Current; }

 private:
  Listener* Current = nullptr;
};

class HintListener {
 public:
  virtual ~HintListener() = default;
  /// A menu item is highlighted: its text without "&", its mnemonic character ("" for none), whether it opens
  /// a sub-menu.
  virtual void MenuItemHighlighted(std::string_view text, std::string_view mnemonic, bool hasSubMenu) = 0;
  /// `chosen`: with an item, which acts after that.
  virtual void MenusClosed(bool chosen) = 0;
};

/// Why a program is asked to end.
inline constexpr int SessionEnding = 2;

class QueryUnloadListener {
 public:
  virtual ~QueryUnloadListener() = default;
  virtual void QueryUnload(int reason) = 0;
};

/// The menu-hint control.
class HintNotify : public Notifier<HintListener> {};
/// The window-message control: tells of the end of the desktop session.
class AppWMSpy : public Notifier<QueryUnloadListener> {};

}  // namespace qves
