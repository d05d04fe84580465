// SPDX-License-Identifier: MIT
#include "selection_owner.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

namespace clipboard {
namespace {

using namespace std::chrono_literals;

// The clipboard manager has this much time to read the text.
constexpr auto handOverLimit = 5s;
// The maximum number of conversions in one MULTIPLE request. No known program requests more.
constexpr std::uint32_t mostConversions = 128;
// Copies that were requested within this time, in milliseconds, count as simultaneous. The clock of the
// server may be coarse, and the result of serverTimeAt() may be wrong by some milliseconds.
constexpr std::int32_t simultaneous = 20;

}  // namespace

SelectionOwner::SelectionOwner(Display& display, std::string text)
    : display_(display), atoms_(display.atoms()), text_(std::move(text), atoms_), transfers_(display) {}

// Converts a time of this machine's clock to the server's clock. The result is never later than the present
// time, and at most one hour earlier. Returns nullopt if the connection has broken.
// The server determines its time at an unknown moment between our request and the answer. On a busy machine
// the answer may take long. The function therefore asks several times and uses the quickest answer.
std::optional<xcb_timestamp_t> SelectionOwner::serverTimeAt(Clock::time_point moment) {
  xcb_timestamp_t result = 0;
  auto quickest = Clock::duration::max();
  for (int i = 0; i < 10 && quickest > 5ms; ++i) {
    const auto asked = Clock::now();
    const auto now = display_.serverTime();
    if (!now) return std::nullopt;
    const auto took = Clock::now() - asked;
    if (took >= quickest) continue;
    quickest = took;
    const auto since = std::chrono::floor<std::chrono::milliseconds>(asked - moment);
    result =
        *now - static_cast<xcb_timestamp_t>(std::clamp<std::chrono::milliseconds>(since, 0ms, 1h).count());
  }
  return std::max<xcb_timestamp_t>(result, 1);  // the server would treat 0 as the current time
}

// The server rejects a new owner whose time is earlier than the time of the last change of owner. A slow copy
// acquires the selection with the time at which the copy was requested. The server therefore rejects the slow
// copy if a copy that was requested later has already finished.
SelectionOwner::Acquired SelectionOwner::acquire(Clock::time_point requestedAt) {
  const auto copiedAt = serverTimeAt(requestedAt);
  if (!copiedAt) return Acquired::failed;
  copiedAt_ = *copiedAt;
  display_.setValues(display_.window(), atoms_.copiedAt, XCB_ATOM_CARDINAL, {copiedAt_});
  ownedSince_ = copiedAt_;
  while (display_.connected()) {
    xcb_set_selection_owner(display_.connection(), display_.window(), atoms_.clipboard, ownedSince_);
    const xcb_window_t owner = display_.ownerOf(atoms_.clipboard);
    while (const Owned<xcb_generic_event_t> event{xcb_poll_for_queued_event(display_.connection())}) {
      handle(*event);
    }
    if (owner == display_.window() || released_) return Acquired::owned;
    if (isLaterCopy(owner)) return Acquired::overtaken;
    // Another program has acquired the selection since this copy was requested, perhaps to keep the
    // previous content. The text of this copy is newer, so try again.
    ownedSince_ = display_.serverTime().value_or(0);
  }
  return Acquired::failed;
}

bool SelectionOwner::isLaterCopy(xcb_window_t owner) {
  if (owner == XCB_NONE) return false;
  const auto copiedAt = display_.values(owner, atoms_.copiedAt, XCB_ATOM_CARDINAL, 1);
  // The server's clock restarts at 0 every 49 days, so times are compared by the sign of their difference.
  return copiedAt && copiedAt->size() == 1 &&
         static_cast<std::int32_t>(copiedAt->front() - copiedAt_) > simultaneous;
}

void SelectionOwner::serve(int signals) {
  for (;;) {
    while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(display_.connection())}) handle(*event);
    xcb_flush(display_.connection());
    // xcb_flush() may also have read events into the queue. poll() does not notice events in the queue.
    if (const Owned<xcb_generic_event_t> event{xcb_poll_for_queued_event(display_.connection())}) {
      handle(*event);
      continue;
    }
    const auto now = Clock::now();
    auto next = transfers_.dropStuck(now);
    if (!display_.connected() || done(now)) break;
    if (end_) next = std::min(next.value_or(*end_), *end_);
    const auto wait = next ? std::chrono::ceil<std::chrono::milliseconds>(*next - now).count() : -1;
    pollfd inputs[] = {{xcb_get_file_descriptor(display_.connection()), POLLIN, 0}, {signals, POLLIN, 0}};
    poll(inputs, 2, static_cast<int>(wait));
    if (inputs[1].revents) {
      // The size of a signalfd_siginfo is 128 bytes.
      char information[128];
      // If `end_` is already set, this is the second signal: stop without waiting for the clipboard
      // manager.
      if (end_ || read(signals, information, sizeof information) <= 0) break;
      handOver();
    }
  }
  // When the connection closes, the server discards the requests that it has not read yet. Wait for the
  // answer to one last request: then the server has read all requests.
  display_.ownerOf(atoms_.clipboard);
}

bool SelectionOwner::done(Clock::time_point now) const {
  return (end_ && *end_ <= now) || (released_ && transfers_.empty());
}

