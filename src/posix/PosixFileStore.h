// Files and folders of the machine, optionally only those below one folder.
#pragma once

#include <string>
#include <vector>

#include "platform/FileStore.h"

namespace qves {

class PosixFileStore : public FileStore {
 public:
  /// With a root: writes below `root` only, reads below `root` and `programFolder` only; anything else is not
  /// there, relative paths neither. Without one ("") there are no limits.
  PosixFileStore(std::string root, std::string programFolder);

  /// From now on relative paths are not there.
  void RefuseRelativePaths() { RelativePaths = false; }

  std::optional<std::string> Read(const std::string& path, std::string& error) override;
  bool Write(const std::string& path, std::string_view content, std::string& error,
             FileReaders readers = FileReaders::Everybody) override;
  bool Append(const std::string& path, std::string_view text, std::string& error) override;
  bool IsFile(const std::string& path) override;
  bool IsFolder(const std::string& path) override;
  bool MakeFolder(const std::string& path) override;
  std::shared_ptr<void> Lock(const std::string& folder) override;

  /// The files written since the last call, in order.
  std::vector<std::string> TakeWritten();

 private:
  bool MayRead(const std::string& path) const;
  bool MayWrite(const std::string& path, std::string& error) const;

  std::string Root;
  std::string ProgramFolder;
  bool RelativePaths = true;
  std::vector<std::string> Written;
};

}  // namespace qves
