#include "speech/speechd/SpeechdVoices.h"

#include <speech-dispatcher/libspeechd.h>

#include <cstring>
#include <iterator>
#include <thread>

#include "speech/LanguageIds.h"
#include "speech/speechd/SpeechdLink.h"

namespace qves {
namespace {

constexpr char KeySeparator = '\n';

struct ConnectionCloser {
  void operator()(SPDConnection* connection) const { spd_close(connection); }
};
using Connection = std::unique_ptr<SPDConnection, ConnectionCloser>;

bool IsPlain(const SPDVoice& voice) {
  return voice.variant && std::strcmp(voice.variant, "none") == 0;
}

// A module with variants marks the voices proper, one in a hundred, as being none. Others tell something else
// there.
bool HasVariants(SPDVoice** list) {
  for (; *list; ++list) {
    if (IsPlain(**list)) return true;
  }
  return false;
}

std::vector<Voice> VoicesOf(SPDConnection& connection, const std::string& module, int backEnd) {
  std::vector<Voice> found;
  if (spd_set_output_module(&connection, module.c_str()) < 0) return found;
  SPDVoice** list = spd_list_synthesis_voices(&connection);
  if (!list) return found;
  const bool plainOnly = HasVariants(list);
  for (SPDVoice** at = list; *at; ++at) {
    const SPDVoice& voice = **at;
    if (!voice.name || (plainOnly && !IsPlain(voice))) continue;
    const int language = LanguageIdOf(voice.language ? voice.language : "");
    found.push_back({{module, module, voice.name, language}, PackKey({module, voice.name}), backEnd});
  }
  free_spd_voices(list);
  return found;
}

std::vector<Voice> AllVoices(SPDConnection& connection, int backEnd) {
  std::vector<Voice> all;
  char** modules = spd_list_modules(&connection);
  for (char** module = modules; module && *module; ++module) {
    std::vector<Voice> some = VoicesOf(connection, *module, backEnd);
    std::move(some.begin(), some.end(), std::back_inserter(all));
  }
  if (modules) free_spd_modules(modules);
  return all;
}

}  // namespace

std::string PackKey(const SpeechdVoiceKey& key) {
  return key.Module + KeySeparator + key.Name;
}

SpeechdVoiceKey UnpackKey(const std::string& packed) {
  const std::size_t at = packed.find(KeySeparator);
  if (at == std::string::npos) return {};
  return {packed.substr(0, at), packed.substr(at + 1)};
}

SpeechdVoiceList::SpeechdVoiceList(int backEnd, std::function<void()> changed)
    : BackEnd(backEnd), Changed(std::move(changed)) {
  const int language = LanguageIdOf(DesktopLanguage());
  Voices.push_back({{"Speech Dispatcher", "speech-dispatcher", "default", language}, {}, BackEnd});
}

std::vector<Voice> SpeechdVoiceList::Get() const {
  const std::lock_guard lock(Mutex);
  return Voices;
}

bool SpeechdVoiceList::Listing() const {
  const std::lock_guard lock(Mutex);
  return ListingNow;
}

void SpeechdVoiceList::SetListing(bool now) {
  const std::lock_guard lock(Mutex);
  ListingNow = now;
}

void SpeechdVoiceList::Close() {
  const std::lock_guard lock(Mutex);
  Closed = true;
  ClosedChanged.notify_all();
}

void SpeechdVoiceList::Begin(std::chrono::milliseconds delay, bool spawn) {
  const std::lock_guard lock(Mutex);
  if (Begun) return;
  Begun = true;
  std::thread([self = shared_from_this(), delay, spawn] { self->Run(delay, spawn); }).detach();
}

void SpeechdVoiceList::Forgo() {
  const std::lock_guard lock(Mutex);
  Forgone = true;
}

// False when the list is closed before, or nobody needs it any more.
bool SpeechdVoiceList::WaitFor(std::chrono::milliseconds delay) {
  std::unique_lock lock(Mutex);
  return !ClosedChanged.wait_for(lock, delay, [this] { return Closed; }) && !Forgone;
}

void SpeechdVoiceList::Run(std::chrono::milliseconds delay, bool spawn) {
  if (!WaitFor(delay)) return;
  SetListing(true);
  std::vector<Voice> found;
  if (const Connection connection{OpenSpeechd("voices", SPD_MODE_SINGLE, spawn)})
    found = AllVoices(*connection, BackEnd);
  SetListing(false);
  const std::lock_guard lock(Mutex);
  if (Closed || found.empty()) return;
  std::move(found.begin(), found.end(), std::back_inserter(Voices));
  Changed();
}

}  // namespace qves
