// Bringing another program's window to the front.
#pragma once

#include <string_view>

#include "platform/WindowSystem.h"

namespace qves {

/// Brings the first top-level window whose title holds the fragment (without regard to case) to the front.
/// True when one was found.
bool ActivateWindowByTitle(WindowSystem& windows, std::string_view fragment);

}  // namespace qves
