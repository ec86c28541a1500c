#include "text/Utf8.h"

#include <algorithm>

namespace qves {
namespace {

/// How the first byte of a character tells its length.
struct LeadRow {
  unsigned char Mask;
  unsigned char Lead;
  std::size_t Length;
  char32_t Lowest;  // what is below could have been written shorter
};
constexpr LeadRow LeadRows[] = {
    {0x80, 0x00, 1, 0}, {0xE0, 0xC0, 2, 0x80}, {0xF0, 0xE0, 3, 0x800}, {0xF8, 0xF0, 4, 0x10000}};

char Byte(char32_t bits) {
  return static_cast<char>(static_cast<unsigned char>(bits));
}

}  // namespace

Utf8Character FirstCharacter(std::string_view bytes) {
  if (bytes.empty()) return {};
  const auto lead = static_cast<unsigned char>(bytes.front());
  const auto* const row =
      std::ranges::find_if(LeadRows, [&](const LeadRow& each) { return (lead & each.Mask) == each.Lead; });
  if (row == std::end(LeadRows) || bytes.size() < row->Length) return {};
  char32_t code = lead & ~static_cast<unsigned>(row->Mask);
  for (const char byte : bytes.substr(1, row->Length - 1)) {
    if (!IsInsideCharacter(byte)) return {};
    code = code << 6 | (static_cast<unsigned char>(byte) & 0x3FU);
  }
  return code >= row->Lowest && IsCharacter(code) ? Utf8Character{code, row->Length} : Utf8Character();
}

bool IsUtf8(std::string_view bytes) {
  while (!bytes.empty()) {
    const std::size_t length = FirstCharacter(bytes).Length;
    if (length == 0) return false;
    bytes.remove_prefix(length);
  }
  return true;
}

std::string Utf8(char32_t code) {
  const auto tail = [&](int shift) { return Byte(0x80 | (code >> shift & 0x3F)); };
  if (code < 0x80) return {Byte(code)};
  if (code < 0x800) return {Byte(0xC0 | code >> 6), tail(0)};
  if (code < 0x10000) return {Byte(0xE0 | code >> 12), tail(6), tail(0)};
  return {Byte(0xF0 | code >> 18), tail(12), tail(6), tail(0)};
}

}  // namespace qves
