#include "desktop/DesktopWindows.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

#include "model/KeyEvent.h"

namespace qves {
namespace {

/// The lights that tell of a lock key. The usual X keyboard has none for Scroll Lock, and the kernel's is not
/// lit by X or Wayland desktops.
struct Light {
  int KeyCode;
  const char* OnX;
  const char* OfKernel;
};
constexpr Light Lights[] = {{KeyNumLock, "Num Lock", "::numlock"}, {KeyCapsLock, "Caps Lock", "::capslock"}};

/// Whether any keyboard shows that light; nothing where no keyboard tells.
std::optional<bool> KeyboardLight(const char* name) {
  std::optional<bool> on;
  std::error_code error;
  for (const auto& light : std::filesystem::directory_iterator("/sys/class/leds", error)) {
    if (!light.path().filename().string().ends_with(name)) continue;
    int brightness = 0;
    if (std::ifstream(light.path() / "brightness") >> brightness) on = on.value_or(false) || brightness > 0;
  }
  return on;
}

}  // namespace

bool DesktopWindows::LockKeyIsOn(int keyCode) {
  std::optional<bool> on;
  if (const auto* light = std::ranges::find(Lights, keyCode, &Light::KeyCode); light != std::end(Lights))
    on = Connect() ? NamedLight(light->OnX) : KeyboardLight(light->OfKernel);
  return on.value_or(Toggled.contains(keyCode));
}

void DesktopWindows::ActivateApplication(std::string_view title) {
  if (title == Title) return;
  const char* token = std::getenv("XDG_ACTIVATION_TOKEN");
  if (!Instance.AskFirst(token ? token : ""))
    std::cerr << "qvescalc: the copy that is running does not answer\n";
}

void DesktopWindows::NoteKeyPress(int keyCode) {
  if (keyCode != KeyNumLock && keyCode != KeyCapsLock && keyCode != KeyScrollLock) return;
  if (Toggled.erase(keyCode) == 0) Toggled.insert(keyCode);
}

}  // namespace qves
