// The speech back ends of the terminal program: a module that is loaded only when something is to be heard, so that
// scripts start without a speech library.
#pragma once

#include <memory>

#include "platform/Outside.h"
#include "platform/TTS.h"
#include "speech/SpeechBackEnds.h"

namespace qves {

/// The list of the chosen back ends' voices, as MakeSpeech gives it. Without the module a line goes to standard error,
/// and nothing speaks: null.
std::unique_ptr<TTS> LoadSpeech(SpeechChoice choice, EventPump& pump);

}  // namespace qves
