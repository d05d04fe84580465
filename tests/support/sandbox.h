// SPDX-License-Identifier: MIT
#pragma once

#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace glyph {

/// A new temporary directory, deleted by the destructor.
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

/// Sets an environment variable, or unsets it if the value is nullopt. The destructor restores the old value.
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

inline void writeProgram(const std::filesystem::path& file, const std::string& commands) {
  writeFile(file, "#!/bin/sh\n" + commands);
  std::filesystem::permissions(file, std::filesystem::perms::owner_all);
}

/// Runs `body` in a child process and waits for its end. Returns the result of `body`, which must be an exit
/// code, or -1 if a signal ended the child process.
template <class Body>
int inChild(Body body) {
  const pid_t child = fork();
  if (child == 0) _exit(body());
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// Runs `body(i)` in `count` child processes at the same time, and `meanwhile` in this process. Returns
/// whether `body` returned 0 in all child processes.
template <class Body>
bool inChildren(
    int count, Body body, const std::function<void()>& meanwhile = [] {}) {
  std::vector<pid_t> children;
  for (int i = 0; i < count; ++i) {
    children.push_back(fork());
    if (children.back() == 0) _exit(body(i));
  }
  meanwhile();
  bool good = true;
  for (const pid_t child : children) {
    int status = -1;
    waitpid(child, &status, 0);
    good &= status == 0;
  }
  return good;
}

/// Waits for a condition that another process or thread should make true. Returns false if the condition is
/// still false after a minute.
template <class Condition>
bool eventually(Condition condition) {
  for (int attempt = 0; attempt < 3'000; ++attempt) {
    if (condition()) return true;
    usleep(20'000);
  }
  return false;
}

}  // namespace glyph
