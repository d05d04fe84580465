// SPDX-License-Identifier: MIT
#include "glyphorium/services/pasteboard/desktop_pasteboard.h"

#include <dlfcn.h>

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/pasteboard/spawn.h"

namespace glyph {
namespace {

std::string_view environment(const char* variable) {
  const char* const value = std::getenv(variable);
  return value ? value : "";
}

// XDG_CURRENT_DESKTOP is a list separated by ":", such as "ubuntu:GNOME".
bool desktopIs(std::string_view name) {
  auto list = environment("XDG_CURRENT_DESKTOP");
  for (;;) {
    const auto colon = list.find(':');
    if (list.substr(0, colon) == name) return true;
    if (colon == std::string_view::npos) return false;
    list.remove_prefix(colon + 1);
  }
}

// Returns the path of glyphorium-clipboard-owner. The build and the installation both put this program at a
// fixed path relative to the library's own file. Returns an empty string if the path of the library is not
// known.
std::string installedOwnerProgram() {
  Dl_info library{};
  const auto* const code = reinterpret_cast<const void*>(&installedOwnerProgram);
  // A relative path is useless: the working directory may have changed since the library was loaded.
  if (!dladdr(code, &library) || !library.dli_fname || library.dli_fname[0] != '/') return {};
  std::error_code error;
  const auto file = std::filesystem::canonical(library.dli_fname, error);
  if (error) return {};
  return (file.parent_path() / CLIPBOARD_OWNER).lexically_normal();
}

// Returns the command that starts glyphorium-clipboard-owner. It passes the time of this copy, so that of
// several overlapping copies the latest remains.
Program owner(std::string path) {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  const auto requestedAt = std::chrono::duration_cast<std::chrono::microseconds>(now).count();
  return {{std::move(path), std::to_string(requestedAt)}, "copied"};
}

// Returns the programs that can copy the text in this session, the best program first.
std::vector<Program> programsFor(std::string_view text, const std::string& ownerPath) {
  std::vector<Program> x11Programs;
  if (ownerPath.starts_with('/')) x11Programs.push_back(owner(ownerPath));
  // Without -t, xclip offers UTF8_STRING, which every program can read. With -t, xclip offers only the given
  // type.
  x11Programs.push_back({{"xclip", "-selection", "clipboard", "-in"}});
  // Without --type, wl-copy guesses a type from the content.
  const Program wlCopy{{"wl-copy", "--type", "text/plain;charset=utf-8"}};
  const bool x11 = !environment("DISPLAY").empty();
  const bool wayland = !environment("WAYLAND_DISPLAY").empty();

  if (x11 && wayland) {
    // On GNOME, wl-copy can use the clipboard only while it has the keyboard focus. An X11 program can set
    // the same clipboard through Xwayland. On other Wayland desktops, the clipboard of Xwayland is used only
    // while an X11 window has the focus.
    std::vector<Program> programs = std::move(x11Programs);
    programs.insert(desktopIs("GNOME") ? programs.end() : programs.begin(), wlCopy);
    return programs;
  }
  if (wayland) return {wlCopy};
  if (!x11) return {};
  // xsel clears the clipboard if the text is empty, and truncates a text at the first NUL.
  if (!text.empty() && text.find('\0') == std::string_view::npos) {
    x11Programs.push_back({{"xsel", "--clipboard", "--input"}});
  }
  return x11Programs;
}

// Returns an empty string if a program accepted the text. Otherwise returns the reasons why all programs
// failed.
std::string handOver(std::string_view text, std::chrono::milliseconds limit, const std::string& ownerPath) {
  const auto deadline = std::chrono::steady_clock::now() + limit;
  const auto programs = programsFor(text, ownerPath);
  if (programs.empty()) return "no display: neither WAYLAND_DISPLAY nor DISPLAY is set";

  std::string problems;
  for (const Program& program : programs) {
    const SpawnResult result = runProgram(program, text, deadline);
    if (result.end == SpawnEnd::succeeded) return {};
    if (!problems.empty()) problems += ", ";
    problems += std::filesystem::path(program.command.front()).filename().string() + ": " + result.problem;
    // The display server probably hangs. The next program would hang as well.
    if (result.end == SpawnEnd::timedOut) break;
  }
  return problems;
}

}  // namespace

bool DesktopPasteboard::setPlainText(std::string_view text) try {
  const std::string problem =
      handOver(text, limit_, ownerProgram_.empty() ? installedOwnerProgram() : ownerProgram_);
  if (!problem.empty()) printProblem("Clipboard unchanged (" + problem + ")");
  return problem.empty();
} catch (const std::exception&) {  // out of memory
  printProblem("Clipboard unchanged (out of memory)");
  return false;
}

}  // namespace glyph
