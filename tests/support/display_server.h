// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>

#include "tests/support/program.h"
#include "tests/support/sandbox.h"

namespace glyph {

/// A program in the background, which ends with this object.
class BackgroundProgram {
 public:
  explicit BackgroundProgram(const std::string& command) : process_(fork()) {
    if (process_ == 0) {
      prctl(PR_SET_PDEATHSIG, SIGTERM);
      execl("/bin/sh", "sh", "-c", ("exec " + command).c_str(), nullptr);
      _exit(127);
    }
  }
  ~BackgroundProgram() { end(); }
  BackgroundProgram(const BackgroundProgram&) = delete;
  BackgroundProgram& operator=(const BackgroundProgram&) = delete;

  void freeze() const { kill(process_, SIGSTOP); }
  void end() {
    if (process_ <= 0) return;
    kill(process_, SIGCONT);
    kill(process_, SIGTERM);
    waitpid(process_, nullptr, 0);
    process_ = 0;
  }

 private:
  pid_t process_;
};

/// An X server of a test's own, which DISPLAY names. `usable` is false where Xvfb is not installed.
struct XServer {
  bool usable = isInstalled("Xvfb");
  TemporaryDirectory directory;
  BackgroundProgram server{"Xvfb -displayfd 7 -screen 0 640x480x24 -nolisten tcp -noreset 7>" +
                           (directory / "display").string() + " >/dev/null 2>&1"};
  std::string name = usable ? started() : "";
  ScopedVariable display{"DISPLAY", name};
  ScopedVariable wayland{"WAYLAND_DISPLAY", {}};

  std::string started() const {
    std::string number;
    EXPECT_TRUE(eventually([&] { return (number = fileContent(directory / "display")).ends_with('\n'); }));
    return ":" + number.substr(0, number.find('\n'));
  }
};

/// A Wayland compositor of a test's own, which WAYLAND_DISPLAY names. `usable` is false where sway or wl-copy
/// is not installed.
struct WaylandServer {
  bool usable = isInstalled("sway") && isInstalled("wl-copy");
  TemporaryDirectory directory;
  std::string runtime = directory / "runtime";
  ScopedVariable variables[6] = {{"XDG_RUNTIME_DIR", runtime}, {"DISPLAY", {}},
                                 {"WLR_BACKENDS", "headless"}, {"WLR_LIBINPUT_NO_DEVICES", "1"},
                                 {"WLR_RENDERER", "pixman"},   {"HOME", "/nonexistent"}};
  // Sway starts on the first free number and would connect to a compositor that the environment names.
  ScopedVariable nobody{"WAYLAND_DISPLAY", {}};
  BackgroundProgram server{command()};
  ScopedVariable display{"WAYLAND_DISPLAY", usable ? started() : ""};

  std::string command() const {
    chmod(directory.path().c_str(), 0755);
    mkdir(runtime.c_str(), 0700);
    writeFile(directory / "config", "xwayland disable\n");
    // Sway refuses to run as root, but lets root's programs connect.
    std::string asNobody;
    if (getuid() == 0) {
      EXPECT_EQ(chown(runtime.c_str(), 65534, 65534), 0);
      asNobody = "setpriv --reuid=65534 --regid=65534 --clear-groups ";
    }
    return asNobody + "sway -c " + (directory / "config").string() + " >/dev/null 2>&1";
  }
  std::string started() const {
    EXPECT_TRUE(eventually([&] { return std::filesystem::exists(runtime + "/wayland-1"); }));
    return "wayland-1";
  }
};

}  // namespace glyph
