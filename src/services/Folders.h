// The folders and files of one run. Paths have no slash at their end.
#pragma once

#include <string>

namespace qves {

struct Folders {
  std::string UserName;
  std::string DataFolder;  ///< the host product's, with the settings files
  std::string HostSettingsFile;
  std::string OwnSettingsFile;
  std::string DocumentsFolder;
  std::string TemporaryFolder;  ///< the error log and the report; made when something is first written there
  std::string SoundsFolder;

  std::string ReportFile() const { return TemporaryFolder + "/Result.txt"; }  ///< of the statistics
};

}  // namespace qves
