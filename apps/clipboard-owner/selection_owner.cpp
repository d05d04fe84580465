// SPDX-License-Identifier: MIT
#include "selection_owner.h"

#include <poll.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

namespace clipboard {
namespace {

using namespace std::chrono_literals;

// How long the clipboard manager may take to fetch the text.
constexpr auto handOverLimit = 5s;
// More than any program asks for at once.
constexpr std::uint32_t mostConversions = 128;
// Copies asked for within this time, in milliseconds, count as simultaneous. Clocks of servers may be coarse,
// and serverTimeAt() is off by some milliseconds.
constexpr std::int32_t simultaneous = 20;

}  // namespace

SelectionOwner::SelectionOwner(Display& display, std::string text)
    : display_(display), atoms_(display.atoms()), text_(std::move(text), atoms_), transfers_(display) {}

// When a moment of this machine's clock was by the server's clock, and never later than now. The server tells
// its time somewhere between question and answer. On a busy machine that may be long, so the quickest answer
// counts.
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
  return std::max<xcb_timestamp_t>(result, 1);  // 0 would mean the current time
}

// The server refuses an owner whose time is before the time of the last change. A slow copy that takes the
// selection with the time at which it was asked for therefore loses to each copy that was asked for later,
// also when that one was faster.
SelectionOwner::Acquired SelectionOwner::acquire(Clock::time_point askedAt) {
  const auto copiedAt = serverTimeAt(askedAt);
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
    // Another program took the selection meanwhile, perhaps to keep the content before this one. This copy
    // has not returned yet, so its text is the newer one.
    ownedSince_ = display_.serverTime().value_or(0);
  }
  return Acquired::failed;
}

bool SelectionOwner::isLaterCopy(xcb_window_t owner) {
  if (owner == XCB_NONE) return false;
  const auto copiedAt = display_.values(owner, atoms_.copiedAt, XCB_ATOM_CARDINAL, 1);
  // The server's clock starts again at 0 after 49 days: only differences tell the order.
  return copiedAt && copiedAt->size() == 1 &&
         static_cast<std::int32_t>(copiedAt->front() - copiedAt_) > simultaneous;
}

void SelectionOwner::serve(int signals) {
  for (;;) {
    while (const Owned<xcb_generic_event_t> event{xcb_poll_for_event(display_.connection())}) handle(*event);
    xcb_flush(display_.connection());
    // Writing may have read events, which poll() would not see.
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
      char information[128];                                                   // the size of one signal's
      if (end_ || read(signals, information, sizeof information) <= 0) break;  // a second signal ends at once
      handOver();
    }
  }
  // The server drops requests that it has not read when the connection closes. Its answer to this one tells
  // that it has read all.
  display_.ownerOf(atoms_.clipboard);
}

bool SelectionOwner::done(Clock::time_point now) const {
  return (end_ && *end_ <= now) || (released_ && transfers_.empty());
}

void SelectionOwner::handle(const xcb_generic_event_t& event) {
  if (event.response_type == 0) {  // an error: most likely a reader whose window is gone
    const auto& error = reinterpret_cast<const xcb_value_error_t&>(event);
    if (error.error_code == XCB_WINDOW) transfers_.readerGone(error.bad_value);
    return;
  }
  // The highest bit marks what another program sent in the server's name. Only answers are sent that way.
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
      // The clipboard manager has all, or there is none any more.
      released_ |= end_ && reinterpret_cast<const xcb_selection_notify_event_t&>(event).selection ==
                               atoms_.clipboardManager;
      break;
    default:
      break;
  }
}

// The time of a request is not looked at. This process has had one text only, and a program that reads the
// clipboard in answer to a click asks with the time of that click, which may be before the copy.
void SelectionOwner::answer(const xcb_selection_request_event_t& request) {
  // Old programs name no property; then it is the one named like the target.
  const xcb_atom_t property = request.property ? request.property : request.target;
  const bool given =
      request.selection == atoms_.clipboard &&
      (request.target == atoms_.multiple ? request.property && convertSeveral(request.requestor, property)
                                         : convert(request.requestor, property, request.target));
  char buffer[32]{};  // the size of every event
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
  } else if (target == atoms_.saveTargets) {  // listed to say that handOver() is supported; has no content
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

// The property holds pairs of a target and a property. Each target that is not converted is replaced by None.
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

// By the protocol of the freedesktop.org clipboard manager: it is told which forms to fetch, fetches them,
// takes the selection and then answers.
void SelectionOwner::handOver() {
  end_ = Clock::now() + handOverLimit;
  if (display_.ownerOf(atoms_.clipboardManager) == XCB_NONE) released_ = true;
  if (released_) return;
  display_.setValues(display_.window(), atoms_.saveTargets, XCB_ATOM_ATOM, text_.targets());
  xcb_convert_selection(display_.connection(), display_.window(), atoms_.clipboardManager, atoms_.saveTargets,
                        atoms_.saveTargets, ownedSince_);
}

}  // namespace clipboard
