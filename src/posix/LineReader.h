// Lines of a file or a pipe, until its end or until the program is asked to end.
#pragma once

#include <string>

namespace qves {

class LineReader {
 public:
  /// Reads from the descriptor. From now on SIGTERM, SIGINT and SIGHUP end the reading instead of the
  /// program.
  explicit LineReader(int descriptor);

  /// The next line without its line end; false at the end.
  bool Next(std::string& line);
  /// The signal that ended the reading; 0 for none.
  int EndingSignal() const;

 private:
  bool Fill();

  int Descriptor;
  std::string Buffer;
  std::size_t At = 0;
};

}  // namespace qves
