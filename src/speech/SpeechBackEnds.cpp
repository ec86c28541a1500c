#include "speech/SpeechBackEnds.h"

#include <vector>

#include "speech/SpeechList.h"
#ifdef QVES_HAVE_ESPEAK
#include "speech/espeak/EspeakDriver.h"
#endif
#ifdef QVES_HAVE_SPEECHD
#include "speech/speechd/SpeechdDriver.h"
#endif

namespace qves {
namespace {

enum class Role { Absent, Listed, StandsIn };

struct Cast {
  SpeechChoice Choice;
  Role Espeak;
  Role Speechd;
  bool EagerSpeechd;  ///< connects at once instead of with the first text
};

constexpr Cast Casts[] = {
    {SpeechChoice::Auto, Role::Listed, Role::Listed, false},
    {SpeechChoice::EspeakNg, Role::Listed, Role::Absent, false},
    {SpeechChoice::SpeechDispatcher, Role::StandsIn, Role::Listed, true},
    {SpeechChoice::Off, Role::Absent, Role::Absent, false},
};

const Cast& CastOf(SpeechChoice choice) {
  for (const Cast& cast : Casts) {
    if (cast.Choice == choice) return cast;
  }
  return Casts[0];
}

[[maybe_unused]] void AddBackEnd(SpeechList& list, Role role, DriverMaker maker) {
  if (role != Role::Absent) list.Add(std::move(maker), role == Role::Listed);
}

}  // namespace

std::unique_ptr<TTS> MakeSpeech(SpeechChoice choice, EventPump& pump) {
  auto list = std::make_unique<SpeechList>(pump);
  [[maybe_unused]] const Cast& cast = CastOf(choice);
#ifdef QVES_HAVE_ESPEAK
  AddBackEnd(*list, cast.Espeak, MakeEspeakDriver);
  constexpr bool espeakBuilt = true;
#else
  constexpr bool espeakBuilt = false;
#endif
#ifdef QVES_HAVE_SPEECHD
  const bool eager = cast.EagerSpeechd || !espeakBuilt;
  AddBackEnd(*list, cast.Speechd,
             [eager](DriverLinks links) { return MakeSpeechdDriver(std::move(links), eager); });
#else
  static_cast<void>(espeakBuilt);
#endif
  return list;
}

}  // namespace qves
