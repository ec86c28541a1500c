#include "services/ErrorLog.h"

#include <iostream>

#include "text/Text.h"

namespace qves {

void ErrorLog::SetFolder(const std::string& temporaryFolder) {
  Folder = temporaryFolder;
  for (const std::string& line : Waiting) Append(line);
  Waiting.clear();
}

void ErrorLog::WriteErrorLog(int code, std::string_view text) {
  const std::string line = Time.LocalDateTime() + "\t" + std::to_string(code) + "\t" +
                           MakeReadable(ReplaceAll(text, "\n", " ")) + "\n";
  if (Folder.empty())
    Waiting.push_back(line);
  else
    Append(line);
}

void ErrorLog::Append(const std::string& line) {
  std::string error;
  if (Files.MakeFolder(Folder) && Files.Append(Folder + "/Error Log.txt", line, error)) return;
  std::cerr << "error log: " << line;
}

}  // namespace qves
