// The voices of espeak-ng, in the order in which they are offered.
#pragma once

#include <condition_variable>
#include <functional>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "speech/Utterance.h"

namespace qves {

/// A voice as the library tells it.
struct EspeakVoice {
  std::string Name;
  std::string Identifier;                              ///< its file
  std::vector<std::pair<int, std::string>> Languages;  ///< priority (the lower the better) and tag
};

/// Unpacks the library's list of languages: for each a byte of priority and a text, ended by a 0 byte.
std::vector<std::pair<int, std::string>> UnpackLanguages(const char* packed);

/// The voices in order: the desktop's language and country, the desktop's language, English, the others as
/// they come. Variants, which are no voices of their own, are left out.
std::vector<Voice> OfferedVoices(const std::vector<EspeakVoice>& all, std::string_view desktopLanguage,
                                 int backEnd);

/// Where the thread that reads the voices leaves them.
class EspeakVoiceBox {
 public:
  explicit EspeakVoiceBox(std::function<void()> changed);
  /// An empty list tells that the library cannot speak.
  void Fill(std::vector<Voice> list);
  /// The voices; waits for them, half a second at most.
  std::vector<Voice> Wait();
  bool Failed() const;

 private:
  std::function<void()> Changed;
  mutable std::mutex Mutex;
  std::condition_variable FilledChanged;
  bool Filled = false;
  bool Missed = false;  // somebody has waited in vain
  std::vector<Voice> Voices;
};

}  // namespace qves
