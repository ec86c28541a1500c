#include "speech/LanguageIds.h"

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace qves {
namespace {

struct LanguageRow {
  std::string_view Tag;
  int Id;
};

// Sorted by tag. Bosnian, Croatian and Serbian share a number, as all kinds of Chinese do.
constexpr LanguageRow Languages[] = {
    {"af", 0x36},  {"am", 0x5e},  {"ar", 0x01},  {"arn", 0x7a}, {"as", 0x4d},  {"az", 0x2c},  {"ba", 0x6d},
    {"be", 0x23},  {"bg", 0x02},  {"bn", 0x45},  {"bo", 0x51},  {"br", 0x7e},  {"bs", 0x1a},  {"ca", 0x03},
    {"chr", 0x5c}, {"ckb", 0x92}, {"cmn", 0x04}, {"co", 0x83},  {"cs", 0x05},  {"cy", 0x52},  {"da", 0x06},
    {"de", 0x07},  {"dsb", 0x2e}, {"dv", 0x65},  {"el", 0x08},  {"en", 0x09},  {"es", 0x0a},  {"et", 0x25},
    {"eu", 0x2d},  {"fa", 0x29},  {"ff", 0x67},  {"fi", 0x0b},  {"fil", 0x64}, {"fo", 0x38},  {"fr", 0x0c},
    {"fy", 0x62},  {"ga", 0x3c},  {"gd", 0x91},  {"gl", 0x56},  {"gn", 0x74},  {"gsw", 0x84}, {"gu", 0x47},
    {"ha", 0x68},  {"hak", 0x04}, {"haw", 0x75}, {"hbs", 0x1a}, {"he", 0x0d},  {"hi", 0x39},  {"hr", 0x1a},
    {"hsb", 0x2e}, {"hu", 0x0e},  {"hy", 0x2b},  {"hyw", 0x2b}, {"id", 0x21},  {"ig", 0x70},  {"is", 0x0f},
    {"it", 0x10},  {"iu", 0x5d},  {"ja", 0x11},  {"ka", 0x37},  {"kk", 0x3f},  {"kl", 0x6f},  {"km", 0x53},
    {"kn", 0x4b},  {"ko", 0x12},  {"kok", 0x57}, {"ku", 0x92},  {"ky", 0x40},  {"la", 0x76},  {"lb", 0x6e},
    {"lo", 0x54},  {"lt", 0x27},  {"lv", 0x26},  {"mi", 0x81},  {"mk", 0x2f},  {"ml", 0x4c},  {"mn", 0x50},
    {"moh", 0x7c}, {"mr", 0x4e},  {"ms", 0x3e},  {"mt", 0x3a},  {"my", 0x55},  {"nb", 0x14},  {"ne", 0x61},
    {"nl", 0x13},  {"nn", 0x14},  {"no", 0x14},  {"oc", 0x82},  {"om", 0x72},  {"or", 0x48},  {"pa", 0x46},
    {"pap", 0x79}, {"pl", 0x15},  {"ps", 0x63},  {"pt", 0x16},  {"qu", 0x6b},  {"quc", 0x86}, {"quz", 0x6b},
    {"rm", 0x17},  {"ro", 0x18},  {"ru", 0x19},  {"rw", 0x87},  {"sa", 0x4f},  {"sah", 0x85}, {"sd", 0x59},
    {"se", 0x3b},  {"sh", 0x1a},  {"si", 0x5b},  {"sk", 0x1b},  {"sl", 0x24},  {"sma", 0x3b}, {"smj", 0x3b},
    {"so", 0x77},  {"sq", 0x1c},  {"sr", 0x1a},  {"sv", 0x1d},  {"sw", 0x41},  {"ta", 0x49},  {"te", 0x4a},
    {"tg", 0x28},  {"th", 0x1e},  {"ti", 0x73},  {"tk", 0x42},  {"tn", 0x32},  {"tr", 0x1f},  {"tt", 0x44},
    {"tzm", 0x5f}, {"ug", 0x80},  {"uk", 0x22},  {"ur", 0x20},  {"uz", 0x43},  {"vi", 0x2a},  {"wo", 0x88},
    {"xh", 0x34},  {"yi", 0x3d},  {"yo", 0x6a},  {"yue", 0x04}, {"zh", 0x04},  {"zu", 0x35},
};
static_assert(std::is_sorted(std::begin(Languages), std::end(Languages),
                             [](const LanguageRow& a, const LanguageRow& b) { return a.Tag < b.Tag; }));

char LowerLetter(char c) {
  return c >= 'A' && c <= 'Z' ? char(c - 'A' + 'a') : c;
}

}  // namespace

std::string PrimaryTag(std::string_view tag) {
  std::string primary(tag.substr(0, tag.find_first_of("-_")));
  std::transform(primary.begin(), primary.end(), primary.begin(), LowerLetter);
  return primary;
}

int LanguageIdOf(std::string_view tag) {
  const std::string primary = PrimaryTag(tag);
  const auto* row = std::lower_bound(std::begin(Languages), std::end(Languages), primary,
                                     [](const LanguageRow& a, const std::string& b) { return a.Tag < b; });
  return row != std::end(Languages) && row->Tag == primary ? row->Id : UnknownLanguageId;
}

std::string TagOfLocale(std::string_view locale) {
  std::string tag(locale.substr(0, locale.find_first_of(".@")));
  if (tag.empty() || tag == "C" || tag == "POSIX") return "en";
  std::transform(tag.begin(), tag.end(), tag.begin(), LowerLetter);
  std::replace(tag.begin(), tag.end(), '_', '-');
  return tag;
}

std::string DesktopLanguage() {
  for (const char* name : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
    const char* value = std::getenv(name);
    if (value && *value) return TagOfLocale(value);
  }
  return TagOfLocale("");
}

}  // namespace qves
