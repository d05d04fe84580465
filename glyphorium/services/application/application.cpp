// SPDX-License-Identifier: MIT
#include "glyphorium/services/application/application.h"

#include <pwd.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <mutex>
#include <vector>

#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/text/never_destroyed.h"

namespace glyph {
namespace {

struct Identifier {
  std::mutex mutex;
  std::string text{defaultApplicationIdentifier};
};

Identifier& identifier() {
  static NeverDestroyed<Identifier> instance;
  return *instance;
}

// Returns the absolute path in the environment variable, or nullopt if the variable is unset or contains a
// relative path.
std::optional<std::filesystem::path> absolutePath(const char* variable) {
  const char* const value = std::getenv(variable);
  if (!value || value[0] != '/') return std::nullopt;
  return value;
}

std::optional<std::filesystem::path> homeDirectory() {
  if (auto home = absolutePath("HOME")) return home;
  std::vector<char> buffer(4096);
  passwd entry{};
  passwd* found = nullptr;
  int error;
  while ((error = getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found)) == ERANGE) {
    buffer.resize(buffer.size() * 2);
  }
  if (error != 0 || !found || !entry.pw_dir || entry.pw_dir[0] != '/') return std::nullopt;
  return entry.pw_dir;
}

std::optional<std::filesystem::path> applicationDirectory(const char* variable, const char* belowHome) {
  auto base = absolutePath(variable);
  if (!base) {
    base = homeDirectory();
    if (!base) return std::nullopt;
    *base /= belowHome;
  }
  return *base / applicationIdentifier();
}

}  // namespace

std::string applicationIdentifier() {
  const std::lock_guard lock(identifier().mutex);
  return identifier().text;
}

void setApplicationIdentifier(std::string_view text) {
  const bool fileName = !text.empty() && text != "." && text != ".." &&
                        text.find('/') == std::string_view::npos && text.find('\0') == std::string_view::npos;
  if (!fileName) {
    printProblem("Application identifier ignored: it is not a file name: '" + std::string(text) + "'");
    return;
  }
  const std::lock_guard lock(identifier().mutex);
  identifier().text = text;
}

std::optional<std::filesystem::path> applicationConfigDirectory() {
  return applicationDirectory("XDG_CONFIG_HOME", ".config");
}

std::optional<std::filesystem::path> applicationDataDirectory() {
  return applicationDirectory("XDG_DATA_HOME", ".local/share");
}

}  // namespace glyph
