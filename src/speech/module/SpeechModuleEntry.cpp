// The one function of the speech module.
#include "speech/SpeechBackEnds.h"

/// The caller owns what it gets.
extern "C" __attribute__((visibility("default"))) qves::TTS* QvesMakeSpeech(qves::SpeechChoice choice,
                                                                            qves::EventPump* pump) {
  return qves::MakeSpeech(choice, *pump).release();
}
