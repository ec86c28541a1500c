#include "services/TextEncoding.h"

#include "text/Utf8.h"

namespace qves {
namespace {

constexpr std::string_view Utf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view LittleEndianMark = "\xFF\xFE";
constexpr std::string_view BigEndianMark = "\xFE\xFF";
constexpr char32_t NoCharacter = 0xFFFD;

char32_t Byte(std::string_view bytes, std::size_t at) {
  return static_cast<unsigned char>(bytes[at]);
}

std::string FromUtf16(std::string_view bytes, bool bigEndian) {
  const auto unit = [&](std::size_t at) {
    return at + 1 < bytes.size() ? Byte(bytes, at + (bigEndian ? 0 : 1)) << 8 | Byte(bytes, at + bigEndian)
                                 : 0;
  };
  std::string text;
  for (std::size_t at = 0; at + 1 < bytes.size(); at += 2) {
    char32_t code = unit(at);
    if (code >> 10 == 0xD800 >> 10 && unit(at + 2) >> 10 == 0xDC00 >> 10) {
      code = 0x10000 + ((code & 0x3FF) << 10 | (unit(at + 2) & 0x3FF));
      at += 2;
    }
    text += Utf8(IsCharacter(code) ? code : NoCharacter);
  }
  return text;
}

/// The one byte of Windows' form of Latin 1 that stands beside numbers is the euro sign: it is read, too.
std::string FromLatin1(std::string_view bytes) {
  std::string text;
  for (std::size_t at = 0; at < bytes.size(); ++at)
    text += Utf8(Byte(bytes, at) == 0x80 ? U'€' : Byte(bytes, at));
  return text;
}

}  // namespace

std::string ToUtf8(std::string_view bytes) {
  if (bytes.starts_with(LittleEndianMark)) return FromUtf16(bytes.substr(2), false);
  if (bytes.starts_with(BigEndianMark)) return FromUtf16(bytes.substr(2), true);
  if (!IsUtf8(bytes)) return FromLatin1(bytes);
  return std::string(bytes.substr(bytes.starts_with(Utf8Mark) ? Utf8Mark.size() : 0));
}

}  // namespace qves
