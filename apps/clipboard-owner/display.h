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
/// Owns an event or a reply. XCB allocates both with malloc().
template <class T>
using Owned = std::unique_ptr<T, Free>;

struct Atoms {
  xcb_atom_t clipboard, clipboardManager, saveTargets, null;
  xcb_atom_t targets, timestamp, multiple, atomPair, incr;
  xcb_atom_t utf8String, text, plainText, plainTextUtf8;
  xcb_atom_t copiedAt;  ///< the property of our window that contains the time of the copy
};

/// A connection to the X server that the environment variable DISPLAY names, with one window that is never
/// shown. Check connected() after construction. Not thread-safe.
class Display {
 public:
  Display();
  ~Display();
  Display(const Display&) = delete;
  Display& operator=(const Display&) = delete;

  /// Returns false if the connection could not be made or has broken since.
  bool connected() const;
  xcb_connection_t* connection() const { return connection_; }
  xcb_window_t window() const { return window_; }
  const Atoms& atoms() const { return atoms_; }

  /// Returns the time of the server's clock in milliseconds, or nullopt if the connection has broken.
  /// Discards all events that arrive before the answer.
  std::optional<xcb_timestamp_t> serverTime();
  /// Returns the window that owns a selection, or XCB_NONE if the selection has no owner.
  xcb_window_t ownerOf(xcb_atom_t selection);
  /// Returns the 32-bit values of a property of a window. Returns nullopt if the property does not exist, has
  /// another type or has more than `most` values.
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
