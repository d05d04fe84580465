// SPDX-License-Identifier: MIT
#include <glyphorium/glyphorium.h>
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QTest>

#include "tests/support/display_server.h"

// Tests the program on an X server: with real key events, with another program that pastes the copied text,
// and with a crash.
namespace browser {
namespace {

using glyph::eventually;
using glyph::fileContent;
using glyph::runProgram;

// Answers as a desktop's portal for global shortcuts does, and presses the key.
class ShortcutPortal : public QDBusVirtualObject {
 public:
  explicit ShortcutPortal(bool refuses)
      : bus_(QDBusConnection::connectToBus(qEnvironmentVariable("DBUS_SESSION_BUS_ADDRESS"), name)),
        refuses_(refuses) {
    bus_.registerVirtualObject(path, this, QDBusConnection::SubPath);
    EXPECT_TRUE(bus_.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
  }
  ~ShortcutPortal() override { QDBusConnection::disconnectFromBus(name); }

  bool isAnswered() const { return isAnswered_; }
  void press() {
    QDBusMessage signal = QDBusMessage::createTargetedSignal(client_, path, portal, "Activated");
    signal << QVariant::fromValue(QDBusObjectPath(session)) << "pick" << qulonglong{0} << QVariantMap();
    bus_.send(signal);
  }

  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& call, const QDBusConnection&) override {
    if (call.interface() != portal) return false;
    client_ = call.service();
    const auto options = qdbus_cast<QVariantMap>(call.arguments().constLast());
    const QString request = QString(path) + "/request/" + client_.mid(1).replace('.', '_') + '/' +
                            options.value("handle_token").toString();
    bus_.send(call.createReply(QVariant::fromValue(QDBusObjectPath(request))));
    QVariantMap results{{"session_handle", session}};
    isAnswered_ = call.member() == "BindShortcuts";
    if (isAnswered_) {
      EXPECT_EQ(call.signature(), "oa(sa{sv})sa{sv}");
      results = {{"shortcuts", call.arguments().at(1)}};
    }
    QDBusMessage response =
        QDBusMessage::createTargetedSignal(client_, request, "org.freedesktop.portal.Request", "Response");
    response << (isAnswered_ && refuses_ ? 1U : 0U) << results;
    bus_.send(response);
    return true;
  }

 private:
  static constexpr const char* name = "portal of the test";
  static constexpr const char* path = "/org/freedesktop/portal/desktop";
  static constexpr const char* portal = "org.freedesktop.portal.GlobalShortcuts";
  static constexpr const char* session = "/org/freedesktop/portal/desktop/session/test";
  QDBusConnection bus_;
  QString client_;
  bool refuses_ = false;
  bool isAnswered_ = false;
};

struct BrowserProgramTest : testing::Test {
  glyph::XServer server;
  glyph::TemporaryDirectory home;
  glyph::BackgroundProgram bus{"dbus-daemon --session --nofork --print-address=7 7>" +
                               (home / "address").string()};
  glyph::ScopedVariable variables[6] = {
      {"XDG_CONFIG_HOME", home / "config"}, {"XDG_DATA_HOME", home / "data"},
      {"XDG_RUNTIME_DIR", home.path()},     {"LC_ALL", "C.UTF-8"},
      {"DBUS_SESSION_BUS_ADDRESS", {}},     {"QT_QPA_PLATFORM", "xcb"}};

  void SetUp() override {
    if (!server.usable || !glyph::isInstalled("xdotool")) GTEST_SKIP() << "Xvfb and xdotool are needed";
    ASSERT_TRUE(eventually([&] { return fileContent(home / "address").ends_with('\n'); }));
    const std::string address = fileContent(home / "address");
    setenv("DBUS_SESSION_BUS_ADDRESS", address.substr(0, address.find('\n')).c_str(), 1);
  }

