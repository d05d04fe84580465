// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "display.h"
#include "incremental_transfers.h"
#include "text_forms.h"

namespace clipboard {

/// Owns the selection CLIPBOARD of an X server and answers requests with one text, as described in the
/// Inter-Client Communication Conventions Manual (ICCCM). Not thread-safe. The display must outlive this
/// object.
class SelectionOwner {
 public:
  using Clock = std::chrono::steady_clock;
  enum class Acquired { owned, overtaken, failed };

  SelectionOwner(Display& display, std::string text);

  /// Acquires the selection for a copy that was requested at `requestedAt`. Returns `overtaken` if a copy
  /// that was requested later already owns the selection, and `failed` if the connection has broken.
  Acquired acquire(Clock::time_point requestedAt);

  /// Answers requests until another program owns the selection and all transfers are finished, or until the
  /// connection breaks. At the first signal from `signals` (a signalfd), gives the text to the clipboard
  /// manager and returns. A second signal makes this function return at once.
  void serve(int signals);

 private:
  std::optional<xcb_timestamp_t> serverTimeAt(Clock::time_point moment);
  bool isLaterCopy(xcb_window_t owner);
  void handle(const xcb_generic_event_t& event);
  void answer(const xcb_selection_request_event_t& request);
  bool convert(xcb_window_t reader, xcb_atom_t property, xcb_atom_t target);
  bool convertSeveral(xcb_window_t reader, xcb_atom_t property);
  void handOver();
  bool done(Clock::time_point now) const;

  Display& display_;
  const Atoms& atoms_;
  const TextForms text_;
  IncrementalTransfers transfers_;
  xcb_timestamp_t copiedAt_ = 0;          // the server's time at which the copy was requested
  xcb_timestamp_t ownedSince_ = 0;        // the server's time with which the selection was acquired
  bool released_ = false;                 // true if only the transfers that have begun must still be finished
  std::optional<Clock::time_point> end_;  // deadline for the hand-over; set by the first signal
};

}  // namespace clipboard
