// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string_view>
#include <vector>

#include "display.h"
#include "text_forms.h"

namespace clipboard {

/// The transfers of texts that are too large for one property: each goes in pieces, by the protocol INCR. A
/// piece is sent when the reader has deleted the one before, so that the server holds one piece of each.
class IncrementalTransfers {
 public:
  using Clock = std::chrono::steady_clock;

  explicit IncrementalTransfers(Display& display);

  /// The bytes of the largest form that needs no transfer in pieces.
  std::size_t pieceSize() const { return pieceSize_; }
  bool empty() const { return transfers_.empty(); }

  /// Announces the transfer to the reader. The form must live as long as this object. False where there are
  /// too many already.
  bool begin(xcb_window_t reader, xcb_atom_t property, const Form& form);
  /// Sends the next piece, where a reader has deleted the one before.
  void propertyDeleted(xcb_window_t reader, xcb_atom_t property);
  /// Ends the transfers to a window that is gone.
  void readerGone(xcb_window_t reader);
  /// Ends the transfers of readers that have not taken a piece in time. When the next of them is due.
  std::optional<Clock::time_point> dropStuck(Clock::time_point now);

 private:
  struct Transfer {
    xcb_window_t reader;
    xcb_atom_t property;
    Form form;  // what is left of it
    Clock::time_point deadline;
  };

  template <class Condition>
  void endIf(Condition condition);

  Display& display_;
  std::size_t pieceSize_;
  std::vector<Transfer> transfers_;
};

}  // namespace clipboard
