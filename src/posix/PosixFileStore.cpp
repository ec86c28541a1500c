#include "posix/PosixFileStore.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <thread>
#include <utility>

namespace qves {
namespace {

namespace fs = std::filesystem;

/// True when the path, its links resolved, is the folder or lies below it.
bool IsBelow(const std::string& path, const std::string& folder) {
  std::error_code ignored;
  const fs::path real = fs::weakly_canonical(path, ignored);
  const fs::path base = fs::weakly_canonical(folder, ignored);
  const auto relative = real.lexically_relative(base);
  return !relative.empty() && *relative.begin() != "..";
}

// No file of the calculator's comes near it; one that is longer would fill the memory.
constexpr off_t LargestFile = 256 * 1024 * 1024;

class Descriptor {
 public:
  Descriptor(const std::string& path, int flags, mode_t mode = 0666)
      : Number(::open(path.c_str(), flags | O_CLOEXEC, mode)) {}
  ~Descriptor() {
    if (Number >= 0) ::close(Number);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  const int Number;
};

bool WriteAll(int descriptor, std::string_view text) {
  while (!text.empty()) {
    const ssize_t count = ::write(descriptor, text.data(), text.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    text.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

bool Fail(std::string& error) {
  error = std::strerror(errno);
  return false;
}

}  // namespace

PosixFileStore::PosixFileStore(std::string root, std::string programFolder)
    : Root(std::move(root)), ProgramFolder(std::move(programFolder)) {}

bool PosixFileStore::MayRead(const std::string& path) const {
  if (Root.empty()) return RelativePaths || path.starts_with('/');
  return path.starts_with('/') && (IsBelow(path, Root) || IsBelow(path, ProgramFolder));
}

bool PosixFileStore::MayWrite(const std::string& path, std::string& error) const {
  if (Root.empty() || (path.starts_with('/') && IsBelow(path, Root))) return true;
  error = "it lies outside of " + Root;
  return false;
}

std::optional<std::string> PosixFileStore::Read(const std::string& path, std::string& error) {
  if (!MayRead(path)) {
    error = "it lies outside of " + Root;
    return std::nullopt;
  }
  const Descriptor file(path, O_RDONLY | O_NONBLOCK);  // a pipe without a writer would be waited for
  std::string content;
  struct stat status {};
  const bool open = file.Number >= 0 && ::fstat(file.Number, &status) == 0;
  if (open && !S_ISREG(status.st_mode)) {
    error = S_ISDIR(status.st_mode) ? "it is a folder" : "it is no plain file";
    return std::nullopt;
  }
  if (open && status.st_size > LargestFile) {
    error = "it is too large";
    return std::nullopt;
  }
  if (open) content.reserve(static_cast<std::size_t>(status.st_size));
  char buffer[65536];
  for (;;) {
    const ssize_t count = open ? ::read(file.Number, buffer, sizeof buffer) : -1;
    if (count == 0) return content;
    if (count < 0 && open && errno == EINTR) continue;
    if (count < 0) {
      Fail(error);
      return std::nullopt;
    }
    content.append(buffer, static_cast<std::size_t>(count));
  }
}

bool PosixFileStore::Write(const std::string& path, std::string_view content, std::string& error,
                           FileReaders readers) {
  if (!MayWrite(path, error)) return false;
  MakeFolder(fs::path(path).parent_path());
  const std::string temporary = path + "." + std::to_string(::getpid()) + ".tmp";
  bool written = false;
  {
    const Descriptor file(temporary, O_WRONLY | O_CREAT | O_TRUNC,
                          readers == FileReaders::OwnerOnly ? 0600 : 0666);
    written = file.Number >= 0 && WriteAll(file.Number, content) && ::fsync(file.Number) == 0;
    if (!written) Fail(error);
  }
  if (written && std::rename(temporary.c_str(), path.c_str()) != 0) written = Fail(error);
  if (written)
    Written.push_back(path);
  else
    ::unlink(temporary.c_str());
  return written;
}

bool PosixFileStore::Append(const std::string& path, std::string_view text, std::string& error) {
  if (!MayWrite(path, error)) return false;
  // A pipe without a reader would be waited for.
  const Descriptor file(path, O_WRONLY | O_CREAT | O_APPEND | O_NONBLOCK);
  if (file.Number < 0 || !WriteAll(file.Number, text)) return Fail(error);
  Written.push_back(path);
  return true;
}

bool PosixFileStore::IsFile(const std::string& path) {
  struct stat status {};
  return MayRead(path) && ::stat(path.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

bool PosixFileStore::IsFolder(const std::string& path) {
  struct stat status {};
  return MayRead(path) && ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool PosixFileStore::MakeFolder(const std::string& path) {
  std::string error;
  if (!MayWrite(path, error)) return false;
  std::error_code ignored;
  fs::create_directories(path, ignored);
  return IsFolder(path);
}

/// Of the folder, so that no file of its own is left behind. One that cannot be had is done without.
std::shared_ptr<void> PosixFileStore::Lock(const std::string& folder) {
  using namespace std::chrono_literals;
  MakeFolder(folder);
  auto lock = std::make_shared<Descriptor>(folder, O_RDONLY | O_DIRECTORY);
  const auto end = std::chrono::steady_clock::now() + 1s;
  while (::flock(lock->Number, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK &&
         std::chrono::steady_clock::now() < end)
    std::this_thread::sleep_for(5ms);
  return lock;
}

std::vector<std::string> PosixFileStore::TakeWritten() {
  return std::exchange(Written, {});
}

}  // namespace qves
