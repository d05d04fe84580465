// SPDX-License-Identifier: MIT
// The settings file under several processes, and under processes that die.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <map>
#include <random>
#include <thread>

#include "glyphorium/platform/sqlite_settings_store.h"
#include "tests/platform/settings_writer.h"

namespace glyph {
namespace {

using List = std::vector<std::string>;

class SettingsProcesses : public testing::Test {
 protected:
  SettingsProcesses() {
    std::string pattern = testing::TempDir() + "settingsXXXXXX";
    directory = mkdtemp(pattern.data());
    file = directory / "settings.sqlite";
  }
  ~SettingsProcesses() override { std::filesystem::remove_all(directory); }

  struct Writer {
    pid_t process = -1;
    int output = -1;
  };

  Writer start(List arguments) {
    arguments.insert(arguments.begin(), {SETTINGS_WRITER, file.string()});
    std::vector<char*> argv;
    for (auto& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);
    int ends[2];
    EXPECT_EQ(pipe2(ends, O_CLOEXEC), 0);
    Writer writer;
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    EXPECT_EQ(posix_spawn(&writer.process, SETTINGS_WRITER, &actions, nullptr, argv.data(), environ), 0);
    posix_spawn_file_actions_destroy(&actions);
    close(ends[1]);
    writer.output = ends[0];
    return writer;
  }

  // Waits for the writer's end; what it has printed goes into `output`.
  static int finish(const Writer& writer, std::string& output) {
    char buffer[4096];
    ssize_t size;
    while ((size = read(writer.output, buffer, sizeof buffer)) > 0) {
      output.append(buffer, static_cast<std::size_t>(size));
    }
    close(writer.output);
    int status = -1;
    EXPECT_EQ(waitpid(writer.process, &status, 0), writer.process);
    return status;
  }

  List files() const {
    List names;
    for (const auto& entry : std::filesystem::directory_iterator(directory)) {
      names.push_back(entry.path().filename().string());
    }
    return names;
  }

  std::filesystem::path directory, file;
};

TEST_F(SettingsProcesses, LoseNoAppendOfEachOther) {
  constexpr int count = 200;
  const List tags = {"a", "b", "c"};
  std::vector<Writer> writers;
  // All of them find no file at first, and all create it.
  for (const auto& tag : tags) writers.push_back(start({"append", tag, std::to_string(count)}));
  SqliteSettingsStore reader(file);
  std::size_t seen = 0;
  for (const Writer& writer : writers) {
    // A reader beside them sees every state whole, and time run forwards.
    for (int reads = 0; reads < 100; ++reads) {
      const auto list = reader.object("list");
      const std::size_t size = list ? std::get<List>(*list).size() : 0;
      EXPECT_GE(size, seen);
      seen = size;
    }
    std::string output;
    EXPECT_EQ(finish(writer, output), 0) << output;
  }
  std::map<std::string, List> byTag;
  const List appended = std::get<List>(reader.object("list").value());
  for (const auto& item : appended) byTag[item.substr(0, 1)].push_back(item.substr(1));
  List expected;
  for (int i = 0; i < count; ++i) expected.push_back(std::to_string(i));
  for (const auto& tag : tags) EXPECT_EQ(byTag[tag], expected) << tag;
}

// GLYPHORIUM_KILL_ROUNDS asks for more rounds than the usual ones.
TEST_F(SettingsProcesses, LoseNothingAcknowledgedWhenKilled) {
  const char* const asked = std::getenv("GLYPHORIUM_KILL_ROUNDS");
  const int rounds = asked ? std::atoi(asked) : 100;
  const auto seed = std::random_device{}();
  RecordProperty("seed", std::to_string(seed));
  std::mt19937 random(seed);
  long acknowledged = 0;
  int midway = 0;
  for (int round = 0; round < rounds; ++round) {
    const Writer writer = start({"count"});
    // Every other one may die before its first statement, the rest amid their writes.
    std::string output;
    if (round % 2 == 1) {
      output.resize(1);
      ASSERT_EQ(read(writer.output, output.data(), 1), 1);
    }
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 20000));
    kill(writer.process, SIGKILL);
    const int status = finish(writer, output);
    ASSERT_TRUE(WIFSIGNALED(status)) << "round " << round << ", seed " << seed << ": " << output;
    if (!output.empty()) {
      acknowledged = std::stol(output.substr(output.rfind('\n', output.size() - 2) + 1));
    }

    SqliteSettingsStore store(file);
    const auto state = store.object("state");
    const List list = state ? std::get<List>(*state) : List{"0"};
    const long number = std::stol(list.front());
    ASSERT_TRUE(number == acknowledged || number == acknowledged + 1)
        << "round " << round << ", seed " << seed << ": " << number << " after " << acknowledged;
    if (state) {
      ASSERT_EQ(list, settingsState(number)) << "round " << round << ", seed " << seed;
    }
    midway += number != acknowledged;
    acknowledged = number;
  }
  std::cout << rounds << " kills, " << acknowledged << " writes, " << midway
            << " of them saved but not acknowledged any more\n";
  EXPECT_GT(acknowledged, 0);
  EXPECT_THAT(files(),
              testing::IsSubsetOf({"settings.sqlite", "settings.sqlite-wal", "settings.sqlite-shm"}));
}

}  // namespace
}  // namespace glyph
