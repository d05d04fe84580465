// SPDX-License-Identifier: MIT
#pragma once

#include <sys/wait.h>

#include <cstdio>
#include <string>

namespace glyph {

struct ProgramResult {
  int exitCode;  // -1 if a signal ended the program or the program did not start
  std::string output;
};

/// Runs a shell command and returns its exit code and standard output. To get standard error too, redirect it
/// in the command.
inline ProgramResult runProgram(const std::string& command) {
  ProgramResult result{-1, {}};
  FILE* const pipe = popen(command.c_str(), "r");
  if (!pipe) return result;
  char buffer[1 << 16];
  while (const std::size_t count = fread(buffer, 1, sizeof buffer, pipe)) result.output.append(buffer, count);
  const int status = pclose(pipe);
  if (WIFEXITED(status)) result.exitCode = WEXITSTATUS(status);
  return result;
}

inline bool isInstalled(const std::string& program) {
  return runProgram("command -v " + program).exitCode == 0;
}

}  // namespace glyph
