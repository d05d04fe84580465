// SPDX-License-Identifier: MIT
#include "incremental_transfers.h"

#include <algorithm>

namespace clipboard {
namespace {

using namespace std::chrono_literals;

// The server stores at most one piece of each transfer, so these limits keep its memory use below 16 MiB.
constexpr std::size_t mostTransfers = 64;
constexpr std::size_t mostBytes = std::size_t{256} * 1024;
// A transfer ends if its reader does not read a piece within this time. Working programs read a piece
// within milliseconds.
constexpr auto readTimeout = 5s;

}  // namespace

IncrementalTransfers::IncrementalTransfers(Display& display)
    : display_(display),
      // The server reports the length of the longest request in units of four bytes. Subtract 64 bytes for
      // the header of the request.
      pieceSize_(
          std::min(mostBytes, xcb_get_maximum_request_length(display.connection()) * std::size_t{4} - 64)) {}

bool IncrementalTransfers::begin(xcb_window_t reader, xcb_atom_t property, const Form& form) {
  const auto same = [&](const Transfer& old) { return old.reader == reader && old.property == property; };
  endIf(same);
  if (transfers_.size() >= mostTransfers) return false;
  const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
  xcb_change_window_attributes(display_.connection(), reader, XCB_CW_EVENT_MASK, &events);
  display_.setValues(reader, property, display_.atoms().incr,
                     {static_cast<std::uint32_t>(std::min<std::size_t>(form.bytes.size(), 0x7fffffff))});
  transfers_.push_back({reader, property, form, Clock::now() + readTimeout});
  return true;
}

void IncrementalTransfers::propertyDeleted(xcb_window_t reader, xcb_atom_t property) {
  const auto same = [&](const Transfer& one) { return one.reader == reader && one.property == property; };
  const auto found = std::find_if(transfers_.begin(), transfers_.end(), same);
  if (found == transfers_.end()) return;
  std::string_view& left = found->form.bytes;
  const auto piece = left.substr(0, pieceSize_);
  left.remove_prefix(piece.size());
  xcb_change_property(display_.connection(), XCB_PROP_MODE_REPLACE, reader, property, found->form.type, 8,
                      static_cast<std::uint32_t>(piece.size()), piece.data());
  found->deadline = Clock::now() + readTimeout;
  if (piece.empty()) endIf(same);  // an empty piece ends the transfer
}

void IncrementalTransfers::readerGone(xcb_window_t reader) {
  endIf([&](const Transfer& transfer) { return transfer.reader == reader; });
}

std::optional<IncrementalTransfers::Clock::time_point> IncrementalTransfers::dropStuck(
    Clock::time_point now) {
  endIf([&](const Transfer& transfer) { return transfer.deadline <= now; });
  std::optional<Clock::time_point> next;
  for (const Transfer& transfer : transfers_)
    next = std::min(next.value_or(transfer.deadline), transfer.deadline);
  return next;
}

template <class Condition>
void IncrementalTransfers::endIf(Condition condition) {
  std::vector<xcb_window_t> readers;
  std::erase_if(transfers_, [&](const Transfer& transfer) {
    if (!condition(transfer)) return false;
    readers.push_back(transfer.reader);
    return true;
  });
  for (const xcb_window_t reader : readers) {
    const auto same = [&](const Transfer& transfer) { return transfer.reader == reader; };
    if (std::any_of(transfers_.begin(), transfers_.end(), same)) continue;
    const std::uint32_t events = XCB_EVENT_MASK_NO_EVENT;
    xcb_change_window_attributes(display_.connection(), reader, XCB_CW_EVENT_MASK, &events);
  }
}

}  // namespace clipboard
