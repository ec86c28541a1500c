// A voice of espeak-ng that tells how it would pronounce a text.
#pragma once

#include <espeak-ng/speak_lib.h>

#include <array>
#include <regex>
#include <stdexcept>
#include <string>
#include <vector>

namespace qves {

class Voice {
 public:
  /// "en-us", "en-gb", "de". One at a time: it is the library's voice from now on.
  explicit Voice(const std::string& language) : IsBritish(language == "en-gb") {
    static const int rate = espeak_Initialize(AUDIO_OUTPUT_RETRIEVAL, 0, nullptr, 0);
    espeak_VOICE wanted{};
    wanted.languages = language.c_str();
    if (rate <= 0 || espeak_SetVoiceByProperties(&wanted) != EE_OK)
      throw std::runtime_error("espeak-ng has no voice for " + language);
  }

  /// What is pronounced between one pause and the next.
  std::vector<std::string> Clauses(const std::string& text) const {
    std::vector<std::string> clauses;
    for (const void* rest = text.c_str(); rest;) {
      const std::string sounds = SoundsOf(espeak_TextToPhonemes(&rest, espeakCHARS_UTF8, 0));
      if (!sounds.empty()) clauses.push_back(sounds);
    }
    return clauses;
  }

  std::string Pronounce(const std::string& text) const {
    std::string all;
    for (const std::string& clause : Clauses(text)) all += clause;
    return all;
  }

  /// The same of words in place of figures. "(and)" is for the British, who say "'n" within a number.
  std::string PronounceWords(const std::string& words) const {
    static const std::regex britishAnd(" \\(and\\)");
    std::string sounds;
    for (std::sregex_token_iterator part(words.begin(), words.end(), britishAnd, -1), end; part != end;
         ++part)
      sounds += (IsBritish && !sounds.empty() ? "@n" : "") + Pronounce(*part);
    return sounds;
  }

 private:
  struct Difference {
    std::regex Pattern;
    const char* Sound;
  };

  /// Without what differs between figures and words, or where there is a pause, and makes no other word.
  static std::string SoundsOf(std::string phonemes) {
    static const std::array<Difference, 7> none = {{
        {std::regex("_[_:!|^]*|\\|+|[ \n]"), ""},  // pauses, ends of words
        {std::regex(","), "'"},                    // PV has one stress, "P V" two
        {std::regex("'(OInt|aIns)"), "$1"},  // the point of 2.5 has no stress, the German "eins" has none
        {std::regex("t[2#]"), "t"},          // the two kinds of t in 20 and "twenty"
        {std::regex("I[2#]"), "I"},          // the weak vowel in 11 and "eleven"
        {std::regex("O@"), "o@"},            // the vowel in 40 and "forty"
        {std::regex(";"), ""},               // the glide from "ee" to a vowel, which a pause takes away
    }};
    for (const Difference& difference : none)
      phonemes = std::regex_replace(phonemes, difference.Pattern, difference.Sound);
    return phonemes;
  }

  bool IsBritish;
};

}  // namespace qves
