#include "desktop/InstanceLock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/un.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <thread>

namespace qves {
namespace {

constexpr const char* LockName = "qvescalc.lock";
constexpr const char* SocketName = "qvescalc.socket";
constexpr int ConnectAttempts = 50;
constexpr std::chrono::milliseconds AttemptPause{20};
constexpr std::size_t LongestToken = 512;

/// The socket's address by way of the folder's handle: a path of any length fits.
sockaddr_un SocketAddress(int folderHandle) {
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  const std::string path = "/proc/self/fd/" + std::to_string(folderHandle) + "/" + SocketName;
  std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
  return address;
}

bool IsOfThisUser(int connection) {
  ucred peer{};
  socklen_t length = sizeof peer;
  return getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &length) == 0 && peer.uid == getuid();
}

/// What the other copy sends until it closes; a silent one is given up soon.
std::string ReadToken(int connection) {
  const timeval patience{0, 200000};
  setsockopt(connection, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
  char buffer[LongestToken];
  const ssize_t length = recv(connection, buffer, sizeof buffer, 0);
  return length > 0 ? std::string(buffer, static_cast<std::size_t>(length)) : std::string();
}

}  // namespace

InstanceLock::InstanceLock(std::string folder) : Folder(std::move(folder)) {}

InstanceLock::~InstanceLock() {
  Incoming.reset();
  if (ListenHandle >= 0) unlinkat(FolderHandle, SocketName, 0);
  for (const int handle : {ListenHandle, LockHandle, FolderHandle})
    if (handle >= 0) close(handle);
}

bool InstanceLock::Acquire() {
  std::error_code ignored;
  std::filesystem::create_directories(Folder, ignored);
  FolderHandle = open(Folder.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC);
  if (FolderHandle < 0) return true;
  LockHandle = openat(FolderHandle, LockName, O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  return LockHandle < 0 || flock(LockHandle, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

void InstanceLock::Listen(std::function<void(const std::string&)> raise) {
  if (FolderHandle < 0) return;
  // Whoever holds the lock owns the name: what is there is of a copy that was killed.
  unlinkat(FolderHandle, SocketName, 0);
  const int handle = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
  const sockaddr_un address = SocketAddress(FolderHandle);
  if (handle < 0 || bind(handle, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
      listen(handle, 8) != 0) {
    if (handle >= 0) close(handle);
    return;
  }
  ListenHandle = handle;
  Raise = std::move(raise);
  Incoming = std::make_unique<QSocketNotifier>(handle, QSocketNotifier::Read);
  QObject::connect(Incoming.get(), &QSocketNotifier::activated, [this] { Answer(); });
}

void InstanceLock::Answer() {
  const int connection = accept4(ListenHandle, nullptr, nullptr, SOCK_CLOEXEC);
  if (connection < 0) return;
  const bool trusted = IsOfThisUser(connection);
  const std::string token = trusted ? ReadToken(connection) : std::string();
  close(connection);
  if (trusted) Raise(token);
}

int InstanceLock::TryConnect() const {
  const int handle = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
  const sockaddr_un address = SocketAddress(FolderHandle);
  if (handle >= 0 && connect(handle, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0)
    return handle;
  if (handle >= 0) close(handle);
  return -1;
}

bool InstanceLock::AskFirst(const std::string& token) {
  if (FolderHandle < 0) return false;
  for (int attempt = 0; attempt < ConnectAttempts; ++attempt) {
    if (const int connection = TryConnect(); connection >= 0) {
      const bool sent =
          send(connection, token.data(), std::min(token.size(), LongestToken), MSG_NOSIGNAL) >= 0;
      close(connection);
      return sent;
    }
    // The first copy may have been started in the same moment and not listen yet.
    std::this_thread::sleep_for(AttemptPause);
  }
  return false;
}

std::string RuntimeFolder() {
  const char* folder = std::getenv("XDG_RUNTIME_DIR");
  if (folder && *folder == '/') return folder;
  // Where the desktop gives none: a folder that only this user can enter.
  const std::string own = "/tmp/qvescalc-" + std::to_string(getuid());
  mkdir(own.c_str(), 0700);
  return own;
}

}  // namespace qves
