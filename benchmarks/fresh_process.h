// SPDX-License-Identifier: MIT
#pragma once

#include <benchmark/benchmark.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <string>

/// Measures an action in a new process. There, the first use of each memory page takes additional time.
/// Repetitions in the same process would not show this time.
namespace glyph {

using Actions = std::map<std::string, std::function<void()>>;

/// Runs the action that the command line names, prints its time and memory use, and returns true. Returns
/// false if the command line names no action. Call this at the beginning of main().
inline bool runAction(int argc, char** argv, const Actions& actions) {
  if (argc != 3 || std::string(argv[1]) != "--action") return false;
  const auto begin = std::chrono::steady_clock::now();
  actions.at(argv[2])();
  const std::chrono::duration<double> seconds = std::chrono::steady_clock::now() - begin;
  double kilobytes = 0;  // private memory only, because other processes share the pages of files
  std::ifstream memory("/proc/self/smaps_rollup");
  for (std::string line; std::getline(memory, line);) {
    if (line.starts_with("Anonymous:")) kilobytes = std::atof(line.c_str() + line.find(':') + 1);
  }
  std::printf("%.9f %.0f\n", seconds.count(), kilobytes);
  return true;
}

/// A benchmark that runs the action in a new process. Its time is the time of the action alone, without the
/// start of the process. Its counter is the private memory of the process after the action.
inline void inFreshProcess(benchmark::State& state, const char* action) {
  const std::string program = std::filesystem::read_symlink("/proc/self/exe");
  double kilobytes = 0;
  for (auto _ : state) {
    FILE* const pipe = popen((program + " --action " + action).c_str(), "r");
    double seconds = 0;
    const bool measured = pipe && std::fscanf(pipe, "%lf %lf", &seconds, &kilobytes) == 2;
    if (!pipe || pclose(pipe) != 0 || !measured) return state.SkipWithError("the process failed");
    state.SetIterationTime(seconds);
  }
  state.counters["private_kB"] = kilobytes;
}

}  // namespace glyph
