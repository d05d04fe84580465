// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <poll.h>

#include <cstring>
#include <sstream>
#include <thread>

#include "apps/clipboard-owner/display.h"
#include "glyphorium/services/pasteboard/spawn.h"
#include "tests/support/display_server.h"

namespace glyph {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using clipboard::Owned;
using testing::_;
using testing::ElementsAre;
using testing::FieldsAre;
using testing::HasSubstr;
using testing::IsSupersetOf;
using testing::Optional;
using Atoms = std::vector<std::uint32_t>;
using Clock = std::chrono::steady_clock;

// Atoms for properties and targets that have no special meaning for the owner.
constexpr xcb_atom_t here = XCB_ATOM_CUT_BUFFER0, there = XCB_ATOM_CUT_BUFFER1, image = XCB_ATOM_BITMAP;

struct Value {
  xcb_atom_t type;
  std::string bytes;
  bool operator==(const Value&) const = default;
  Atoms atoms() const {
    Atoms result(bytes.size() / 4);
    std::memcpy(result.data(), bytes.data(), result.size() * 4);
    return result;
  }
};

// Another X11 program. It reads selections and can own one.
struct Client : clipboard::Display {
  // Returns the next event of this type and drops the events before it. Returns null if no such event arrives
  // within 20 seconds; the test then fails.
  template <class Event>
  Owned<Event> next(std::uint8_t type) const {
    for (xcb_flush(connection()); connected();) {
      Owned<xcb_generic_event_t> event(xcb_poll_for_event(connection()));
      if (event && (event->response_type & 0x7f) == type) {
        return Owned<Event>(reinterpret_cast<Event*>(event.release()));
      }
      pollfd input{xcb_get_file_descriptor(connection()), POLLIN, 0};
      if (!event && poll(&input, 1, 20'000) < 1) break;
    }
    return nullptr;
  }
  // Reads a property and deletes it.
  Value take(xcb_window_t from, xcb_atom_t property) const {
    const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection(), xcb_get_property(connection(), 1, from, property, XCB_ATOM_ANY, 0, 1 << 24), nullptr));
    return {reply->type, std::string(static_cast<const char*>(xcb_get_property_value(reply.get())),
                                     static_cast<std::size_t>(xcb_get_property_value_length(reply.get())))};
  }
  void ask(xcb_atom_t target, xcb_atom_t property = here) const {
    xcb_convert_selection(connection(), window(), atoms().clipboard, target, property, XCB_CURRENT_TIME);
    xcb_flush(connection());
  }
  // Returns the owner's answer, or nullopt if the owner rejects the request. For a large text, the answer
  // only announces a transfer.
  std::optional<Value> begin(xcb_atom_t target, xcb_atom_t property = here) const {
    ask(target, property);
    const auto answer = next<xcb_selection_notify_event_t>(XCB_SELECTION_NOTIFY);
    return answer && answer->property ? std::optional(take(window(), answer->property)) : std::nullopt;
  }
  // Returns the next piece of a transfer.
  Value piece(xcb_atom_t property) const {
    while (const auto change = next<xcb_property_notify_event_t>(XCB_PROPERTY_NOTIFY)) {
      if (change->state == XCB_PROPERTY_NEW_VALUE && change->atom == property) {
        return take(window(), property);
      }
    }
    ADD_FAILURE() << "the next piece did not arrive";
    return {};
  }
  Value finish(xcb_atom_t property) const {
    Value whole = piece(property);
    for (Value last = whole; !last.bytes.empty(); whole.bytes += last.bytes) last = piece(property);
    return whole;
  }
  std::optional<Value> read(xcb_atom_t target) const {
    auto value = begin(target);
    return value && value->type == atoms().incr ? finish(here) : value;
  }
  std::optional<Value> text() const { return read(atoms().utf8String); }
  void own(xcb_atom_t selection) {
    xcb_set_selection_owner(connection(), window(), selection, XCB_CURRENT_TIME);
    ASSERT_EQ(ownerOf(selection), window());
  }
  template <class Event>
  void send(xcb_window_t to, const Event& event) const {
    char bytes[32]{};
    std::memcpy(bytes, &event, sizeof event);
    xcb_send_event(connection(), 0, to, 0, bytes);
    xcb_flush(connection());
  }
};

auto isText(const std::string& text) {
  return Optional(FieldsAre(Client().atoms().utf8String, text));
}

class ClipboardOwner : public testing::Test {
 protected:
  // Makes the background processes of the program children of this process, so that it can wait for them.
  ClipboardOwner() { prctl(PR_SET_CHILD_SUBREAPER, 1); }
  ~ClipboardOwner() override {
    x.server.end();
    while (waitpid(-1, nullptr, 0) > 0) continue;
    prctl(PR_SET_CHILD_SUBREAPER, 0);
  }
  void SetUp() override {
    if (!x.usable) GTEST_SKIP() << "needs Xvfb";
  }

