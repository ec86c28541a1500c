// One running copy a home folder: a lock file, and a socket beside it on which later copies ask the first one
// to show itself.
#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <functional>
#include <string>

namespace qves {

class InstanceLock {
 public:
  /// `home`: copies that were given the same folder are copies of one program; "" is the user's own.
  explicit InstanceLock(const std::string& home);

  /// True when this is the first copy. Where no lock can be had (a read-only folder) every copy is the first.
  bool Acquire();
  /// Calls `raise` when another copy asks, with its activation token ("" for none).
  void Listen(std::function<void(const std::string& token)> raise);
  /// Asks the first copy to show itself; false when it has not answered within a few seconds.
  bool AskFirst(const std::string& token) const;

 private:
  void Answer(QLocalSocket* asking);

  const QString Base;  ///< path without extension
  QLockFile Lock;
  QLocalServer Server;
  std::function<void(const std::string&)> Raise;
};

}  // namespace qves
