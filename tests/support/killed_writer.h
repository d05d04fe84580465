// SPDX-License-Identifier: MIT
#pragma once

#include <gtest/gtest.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <random>

namespace glyph {

/// Returns how often a test should kill a writer: the value of the environment variable
/// GLYPHORIUM_KILL_ROUNDS, or `usual` if the variable is not set.
inline int killRounds(int usual) {
  const char* const asked = getenv("GLYPHORIUM_KILL_ROUNDS");
  return asked ? std::atoi(asked) : usual;
}

/// Runs `write(descriptor)` in a child process and kills the child process after a random time, at most
/// `most`. `write` must store something again and again and never return. Each time that it has stored
/// something, it must send one byte to the descriptor. The time is counted from the first byte if `begun` is
/// true, otherwise from the start of the child process. Until the kill, this process calls `meanwhile`
/// repeatedly. Returns the number of bytes that were sent.
template <class Write, class Meanwhile>
std::size_t writesUntilKilled(bool begun, std::chrono::microseconds most, Write write, Meanwhile meanwhile) {
  static std::minstd_rand random(std::random_device{}());
  int ends[2];
  EXPECT_EQ(pipe(ends), 0);
  const pid_t writer = fork();
  if (writer == 0) {
    write(ends[1]);
    _exit(1);
  }
  close(ends[1]);
  char bytes[4096];
  ssize_t size = 0;
  std::size_t writes = 0;
  if (begun) writes += static_cast<std::size_t>(read(ends[0], bytes, 1) == 1);
  const auto end = std::chrono::steady_clock::now() + most * (random() % 1000) / 1000;
  do {
    meanwhile();
  } while (std::chrono::steady_clock::now() < end);
  kill(writer, SIGKILL);
  int status = 0;
  waitpid(writer, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status)) << "the writer failed";
  while ((size = read(ends[0], bytes, sizeof bytes)) > 0) writes += static_cast<std::size_t>(size);
  close(ends[0]);
  return writes;
}

}  // namespace glyph