  static void copy(const std::string& text, Clock::time_point requestedAt = Clock::now()) {
    const auto count =
        std::chrono::duration_cast<std::chrono::microseconds>(requestedAt.time_since_epoch()).count();
    EXPECT_EQ(
        runProgram({{OWNER_PROGRAM, std::to_string(count)}, "copied"}, text, Clock::now() + 20s).problem, "");
  }
  static void askToEnd() {
    std::istringstream children(fileContent("/proc/self/task/" + std::to_string(getpid()) + "/children"));
    for (std::string child; children >> child;) {
      if (fileContent("/proc/" + child + "/comm") == "glyphorium-clip\n") kill(std::stoi(child), SIGTERM);
    }
  }
  // Waits until an owner has ended. Returns its wait status, which is 0 after a successful exit.
  static int ended() {
    int status = -1;
    eventually([&] { return waitpid(-1, &status, WNOHANG) > 0; });
    return status;
  }

  XServer x;
};

TEST_F(ClipboardOwner, GivesTheTextInEachForm) {
  const struct {
    std::string text;
    std::optional<std::string> latin1;
  } cases[] = {{"→ a\0b"s, std::nullopt}, {"é\tÿ\n", "\xe9\t\xff\n"}, {"", ""}, {"\xc3", std::nullopt}};
  for (const auto& [text, latin1] : cases) {
    SCOPED_TRACE(text);
    const Client client;
    const auto& a = client.atoms();
    copy(text);
    Atoms targets{a.targets,    a.timestamp,     a.multiple,  a.saveTargets,
                  a.utf8String, a.plainTextUtf8, a.plainText, a.text};
    if (latin1) targets.push_back(XCB_ATOM_STRING);
    const auto list = client.read(a.targets);
    EXPECT_EQ(list.value_or(Value{}).atoms(), targets);
    for (const auto target : {a.utf8String, a.plainText, a.plainTextUtf8}) {
      EXPECT_THAT(client.read(target), Optional(FieldsAre(target, text)));
    }
    EXPECT_THAT(client.read(a.text), Optional(FieldsAre(a.utf8String, text)));
    const auto string = client.read(XCB_ATOM_STRING);
    EXPECT_EQ(string ? std::optional(string->bytes) : std::nullopt, latin1);
    EXPECT_EQ(client.read(image), std::nullopt);
  }
}

TEST_F(ClipboardOwner, GivesSeveralFormsAtOnceAndLargeTextsInPieces) {
  std::string large;
  for (int i = 0; large.size() < 4'000'000; ++i) large += std::to_string(i);
  copy(large);
  Client client;
  const auto& a = client.atoms();
  client.setValues(client.window(), here, a.atomPair,
                   {a.timestamp, a.null, image, a.text, a.multiple, a.text, XCB_ATOM_STRING, there});
  const auto pairs = client.begin(a.multiple);
  EXPECT_THAT(pairs.value_or(Value{}).atoms(),
              ElementsAre(a.timestamp, a.null, 0, a.text, 0, a.text, XCB_ATOM_STRING, there));
  const Atoms since = client.take(client.window(), a.null).atoms();
  ASSERT_EQ(since.size(), 1u);
  EXPECT_LT(client.serverTime().value() - since[0], 20'000u);

  EXPECT_EQ(client.take(client.window(), there).type, a.incr);
  // Another owner acquires the selection during the transfer. This reader still receives the whole text.
  std::string received = client.piece(there).bytes;
  copy("next");
  EXPECT_THAT(Client().text(), isText("next"));
  received += client.finish(there).bytes;
  EXPECT_TRUE(received == large) << received.size();
  EXPECT_EQ(ended(), 0);
}

TEST_F(ClipboardOwner, SurvivesReadersThatExitStopReadingOrSendInvalidRequests) {
  const std::string large(1'000'000, 'm');
  copy(large);
  const Client stopped, old, modern;
  const auto& a = old.atoms();
  EXPECT_THAT(stopped.begin(a.utf8String), Optional(FieldsAre(a.incr, _)));  // this client then stops reading
  for (int i = 0; i < 100; ++i) {
    const Client vanishing;
    if (i % 2) {
      EXPECT_TRUE(vanishing.begin(a.utf8String));
    } else {
      vanishing.ask(a.utf8String);
    }
  }
  Client client;
  for (const Atoms& pairs : {Atoms{}, {1}, {1, 0}, {1, 0x7fffffff}, Atoms(1'000, 1)}) {
    client.setValues(client.window(), here, a.atomPair, pairs);
    client.begin(a.multiple);
  }
  client.ask(a.multiple, XCB_NONE);
  client.ask(a.utf8String, 0x7fffffff);
  // The owner must ignore a SelectionClear event that another client sends. Only the server may send it.
  client.send(client.ownerOf(a.clipboard),
              xcb_selection_clear_event_t{XCB_SELECTION_CLEAR, 0, 0, 0, client.window(), a.clipboard});

  EXPECT_THAT(old.begin(a.text, XCB_NONE), Optional(FieldsAre(a.incr, _)));
  EXPECT_EQ(old.finish(a.text).bytes.size(), large.size());
  EXPECT_EQ(modern.text().value_or(Value{}).bytes.size(), large.size());
  copy("next");
  EXPECT_EQ(ended(), 0) << "the program must not wait for the reader that stopped reading";
}

TEST_F(ClipboardOwner, OffersTheTextOfTheLatestCopy) {
  Client client;
  auto asked = Clock::now();
  std::this_thread::sleep_for(100ms);
  copy("later");
  copy("earlier, but slow", asked);
  EXPECT_THAT(client.text(), isText("later"));

  asked = Clock::now();
  std::this_thread::sleep_for(100ms);
  client.own(client.atoms().clipboard);  // clipboard managers do this after an owner has ended
  EXPECT_EQ(ended(), 0);
  copy("latest", asked);
  EXPECT_THAT(Client().text(), isText("latest"));
}

TEST_F(ClipboardOwner, GivesTheTextToTheClipboardManagerAfterASignal) {
  const std::string large(1'000'000, 'm');
  Client manager;
  const auto& a = manager.atoms();
  manager.own(a.clipboardManager);
  copy(large);
  askToEnd();
  const auto request = manager.next<xcb_selection_request_event_t>(XCB_SELECTION_REQUEST);
  ASSERT_TRUE(request);
  EXPECT_EQ(request->target, a.saveTargets);
  EXPECT_THAT(manager.take(request->requestor, request->property).atoms(),
              IsSupersetOf({a.utf8String, a.text}));
  EXPECT_THAT(manager.text(), isText(large));
  manager.send(request->requestor,
               xcb_selection_notify_event_t{XCB_SELECTION_NOTIFY, 0, 0, request->time, request->requestor,
                                            request->selection, request->target, request->property});
  EXPECT_EQ(ended(), 0);

  copy("to a manager that does not answer");
  askToEnd();
  EXPECT_TRUE(manager.next<xcb_selection_request_event_t>(XCB_SELECTION_REQUEST));
  askToEnd();
  EXPECT_EQ(ended(), 0) << "a second signal must end the program at once";
}

TEST_F(ClipboardOwner, EndsIfThereIsNoClipboardManagerOrTheServerEnds) {
  copy("→");
  askToEnd();
  EXPECT_EQ(ended(), 0);
  copy("→");
  x.server.end();
  EXPECT_EQ(ended(), 0);
}

TEST_F(ClipboardOwner, LibraryFindsTheProgram) {
  if (COMMAND_LINE ""s == "") GTEST_SKIP() << "the command-line program is not built with a shared library";
  EXPECT_THAT(runProgram("DISPLAY=:987654 PATH= " COMMAND_LINE " copy → 2>&1").output,
              HasSubstr("(glyphorium-clipboard-owner: no connection"));
}

}  // namespace
}  // namespace glyph
