// SPDX-License-Identifier: MIT
#include "glyphorium/services/pasteboard/pasteboard.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/prctl.h>
#include <sys/syscall.h>

#include <thread>

#include "glyphorium/services/notifications/notification_center.h"
#include "glyphorium/services/notifications/notification_names.h"
#include "glyphorium/services/pasteboard/desktop_pasteboard.h"
#include "glyphorium/services/pasteboard/spawn.h"
#include "glyphorium/services/pasteboard/terminal_pasteboard.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "tests/support/display_server.h"
#include "tests/support/program.h"
#include "tests/support/recorded_diagnostics.h"
#include "tests/support/sandbox.h"

namespace glyph {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

// Returns true if the process has ended. It may still be a zombie whose exit code has not been collected.
bool gone(const std::string& process) {
  const std::string status = fileContent("/proc/" + process + "/stat");
  return status.empty() || status.find(") Z ") != std::string::npos;
}

// Makes pidfd_open fail with ENOSYS, as on old kernels and in some sandboxes.
void forbidPidfd() {
  sock_filter program[] = {
      BPF_STMT(BPF_LD | BPF_W | BPF_ABS, 0), BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, SYS_pidfd_open, 0, 1),
      BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ERRNO | ENOSYS), BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW)};
  const sock_fprog filter{4, program};
  prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
  prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter);
}

TEST(DesktopPasteboard, TriesTheProgramsOfTheSessionInOrder) {
  // Shell commands for the fake clipboard programs. Each fake program first writes its name to a log.
  const std::string take = "/bin/cat >\"$DIR/text\"\n", own = take + "echo copied\n", fail = "exit 1\n";
  const std::string hang = "/bin/sleep 1000 & echo $! >\"$DIR/process\"; wait\n";
  const std::string stubborn = "trap '' TERM INT HUP\n" + hang;
  const std::string flood = "echo $$ >\"$DIR/process\"; while :; do echo y; echo y >&2; done\n";
  const std::string missing, x = "x", w = "w", gnome = "ubuntu:GNOME", sway = "sway";
  const struct {
    std::string display, waylandDisplay, desktop, xclip, wlCopy, xsel, text;
    bool taken;
    std::string asked, problem, owner = {};
  } cases[] = {
      {x, "", "", take, take, take, "→", true, "xclip ", ""},
      {"", w, "", take, take, take, "→", true, "wl-copy ", ""},
      {x, w, sway, take, take, take, "→", true, "wl-copy ", ""},
      {x, w, gnome, take, take, take, "→", true, "xclip ", ""},
      {x, w, gnome, fail, take, take, "→", true, "xclip wl-copy ", ""},
      {x, w, sway, take, missing, missing, "", true, "xclip ", ""},
      {x, "", gnome, missing, take, take, "→\n", true, "xsel ", ""},
      {x, "", "", fail, take, take, "", false, "xclip ", "xclip: exit code 1"},
      {x, "", "", missing, take, take, "a\0b"s, false, "", "xclip: not installed"},
      {x, w, sway, missing, missing, take, "→", false, "",
       "wl-copy: not installed, owner: not installed, xclip: not installed"},
      {"", "", gnome, take, take, take, "→", false, "", "neither WAYLAND_DISPLAY nor DISPLAY"},
      {x, "", "", hang, take, take, "→", false, "xclip ", "xclip: no answer in time"},
      {x, w, sway, take, stubborn, take, "→", false, "wl-copy ", "wl-copy: no answer in time"},
      {x, "", "", flood, take, take, "→", false, "xclip ", "xclip: no answer in time"},
      {x, "", "", take, take, take, std::string(3'000'000, 'y'), true, "xclip ", ""},
      {x, "", "", take, take, take, "→", true, "owner ", "", own},
      {x, w, gnome, take, take, take, "→", true, "owner ", "", own},
      {x, w, sway, take, take, take, "→", true, "wl-copy ", "", own},
      {x, w, sway, take, fail, take, "→", true, "wl-copy owner ", "", own},
      {x, "", "", take, take, take, "→", true, "owner xclip ", "", "exit 0"},
      {x, "", "", fail, take, missing, "→", false, "owner xclip ", "owner: out of memory, xclip: exit code 1",
       "echo out of memory"},
      {x, "", "", take, take, take, "→", false, "owner ", "owner: no answer in time", hang},
  };
  for (const bool pidfd : {true, false}) {
    for (const auto& row : cases) {
      SCOPED_TRACE(row.display + row.waylandDisplay + row.desktop + " " + row.asked + row.problem);
      const TemporaryDirectory directory;
      for (const auto& [name, body] : {std::pair{"xclip", row.xclip},
                                       {"wl-copy", row.wlCopy},
                                       {"xsel", row.xsel},
                                       {"owner", row.owner}}) {
        if (body != missing)
          writeProgram(directory / name, "printf '"s + name + " ' >>\"$DIR/log\"\n" + body);
      }
      const ScopedVariable variables[] = {{"PATH", directory / ""},
                                          {"DIR", directory / ""},
                                          {"DISPLAY", row.display},
                                          {"WAYLAND_DISPLAY", row.waylandDisplay},
                                          {"XDG_CURRENT_DESKTOP", row.desktop}};
      RecordedDiagnostics diagnostics;
      const bool hangs = row.problem.find("in time") != std::string::npos;
      DesktopPasteboard pasteboard(hangs ? 1s : 20s, directory / "owner");
      if (pidfd) {
        EXPECT_EQ(pasteboard.setPlainText(row.text), row.taken);
        EXPECT_THAT(diagnostics.take(), AllOf(SizeIs(row.taken ? 0 : 1), Each(HasSubstr(row.problem))));
      } else {
        EXPECT_EQ(inChild([&] { return forbidPidfd(), pasteboard.setPlainText(row.text); }), row.taken);
      }
      EXPECT_EQ(fileContent(directory / "log"), row.asked);
      EXPECT_EQ(fileContent(directory / "text"), row.taken ? row.text : "");
      if (hangs) {
        std::string process = fileContent(directory / "process");
        ASSERT_FALSE(process.empty());
        process.pop_back();
        EXPECT_TRUE(eventually([&] { return gone(process); }));
      }
    }
  }
}

