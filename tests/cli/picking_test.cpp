// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <poll.h>
#include <pty.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <sstream>
#include <utility>

#include "glyphorium/characters/display.h"
#include "tests/support/program.h"
#include "tests/support/sandbox.h"

namespace glyph {
namespace {

using ::testing::HasSubstr;
using ::testing::Not;

// Runs the finder in a pseudo terminal. The finder's standard output is a file.
class Finder {
 public:
  Finder(const std::string& arguments, unsigned short columns, unsigned short rows) {
    const winsize size{rows, columns, 0, 0};
    child_ = forkpty(&terminal_, nullptr, nullptr, &size);
    if (child_ == 0) {
      const std::string command =
          "export HOME=/nonexistent XDG_CONFIG_HOME= XDG_DATA_HOME= LC_ALL=C.UTF-8; exec " PROGRAM " pick " +
          arguments + " > " + folder_.path().string() + "/chosen";
      execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
      _exit(127);
    }
  }
  ~Finder() {
    if (child_ > 0) kill(child_, SIGKILL);
    if (child_ > 0) waitpid(child_, nullptr, 0);
    close(terminal_);
  }
  Finder(const Finder&) = delete;
  Finder& operator=(const Finder&) = delete;

  // Reads from the terminal until `text` has appeared, for at most five seconds. Returns all that was read.
  std::string screenWith(const std::string& text) {
    std::string screen;
    pollfd ready{terminal_, POLLIN, 0};
    while (screen.find(text) == std::string::npos && poll(&ready, 1, 5000) > 0) {
      char buffer[4096];
      const ssize_t count = read(terminal_, buffer, sizeof buffer);
      if (count <= 0) break;
      screen.append(buffer, static_cast<std::size_t>(count));
    }
    return screen;
  }

  void type(const std::string& keys) {
    EXPECT_EQ(write(terminal_, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
  }

  void resize(unsigned short columns, unsigned short rows) {
    const winsize size{rows, columns, 0, 0};
    ioctl(terminal_, TIOCSWINSZ, &size);
  }

  // Waits for the end of the program and returns its exit code. Reads the remaining output meanwhile, because
  // the program waits while the terminal is full.
  int exitCode() {
    screenWith("text that does not come");
    int status = -1;
    waitpid(std::exchange(child_, 0), &status, 0);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  }

  std::string chosen() const { return fileContent(folder_.path() / "chosen"); }

 private:
  TemporaryDirectory folder_;
  pid_t child_ = 0;
  int terminal_ = -1;
};

TEST(Picking, FindsWhileTypingAndPrintsTheChoice) {
  const struct {
    const char* arguments;
    const char* keys;
    const char* chosen;
  } cases[] = {
      {"", "magic wand\r", "🪄\n"},
      {"rightwards", " arrow\r", "→\n"},
      {"", "arrow\x15magic wamd\x17wand\r", "🪄\n"},  // Ctrl+U, Ctrl+W
      {"", "magic wandx\x7f\r", "🪄\n"},              // Backspace
      {"--as code-point", "é\r", "U+00E9\n"},
      {"", "rightwards arrow\x1b[B\x1b[A\x1b[6~\x1b[5~\x1b[21~\r", "→\n"},  // arrows, pages, F10
      {"--multi", "magic wand\t\x15rightwards arrow\t\r", "🪄→\n"},
      {"--multi", "magic wand\t\x15rightwards arrow\r", "🪄\n"},  // prints only the marked characters
      {"", "\x1b[200~🇩🇪\x1b[201~\r", "🇩🇪\n"},                       // a pasted text
  };
  for (const auto& [arguments, keys, chosen] : cases) {
    Finder finder(arguments, 80, 24);
    finder.screenWith("\x1b[?25h");
    finder.type(keys);
    EXPECT_EQ(finder.exitCode(), 0) << keys;
    EXPECT_EQ(finder.chosen(), chosen) << keys;
  }
}

TEST(Picking, LeavesWithoutAChoiceAndRestoresTheTerminal) {
  for (const char* const keys : {"\x1b", "\x03", "qqqqqq\r\x07"}) {
    Finder finder("", 80, 24);
    finder.screenWith("\x1b[?25h");
    finder.type(keys);
    EXPECT_THAT(finder.screenWith("\x1b[?1049l"), HasSubstr("\x1b[?1049l"));
    EXPECT_EQ(finder.exitCode(), 1);
    EXPECT_EQ(finder.chosen(), "");
  }
}

// In a narrow terminal, no line may be wider than the terminal, and the card of the current character must be
// visible.
TEST(Picking, WorksInFortyColumnsAndFollowsItsSize) {
  Finder finder("rightwards arrow", 40, 24);
  std::string screen = finder.screenWith("\x1b[?25h");
  EXPECT_THAT(screen, HasSubstr("&rarr;"));
  EXPECT_THAT(screen, HasSubstr("\u203A"));
  std::istringstream lines(screen);
  for (std::string line; std::getline(lines, line);) {
    std::string shown;
    for (std::size_t i = 0; i < line.size(); ++i) {
      if (line[i] == '\x1b') {
        while (i < line.size() && !std::isalpha(static_cast<unsigned char>(line[i]))) ++i;
      } else if (line[i] != '\r') {
        shown += line[i];
      }
    }
    EXPECT_LE(displayWidth(shown), 40) << line;
  }
  finder.resize(100, 8);  // not high enough for the card
  EXPECT_THAT(finder.screenWith("\x1b[?25h"), Not(HasSubstr("&rarr;")));
}

}  // namespace
}  // namespace glyph
