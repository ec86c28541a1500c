// The windows of all programs and the lock lights, over a connection of its own to the X server. When the
// server goes away every call answers that there is nothing.
#pragma once

#include <xcb/xcb.h>
#include <xcb/xcb_ewmh.h>

#include <memory>
#include <optional>
#include <vector>

#include "platform/WindowSystem.h"

namespace qves {

class X11Desktop {
 public:
  /// Null where no X server answers.
  static std::unique_ptr<X11Desktop> Connect();
  ~X11Desktop();
  X11Desktop(const X11Desktop&) = delete;
  X11Desktop& operator=(const X11Desktop&) = delete;

  /// Front to back.
  std::vector<TopLevelWindow> TopLevelWindows();
  void SendKeyDown(std::uint64_t window, int keyCode);
  bool RestoreAndActivate(std::uint64_t window);
  /// Whether the light of NumLock or Caps Lock is on; nothing for another key or without an answer.
  std::optional<bool> LockLight(int keyCode);

 private:
  X11Desktop(xcb_connection_t* connection, xcb_window_t root, int screen);
  std::optional<xcb_keycode_t> KeyWithSymbol(xcb_keysym_t symbol);
  std::optional<bool> NamedIndicator(const char* name);

  xcb_connection_t* Connection;
  xcb_window_t Root;
  int Screen;
  xcb_ewmh_connection_t Ewmh{};
  bool HasEwmh = false;
  bool HasKeyboardExtension = false;
};

}  // namespace qves
