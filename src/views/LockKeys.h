// NumLock, Caps Lock and Scroll Lock say their new state.
#pragma once

#include "services/Services.h"

namespace qves {

/// Says the state of the lock key; nothing for any other key code.
void AnnounceLockKey(Services& services, int keyCode);

}  // namespace qves
