// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

namespace glyph {

enum class SpawnEnd { succeeded, notInstalled, failed, timedOut };

struct SpawnResult {
  SpawnEnd end;
  std::string problem;  ///< empty on success, else what went wrong, for people
};

/// Runs a program of the PATH with `input` as its standard input and waits for it, at the longest to the
/// deadline; then its whole process group is killed. Its output goes nowhere. It shares nothing with this
/// process: no descriptor, signal mask, session or working folder, so what it leaves running in the
/// background holds nothing of ours open and survives a signal to our process group. Where the host ignores
/// SIGCHLD or reaps its children itself, the exit code is lost and counts as success.
SpawnResult runProgram(const std::vector<std::string>& command, std::string_view input,
                       std::chrono::steady_clock::time_point deadline);

}  // namespace glyph