void SelectionOwner::handle(const xcb_generic_event_t& event) {
  if (event.response_type == 0) {  // an error, usually because the window of a reader no longer exists
    const auto& error = reinterpret_cast<const xcb_value_error_t&>(event);
    if (error.error_code == XCB_WINDOW) transfers_.readerGone(error.bad_value);
    return;
  }
  // The highest bit is set if a client sent the event with SendEvent. Of such events only SelectionNotify is
  // accepted.
  switch (event.response_type) {
    case XCB_SELECTION_REQUEST:
      answer(reinterpret_cast<const xcb_selection_request_event_t&>(event));
      break;
    case XCB_SELECTION_CLEAR:
      released_ |= reinterpret_cast<const xcb_selection_clear_event_t&>(event).selection == atoms_.clipboard;
      break;
    case XCB_PROPERTY_NOTIFY: {
      const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
      if (change.state == XCB_PROPERTY_DELETE) transfers_.propertyDeleted(change.window, change.atom);
      break;
    }
    case XCB_DESTROY_NOTIFY:
      transfers_.readerGone(reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window);
      break;
    case XCB_SELECTION_NOTIFY:
    case XCB_SELECTION_NOTIFY | 0x80:
      // This event means that the clipboard manager has read all forms of the text, or that no clipboard
      // manager exists any more.
      released_ |= end_ && reinterpret_cast<const xcb_selection_notify_event_t&>(event).selection ==
                               atoms_.clipboardManager;
      break;
    default:
      break;
  }
}

// Ignores the time in the request, because the offered text never changes, and because the time may be
// earlier than the copy: a program that pastes after a click sends the time of the click.
void SelectionOwner::answer(const xcb_selection_request_event_t& request) {
  // Old programs do not name a property. Then the target is used as the property (ICCCM).
  const xcb_atom_t property = request.property ? request.property : request.target;
  const bool given =
      request.selection == atoms_.clipboard &&
      (request.target == atoms_.multiple ? request.property && convertSeveral(request.requestor, property)
                                         : convert(request.requestor, property, request.target));
  char buffer[32]{};  // every X11 event has 32 bytes
  xcb_selection_notify_event_t notification{};
  notification.response_type = XCB_SELECTION_NOTIFY;
  notification.time = request.time;
  notification.requestor = request.requestor;
  notification.selection = request.selection;
  notification.target = request.target;
  notification.property = given ? property : static_cast<xcb_atom_t>(XCB_NONE);
  std::memcpy(buffer, &notification, sizeof notification);
  xcb_send_event(display_.connection(), false, request.requestor, XCB_EVENT_MASK_NO_EVENT, buffer);
}

bool SelectionOwner::convert(xcb_window_t reader, xcb_atom_t property, xcb_atom_t target) {
  if (target == atoms_.targets) {
    std::vector<std::uint32_t> targets{atoms_.targets, atoms_.timestamp, atoms_.multiple, atoms_.saveTargets};
    targets.insert(targets.end(), text_.targets().begin(), text_.targets().end());
    display_.setValues(reader, property, XCB_ATOM_ATOM, targets);
  } else if (target == atoms_.timestamp) {
    display_.setValues(reader, property, XCB_ATOM_INTEGER, {ownedSince_});
  } else if (target == atoms_.saveTargets) {
    // The target SAVE_TARGETS has no content. A successful answer only shows that this owner supports
    // clipboard managers.
    display_.setValues(reader, property, atoms_.null, {});
  } else if (const auto form = text_.form(target)) {
    if (form->bytes.size() > transfers_.pieceSize()) return transfers_.begin(reader, property, *form);
    xcb_change_property(display_.connection(), XCB_PROP_MODE_REPLACE, reader, property, form->type, 8,
                        static_cast<std::uint32_t>(form->bytes.size()), form->bytes.data());
  } else {
    return false;
  }
  return true;
}

// The property contains pairs of a target and a property. In each pair whose target cannot be converted,
// the property is replaced by None.
bool SelectionOwner::convertSeveral(xcb_window_t reader, xcb_atom_t property) {
  auto pairs = display_.values(reader, property, atoms_.atomPair, 2 * mostConversions);
  if (!pairs || pairs->size() % 2 != 0) return false;
  for (std::size_t i = 0; i < pairs->size(); i += 2) {
    const xcb_atom_t target = (*pairs)[i], place = (*pairs)[i + 1];
    if (!place || !convert(reader, place, target)) (*pairs)[i] = XCB_NONE;
  }
  display_.setValues(reader, property, atoms_.atomPair, *pairs);
  return true;
}

// Follows the clipboard manager protocol of freedesktop.org. The owner sends the list of the targets to save.
// The clipboard manager reads these targets, acquires the selection and then answers.
void SelectionOwner::handOver() {
  end_ = Clock::now() + handOverLimit;
  if (display_.ownerOf(atoms_.clipboardManager) == XCB_NONE) released_ = true;
  if (released_) return;
  display_.setValues(display_.window(), atoms_.saveTargets, XCB_ATOM_ATOM, text_.targets());
  xcb_convert_selection(display_.connection(), display_.window(), atoms_.clipboardManager, atoms_.saveTargets,
                        atoms_.saveTargets, ownedSince_);
}

}  // namespace clipboard
