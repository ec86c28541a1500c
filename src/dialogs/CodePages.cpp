#include "dialogs/CodePages.h"

#include <algorithm>
#include <string_view>

namespace qves {
namespace {

// The characters from 0x80 on; what no table has is as in Latin 1.
constexpr std::u16string_view Windows1252 = u"€\uFFFD‚ƒ„…†‡ˆ‰Š‹Œ\uFFFDŽ\uFFFD\uFFFD‘’“”•–—˜™š›œ\uFFFDžŸ";
constexpr std::u16string_view Windows1250 =
    u"€\uFFFD‚\uFFFD„…†‡\uFFFD‰Š‹ŚŤŽŹ\uFFFD‘’“”•–—\uFFFD™š›śťžź"
    u"\u00A0ˇ˘Ł¤Ą¦§¨©Ş«¬\u00AD®Ż°±˛ł´µ¶·¸ąş»Ľ˝ľż"
    u"ŔÁÂĂÄĹĆÇČÉĘËĚÍÎĎĐŃŇÓÔŐÖ×ŘŮÚŰÜÝŢß"
    u"ŕáâăäĺćçčéęëěíîďđńňóôőö÷řůúűüýţ˙";
constexpr std::u16string_view Windows1251 =
    u"ЂЃ‚ѓ„…†‡€‰Љ‹ЊЌЋЏђ‘’“”•–—\uFFFD™љ›њќћџ"
    u"\u00A0ЎўЈ¤Ґ¦§Ё©Є«¬\u00AD®Ї°±Ііґµ¶·ё№є»јЅѕї"
    u"АБВГДЕЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"
    u"абвгдежзийклмнопрстуфхцчшщъыьэюя";
constexpr std::u16string_view Dos437 =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒ"
    u"áíóúñÑªº¿⌐¬½¼¡«»░▒▓│┤╡╢╖╕╣║╗╝╜╛┐"
    u"└┴┬├─┼╞╟╚╔╩╦╠═╬╧╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀"
    u"αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■\u00A0";
constexpr std::u16string_view Dos850 =
    u"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜø£Ø×ƒ"
    u"áíóúñÑªº¿®¬½¼¡«»░▒▓│┤ÁÂÀ©╣║╗╝¢¥┐"
    u"└┴┬├─┼ãÃ╚╔╩╦╠═╬¤ðÐÊËÈıÍÎÏ┘┌█▄¦Ì▀"
    u"ÓßÔÒõÕµþÞÚÛÙýÝ¯´\u00AD±‗¾¶§÷¸°¨·¹³²■\u00A0";
constexpr std::u16string_view Macintosh =
    u"ÄÅÇÉÑÖÜáàâäãåçéèêëíìîïñóòôöõúùûü"
    u"†°¢£§•¶ß®©™´¨≠ÆØ∞±≤≥¥µ∂∑∏π∫ªºΩæø"
    u"¿¡¬√ƒ≈∆«»…\u00A0ÀÃÕŒœ–—“”‘’÷◊ÿŸ⁄€‹›ﬁﬂ"
    u"‡·‚„‰ÂÊÁËÈÍÎÏÌÓÔ\uFFFDÒÚÛÙıˆ˜¯˘˙˚¸˝˛ˇ";

struct CodePageRow {
  int Number;
  std::u16string_view Characters;
};
constexpr CodePageRow CodePages[] = {{1252, Windows1252}, {1250, Windows1250}, {1251, Windows1251},
                                     {437, Dos437},       {850, Dos850},       {10000, Macintosh}};

}  // namespace

char32_t FromCodePage(int codePage, unsigned char byte) {
  if (byte < 0x80) return byte;
  const auto* row = std::find_if(std::begin(CodePages), std::end(CodePages),
                                 [&](const CodePageRow& each) { return each.Number == codePage; });
  if (row == std::end(CodePages)) row = CodePages;
  const std::size_t index = byte - 0x80U;
  return index < row->Characters.size() ? row->Characters[index] : byte;
}

}  // namespace qves
