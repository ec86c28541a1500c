// Which messages are the words of the voiced text.
#pragma once

#include "services/Messages.h"
#include "voicing/VoiceWords.h"

namespace qves {

VoiceWords ReadVoiceWords(const MessageStore& messages);

}  // namespace qves
