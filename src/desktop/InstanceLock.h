// One running copy a folder: a lock that the kernel drops with the process, however it ends, and a socket
// beside it on which later copies ask the first one to show itself.
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>
#include <string>

namespace qves {

class InstanceLock {
 public:
  /// `folder` is where lock and socket lie; it is created when missing.
  explicit InstanceLock(std::string folder);
  ~InstanceLock();
  InstanceLock(const InstanceLock&) = delete;
  InstanceLock& operator=(const InstanceLock&) = delete;

  /// True when this is the first copy. Where no lock can be had (a read-only folder) every copy is the first.
  bool Acquire();
  /// Calls `raise` when another copy asks, with its activation token ("" for none).
  void Listen(std::function<void(const std::string& token)> raise);
  /// Asks the first copy to show itself; waits no longer than about a second for it to listen.
  bool AskFirst(const std::string& token);

 private:
  void Answer();
  int TryConnect() const;

  std::string Folder;
  int FolderHandle = -1;
  int LockHandle = -1;
  int ListenHandle = -1;
  std::unique_ptr<QSocketNotifier> Incoming;
  std::function<void(const std::string&)> Raise;
};

/// The folder for a program that was given no home: the session's runtime folder.
std::string RuntimeFolder();

}  // namespace qves
