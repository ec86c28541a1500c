// The dialog in which the user chooses a file.
#pragma once

#include <string>

namespace qves {

struct FileDialogSpec {
  std::string Title;
  std::string Filter;  ///< a name and its patterns, "|" between, ";" between patterns: "Text Files|*.txt"
  std::string DefaultExtension;  ///< without the point
  std::string InitialFolder;
};

class FixedSizeFileDialog {
 public:
  virtual ~FixedSizeFileDialog() = default;
  /// Shows the dialog until it is left: the path chosen, "" when it was cancelled.
  virtual std::string Show(const FileDialogSpec& spec) = 0;
  /// Whether it stands before the user, who then comes back from it.
  virtual bool TakesFocus() const { return false; }
};

}  // namespace qves
