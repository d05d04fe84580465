// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "display.h"
#include "incremental_transfers.h"
#include "text_forms.h"

namespace clipboard {

/// Owns the selection CLIPBOARD of an X server and answers with one text, as the Inter-Client Communication
/// Conventions Manual (ICCCM) describes it.
class SelectionOwner {
 public:
  using Clock = std::chrono::steady_clock;
  enum class Acquired { owned, overtaken, failed };

  SelectionOwner(Display& display, std::string text);

  /// Takes the selection for a copy that was asked for at `askedAt`. Overtaken: a copy that was asked for
  /// later has it already. Failed: the connection broke.
  Acquired acquire(Clock::time_point askedAt);

  /// Answers until another owner has taken the selection and all transfers are done, or the server is gone.
  /// When `signals` (a signalfd) becomes readable, hands the text to the clipboard manager and ends.
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
  xcb_timestamp_t copiedAt_ = 0;    // the server's time when the copy was asked for
  xcb_timestamp_t ownedSince_ = 0;  // the server's time with which the selection was taken
  bool released_ = false;  // another has the selection: what is left are the transfers that have begun
  std::optional<Clock::time_point> end_;  // the latest, set once the process has been asked to end
};

}  // namespace clipboard
