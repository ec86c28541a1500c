// The error log: a line for each fault of the outside world.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/FileStore.h"
#include "platform/Outside.h"

namespace qves {

inline constexpr int SettingsErrorCode = 1;  ///< a settings file
inline constexpr int MessageErrorCode = 2;   ///< a message file
inline constexpr int RegistryErrorCode = 3;  ///< the registry
inline constexpr int ReportErrorCode = 4;    ///< the statistics report
inline constexpr int ImportErrorCode = 5;    ///< a file of data to import
inline constexpr int OverflowErrorCode = 6;  ///< a count beyond its integer range
inline constexpr int DocumentErrorCode = 7;  ///< a document that is shown
inline constexpr int HistoryErrorCode = 8;   ///< the history of calculations

class ErrorLog {
 public:
  ErrorLog(FileStore& files, Clock& clock) : Files(files), Time(clock) {}

  /// The folder the log lives in. Lines written before it is known are kept and written now.
  void SetFolder(const std::string& temporaryFolder);

  /// Appends one line to "Error Log.txt": local date and time, code and text, separated by tabs. Makes the
  /// folder when missing. When the log cannot be written the line goes to standard error.
  void WriteErrorLog(int code, std::string_view text);

 private:
  void Append(const std::string& line);

  FileStore& Files;
  Clock& Time;
  std::string Folder;
  std::vector<std::string> Waiting;
};

}  // namespace qves
