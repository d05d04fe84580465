// SPDX-License-Identifier: MIT
#include "glyphorium/services/pasteboard/desktop_pasteboard.h"

#include <cstdlib>
#include <exception>
#include <string>
#include <vector>

#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/pasteboard/spawn.h"

namespace glyph {
namespace {

using Command = std::vector<std::string>;

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

// The programs that can take the text in this session, best first.
std::vector<Command> commandsFor(std::string_view text) {
  // xclip without -t offers UTF8_STRING, which every program reads; with a type of its own it offers only
  // that.
  const Command xclip{"xclip", "-selection", "clipboard", "-in"};
  // Without a type wl-copy guesses one from the content.
  const Command wlCopy{"wl-copy", "--type", "text/plain;charset=utf-8"};
  const bool x11 = !environment("DISPLAY").empty();
  const bool wayland = !environment("WAYLAND_DISPLAY").empty();

  // GNOME gives wl-copy no clipboard without the keyboard's focus; xclip reaches the same clipboard through
  // Xwayland. Other Wayland desktops heed Xwayland's clipboard only while an X11 window has the focus.
  if (x11 && wayland) return desktopIs("GNOME") ? std::vector{xclip, wlCopy} : std::vector{wlCopy, xclip};
  if (wayland) return {wlCopy};
  if (!x11) return {};
  std::vector<Command> commands{xclip};
  // xsel clears the clipboard for the empty text and cuts a text at its first NUL.
  if (!text.empty() && text.find('\0') == std::string_view::npos) {
    commands.push_back({"xsel", "--clipboard", "--input"});
  }
  return commands;
}

// Empty where a program took the text, else the reason why none did.
std::string handOver(std::string_view text, std::chrono::milliseconds limit) {
  const auto commands = commandsFor(text);
  if (commands.empty()) return "no display: neither WAYLAND_DISPLAY nor DISPLAY is set";

  const auto deadline = std::chrono::steady_clock::now() + limit;
  std::string problems;
  for (const Command& command : commands) {
    const SpawnResult result = runProgram(command, text, deadline);
    if (result.end == SpawnEnd::succeeded) return {};
    if (!problems.empty()) problems += ", ";
    problems += command.front() + ": " + result.problem;
    // The display server hangs; it would hang the next program as well.
    if (result.end == SpawnEnd::timedOut) break;
  }
  return problems;
}

}  // namespace

bool DesktopPasteboard::setPlainText(std::string_view text) try {
  const std::string problem = handOver(text, limit_);
  if (!problem.empty()) printDiagnostic("Clipboard unchanged (" + problem + ")");
  return problem.empty();
} catch (const std::exception&) {  // out of memory
  printDiagnostic("Clipboard unchanged (out of memory)");
  return false;
}

}  // namespace glyph
