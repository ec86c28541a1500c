#include "speech/sound/SoundDevice.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <string>
#include <string_view>

namespace qves {
namespace {

namespace fs = std::filesystem;

// "pcmC0D0p": something that plays; what records ends with a "c".
bool Plays(const fs::directory_entry& device) {
  const std::string name = device.path().filename().string();
  return name.starts_with("pcm") && name.ends_with('p');
}

// "pcm.!default", but not "defaults.pcm.card", which only chooses among the devices.
bool DefinesDefault(const std::string& line) {
  constexpr std::string_view word = "default";
  const std::string_view text = std::string_view(line).substr(0, line.find('#'));
  const std::size_t at = text.find(word);
  return at != std::string_view::npos && !text.substr(at + word.size()).starts_with('s');
}

bool HasDefault(const fs::path& settings) {
  std::ifstream file(settings);
  for (std::string line; std::getline(file, line);) {
    if (DefinesDefault(line)) return true;
  }
  return false;
}

}  // namespace

SoundPlaces OwnSoundPlaces() {
  SoundPlaces places{"/dev/snd", {"/etc/asound.conf"}};
  if (const char* home = std::getenv("HOME")) places.Settings.push_back(fs::path(home) / ".asoundrc");
  return places;
}

bool HasSoundDevice(const SoundPlaces& places) {
  std::error_code error;
  for (fs::directory_iterator device(places.Devices, error), end; device != end; device.increment(error)) {
    if (Plays(*device)) return true;
  }
  return std::any_of(places.Settings.begin(), places.Settings.end(), HasDefault);
}

}  // namespace qves
