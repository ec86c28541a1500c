// The messages that code asks for by name. Those that stand in a row of a table have no name but the row's.
#pragma once

namespace qves {

enum MessageId : int {
  ControlPlusMessage = 20,
  ShiftPlusMessage = 21,
  OpensDialogMessage = 22,
  HasSubMenuMessage = 23,
  MnemonicMessage = 24,
  MoreItemsMessage = 25,
  CopyMessage = 50,
  MsgBaseMessage = 99,
  TitleMessage = 100,
  WelcomeMessage = 101,
  ImportTitleMessage = 400,
  ImportFilterMessage = 401,
  LineBreakMessage = 402,
  SquareRootMessage = 1000,
  PointMessage = 1073,
  DecimalSeparatorMessage = 1081,
  CheckedMessage = 1134,
  ClearMessage = 1135,
  CurrentValueMessage = 1201,
  ErrorMessage = 1202,
  MinusMessage = 1204,
  OkMessage = 1205,
  TimesMessage = 1208,
  OkHelpMessage = 1264,
  DegreesSetMessage = 1446,
  AlphaSetMessage = 1447,
  StoredMessage = 1562,
  PrincipalPaidMessage = 1576,
  InterestPaidMessage = 1577,
  AccruedInterestMessage = 1578,
  FirstWeekdayMessage = 1580,  ///< Sunday, and six more
  FirstMonthMessage = 1587,    ///< January, abbreviated, and eleven more
  AllSelectedMessage = 1600,
  DisabledMessage = 1700,
  FirstFullMonthMessage = 1730,  ///< in full
  UndoneMessage = 1750,
  DoneAgainMessage = 1751,
  NothingToUndoMessage = 1752,
  NothingToRedoMessage = 1753,
  ImportStepMessage = 1754,
  SpeedMessage = 1903,
  VolumeMessage = 1904,
  VoiceOffMessage = 1905,
  VoiceOnMessage = 1906,
  BriefSpeechMessage = 1907,
  FullSpeechMessage = 1908,
  CopiedMessage = 1821,
  PastedMessage = 1822,
  NoNumberMessage = 1823,
  PasteStepMessage = 1839,
  OpenLineMessage = 1940,
  StatusLineMessage = 1941,
  MoreFiltersMessage = 1948,
  CharacterNameMessages = 4000,  ///< + the ASCII code
};

}  // namespace qves
