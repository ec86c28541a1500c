#include "dialogs/CodePage.h"

#include <iconv.h>

#include "text/Utf8.h"

namespace qves {
namespace {

char32_t CharacterOf(char byte, iconv_t converter) {
  char character[8];
  char* in = &byte;
  char* out = character;
  std::size_t inLeft = 1;
  std::size_t outLeft = sizeof character;
  ::iconv(converter, nullptr, nullptr, nullptr, nullptr);  // what the byte before began is forgotten
  const bool isCharacter = ::iconv(converter, &in, &inLeft, &out, &outLeft) == 0 && out != character;
  return isCharacter ? FirstCharacter({character, out}).Code : U'\uFFFD';
}

}  // namespace

std::u32string CharactersOf(const std::string& codePage) {
  constexpr std::string_view usual = "CP1252";
  std::u32string characters(256, U'\uFFFD');
  const iconv_t converter = ::iconv_open("UTF-8", codePage.c_str());
  if (converter == iconv_t(-1)) return codePage == usual ? characters : CharactersOf(std::string(usual));
  for (std::size_t byte = 0; byte < characters.size(); ++byte)
    characters[byte] = CharacterOf(static_cast<char>(byte), converter);
  ::iconv_close(converter);
  return characters;
}

}  // namespace qves
