#include "services/VoiceLevels.h"

#include <algorithm>

#include "services/OwnSettings.h"

namespace qves {
namespace {

constexpr std::int32_t FullVolume = 65535;
constexpr int FullPercent = 100;

int Within(const NumberRange& range, int value) {
  return std::clamp(value, range.From, range.To);
}

}  // namespace

int VoiceSpeed(const AppSettings& settings) {
  return settings.Speed == HostLevel ? settings.SystemSpeed : settings.Speed;
}

int VoicePercent(const AppSettings& settings) {
  if (settings.Volume != HostLevel) return settings.Volume;
  return (std::clamp(settings.SystemVolume, 0, FullVolume) * FullPercent + FullVolume / 2) / FullVolume;
}

std::int32_t VoiceVolume(const AppSettings& settings) {
  if (settings.Volume == HostLevel) return settings.SystemVolume;
  return (settings.Volume * FullVolume + FullPercent / 2) / FullPercent;
}

void StepSpeed(AppSettings& settings, int wordsPerMinute) {
  settings.Speed = Within(SpeedRange, Within(SpeedRange, VoiceSpeed(settings)) + wordsPerMinute);
}

void StepVolume(AppSettings& settings, int percent) {
  settings.Volume = Within(VolumeRange, Within(VolumeRange, VoicePercent(settings)) + percent);
}

}  // namespace qves
