// The one place where a toolkit's key event becomes the calculator's.
#pragma once

#include <QKeyEvent>
#include <QString>
#include <cstdint>

#include "model/KeyEvent.h"

namespace qves {

/// What the toolkit tells of a key.
struct NativeKey {
  std::uint32_t ScanCode = 0;  ///< the kernel's code + 8 on X11 and Wayland; 0 for a synthesised key
  std::uint32_t KeySym = 0;    ///< X keysym; 0 when unknown
  int Key = 0;                 ///< Qt::Key
  Qt::KeyboardModifiers Modifiers;
  QString Text;
};

NativeKey CaptureKey(const QKeyEvent& event);

/// The calculator's event for the key. A key that the calculator does not know, or that belongs to the
/// desktop (the Windows key is held), has code 0 and no character.
KeyEvent TranslateKey(const NativeKey& key);

}  // namespace qves
