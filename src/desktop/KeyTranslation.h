// The one place where a toolkit's key event becomes the calculator's.
#pragma once

#include <QKeyEvent>

#include "model/KeyEvent.h"

namespace qves {

/// The calculator's event for the key. A key that the calculator does not know, or that belongs to the
/// desktop (the Windows key is held), has code 0 and no character.
KeyEvent TranslateKey(const QKeyEvent& key);

}  // namespace qves
