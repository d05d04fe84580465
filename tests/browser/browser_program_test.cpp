// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>

#include <sstream>

#include "tests/support/display_server.h"

// Tests the program on an X server: with real key events, with another program that pastes the copied text,
// and with a crash.
namespace browser {
namespace {

using glyph::eventually;
using glyph::fileContent;
using glyph::runProgram;

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

}  // namespace
}  // namespace browser
