// window_time PROGRAM [ARGS]: starts the program, waits until its window is mapped, ends it with SIGTERM, and
// prints the milliseconds from the start to the window and from SIGTERM to the end.
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>
#include <xcb/xcb.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

using Clock = std::chrono::steady_clock;

double Milliseconds(Clock::time_point from) {
  return std::chrono::duration<double, std::milli>(Clock::now() - from).count();
}

/// Waits for a window that is more than a helper of the toolkit.
void WaitForWindow(xcb_connection_t* connection) {
  for (;;) {
    const std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> event(xcb_wait_for_event(connection),
                                                                           std::free);
    if (!event) std::exit(1);
    if ((event->response_type & 0x7f) != XCB_MAP_NOTIFY) continue;
    const auto window = reinterpret_cast<const xcb_map_notify_event_t*>(event.get())->window;
    const auto cookie = xcb_get_geometry(connection, window);
    const std::unique_ptr<xcb_get_geometry_reply_t, decltype(&std::free)> geometry(
        xcb_get_geometry_reply(connection, cookie, nullptr), std::free);
    if (geometry && geometry->width > 20 && geometry->height > 20) return;
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) return 2;
  xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
  if (xcb_connection_has_error(connection)) return 1;
  const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
  const uint32_t mask = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
  xcb_change_window_attributes(connection, root, XCB_CW_EVENT_MASK, &mask);
  xcb_flush(connection);

  const auto start = Clock::now();
  const pid_t child = ::fork();
  if (child == 0) {
    ::execv(argv[1], argv + 1);
    ::_exit(127);
  }
  WaitForWindow(connection);
  const double shown = Milliseconds(start);
  ::usleep(100000);  // idle
  const auto asked = Clock::now();
  ::kill(child, SIGTERM);
  ::waitpid(child, nullptr, 0);
  std::printf("%.1f %.1f\n", shown, Milliseconds(asked));
  xcb_disconnect(connection);
  return 0;
}
