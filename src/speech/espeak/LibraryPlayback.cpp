#include "speech/espeak/LibraryPlayback.h"

#include <chrono>

namespace qves {
namespace {

// Without a device no call fails, but no event of sound ever comes.
constexpr auto LongestSilence = std::chrono::milliseconds(600);

}  // namespace

bool LibraryPlayback::Run(const Utterance& text, PlayControl& control) {
  {
    const std::lock_guard lock(Mutex);
    HasBegun = HasEnded = false;
    Marks.emplace(text);
  }
  const auto deadline = SteadyClock::now() + LongestSilence;
  espeak_Synth(text.Text.c_str(), text.Text.size() + 1, 0, POS_CHARACTER, 0, espeakCHARS_UTF8, nullptr, this);
  while (!control.Interrupted() && !Over()) {
    const std::uint64_t seen = control.Wake.Count();
    if (!Begun() && SteadyClock::now() >= deadline) break;
    if (!Over() && !control.Interrupted()) control.Wake.WaitFor(seen, std::chrono::milliseconds(100));
  }
  if (!Over()) espeak_Cancel();
  const std::lock_guard lock(Mutex);
  if (HasBegun && !control.Interrupted()) Marks->HeardAll();
  Marks.reset();
  return HasBegun || control.Interrupted();
}

int LibraryPlayback::Receive(short*, int, espeak_EVENT* events) {
  for (; events->type != espeakEVENT_LIST_TERMINATED; ++events) {
    if (auto* self = static_cast<LibraryPlayback*>(events->user_data)) self->Note(*events);
  }
  return 0;
}

void LibraryPlayback::Note(const espeak_EVENT& event) {
  {
    const std::lock_guard lock(Mutex);
    if (!Marks) return;
    if (event.type == espeakEVENT_WORD || event.type == espeakEVENT_END) HasBegun = true;
    if (event.type == espeakEVENT_MSG_TERMINATED) HasEnded = true;
    if (TellsPosition(event)) {
      Marks->Meet(event.text_position, event.sample);
      Marks->Heard(event.sample);
    }
  }
  Wake.Notify();
}

bool LibraryPlayback::Over() {
  const std::lock_guard lock(Mutex);
  return HasEnded;
}

bool LibraryPlayback::Begun() {
  const std::lock_guard lock(Mutex);
  return HasBegun;
}

}  // namespace qves
