// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <vector>

namespace glyph {

struct Program {
  /// The program and its arguments. A program name without a slash is looked up in PATH.
  std::vector<std::string> command;
  /// The program has succeeded if the first line of its standard output equals this word. Any other line
  /// describes the problem. If successWord is empty, the exit code 0 means success.
  std::string_view successWord = {};
};

enum class SpawnEnd { succeeded, notInstalled, failed, timedOut };

struct SpawnResult {
  SpawnEnd end;
  std::string problem;  ///< a short description for people; empty on success
};

/// Runs a program with `input` as its standard input and waits until the program has ended. At the deadline
/// the whole process group of the program is killed. The program inherits no file descriptors, signal mask,
/// session or working directory from this process. A background process that the program starts therefore
/// does not keep our files open, and does not receive signals that are sent to our process group.
///
/// If the host ignores SIGCHLD or waits for all children itself, the exit code is lost. A program without a
/// successWord then counts as successful.
SpawnResult runProgram(const Program& program, std::string_view input,
                       std::chrono::steady_clock::time_point deadline);

}  // namespace glyph
