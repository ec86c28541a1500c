#include "services/Settings.h"

#include <algorithm>
#include <array>
#include <variant>

#include "services/OwnSettings.h"
#include "services/QuotedFields.h"
#include "text/Integers.h"
#include "text/Text.h"

namespace qves {
namespace {

/// Stores a value in its field; the reason when the field cannot hold it, "" when it can.
std::string_view Store(std::string& field, std::string_view value) {
  field = value;
  return "";
}

std::string_view Store(std::vector<std::string>& field, std::string_view value) {
  field.emplace_back(value);
  return "";
}

template <class Integer>
std::string_view Store(Integer& field, std::string_view digits) {
  digits = Trimmed(digits);
  if (digits.starts_with('+') && !digits.starts_with("+-")) digits.remove_prefix(1);
  const std::errc error = ReadInteger(digits, field);
  if (error == std::errc::result_out_of_range) return "is out of range";
  return error == std::errc() ? "" : "is no integer";
}

/// True and False in any case, with or without the marks of the write format, or a number.
std::string_view Store(bool& field, std::string_view value) {
  const std::string word = Lower(value);
  std::int32_t number = word == "true" || word == "#true#" ? -1 : 0;
  const bool isWord = number != 0 || word == "false" || word == "#false#";
  if (!isWord && !Store(number, value).empty()) return "is neither true nor false";
  field = number != 0;
  return "";
}

using Field = std::variant<std::string AppSettings::*, bool AppSettings::*, std::int16_t AppSettings::*,
                           std::int32_t AppSettings::*, std::vector<std::string> AppSettings::*>;

struct HostKey {
  std::string_view Key;
  Field Target;
};

const std::array HostKeys = {
    HostKey{"SystemVolume", &AppSettings::SystemVolume},
    HostKey{"SystemSpeed", &AppSettings::SystemSpeed},
    HostKey{"SystemVoice", &AppSettings::SystemVoice},
    HostKey{"SystemManuf", &AppSettings::SystemManuf},
    HostKey{"SystemProduct", &AppSettings::SystemProduct},
    HostKey{"SystemLanguage", &AppSettings::SystemLanguage},
    HostKey{"SystemPitch", &AppSettings::SystemPitch},
    HostKey{"DontSpeak", &AppSettings::DontSpeak},
    HostKey{"MetricUnits", &AppSettings::MetricUnits},
    HostKey{"EchoChars", &AppSettings::EchoChars},
    HostKey{"EchoWords", &AppSettings::EchoWords},
    HostKey{"PrintName", &AppSettings::PrintName},
    HostKey{"PrintBin", &AppSettings::PrintBin},
    HostKey{"PrintPaperSize", &AppSettings::PrintPaperSize},
    HostKey{"PrintPortrait", &AppSettings::PrintPortrait},
    HostKey{"UseSCL", &AppSettings::UseSCL},
    HostKey{"UseAccuPage", &AppSettings::UseAccuPage},
    HostKey{"ScannerSource", &AppSettings::ScannerSource},
    HostKey{"TextColor", &AppSettings::TextColor},
    HostKey{"BackColor", &AppSettings::BackColor},
    HostKey{"HighColor", &AppSettings::HighColor},
    HostKey{"HiBkColor", &AppSettings::HiBkColor},
    HostKey{"NewTracking", &AppSettings::NewTracking},
    HostKey{"FixedFont", &AppSettings::FixedFont},
    HostKey{"BoldFont", &AppSettings::BoldFont},
    HostKey{"ItalicFont", &AppSettings::ItalicFont},
    HostKey{"FontName", &AppSettings::FontName},
    HostKey{"FontSize", &AppSettings::FontSize},
    HostKey{"Brightness", &AppSettings::Brightness},
    HostKey{"ReadAsDigits", &AppSettings::ReadAsDigits},
    HostKey{"CalcView", &AppSettings::CalcView},
    HostKey{"IgnoreAllCaps", &AppSettings::IgnoreAllCaps},
    HostKey{"IgnorePartNum", &AppSettings::IgnorePartNum},
    HostKey{"IgnoreCap", &AppSettings::IgnoreCap},
    HostKey{"SpellPref", &AppSettings::SpellPref},
    HostKey{"SpellSuff", &AppSettings::SpellSuff},
};

/// A folder's or file's name: a message, and what it is when the message file is missing.
struct PlaceName {
  int Message;
  std::string_view Usual;
};

constexpr PlaceName TemporaryName = {2, "Temporary"};
constexpr PlaceName SettingsName = {3, "Settings"};
constexpr PlaceName OwnFileName = {6, "Calc"};
constexpr PlaceName HostFileName = {7, "Quorvane 1000"};

std::string Named(const MessageStore& messages, const PlaceName& name) {
  const std::string& text = messages.GetMessage(name.Message);
  return text.empty() ? std::string(name.Usual) : text;
}

constexpr std::string_view SettingsExtension = ".ost";
constexpr std::string_view DocumentsKeys[] = {R"(Software\QVES\Quorvane 1000)", R"(Software\QVES\Trelwick)"};

}  // namespace

void SettingsFiles::ReadSettings() {
  SetDefaults();
  FindDataFolder();
  FindDocuments();
  ReadHostFile();
  ReadOwnFile();
}

void SettingsFiles::SetDefaults() {
  Messages.LoadMessageFile("Messages.txt");
  Settings = AppSettings{};
  // The host product's name is compared with itself here, so its other colours (text 0 on 15) never come;
  // wanted so.
  Verbosity.Initialise();
}

void SettingsFiles::FindDataFolder() {
  Folders& f = FolderLocations;
  f.UserName = Outside.Directories.UserName();
  const std::string config = ReplaceAll(Outside.Directories.ConfigFolder(), "LocalService", f.UserName);
  f.DataFolder = config + "/QVES/" + Named(Messages, SettingsName);
  f.HostSettingsFile = f.DataFolder + "/" + Named(Messages, HostFileName) + std::string(SettingsExtension);
  f.OwnSettingsFile = f.DataFolder + "/" + Named(Messages, OwnFileName) + std::string(SettingsExtension);
}

void SettingsFiles::FindDocuments() {
  Folders& f = FolderLocations;
  f.DocumentsFolder = Outside.Directories.DocumentsFolder() + "/QVES";
  for (const std::string_view key : DocumentsKeys) {
    const auto folder = Outside.RegistryStore.Read(key, "Documents");
    if (!folder || !Outside.Files.IsFolder(*folder)) continue;
    f.DocumentsFolder = *folder;
    break;
  }
  f.TemporaryFolder = f.DocumentsFolder + "/" + Named(Messages, TemporaryName);
  f.SoundsFolder = Outside.Directories.ProgramFolder() + "/Sounds";
  Log.SetFolder(f.TemporaryFolder);
}

void SettingsFiles::ReadHostFile() {
  Settings.HostFileFound = ReadPairs(
      FolderLocations.HostSettingsFile,
      [this](const std::string& key, const std::string& value) { return StoreHostSetting(key, value); });
}

void SettingsFiles::ReadOwnFile() {
  const std::string& path = FolderLocations.OwnSettingsFile;
  ReadPairs(path, [&](const std::string& key, const std::string& value) {
    if (key == "CalcView") return Store(Settings.CalcView, value);
    if (const std::string reason = StoreOwnSetting(Settings, key, value); !reason.empty())
      Log.WriteErrorLog(SettingsErrorCode, path + ": \"" + value.substr(0, 40) + "\" for " + key + " " +
                                               reason + "; it is ignored");
    return std::string_view();
  });
}

std::string_view SettingsFiles::StoreHostSetting(const std::string& key, const std::string& value) {
  const auto* found =
      std::find_if(HostKeys.begin(), HostKeys.end(), [&](const HostKey& k) { return k.Key == key; });
  if (found != HostKeys.end())
    return std::visit([&](auto member) { return Store(Settings.*member, value); }, found->Target);
  if (key.starts_with("vrb")) Verbosity.ApplySetting(key, value);
  return "";
}

/// Hands each key and value of a settings file to `store`. True when the file is there and could be opened.
template <class StorePair>
bool SettingsFiles::ReadPairs(const std::string& path, StorePair store) {
  if (!Outside.Files.IsFile(path) && !Outside.Files.IsFolder(path)) return false;
  std::string error;
  const auto content = Outside.Files.Read(path, error);
  if (!content) {
    Log.WriteErrorLog(SettingsErrorCode, path + ": cannot be read (" + error + "); the defaults are used");
    return false;
  }
  FieldReader fields(*content);
  const auto fail = [&](const std::string& what) {
    Log.WriteErrorLog(SettingsErrorCode, path + ":" + std::to_string(fields.Line()) + ": " + what +
                                             "; the rest of the file is not read");
    return true;
  };
  fields.Next();  // the header
  if (fields.CutOff()) return fail("the file ends inside its first field");
  while (const auto key = fields.Next()) {
    const auto value = fields.Next();
    if (!value || fields.CutOff()) return fail("the file ends inside \"" + key->substr(0, 40) + "\"");
    const std::string_view reason = store(*key, *value);
    if (!reason.empty())
      return fail("\"" + value->substr(0, 40) + "\" for " + *key + " " + std::string(reason));
  }
  return true;
}

void SettingsFiles::SaveSettings() {
  const std::string content = Quote("Calc Settings") + "\n" + Quote("CalcView") + "," +
                              std::to_string(Settings.CalcView) + "\n" + OwnSettingLines(Settings);
  std::string error;
  if (!Outside.Files.Write(FolderLocations.OwnSettingsFile, content, error))
    Log.WriteErrorLog(SettingsErrorCode, FolderLocations.OwnSettingsFile + ": cannot be written (" + error +
                                             "); the settings are not kept");
}

}  // namespace qves
