// How fast and how loud the calculator speaks: as the host has set it, unless the calculator has its own.
#pragma once

#include <cstdint>

#include "services/AppSettings.h"

namespace qves {

/// Words a minute.
int VoiceSpeed(const AppSettings& settings);
/// Percent.
int VoicePercent(const AppSettings& settings);
/// The same for an engine, 0 to 65535.
std::int32_t VoiceVolume(const AppSettings& settings);

/// Makes the voice so much faster or louder than it is, as far as the settings go.
void StepSpeed(AppSettings& settings, int wordsPerMinute);
void StepVolume(AppSettings& settings, int percent);

}  // namespace qves
