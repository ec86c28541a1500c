// Whether the machine has a sound device at all.
#pragma once

#include <filesystem>
#include <vector>

namespace qves {

/// Where ALSA's devices are, and the files in which another default may be defined in their place.
struct SoundPlaces {
  std::filesystem::path Devices;
  std::vector<std::filesystem::path> Settings;
};

/// The places of this machine and its user.
SoundPlaces OwnSoundPlaces();

/// False: opening the default device would fail, with complaints on standard error. Opens nothing and takes
/// microseconds.
bool HasSoundDevice(const SoundPlaces& places);

}  // namespace qves
