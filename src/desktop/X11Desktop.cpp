#include "desktop/X11Desktop.h"

// The header's C code has a member of this name.
#define explicit explicit_
#include <xcb/xkb.h>
#undef explicit

#include <QGuiApplication>
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <span>

#include "model/KeyEvent.h"

namespace qves {
namespace {

struct Free {
  void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
using Owned = std::unique_ptr<Reply, Free>;

constexpr xcb_keysym_t F1Symbol = 0xffbe;
constexpr int LastFunctionKey = KeyF12;
constexpr std::uint32_t LongestTitle = 1024;  // in units of 4 bytes
constexpr int Screen = 0;                     // today's servers have one, whatever monitors it covers

/// The keysym of a key code: function keys and what types ASCII.
xcb_keysym_t SymbolOf(int keyCode) {
  if (keyCode >= KeyF1 && keyCode <= LastFunctionKey)
    return F1Symbol + static_cast<xcb_keysym_t>(keyCode - KeyF1);
  if (keyCode >= 'A' && keyCode <= 'Z') return static_cast<xcb_keysym_t>(keyCode - 'A' + 'a');
  return keyCode >= '0' && keyCode <= '9' ? static_cast<xcb_keysym_t>(keyCode) : XCB_NO_SYMBOL;
}

std::string PropertyText(xcb_connection_t* connection, xcb_get_property_cookie_t cookie) {
  const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(connection, cookie, nullptr));
  if (!reply || reply->format != 8) return {};
  const auto* text = static_cast<const char*>(xcb_get_property_value(reply.get()));
  const std::string_view all(text, static_cast<std::size_t>(xcb_get_property_value_length(reply.get())));
  return std::string(all.substr(0, all.find('\0')));
}

/// What is asked about a window; all questions go out before the first answer is read.
struct WindowQuestions {
  xcb_window_t Window;
  xcb_get_property_cookie_t Title;
  xcb_get_property_cookie_t PlainTitle;
  xcb_get_window_attributes_cookie_t Attributes;
};

}  // namespace

bool X11Desktop::Connect() {
  if (Connection) return true;
  const auto* server = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  if (!server) return false;
  Connection = server->connection();
  if (!xcb_ewmh_init_atoms_replies(&Ewmh, xcb_ewmh_init_atoms(Connection, &Ewmh), nullptr)) Ewmh = {};
  return true;
}

X11Desktop::~X11Desktop() {
  if (Ewmh.connection) xcb_ewmh_connection_wipe(&Ewmh);
}

std::vector<TopLevelWindow> X11Desktop::TopLevelWindows() {
  if (!HasEwmh()) return {};
  xcb_ewmh_get_windows_reply_t stacking{};
  const auto cookie = xcb_ewmh_get_client_list_stacking(&Ewmh, Screen);
  if (!xcb_ewmh_get_client_list_stacking_reply(&Ewmh, cookie, &stacking, nullptr)) return {};

  std::vector<WindowQuestions> questions;
  for (const xcb_window_t window : std::span(stacking.windows, stacking.windows_len))
    questions.push_back(
        {window,
         xcb_get_property(Connection, 0, window, Ewmh._NET_WM_NAME, Ewmh.UTF8_STRING, 0, LongestTitle),
         xcb_get_property(Connection, 0, window, XCB_ATOM_WM_NAME, XCB_ATOM_ANY, 0, LongestTitle),
         xcb_get_window_attributes(Connection, window)});
  xcb_ewmh_get_windows_reply_wipe(&stacking);

  std::vector<TopLevelWindow> windows;
  for (const WindowQuestions& asked : questions) {
    const std::string title = PropertyText(Connection, asked.Title);
    const std::string plainTitle = PropertyText(Connection, asked.PlainTitle);
    const Owned<xcb_get_window_attributes_reply_t> attributes(
        xcb_get_window_attributes_reply(Connection, asked.Attributes, nullptr));
    if (!attributes) continue;
    windows.push_back(
        {asked.Window, title.empty() ? plainTitle : title, attributes->map_state == XCB_MAP_STATE_VIEWABLE});
  }
  std::ranges::reverse(windows);
  return windows;
}

std::optional<xcb_keycode_t> X11Desktop::KeyWithSymbol(xcb_keysym_t symbol) {
  const xcb_setup_t* setup = xcb_get_setup(Connection);
  const auto count = static_cast<std::uint8_t>(setup->max_keycode - setup->min_keycode + 1);
  const auto cookie = xcb_get_keyboard_mapping(Connection, setup->min_keycode, count);
  const Owned<xcb_get_keyboard_mapping_reply_t> reply(
      xcb_get_keyboard_mapping_reply(Connection, cookie, nullptr));
  if (!reply || reply->keysyms_per_keycode == 0 || symbol == XCB_NO_SYMBOL) return std::nullopt;
  const xcb_keysym_t* symbols = xcb_get_keyboard_mapping_keysyms(reply.get());
  for (int key = 0; key < count; ++key)
    if (symbols[key * reply->keysyms_per_keycode] == symbol)
      return static_cast<xcb_keycode_t>(setup->min_keycode + key);
  return std::nullopt;
}

void X11Desktop::SendKeyDown(std::uint64_t window, int keyCode) {
  const auto key = Connect() ? KeyWithSymbol(SymbolOf(keyCode)) : std::nullopt;
  if (!key) return;
  xcb_key_press_event_t event{};
  event.response_type = XCB_KEY_PRESS;
  event.detail = *key;
  event.root = xcb_setup_roots_iterator(xcb_get_setup(Connection)).data->root;
  event.event = static_cast<xcb_window_t>(window);
  event.same_screen = 1;
  xcb_send_event(Connection, 0, event.event, XCB_EVENT_MASK_KEY_PRESS, reinterpret_cast<const char*>(&event));
  xcb_flush(Connection);
}

bool X11Desktop::RestoreAndActivate(std::uint64_t window) {
  if (!HasEwmh()) return false;
  const auto target = static_cast<xcb_window_t>(window);
  const auto mapping = xcb_map_window_checked(Connection, target);
  if (const Owned<xcb_generic_error_t> error(xcb_request_check(Connection, mapping)); error) return false;
  // As a pager asks: a request of a program for a window not its own would only make it blink.
  xcb_ewmh_request_change_active_window(&Ewmh, Screen, target, XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER,
                                        XCB_CURRENT_TIME, XCB_WINDOW_NONE);
  return xcb_flush(Connection) > 0;
}

std::optional<bool> X11Desktop::NamedLight(std::string_view name) {
  // Asked of a server without it, the extension would end the connection.
  if (!Connect() || !xcb_get_extension_data(Connection, &xcb_xkb_id)->present) return std::nullopt;
  const auto atomCookie =
      xcb_intern_atom(Connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
  const Owned<xcb_intern_atom_reply_t> atom(xcb_intern_atom_reply(Connection, atomCookie, nullptr));
  if (!atom) return std::nullopt;
  const auto cookie =
      xcb_xkb_get_named_indicator(Connection, XCB_XKB_ID_USE_CORE_KBD, XCB_XKB_LED_CLASS_DFLT_XI_CLASS,
                                  XCB_XKB_ID_DFLT_XI_ID, atom->atom);
  const Owned<xcb_xkb_get_named_indicator_reply_t> reply(
      xcb_xkb_get_named_indicator_reply(Connection, cookie, nullptr));
  return reply ? std::optional(reply->on != 0) : std::nullopt;
}

}  // namespace qves
