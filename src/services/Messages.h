// The message store: every text the calculator says or shows, by number.
#pragma once

#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "platform/FileStore.h"
#include "platform/Outside.h"
#include "services/ErrorLog.h"

namespace qves {

class MessageStore {
 public:
  MessageStore(FileStore& files, DirectoryManager& directories, ErrorLog& log)
      : Files(files), Directories(directories), Log(log) {}

  /// Adds a message file: the path as it stands, else the file of that name in the program's own folder. A
  /// missing file is skipped silently. A later line or file replaces an earlier id; a malformed line is
  /// skipped and noted in the error log, once in a run.
  void LoadMessageFile(const std::string& name);

  /// The text of that id; "" when no file holds it.
  const std::string& GetMessage(int id) const;

 private:
  void LoadLine(const std::string& path, int number, std::string_view line);

  FileStore& Files;
  DirectoryManager& Directories;
  ErrorLog& Log;
  std::unordered_map<int, std::string> Texts;
  std::set<std::string> Noted;
};

/// What stands in a message for a value.
inline constexpr std::string_view Placeholder = "%%";

/// Replaces each "%%" in turn by the next value. A "%%" without a value stays as it is.
std::string FillPlaceholders(std::string_view text, const std::vector<std::string>& values);

}  // namespace qves
