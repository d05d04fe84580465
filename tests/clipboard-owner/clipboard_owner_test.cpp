// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <poll.h>
#include <xcb/xcb.h>

#include <cstring>
#include <sstream>
#include <thread>

#include "glyphorium/services/pasteboard/spawn.h"
#include "tests/support/display_server.h"

namespace glyph {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using testing::ElementsAre;
using testing::FieldsAre;
using testing::HasSubstr;
using testing::Optional;
using Clock = std::chrono::steady_clock;

struct Free {
  void operator()(void* memory) const { free(memory); }
};
template <class T>
using Owned = std::unique_ptr<T, Free>;

struct Value {
  std::string type, bytes;
  bool operator==(const Value&) const = default;
};

// Another X11 program, which reads selections and can own one.
class Client {
 public:
  Client() : connection(xcb_connect(nullptr, nullptr)), window(newWindow()) {}
  ~Client() { xcb_disconnect(connection); }

  xcb_window_t newWindow() const {
    const auto id = xcb_generate_id(connection);
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    const auto* const screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    xcb_create_window(connection, 0, id, screen->root, 0, 0, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, 0,
                      XCB_CW_EVENT_MASK, &events);
    return id;
  }
  xcb_atom_t atom(std::string_view name) const {
    return Owned<xcb_intern_atom_reply_t>(
               xcb_intern_atom_reply(
                   connection,
                   xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data()),
                   nullptr))
        ->atom;
  }
  std::string name(xcb_atom_t id) const {
    const Owned<xcb_get_atom_name_reply_t> reply(
        xcb_get_atom_name_reply(connection, xcb_get_atom_name(connection, id), nullptr));
    return reply ? std::string(xcb_get_atom_name_name(reply.get()),
                               static_cast<std::size_t>(xcb_get_atom_name_name_length(reply.get())))
                 : "";
  }
  // The next event of a type, without those before it. Null after a time that only a fault needs.
  template <class Event>
  Owned<Event> next(std::uint8_t type) const {
    for (xcb_flush(connection);;) {
      Owned<xcb_generic_event_t> event(xcb_poll_for_event(connection));
      if (event && (event->response_type & 0x7f) == type)
        return Owned<Event>(reinterpret_cast<Event*>(event.release()));
      pollfd input{xcb_get_file_descriptor(connection), POLLIN, 0};
      if (!event && (poll(&input, 1, 20'000) < 1 || xcb_connection_has_error(connection))) return nullptr;
    }
  }
  // Reads a property of a window and deletes it.
  Value take(xcb_window_t from, std::string_view property) const {
    const Owned<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection, xcb_get_property(connection, 1, from, atom(property), XCB_ATOM_ANY, 0, 1 << 24),
        nullptr));
    return {name(reply->type),
            std::string(static_cast<const char*>(xcb_get_property_value(reply.get())),
                        static_cast<std::size_t>(xcb_get_property_value_length(reply.get())))};
  }
  void ask(std::string_view target, xcb_atom_t property) const {
    xcb_convert_selection(connection, window, atom("CLIPBOARD"), atom(target), property, XCB_CURRENT_TIME);
    xcb_flush(connection);
  }
  // The first answer. For a large text it is only the beginning of a transfer.
  std::optional<Value> begin(std::string_view target, std::string_view property = "HERE") const {
    ask(target, property.empty() ? xcb_atom_t{XCB_NONE} : atom(property));
    const auto answer = next<xcb_selection_notify_event_t>(XCB_SELECTION_NOTIFY);
    if (!answer || !answer->property) return std::nullopt;
    return take(window, name(answer->property));
  }
  // The next piece of a transfer.
  Value piece(std::string_view property) const {
    while (const auto change = next<xcb_property_notify_event_t>(XCB_PROPERTY_NOTIFY)) {
      if (change->state == XCB_PROPERTY_NEW_VALUE && change->atom == atom(property)) {
        return take(window, property);
      }
    }
    ADD_FAILURE() << "no piece came";
    return {};
  }
  Value finish(std::string_view property) const {
    Value whole, next;
    do {
      next = piece(property);
      whole = {next.type, whole.bytes + next.bytes};
    } while (!next.bytes.empty());
    return whole;
  }
  std::optional<Value> read(std::string_view target) const {
    auto value = begin(target);
    return value && value->type == "INCR" ? finish("HERE") : value;
  }
  void setAtoms(std::string_view property, std::string_view type,
                const std::vector<xcb_atom_t>& atoms) const {
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, atom(property), atom(type), 32,
                        static_cast<std::uint32_t>(atoms.size()), atoms.data());
  }
  void own(std::string_view selection) const {
    xcb_set_selection_owner(connection, window, atom(selection), XCB_CURRENT_TIME);
    Owned<xcb_generic_error_t>(xcb_request_check(connection, xcb_no_operation_checked(connection)));
  }
  std::vector<std::string> atomNames(const std::string& bytes) const {
    std::vector<xcb_atom_t> atoms(bytes.size() / 4);
    std::memcpy(atoms.data(), bytes.data(), atoms.size() * 4);
    std::vector<std::string> names;
    for (const auto id : atoms) names.push_back(id ? name(id) : "None");
    return names;
  }

