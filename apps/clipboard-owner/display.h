// SPDX-License-Identifier: MIT
#pragma once

#include <xcb/xcb.h>

#include <cstdint>
#include <cstdlib>
#include <memory>
#include <optional>
#include <vector>

namespace clipboard {

struct Free {
  void operator()(void* memory) const { std::free(memory); }
};
/// Events and replies, which XCB allocates with malloc.
template <class T>
using Owned = std::unique_ptr<T, Free>;

struct Atoms {
  xcb_atom_t clipboard, clipboardManager, saveTargets, null;
  xcb_atom_t targets, timestamp, multiple, atomPair, incr;
  xcb_atom_t utf8String, text, plainText, plainTextUtf8;
  xcb_atom_t copiedAt;  ///< the property in which a window of this program holds the time of its copy
};

/// A connection to the X server of DISPLAY, with one window that is never shown.
class Display {
 public:
  Display();
  ~Display();
  Display(const Display&) = delete;
  Display& operator=(const Display&) = delete;

  /// False where there is no server, or no longer.
  bool connected() const;
  xcb_connection_t* connection() const { return connection_; }
  xcb_window_t window() const { return window_; }
  const Atoms& atoms() const { return atoms_; }

  /// The server's clock, in milliseconds; nullopt where the connection broke. Drops other events.
  std::optional<xcb_timestamp_t> serverTime();
  /// The window that owns a selection, XCB_NONE where none does.
  xcb_window_t ownerOf(xcb_atom_t selection);
  /// The 32-bit values of a window's property; nullopt where it has another type or more than `most` values.
  std::optional<std::vector<std::uint32_t>> values(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                                                   std::uint32_t most);
  void setValues(xcb_window_t window, xcb_atom_t property, xcb_atom_t type,
                 const std::vector<std::uint32_t>& values);

 private:
  void internAtoms();

  xcb_connection_t* connection_;
  xcb_window_t window_ = XCB_NONE;
  Atoms atoms_{};
};

}  // namespace clipboard
