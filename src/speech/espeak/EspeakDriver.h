// The back end that speaks with espeak-ng in this process.
#pragma once

#include <memory>

#include "speech/SpeechDriver.h"

namespace qves {

/// Only one at a time may be alive in a process, as the library has but one state.
std::shared_ptr<SpeechDriver> MakeEspeakDriver(DriverLinks links);

}  // namespace qves
