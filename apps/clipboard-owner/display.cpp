// SPDX-License-Identifier: MIT
#include "display.h"

#include <cstring>
#include <string_view>
#include <utility>

namespace clipboard {

Display::Display() : connection_(xcb_connect(nullptr, nullptr)) {
  if (!connected()) return;
  internAtoms();
  const xcb_screen_t& screen = *xcb_setup_roots_iterator(xcb_get_setup(connection_)).data;
  window_ = xcb_generate_id(connection_);
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
  xcb_create_window(connection_, XCB_COPY_FROM_PARENT, window_, screen.root, 0, 0, 1, 1, 0,
                    XCB_WINDOW_CLASS_INPUT_ONLY, screen.root_visual, XCB_CW_EVENT_MASK, &events);
}

Display::~Display() {
  xcb_disconnect(connection_);
}

bool Display::connected() const {
  return xcb_connection_has_error(connection_) == 0;
}

void Display::internAtoms() {
  const std::pair<xcb_atom_t*, std::string_view> names[] = {
      {&atoms_.clipboard, "CLIPBOARD"},
      {&atoms_.clipboardManager, "CLIPBOARD_MANAGER"},
      {&atoms_.saveTargets, "SAVE_TARGETS"},
      {&atoms_.null, "NULL"},
      {&atoms_.targets, "TARGETS"},
      {&atoms_.timestamp, "TIMESTAMP"},
      {&atoms_.multiple, "MULTIPLE"},
      {&atoms_.atomPair, "ATOM_PAIR"},
      {&atoms_.incr, "INCR"},
      {&atoms_.utf8String, "UTF8_STRING"},
      {&atoms_.text, "TEXT"},
      {&atoms_.plainText, "text/plain"},
      {&atoms_.plainTextUtf8, "text/plain;charset=utf-8"},
      {&atoms_.copiedAt, "_GLYPHORIUM_COPIED_AT"},
  };
  std::vector<xcb_intern_atom_cookie_t> cookies;
  for (const auto& [atom, name] : names) {
    cookies.push_back(
        xcb_intern_atom(connection_, false, static_cast<std::uint16_t>(name.size()), name.data()));
  }
  for (std::size_t i = 0; i < cookies.size(); ++i) {
    const Owned<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(connection_, cookies[i], nullptr));
    if (reply) *names[i].first = reply->atom;
  }
}

// The server reports every change of a property in an event that contains the server's time. Appending zero
// bytes counts as a change too.
std::optional<xcb_timestamp_t> Display::serverTime() {
  xcb_change_property(connection_, XCB_PROP_MODE_APPEND, window_, atoms_.copiedAt, XCB_ATOM_CARDINAL, 32, 0,
                      nullptr);
  xcb_flush(connection_);
  while (const Owned<xcb_generic_event_t> event{xcb_wait_for_event(connection_)}) {
    if (event->response_type != XCB_PROPERTY_NOTIFY) continue;
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(*event);
    if (change.window == window_) return change.time;
  }
  return std::nullopt;
}

xcb_window_t Display::ownerOf(xcb_atom_t selection) {
  const Owned<xcb_get_selection_owner_reply_t> reply(
      xcb_get_selection_owner_reply(connection_, xcb_get_selection_owner(connection_, selection), nullptr));
  return reply ? reply->owner : static_cast<xcb_window_t>(XCB_NONE);
}

std::optional<std::vector<std::uint32_t>> Display::values(xcb_window_t window, xcb_atom_t property,
                                                          xcb_atom_t type, std::uint32_t most) {
  const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(
      connection_, xcb_get_property(connection_, false, window, property, type, 0, most), nullptr));
  if (!reply || reply->type != type || reply->format != 32 || reply->bytes_after) return std::nullopt;
  std::vector<std::uint32_t> values(reply->value_len);
  if (!values.empty()) std::memcpy(values.data(), xcb_get_property_value(reply.get()), values.size() * 4);
  return values;
}

void Display::setValues(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                        const std::vector<std::uint32_t>& values) {
  xcb_change_property(connection_, XCB_PROP_MODE_REPLACE, window, property, type, 32,
                      static_cast<std::uint32_t>(values.size()), values.data());
}

}  // namespace clipboard