  xcb_connection_t* const connection;
  const xcb_window_t window;
};

class ClipboardOwner : public testing::Test {
 protected:
  // What the program leaves in the background becomes a child of this process when its parent has ended.
  ClipboardOwner() { prctl(PR_SET_CHILD_SUBREAPER, 1); }
  ~ClipboardOwner() override {
    x.server.end();
    while (waitpid(-1, nullptr, 0) > 0) continue;
    prctl(PR_SET_CHILD_SUBREAPER, 0);
  }
  void SetUp() override {
    if (!x.usable) GTEST_SKIP() << "needs Xvfb";
  }

  static void copy(const std::string& text, Clock::time_point askedAt = Clock::now()) {
    const auto count =
        std::chrono::duration_cast<std::chrono::microseconds>(askedAt.time_since_epoch()).count();
    const SpawnResult result =
        runProgram({{OWNER_PROGRAM, std::to_string(count)}, "copied"}, text, Clock::now() + 20s);
    EXPECT_EQ(result.problem, "");
  }
  static pid_t owner() {
    std::istringstream children(fileContent("/proc/self/task/" + std::to_string(getpid()) + "/children"));
    for (std::string child; children >> child;) {
      if (fileContent("/proc/" + child + "/comm") == "glyphorium-clip\n") return std::stoi(child);
    }
    ADD_FAILURE() << "no owner";
    return getpid();
  }
  // An owner has ended as it should.
  static testing::AssertionResult ended() {
    int status = -1;
    const bool one = eventually([&] { return waitpid(-1, &status, WNOHANG) > 0; });
    return (one && status == 0 ? testing::AssertionSuccess() : testing::AssertionFailure())
           << (one ? "status " + std::to_string(status) : "none");
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
    copy(text);
    std::vector<std::string> targets{"TARGETS",      "TIMESTAMP",   "MULTIPLE",
                                     "SAVE_TARGETS", "UTF8_STRING", "text/plain;charset=utf-8",
                                     "text/plain",   "TEXT"};
    if (latin1) targets.push_back("STRING");
    const auto list = client.read("TARGETS");
    ASSERT_TRUE(list);
    EXPECT_EQ(client.atomNames(list->bytes), targets);
    for (const std::string target : {"UTF8_STRING", "text/plain", "text/plain;charset=utf-8"}) {
      EXPECT_THAT(client.read(target), Optional(FieldsAre(target, text)));
    }
    EXPECT_THAT(client.read("TEXT"), Optional(FieldsAre("UTF8_STRING", text)));
    const auto string = client.read("STRING");
    EXPECT_EQ(string ? std::optional(string->bytes) : std::nullopt, latin1);
    EXPECT_EQ(client.read("image/png"), std::nullopt);
  }
}

