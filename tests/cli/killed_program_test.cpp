// SPDX-License-Identifier: MIT
// Starts programs that change the user's choices, kills them or runs several at once, and then checks the
// choices.
#include <fcntl.h>
#include <gmock/gmock.h>
#include <signal.h>

#include <chrono>
#include <cstdlib>
#include <functional>
#include <random>
#include <set>

#include "glyphorium/services/settings/sqlite_settings_store.h"
#include "tests/support/killed_writer.h"
#include "tests/support/program.h"
#include "tests/support/sandbox.h"

namespace glyph {
namespace {

using Names = std::vector<std::string>;

// Starts the program with the environment of this process and discards its output. Returns its process
// identifier.
pid_t start(Names arguments) {
  const pid_t child = fork();
  if (child != 0) return child;
  std::vector<char*> argv{const_cast<char*>(PROGRAM)};
  for (std::string& argument : arguments) argv.push_back(argument.data());
  argv.push_back(nullptr);
  const int null = open("/dev/null", O_RDWR);
  for (const int standard : {0, 1, 2}) dup2(null, standard);
  execv(PROGRAM, argv.data());
  _exit(127);
}

struct State {
  Names groups, codes;
  bool operator==(const State&) const = default;
};

State stored(const TemporaryDirectory& config) {
  SqliteSettingsStore store(config / "org.glyphorium.Glyphorium/settings.sqlite");
  const auto list = [&](const char* key) {
    const auto value = store.object(key);
    return value ? std::get<Names>(*value) : Names();
  };
  return {list("displayedGroups"), list("customAddedEntities")};
}

TEST(KilledProgram, LeavesEitherTheOldOrTheNewChoices) {
  const TemporaryDirectory config;
  const TemporaryDirectory data;
  const ScopedVariable configHome("XDG_CONFIG_HOME", config.path().string());
  const ScopedVariable dataHome("XDG_DATA_HOME", data.path().string());
  const int rounds = killRounds(60);
  std::mt19937 random(20260101);
  // The test makes these changes in turn, again and again. The command "add" first displays the group
  // "custom" and then adds all characters in one step. If it is killed between these two steps, the group is
  // displayed but the characters are missing: this is the state `halfway`.
  const struct {
    Names arguments;
    State halfway, after;
  } changes[] = {
      {{"add", "2603", "2604"}, {{"custom", "arrows"}, {}}, {{"custom", "arrows"}, {"2603", "2604"}}},
      {{"display", "set", "arrows"}, {}, {{"arrows"}, {"2603", "2604"}}},
      {{"remove", "2603", "2604"}, {}, {{"arrows"}, {}}}};
  State before{{"arrows"}, {}};
  // Measures the time of a run that is not killed. Each kill happens after a random time of at most twice
  // this time, so that some kills happen before the change and some after the change.
  const auto begin = std::chrono::steady_clock::now();
  ASSERT_EQ(runProgram(PROGRAM " display set arrows").exitCode, 0);
  const std::chrono::duration<double, std::micro> usual = std::chrono::steady_clock::now() - begin;
  std::uniform_real_distribution<> moment(0, 2 * usual.count());
  std::size_t changed = 0;
  for (int round = 0; round < rounds; ++round) {
    const auto& [arguments, halfway, after] = changes[changed % std::size(changes)];
    const pid_t child = start(arguments);
    ASSERT_GT(child, 0);
    usleep(static_cast<useconds_t>(moment(random)));
    kill(child, SIGKILL);
    waitpid(child, nullptr, 0);
    const State now = stored(config);
    ASSERT_TRUE(now == before || now == halfway || now == after)
        << "round " << round << ": " << testing::PrintToString(now.groups)
        << testing::PrintToString(now.codes);
    if (now == after) ++changed;
    before = now;
  }
  RecordProperty("changed", static_cast<int>(changed));
  EXPECT_GT(changed, 0u);                                // some programs were killed after their change
  EXPECT_LT(changed, static_cast<std::size_t>(rounds));  // and some before it
}

TEST(SeveralPrograms, KeepAllTheirChanges) {
  const TemporaryDirectory config;
  const TemporaryDirectory data;
  const ScopedVariable configHome("XDG_CONFIG_HOME", config.path().string());
  const ScopedVariable dataHome("XDG_DATA_HOME", data.path().string());
  std::vector<pid_t> children;
  std::set<std::string> wanted;
  for (int i = 0; i < 24; ++i) {
    char code[8];
    std::snprintf(code, sizeof code, "%04x", 0x2600 + i);
    wanted.insert(code);
    children.push_back(start({"add", code}));
  }
  for (const pid_t child : children) {
    int status = -1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }
  const Names codes = stored(config).codes;
  EXPECT_EQ(std::set<std::string>(codes.begin(), codes.end()), wanted);
}

TEST(UnreadableChoices, AreDistinguishedFromEmptyOnes) {
  const TemporaryDirectory home;
  const ScopedVariable configHome("XDG_CONFIG_HOME", home.path().string());
  const ScopedVariable dataHome("XDG_DATA_HOME", home.path().string());
  const auto file = home / "org.glyphorium.Glyphorium/settings.sqlite";
  const auto wrongElement = [&] {
    SqliteSettingsStore store(file);
    for (const char* const key : {"customAddedEntities", "displayedGroups"}) {
      store.set(key, RawJson{R"(["2192",5])"});
    }
  };
  // The commands that can change the stored choices come last, because they may replace the unreadable
  // choices.
  static constexpr const char* commands[] = {
      "added", "remove 2192", "display", "display remove arrows", "add 2192", "display add arrows"};
  const struct {
    const char* name;
    std::function<void()> spoil;
    int exitCodes[std::size(commands)];
  } cases[] = {{"damaged", [&] { writeFile(file, "no database"); }, {3, 3, 3, 3, 0, 0}},
               {"wrong type", wrongElement, {3, 3, 3, 3, 0, 0}},
               {"no file", [&] { std::filesystem::create_directory(file); }, {3, 3, 3, 3, 3, 3}},
               {"sound", [] {}, {1, 1, 0, 1, 0, 0}}};
  for (const auto& [name, spoil, exitCodes] : cases) {
    std::filesystem::remove_all(file.parent_path());
    std::filesystem::create_directory(file.parent_path());
    spoil();
    for (std::size_t i = 0; i < std::size(commands); ++i) {
      const auto result = runProgram(std::string(PROGRAM " ") + commands[i] + " 2>&1 >/dev/null");
      EXPECT_EQ(result.exitCode, exitCodes[i]) << name << ": " << commands[i] << ": " << result.output;
      EXPECT_TRUE(exitCodes[i] == 0 || i == 0 || !result.output.empty()) << name << ": " << commands[i];
    }
  }
}

}  // namespace
}  // namespace glyph
