#include "services/ErrorLog.h"

#include <algorithm>
#include <iostream>

namespace qves {

void ErrorLog::SetFolder(const std::string& temporaryFolder) {
  Folder = temporaryFolder;
  for (const std::string& line : Waiting) Append(line);
  Waiting.clear();
}

void ErrorLog::WriteErrorLog(int code, std::string_view text) {
  std::string line = TheClock.LocalDateTime() + "\t" + std::to_string(code) + "\t" + std::string(text);
  std::replace(line.begin(), line.end(), '\n', ' ');
  line += '\n';
  if (Folder.empty())
    Waiting.push_back(std::move(line));
  else
    Append(line);
}

void ErrorLog::Append(const std::string& line) {
  std::string error;
  if (Files.MakeFolder(Folder) && Files.Append(Folder + "/Error Log.txt", line, error)) return;
  std::cerr << "error log: " << line;
}

}  // namespace qves
