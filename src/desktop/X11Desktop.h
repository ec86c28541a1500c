// The windows of all programs and the lock lights, over the toolkit's connection to the X server. Without an
// X server, or when it goes away, every call answers that there is nothing.
#pragma once

#include <xcb/xcb.h>
#include <xcb/xcb_ewmh.h>

#include <optional>
#include <vector>

#include "platform/WindowSystem.h"

namespace qves {

class X11Desktop : public WindowSystem {
 public:
  X11Desktop() = default;
  ~X11Desktop() override;
  X11Desktop(const X11Desktop&) = delete;
  X11Desktop& operator=(const X11Desktop&) = delete;

  std::vector<TopLevelWindow> TopLevelWindows() override;
  void SendKeyDown(std::uint64_t window, int keyCode) override;
  bool RestoreAndActivate(std::uint64_t window) override;

 protected:
  /// Whether the keyboard light of that name is on; nothing without an answer.
  std::optional<bool> NamedLight(std::string_view name);
  /// True when there is an X server.
  bool Connect();

 private:
  bool HasEwmh() { return Connect() && Ewmh.connection; }
  std::optional<xcb_keycode_t> KeyWithSymbol(xcb_keysym_t symbol);

  xcb_connection_t* Connection = nullptr;
  xcb_ewmh_connection_t Ewmh{};  ///< without a connection: there is no window manager to ask
};

}  // namespace qves
