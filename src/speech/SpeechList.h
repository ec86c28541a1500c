// The one list of engines, over the voices of all back ends.
#pragma once

#include <memory>

#include "platform/TTS.h"
#include "speech/SpeechQueue.h"

namespace qves {

/// Starts the thread of the queue, which has its back ends. A list that is destroyed does not wait for a back
/// end that hangs: the thread is left behind, with all that it needs.
std::unique_ptr<TTS> MakeSpeechList(std::shared_ptr<SpeechQueue> queue);

}  // namespace qves
