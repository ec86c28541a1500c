// The speech back ends as a module that is loaded only when something is to be heard: scripts start without a
// speech library, and the window loads it while the toolkit starts.
#pragma once

#include <memory>

#include "platform/Outside.h"
#include "platform/TTS.h"
#include "speech/SpeechBackEnds.h"

namespace qves {

/// The list of the chosen back ends' voices, as MakeSpeech gives it; never null. Without the module the list
/// is empty and a line goes to standard error. May be called on any thread.
std::unique_ptr<TTS> LoadSpeech(SpeechChoice choice, EventPump& pump);

}  // namespace qves
