#include "sounds/canberra/SoundContext.h"

#include <filesystem>

namespace qves {
namespace {

constexpr std::uint32_t SoundId = 1;

void TellEnded(ca_context*, std::uint32_t, int, void* data) {
  const std::unique_ptr<SoundEnded> ended(static_cast<SoundEnded*>(data));
  **ended = true;
}

}  // namespace

bool SoundContext::Start(const std::string& path, const SoundEnded& ended) {
  std::error_code error;
  // A pipe would be waited for.
  if (!std::filesystem::is_regular_file(path, error)) return false;
  if (Context && TryStart(path, ended)) return true;
  // A context whose server has gone never finds the next one.
  Close();
  if (Open() && TryStart(path, ended)) return true;
  Close();
  return false;
}

bool SoundContext::Open() {
  if (ca_context_create(&Context) != CA_SUCCESS) {
    Context = nullptr;
    return false;
  }
  ca_context_change_props(Context, CA_PROP_APPLICATION_NAME, "qvescalc", nullptr);
  return true;
}

void SoundContext::Close() {
  if (Context) ca_context_destroy(Context);
  Context = nullptr;
}

bool SoundContext::TryStart(const std::string& path, const SoundEnded& ended) {
  ca_proplist* properties = nullptr;
  if (ca_proplist_create(&properties) != CA_SUCCESS) return false;
  ca_proplist_sets(properties, CA_PROP_MEDIA_FILENAME, path.c_str());
  ca_context_cancel(Context, SoundId);
  auto data = std::make_unique<SoundEnded>(ended);
  const bool started =
      ca_context_play_full(Context, SoundId, properties, TellEnded, data.get()) == CA_SUCCESS;
  // Once started the callback owns it.
  if (started) static_cast<void>(data.release());
  ca_proplist_destroy(properties);
  return started;
}

}  // namespace qves