TEST(DesktopPasteboard, BackgroundProcessInheritsNothingFromTheHost) {
  const TemporaryDirectory directory;
  writeProgram(directory / "xclip", "/bin/sleep 1000 & echo $! >\"$DIR/process\"\n");
  const ScopedVariable variables[] = {
      {"PATH", directory / ""}, {"DIR", directory / ""}, {"DISPLAY", "x"}, {"WAYLAND_DISPLAY", {}}};
  int ends[2];
  ASSERT_EQ(pipe(ends), 0);  // many hosts open descriptors without O_CLOEXEC
  const auto before = signal(SIGCHLD, SIG_IGN);
  // SIGCHLD is ignored, so there are no exit codes. /bin/false does not print "copied", so it counts as
  // failed, and the next program is started.
  EXPECT_TRUE(DesktopPasteboard(20s, "/bin/false").setPlainText("→"));
  signal(SIGCHLD, before);
  close(ends[1]);
  pollfd end{ends[0], POLLIN, 0};
  EXPECT_EQ(poll(&end, 1, 10'000), 1) << "the pipe's other end is still open somewhere";
  close(ends[0]);
  const pid_t sleeper = std::stoi(fileContent(directory / "process"));
  EXPECT_EQ(getsid(sleeper), getpgid(sleeper));
  EXPECT_NE(getsid(sleeper), getsid(0));
  kill(sleeper, SIGKILL);
}

std::string output(const std::string& command) {
  return runProgram("exec 2>/dev/null; " + command).output;
}

// Copies the text in a child process that ends before another program reads the text.
void copyAndEnd(const std::string& text, const std::string& ownerProgram = OWNER_PROGRAM) {
  EXPECT_EQ(inChild([&] { return DesktopPasteboard(60s, ownerProgram).setPlainText(text) ? 0 : 1; }), 0);
}

// Copies texts and reads them with another program. Finally stops the display server, so that a copy must
// time out.
void exchangeTexts(const BackgroundProgram& server, const std::string& list,
                   const testing::Matcher<std::string>& types, const std::string& paste) {
  const std::string large(10'000'000, 'm');
  for (const auto& text : {"→ °C 😀"s, ""s, "a\0b"s, "two\nlines\n"s, large, "&#x2192;"s}) {
    copyAndEnd(text);
    EXPECT_THAT(output(list), types);
    EXPECT_TRUE(output(paste) == text) << text.substr(0, 20);
  }
  RecordedDiagnostics diagnostics;
  server.freeze();
  EXPECT_FALSE(DesktopPasteboard(500ms, OWNER_PROGRAM).setPlainText("never arrives"));
  EXPECT_THAT(diagnostics.take(), ElementsAre(HasSubstr("no answer in time")));
}

TEST(DesktopPasteboard, TextRemainsAfterTheProcessEndsOnX11) {
  const XServer x;
  if (!x.usable || !isInstalled("xclip")) GTEST_SKIP() << "needs Xvfb and xclip";
  const std::string paste = "xclip -selection clipboard -o";
  copyAndEnd("by xclip →\n", "/nonexistent");
  // xclip and xsel move to the background shortly before they own the clipboard, so wait for the text.
  EXPECT_TRUE(eventually([&] { return output(paste) == "by xclip →\n"; }));
  if (isInstalled("xsel")) {
    const auto bin = x.directory / "bin";
    std::filesystem::create_directory(bin);
    std::filesystem::create_symlink(output("printf %s \"$(command -v xsel)\""), bin / "xsel");
    {
      const ScopedVariable onlyXsel("PATH", bin);
      copyAndEnd("by xsel →\n", "/nonexistent");
    }
    EXPECT_TRUE(eventually([&] { return output(paste) == "by xsel →\n"; }));
  }
  if (OWNER_PROGRAM ""s == "/nonexistent") GTEST_SKIP() << "built without XCB";
  exchangeTexts(x.server, paste + " -t TARGETS", HasSubstr("UTF8_STRING\n"), paste);
  const ScopedVariable nowhere("DISPLAY", ":987654");
  EXPECT_FALSE(DesktopPasteboard(20s, OWNER_PROGRAM).setPlainText("never arrives"));
}

TEST(DesktopPasteboard, TextRemainsAfterTheProcessEndsOnWayland) {
  const WaylandServer wayland;
  if (!wayland.usable) GTEST_SKIP() << "needs sway and wl-clipboard";
  exchangeTexts(wayland.server, "wl-paste -l", HasSubstr("text/plain;charset=utf-8\n"), "wl-paste -n");
}

// Copies pairs of texts while other programs keep the processors busy. When "entityCopied" is posted for the
// second text of a pair, other programs must be able to read this text, and it must stay on the clipboard. In
// most pairs, another process makes one of the copies. If `overlapping` is true, the first copy may still be
// in progress when the second copy is requested.
void copyUnderLoad(const std::string& paste, bool overlapping) {
  const char* const asked = getenv("GLYPHORIUM_COPIES");
  const int pairs = asked ? (std::stoi(asked) + 1) / 2 : 12;
  const BackgroundProgram busy[] = {BackgroundProgram("sh -c 'while :; do :; done'"),
                                    BackgroundProgram("sh -c 'while :; do :; done'"),
                                    BackgroundProgram("sh -c 'while :; do :; done'")};
  setPasteboard(std::make_shared<DesktopPasteboard>(20s, OWNER_PROGRAM));
  int refused = 0, late = 0, replaced = 0;
  std::string text, there;
  std::chrono::duration<double> slowest{};
  const auto observer = NotificationCenter::defaultCenter().addObserver(
      notificationName::entityCopied, [&](auto&) { there = output(paste); });
  const auto copy = [&] {
    const auto start = std::chrono::steady_clock::now();
    const bool taken = pasteboard()->setPlainText(text);
    slowest = std::max<std::chrono::duration<double>>(slowest, std::chrono::steady_clock::now() - start);
    return taken;
  };
  for (int pair = 0; pair < pairs; ++pair) {
    text = std::to_string(pair) + " first";
    const int kind = pair % (overlapping ? 4 : 3);
    pid_t slow = 0;
    if (kind == 0) refused += !copy();
    if (kind == 1 || kind == 2) refused += inChild([&] { return copy() ? 0 : 1; }) != 0;
    if (kind == 3) {
      const auto now = std::chrono::steady_clock::now();
      const auto requestedAt = std::chrono::duration_cast<std::chrono::microseconds>(now.time_since_epoch());
      const Program owner{{OWNER_PROGRAM, std::to_string(requestedAt.count())}, "copied"};
      slow = fork();
      if (slow == 0) _exit(runProgram(owner, text, now + 20s).problem.empty() ? 0 : 1);
      std::this_thread::sleep_for(50ms);
    }
    text = std::to_string(pair) + " second";
    if (kind == 2) {
      late += inChild([&] { return toolKit().writeToPasteboard(text) && there == text ? 0 : 1; }) != 0;
    } else {
      refused += !toolKit().writeToPasteboard(text);
      late += there != text;
      EXPECT_EQ(there, text) << "kind " << kind;
    }
    int status = 0;
    if (slow) waitpid(slow, &status, 0);
    refused += status != 0;
    std::this_thread::sleep_for(10ms);
    there = output(paste);
    replaced += there != text;
    EXPECT_EQ(there, text) << "kind " << kind;
  }
  setPasteboard(nullptr);
  std::printf("%d copies: %d refused, %d late, %d replaced by the one before; the slowest took %.3f s\n",
              2 * pairs, refused, late, replaced, slowest.count());
  EXPECT_EQ(refused + late + replaced, 0);
}

TEST(DesktopPasteboard, LastCopyIsThereUnderLoadOnX11) {
  const XServer x;
  if (!x.usable || !isInstalled("xclip")) GTEST_SKIP() << "needs Xvfb and xclip";
  if (OWNER_PROGRAM ""s == "/nonexistent") GTEST_SKIP() << "built without XCB";
  copyUnderLoad("xclip -selection clipboard -o", true);
}

TEST(DesktopPasteboard, LastCopyIsThereUnderLoadOnWayland) {
  const WaylandServer wayland;
  if (!wayland.usable) GTEST_SKIP() << "needs sway and wl-clipboard";
  copyUnderLoad("wl-paste -n", false);
}

TEST(TerminalPasteboard, SendsOnlyTextsThatTerminalsAccept) {
  const int terminal = posix_openpt(O_RDWR | O_NOCTTY);
  ASSERT_TRUE(terminal >= 0 && grantpt(terminal) == 0 && unlockpt(terminal) == 0);
  const std::string device = ptsname(terminal);
  const int keptOpen = open(device.c_str(), O_RDWR | O_NOCTTY);
  TerminalPasteboard pasteboard(device);
  const auto sequence = [&](const std::string& text) {
    std::string received;
    std::thread reader([&] {
      for (char c = 0; c != '\a' && read(terminal, &c, 1) == 1;) received += c;
    });
    EXPECT_TRUE(pasteboard.setPlainText(text));
    reader.join();
    return received;
  };
  EXPECT_EQ(sequence("→"), "\033]52;c;4oaS\a");
  EXPECT_EQ(sequence("\xff"), "\033]52;c;/w==\a");
  EXPECT_EQ(sequence(std::string(74'000, 'a')).size(), 8u + 98'668u);

  RecordedDiagnostics diagnostics;
  EXPECT_FALSE(pasteboard.setPlainText(""));
  EXPECT_FALSE(pasteboard.setPlainText(std::string(74'001, 'a')));
  EXPECT_FALSE(pasteboard.setPlainText(std::string(74'000, 'a'))) << "no program reads from the terminal";
  EXPECT_FALSE(TerminalPasteboard("/nonexistent").setPlainText("→"));
  EXPECT_EQ(diagnostics.take().size(), 4u);
  close(keptOpen);
  close(terminal);
}

}  // namespace
}  // namespace glyph
