// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string_view>
#include <vector>

#include "display.h"
#include "text_forms.h"

namespace clipboard {

/// Sends a text that is too large for one property in several pieces, with the INCR protocol of X11. Each
/// piece is sent after the reader has deleted the previous piece, so the server stores only one piece of each
/// transfer. Not thread-safe.
class IncrementalTransfers {
 public:
  using Clock = std::chrono::steady_clock;

  explicit IncrementalTransfers(Display& display);

  /// The size in bytes of the largest text that fits into one property, so that it need not be sent in
  /// pieces.
  std::size_t pieceSize() const { return pieceSize_; }
  bool empty() const { return transfers_.empty(); }

  /// Announces a transfer to the reader, and ends an older transfer to the same property. The bytes of `form`
  /// must exist as long as this object. Returns false if there are too many transfers already.
  bool begin(xcb_window_t reader, xcb_atom_t property, const Form& form);
  /// Call this when a property was deleted. Sends the next piece if a transfer uses this property.
  void propertyDeleted(xcb_window_t reader, xcb_atom_t property);
  /// Call this when a window no longer exists. Ends the transfers to this window.
  void readerGone(xcb_window_t reader);
  /// Ends the transfers whose reader has not read a piece in time. Returns the earliest deadline of the
  /// remaining transfers, or nullopt if there are no transfers left.
  std::optional<Clock::time_point> dropStuck(Clock::time_point now);

 private:
  struct Transfer {
    xcb_window_t reader;
    xcb_atom_t property;
    Form form;  // the bytes that have not been sent yet
    Clock::time_point deadline;
  };

  template <class Condition>
  void endIf(Condition condition);

  Display& display_;
  std::size_t pieceSize_;
  std::vector<Transfer> transfers_;
};

}  // namespace clipboard
