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

/// A program that runs in the background. The destructor ends it.
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

/// A separate X server for a test. Sets DISPLAY to the name of the server. `usable` is false if Xvfb is not
/// installed.
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

/// A separate Wayland compositor for a test. Sets WAYLAND_DISPLAY to the name of the compositor. `usable` is
/// false if sway or wl-copy is not installed.
struct WaylandServer {
  bool usable = isInstalled("sway") && isInstalled("wl-copy");
  TemporaryDirectory directory;
  std::string runtime = directory / "runtime";
  ScopedVariable variables[6] = {{"XDG_RUNTIME_DIR", runtime}, {"DISPLAY", {}},
                                 {"WLR_BACKENDS", "headless"}, {"WLR_LIBINPUT_NO_DEVICES", "1"},
                                 {"WLR_RENDERER", "pixman"},   {"HOME", "/nonexistent"}};
  // Unsets WAYLAND_DISPLAY while sway starts. Otherwise sway would connect to the compositor with this name.
  ScopedVariable nobody{"WAYLAND_DISPLAY", {}};
  BackgroundProgram server{command()};
  ScopedVariable display{"WAYLAND_DISPLAY", usable ? started() : ""};

  std::string command() const {
    chmod(directory.path().c_str(), 0755);
    mkdir(runtime.c_str(), 0700);
    writeFile(directory / "config", "xwayland disable\n");
    // Run sway as the user nobody if this user is root: sway refuses to run as root, but it accepts
    // connections from root's programs.
    std::string asNobody;
    if (getuid() == 0) {
      EXPECT_EQ(chown(runtime.c_str(), 65534, 65534), 0);
      asNobody = "setpriv --reuid=65534 --regid=65534 --clear-groups ";
    }
    return asNobody + "sway -c " + (directory / "config").string() + " >/dev/null 2>&1";
  }
  std::string started() const {
    // Sway chooses the first free name, beginning with "wayland-1".
    EXPECT_TRUE(eventually([&] { return std::filesystem::exists(runtime + "/wayland-1"); }));
    return "wayland-1";
  }
};

}  // namespace glyph
