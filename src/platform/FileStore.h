// Files and folders. Paths are UTF-8; errors are return values with the system's text.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace qves {

/// Who may read a file that is written.
enum class FileReaders { Everybody, OwnerOnly };

class FileStore {
 public:
  virtual ~FileStore() = default;
  /// The whole file; nothing on failure, with the reason in `error`.
  virtual std::optional<std::string> Read(const std::string& path, std::string& error) = 0;
  /// Replaces the file in one step (a temporary name, then a rename), making its folder when missing.
  virtual bool Write(const std::string& path, std::string_view content, std::string& error,
                     FileReaders readers = FileReaders::Everybody) = 0;
  /// Appends to the file, making it when missing.
  virtual bool Append(const std::string& path, std::string_view text, std::string& error) = 0;
  virtual bool IsFile(const std::string& path) = 0;  ///< exists and is no folder
  virtual bool IsFolder(const std::string& path) = 0;
  /// Makes the folder and those above it; true when it is there afterwards.
  virtual bool MakeFolder(const std::string& path) = 0;
  /// While the result lives, other programs that ask for the same folder wait: what is read there is what is
  /// then written anew. It waits for them a second at most, and the folder is made when missing.
  virtual std::shared_ptr<void> Lock(const std::string& /*folder*/) { return nullptr; }
};

}  // namespace qves
