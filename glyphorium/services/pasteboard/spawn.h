// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

namespace glyph {

struct Program {
  /// The program and its arguments. A name without a slash is searched in PATH.
  std::vector<std::string> command;
  /// The program has succeeded when the first line of its standard output is this; another line is the
  /// problem. Where it is empty, the exit code 0 means success.
  std::string_view word = {};
};

enum class SpawnEnd { succeeded, notInstalled, failed, timedOut };

struct SpawnResult {
  SpawnEnd end;
  std::string problem;  ///< empty on success, else what went wrong, for people
};

/// Runs a program with `input` as its standard input and waits until it has ended. At the deadline its whole
/// process group is killed. The program inherits no descriptor, signal mask, session or working directory of
/// this process. A process that it leaves in the background therefore keeps none of our files open and does
/// not get the signals to our process group.
///
/// Where the host ignores SIGCHLD or waits for all children itself, the exit code is lost. A program without
/// a word then counts as successful.
SpawnResult runProgram(const Program& program, std::string_view input,
                       std::chrono::steady_clock::time_point deadline);

}  // namespace glyph
