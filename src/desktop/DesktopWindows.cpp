#include "desktop/DesktopWindows.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>

#include "model/KeyEvent.h"

namespace qves {
namespace {

/// The kernel's name of a lock key's light.
const char* LightName(int keyCode) {
  switch (keyCode) {
    case KeyNumLock:
      return "::numlock";
    case KeyCapsLock:
      return "::capslock";
    default:
      return "::scrolllock";
  }
}

/// Whether any keyboard shows that light; nothing where no keyboard tells.
std::optional<bool> KeyboardLight(int keyCode) {
  std::optional<bool> on;
  std::error_code error;
  for (const auto& light : std::filesystem::directory_iterator("/sys/class/leds", error)) {
    if (!light.path().filename().string().ends_with(LightName(keyCode))) continue;
    int brightness = 0;
    if (std::ifstream(light.path() / "brightness") >> brightness) on = on.value_or(false) || brightness > 0;
  }
  return on;
}

}  // namespace

X11Desktop* DesktopWindows::X11() {
  if (OnX11 && !Connected) Server = X11Desktop::Connect();
  Connected = true;
  return Server.get();
}

std::vector<TopLevelWindow> DesktopWindows::TopLevelWindows() {
  return X11() ? X11()->TopLevelWindows() : std::vector<TopLevelWindow>();
}

void DesktopWindows::SendKeyDown(std::uint64_t window, int keyCode) {
  if (X11()) X11()->SendKeyDown(window, keyCode);
}

bool DesktopWindows::RestoreAndActivate(std::uint64_t window) {
  return X11() && X11()->RestoreAndActivate(window);
}

bool DesktopWindows::LockKeyIsOn(int keyCode) {
  // The usual X keyboard has no Scroll Lock light, and the kernel's light is not lit by X or Wayland
  // desktops.
  std::optional<bool> light;
  if (keyCode != KeyScrollLock) light = X11() ? X11()->LockLight(keyCode) : KeyboardLight(keyCode);
  return light.value_or(Toggled.contains(keyCode));
}

void DesktopWindows::ActivateApplication(std::string_view title) {
  if (title == Title) return;
  const char* token = std::getenv("XDG_ACTIVATION_TOKEN");
  Instance.AskFirst(token ? token : "");
}

void DesktopWindows::NoteKeyPress(int keyCode) {
  if (keyCode != KeyNumLock && keyCode != KeyCapsLock && keyCode != KeyScrollLock) return;
  if (Toggled.erase(keyCode) == 0) Toggled.insert(keyCode);
}

}  // namespace qves
