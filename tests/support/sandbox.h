// SPDX-License-Identifier: MIT
#pragma once

#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

namespace glyph {

/// A new directory of this test's own, deleted in the end.
class TemporaryDirectory {
 public:
  TemporaryDirectory() {
    std::string name = std::filesystem::temp_directory_path() / "glyphorium-XXXXXX";
    path_ = mkdtemp(name.data());
  }
  ~TemporaryDirectory() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }
  TemporaryDirectory(const TemporaryDirectory&) = delete;
  TemporaryDirectory& operator=(const TemporaryDirectory&) = delete;
  const std::filesystem::path& path() const { return path_; }
  std::filesystem::path operator/(std::string_view name) const { return path_ / name; }

 private:
  std::filesystem::path path_;
};

/// Sets an environment variable, or unsets it, until the end of the scope.
class ScopedVariable {
 public:
  ScopedVariable(const char* name, const std::optional<std::string>& value) : name_(name) {
    if (const char* const before = getenv(name)) before_ = before;
    assign(value);
  }
  ~ScopedVariable() { assign(before_); }
  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;

 private:
  void assign(const std::optional<std::string>& value) {
    value ? setenv(name_, value->c_str(), 1) : unsetenv(name_);
  }
  const char* name_;
  std::optional<std::string> before_;
};

inline std::string fileContent(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

inline void writeFile(const std::filesystem::path& file, std::string_view content) {
  std::ofstream(file, std::ios::binary) << content;
}

/// Runs `body` in a child process that ends at once with its result, and waits for it.
template <class Body>
int inChild(Body body) {
  const pid_t child = fork();
  if (child == 0) _exit(body());
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace glyph