TEST_F(ClipboardOwner, GivesSeveralFormsAtOnceAndLargeTextsInPieces) {
  std::string large;
  for (int i = 0; large.size() < 4'000'000; ++i) large += std::to_string(i);
  copy(large);
  const Client client;
  client.setAtoms(
      "HERE", "ATOM_PAIR",
      {client.atom("TIMESTAMP"), client.atom("TIME"), client.atom("image/png"), client.atom("PICTURE"),
       client.atom("MULTIPLE"), client.atom("AGAIN"), client.atom("STRING"), client.atom("LATIN")});
  const auto pairs = client.begin("MULTIPLE");
  ASSERT_TRUE(pairs);
  EXPECT_THAT(client.atomNames(pairs->bytes),
              ElementsAre("TIMESTAMP", "TIME", "None", "PICTURE", "None", "AGAIN", "STRING", "LATIN"));
  const Value time = client.take(client.window, "TIME");
  std::uint32_t since = 0;
  ASSERT_EQ(time.bytes.size(), sizeof since);
  std::memcpy(&since, time.bytes.data(), sizeof since);
  client.setAtoms("TIME", "ATOM", {});  // any change tells the server's time
  const auto now = client.next<xcb_property_notify_event_t>(XCB_PROPERTY_NOTIFY);
  EXPECT_LT(now->time - since, 20'000u);

  EXPECT_EQ(client.take(client.window, "LATIN").type, "INCR");
  // Another owner takes the selection meanwhile. This reader still gets all of its text.
  std::string received = client.piece("LATIN").bytes;
  copy("next");
  EXPECT_THAT(Client().read("UTF8_STRING"), Optional(FieldsAre("UTF8_STRING", "next")));
  received += client.finish("LATIN").bytes;
  EXPECT_TRUE(received == large) << received.size();
  EXPECT_TRUE(ended());
}

TEST_F(ClipboardOwner, OutlastsReadersThatVanishStopOrAskForNonsense) {
  const std::string large(1'000'000, 'm');
  copy(large);
  const Client stopped, client;
  EXPECT_THAT(stopped.begin("UTF8_STRING"), Optional(FieldsAre("INCR", testing::_)));  // and reads no further
  for (int i = 0; i < 100; ++i) {
    const Client vanishing;
    if (i % 2)
      EXPECT_TRUE(vanishing.begin("UTF8_STRING"));
    else
      vanishing.ask("UTF8_STRING", vanishing.atom("HERE"));
  }
  for (const std::vector<xcb_atom_t>& pairs :
       {std::vector<xcb_atom_t>{}, {1}, {1, 0}, std::vector<xcb_atom_t>(1'000, 1)}) {
    client.setAtoms("HERE", "ATOM_PAIR", pairs);
    client.begin("MULTIPLE");
  }
  client.setAtoms("HERE", "ATOM", {1, 1});
  EXPECT_EQ(client.begin("MULTIPLE"), std::nullopt);
  client.ask("MULTIPLE", XCB_NONE);
  client.ask("UTF8_STRING", 0x7fffffff);  // no such atom
  // Events that only the server may send.
  for (const std::uint8_t type : {std::uint8_t{XCB_SELECTION_CLEAR}, std::uint8_t{XCB_SELECTION_REQUEST},
                                  std::uint8_t{XCB_PROPERTY_NOTIFY}}) {
    const Owned<xcb_get_selection_owner_reply_t> owning(xcb_get_selection_owner_reply(
        client.connection, xcb_get_selection_owner(client.connection, client.atom("CLIPBOARD")), nullptr));
    char event[32]{static_cast<char>(type)};
    xcb_selection_clear_event_t clear{};
    clear.response_type = type;
    clear.selection = client.atom("CLIPBOARD");
    std::memcpy(event, &clear, sizeof clear);
    xcb_send_event(client.connection, 0, owning->owner, 0, event);
  }
  xcb_flush(client.connection);

  const Client old, modern;
  EXPECT_THAT(old.begin("TEXT", ""), Optional(FieldsAre("INCR", testing::_)));
  EXPECT_EQ(old.finish("TEXT").bytes.size(), large.size());
  const auto whole = modern.read("UTF8_STRING");
  ASSERT_TRUE(whole);
  EXPECT_EQ(whole->bytes.size(), large.size());

  copy("next");
  const auto start = Clock::now();
  EXPECT_TRUE(ended()) << "waits for the reader that has stopped";
  EXPECT_LT(Clock::now() - start, 15s);
}

TEST_F(ClipboardOwner, IsTheLatestCopyAskedFor) {
  const Client client;
  const auto before = Clock::now();
  std::this_thread::sleep_for(100ms);
  copy("later");
  copy("earlier, but slow", before);
  EXPECT_THAT(client.read("UTF8_STRING"), Optional(FieldsAre("UTF8_STRING", "later")));

  const auto asked = Clock::now();
  std::this_thread::sleep_for(100ms);
  client.own("CLIPBOARD");  // as managers do when an owner has ended
  EXPECT_TRUE(ended());
  copy("latest", asked);
  EXPECT_THAT(client.read("UTF8_STRING"), Optional(FieldsAre("UTF8_STRING", "latest")));
}

TEST_F(ClipboardOwner, HandsTheTextToTheClipboardManagerWhenAskedToEnd) {
  const std::string large(1'000'000, 'm');
  const Client manager;
  manager.own("CLIPBOARD_MANAGER");
  copy(large);
  kill(owner(), SIGTERM);
  const auto request = manager.next<xcb_selection_request_event_t>(XCB_SELECTION_REQUEST);
  ASSERT_TRUE(request);
  EXPECT_EQ(manager.name(request->target), "SAVE_TARGETS");
  const auto forms =
      manager.atomNames(manager.take(request->requestor, manager.name(request->property)).bytes);
  EXPECT_THAT(forms, testing::IsSupersetOf({"UTF8_STRING", "STRING"}));
  const auto text = manager.read("UTF8_STRING");
  ASSERT_TRUE(text);
  EXPECT_TRUE(text->bytes == large);
  char event[32]{};
  xcb_selection_notify_event_t done{};
  done.response_type = XCB_SELECTION_NOTIFY;
  done.requestor = request->requestor;
  done.selection = request->selection;
  done.target = request->target;
  done.property = request->property;
  std::memcpy(event, &done, sizeof done);
  xcb_send_event(manager.connection, 0, request->requestor, 0, event);
  xcb_flush(manager.connection);
  EXPECT_TRUE(ended());

  copy("to a manager that does not answer");
  kill(owner(), SIGTERM);
  EXPECT_TRUE(manager.next<xcb_selection_request_event_t>(XCB_SELECTION_REQUEST));
  kill(owner(), SIGTERM);
  EXPECT_TRUE(ended()) << "by the second signal";
}

TEST_F(ClipboardOwner, EndsWithoutManagerAndWithTheServer) {
  copy("no manager");
  kill(owner(), SIGTERM);
  EXPECT_TRUE(ended());
  copy("→");
  x.server.end();
  EXPECT_TRUE(ended());
}

// The library finds the program by its own place.
TEST_F(ClipboardOwner, IsFoundByTheLibrary) {
  const ProgramResult result = runProgram("DISPLAY=:987654 PATH= " COMMAND_LINE " copy → 2>&1");
  EXPECT_THAT(result.output, HasSubstr("(glyphorium-clipboard-owner: no connection"));
}

}  // namespace
}  // namespace glyph
