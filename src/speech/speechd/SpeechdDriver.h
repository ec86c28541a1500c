// The back end that speaks through the desktop's speech-dispatcher server.
#pragma once

#include <memory>

#include "speech/SpeechDriver.h"

namespace qves {

/// `eager`: connects at once and starts a server when none runs. Otherwise a server is started with the first
/// text only, and only the voices of one that runs already are listed.
std::shared_ptr<SpeechDriver> MakeSpeechdDriver(DriverLinks links, bool eager);

}  // namespace qves
