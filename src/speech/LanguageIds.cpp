#include "speech/LanguageIds.h"

#include <algorithm>
#include <cstdlib>

namespace qves {
namespace {

// Number by number, from 1 on. Some languages share one, and some numbers are none of a language.
constexpr std::string_view Languages =
    " ar , bg , ca , zh cmn hak yue , cs , da , de , el , en , es , fi , fr , he , hu , is , it , ja , "
    "ko , nl , no nb nn , pl , pt , rm , ro , ru , hr bs hbs sh sr , sk , sq , sv , th , tr , ur , "
    "id , uk , be , sl , et , lv , lt , tg , fa , vi , hy hyw , az , eu , dsb hsb , mk , , , tn , , "
    "xh , zu , af , ka , fo , hi , mt , se sma smj , ga , yi , ms , kk , ky , sw , tk , uz , tt , bn , "
    "pa , gu , or , ta , te , kn , ml , as , mr , sa , mn , bo , cy , km , lo , my , gl , kok , , sd , "
    ", si , chr , iu , am , tzm , , ne , fy , ps , fil , dv , , ff , ha , , yo , qu quz , , ba , lb , "
    "kl , ig , , om , ti , gn , haw , la , so , , pap , arn , , moh , , br , , ug , mi , oc , co , "
    "gsw , sah , quc , rw , wo , , , , , , , , , gd , ckb ku ";

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
  const std::size_t place = Languages.find(" " + PrimaryTag(tag) + " ");
  if (place == std::string_view::npos) return UnknownLanguageId;
  return 1 + int(std::count(Languages.begin(), Languages.begin() + place, ','));
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
