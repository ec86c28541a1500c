// The one settings record. The calculator uses a part of it; the rest is read so that the record matches the
// host reading product's.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace qves {

/// The views by their number in the settings; deliberately not the order of the View menu.
enum CalcViewNumber : std::int16_t {
  ScientificView = 0,
  StatisticsView = 1,
  StandardView = 2,
  BusinessView = 3,
};

/// Brief: no help behind a name, no introduction before a report.
enum SpeechDetail : int { FullSpeech, BriefSpeech };

/// Whether the calculator speaks with its own voice. Auto: it does.
enum OwnVoiceChoice : int { OwnVoiceAuto, OwnVoiceOn, OwnVoiceOff };

/// Of a setting that holds over the host's: the host's counts.
inline constexpr int HostLevel = -1;

/// Whether the plain comma key types the point: where the desktop's locale writes numbers so, always, never.
enum DecimalCommaChoice : int { DecimalCommaAuto, DecimalCommaOn, DecimalCommaOff };

struct AppSettings {
  std::int32_t SystemVolume = 65535;
  std::int16_t SystemSpeed = 170;  ///< words per minute
  std::string SystemVoice = "Reed";
  std::string SystemManuf = "IBM";
  std::string SystemProduct;
  std::int16_t SystemLanguage = 9;  ///< primary language id; 0 any
  std::int16_t SystemPitch = -1;    ///< 1 to 20; -1 the engine's own
  bool DontSpeak = false;
  bool MetricUnits = false;
  bool EchoChars = true;
  bool EchoWords = false;
  std::string PrintName;
  std::string PrintBin;
  std::string PrintPaperSize;
  bool PrintPortrait = true;
  bool UseSCL = true;
  bool UseAccuPage = false;
  std::int16_t ScannerSource = 1;
  std::int16_t TextColor = 15;  ///< of the sixteen-colour palette, as the three below
  std::int16_t BackColor = 0;
  std::int16_t HighColor = 14;
  std::int16_t HiBkColor = 9;
  std::int16_t NewTracking = 0;
  bool FixedFont = false;
  bool BoldFont = false;
  bool ItalicFont = false;
  std::string FontName = "Arial";
  std::int16_t FontSize = 14;  ///< points
  std::int16_t Brightness = 0;
  bool ReadAsDigits = false;
  std::int16_t CalcView = StandardView;
  bool IgnoreAllCaps = false;
  bool IgnorePartNum = false;
  bool IgnoreCap = false;
  std::vector<std::string> SpellPref;
  std::vector<std::string> SpellSuff;

  // The calculator's own, see OwnSettings.
  int DecimalComma = DecimalCommaAuto;
  int ReadNumbersAs = 0;   ///< a NumberReading
  int SpokenDecimals = 0;  ///< a number is spoken with so many decimals; 0: with all
  int Detail = FullSpeech;
  int Speed = HostLevel;   ///< words per minute
  int Volume = HostLevel;  ///< percent
  int OwnVoice = OwnVoiceAuto;
  int NoFunctionSound = true;  ///< whether a key that does nothing makes a sound
  int KeepHistory = true;      ///< whether calculations are kept over restarts

  /// True when a host settings file was found: only then its colours and font replace the desktop's own.
  bool HostFileFound = false;
};

}  // namespace qves
