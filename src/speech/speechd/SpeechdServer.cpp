#include "speech/speechd/SpeechdServer.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <thread>

#include "text/Integers.h"

namespace qves {
namespace {

constexpr const char* UsualPort = "6560";
constexpr auto LookEvery = std::chrono::milliseconds(10);

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value ? value : "";
}

std::string UsualPath() {
  std::string folder = Variable("XDG_RUNTIME_DIR");
  if (folder.empty()) folder = Variable("XDG_CACHE_HOME");
  if (folder.empty()) folder = Variable("HOME") + "/.cache";
  return folder + "/speech-dispatcher/speechd.sock";
}

// Takes the text up to the next colon off, or the fallback where there is none.
std::string TakePart(std::string& text, const char* fallback = "") {
  const std::string part = text.substr(0, text.find(':'));
  text.erase(0, part.size() + 1);
  return part.empty() ? fallback : part;
}

template <typename Address>
int ConnectTo(const Address& address) {
  const auto* place = reinterpret_cast<const sockaddr*>(&address);
  const int file = ::socket(place->sa_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
  if (::connect(file, place, sizeof address) == 0 || errno == EINPROGRESS) return file;
  ::close(file);
  return -1;
}

// The server's input and output lead nowhere: it outlives this program. -1 when it cannot be run.
pid_t Run(const std::string& program, const std::string& path) {
  posix_spawn_file_actions_t files;
  posix_spawn_file_actions_init(&files);
  for (const int file : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    posix_spawn_file_actions_addopen(&files, file, "/dev/null", O_RDWR, 0);
  std::string words[] = {program, "--spawn", "--communication-method", "unix_socket", "--socket-path", path};
  char* arguments[std::size(words) + 1] = {};
  for (std::size_t i = 0; i < std::size(words); ++i) arguments[i] = words[i].data();
  pid_t child = -1;
  if (::posix_spawnp(&child, arguments[0], &files, nullptr, arguments, environ) != 0) child = -1;
  posix_spawn_file_actions_destroy(&files);
  return child;
}

}  // namespace

SpeechdServer::SpeechdServer() : Path(UsualPath()) {
  std::string address = Variable("SPEECHD_ADDRESS");
  const std::string method = TakePart(address);
  if (method == "unix_socket" && !address.empty()) Path = address;
  if (method != "inet_socket") return;
  Path.clear();
  Host = TakePart(address, "127.0.0.1");
  Port = TakePart(address, UsualPort);
}

int SpeechdServer::Connect() const {
  if (Path.empty()) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(ParseInteger<std::uint16_t>(Port).value_or(0));
    if (::inet_pton(AF_INET, Host.c_str(), &address.sin_addr) != 1) return -1;
    return ConnectTo(address);
  }
  sockaddr_un address{};
  address.sun_family = AF_UNIX;
  if (Path.size() >= sizeof address.sun_path) return -1;
  Path.copy(address.sun_path, Path.size());
  return ConnectTo(address);
}

void SpeechdServer::Start(TimePoint deadline) const {
  if (Path.empty()) return;
  const std::string command = Variable("SPEECHD_CMD");
  const pid_t child = Run(command.empty() ? "speech-dispatcher" : command, Path);
  if (child < 0) return;
  // The server goes to the background when it listens; what was started ends then.
  while (::waitpid(child, nullptr, WNOHANG) == 0) {
    if (SteadyClock::now() >= deadline) ::kill(child, SIGKILL);
    std::this_thread::sleep_for(LookEvery);
  }
}

}  // namespace qves