  // Starts the program and waits for its window. Returns the process identifier.
  int start(const std::string& arguments) {
    const std::string log = (home / "log").string();
    runProgram(std::string(BROWSER) + " " + arguments + " >" + log + " 2>&1 & echo $! >" +
               (home / "pid").string());
    EXPECT_TRUE(eventually([] { return !windows("Glyphorium").empty(); })) << fileContent(log);
    return std::stoi(fileContent(home / "pid"));
  }
  static std::string windows(const std::string& name) {
    return runProgram("xdotool search --onlyvisible --name '^" + name + "$' 2>/dev/null").output;
  }
  static void keys(const std::string& arguments) {
    const std::string window = windows("Glyphorium");
    const std::string first = window.substr(0, window.find('\n'));
    EXPECT_EQ(runProgram("xdotool windowfocus --sync " + first + " " + arguments).exitCode, 0);
  }
  static std::string pasted() {
    return runProgram("timeout 2 xclip -selection clipboard -o 2>/dev/null").output;
  }
  static bool ends(int process) {
    return eventually([&] { return kill(process, 0) != 0; });
  }
};

TEST_F(BrowserProgramTest, CopiesForOtherProgramsAndKeepsChoicesAfterACrash) {
  const int first = start("--search 'leftwards double arrow'");
  keys("key Return");
  EXPECT_TRUE(eventually([] { return pasted() == "⇐"; }));

  // A second process passes its arguments to the first process and ends.
  EXPECT_EQ(runProgram(std::string(BROWSER) + " --search 1d6a5").exitCode, 0);
  keys("key Return");
  EXPECT_TRUE(eventually([] { return pasted() == "\U0001D6A5"; }));
  keys("key ctrl+d");
  keys("key ctrl+n");
  EXPECT_TRUE(eventually([] { return !windows("Add a character").empty(); }));
  EXPECT_EQ(runProgram("xdotool search --name '^Add a character$' windowfocus --sync type 21d0").exitCode, 0);
  EXPECT_EQ(runProgram("xdotool key Return").exitCode, 0);
  const auto added = [] { return runProgram(std::string(PROGRAM) + " added").output; };
  EXPECT_TRUE(eventually([&] { return added().find("21d0") != std::string::npos; }));
  kill(first, SIGKILL);
  ASSERT_TRUE(ends(first));

  const int second = start("");
  EXPECT_NE(added().find("21d0"), std::string::npos);
  using List = std::vector<std::string>;
  glyph::SqliteSettingsStore settings;
  EXPECT_EQ(settings.object("favouriteCharacters"), glyph::SettingValue(List{"1d6a5"}));
  EXPECT_EQ(settings.object("recentlyCopiedCharacters"), glyph::SettingValue(List{"1d6a5", "21d0"}));
  keys("key ctrl+q");
  EXPECT_TRUE(ends(second));
  EXPECT_EQ(fileContent(home / "log"), "") << "nothing to complain about";
}

TEST_F(BrowserProgramTest, ACopyOutlivesTheProgram) {
  const int process = start("--search euro");
  keys("key Return");
  EXPECT_TRUE(eventually([] { return pasted() == "€"; }));
  keys("key ctrl+q");
  ASSERT_TRUE(ends(process));
  EXPECT_TRUE(eventually([] { return pasted() == "€"; }));
}

TEST_F(BrowserProgramTest, AKeyOfTheDesktopOpensThePicker) {
  constexpr std::string_view wish = "browserPickerKey";
  glyph::SqliteSettingsStore().set(wish, true);
  for (const bool refuses : {false, true}) {
    ShortcutPortal portal(refuses);
    const int process = start("");
    ASSERT_TRUE(QTest::qWaitFor([&] { return portal.isAnswered(); }));
    EXPECT_EQ(windows("Pick a character"), "");
    portal.press();
    const bool opens =
        QTest::qWaitFor([] { return !windows("Pick a character").empty(); }, refuses ? 500 : 5'000);
    EXPECT_EQ(opens, !refuses);
    const auto wanted = glyph::SqliteSettingsStore().object(wish);
    EXPECT_EQ(wanted, glyph::SettingValue(!refuses)) << "a refusal is not asked for again at the next start";
    kill(process, SIGTERM);
    ASSERT_TRUE(ends(process));
  }
}

}  // namespace
}  // namespace browser
