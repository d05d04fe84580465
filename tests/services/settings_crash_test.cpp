// SPDX-License-Identifier: MIT
// Tests of the settings file with several processes, and with processes that are killed.
#include <gmock/gmock.h>

#include <algorithm>
#include <thread>

#include "glyphorium/services/settings/sqlite_settings_store.h"
#include "tests/support/killed_writer.h"
#include "tests/support/sandbox.h"

namespace glyph {
namespace {

using List = std::vector<std::string>;
using Value = std::optional<SettingValue>;
using namespace std::chrono_literals;

List listIn(const Value& value) {
  return value ? std::get<List>(*value) : List{};
}

TEST(SettingsProcesses, DoNotOverwriteChangesOfEachOther) {
  const TemporaryDirectory directory;
  const auto file = directory / "settings.sqlite";
  // There is no file yet, so all processes try to create it.
  const auto append = [&](int process) {
    SqliteSettingsStore store(file);
    for (int i = 0; i < 200; ++i) {
      store.update("list", [&](const Value& present) -> Value {
        List list = listIn(present);
        list.push_back(std::to_string(process * 1000 + i));
        return list;
      });
    }
    return store.synchronize() ? 0 : 1;
  };
  // This process reads at the same time. It must see only complete lists, which never become shorter.
  SqliteSettingsStore reader(file);
  const auto read = [&] {
    for (std::size_t reads = 0, seen = 0; reads < 300; ++reads) {
      const std::size_t size = listIn(reader.object("list")).size();
      EXPECT_GE(size, seen);
      seen = size;
    }
  };
  EXPECT_TRUE(inChildren(3, append, read));
  List list = listIn(reader.object("list"));
  const auto process = [](const std::string& item) { return std::stoi(item) / 1000; };
  std::stable_sort(list.begin(), list.end(), [&](auto& a, auto& b) { return process(a) < process(b); });
  List expected;
  for (int i = 0; i < 600; ++i) expected.push_back(std::to_string(i / 200 * 1000 + i % 200));
  EXPECT_EQ(list, expected) << "the entries of each process must be in the order of its writes";
}

// Returns a list that is different for each number, so that the test can recognise it. The lists have
// different lengths, so that the database adds and frees pages.
List state(std::size_t number) {
  return List(number * 37 % 500 + 1, std::to_string(number));
}

TEST(SettingsProcesses, KeepAllAcknowledgedWritesWhenKilled) {
  const TemporaryDirectory directory;
  const auto file = directory / "settings.sqlite";
  std::size_t kept = 0;
  const int rounds = killRounds(100);
  for (int round = 0; round < rounds; ++round) {
    const auto writeForEver = [&](int acknowledgements) {
      SqliteSettingsStore store(file);
      for (std::size_t number = kept + 1;; ++number) {
        store.set("state", state(number));
        if (!store.synchronize() || write(acknowledgements, "", 1) != 1) return;
      }
    };
    // In every second round, kill the writer at any time after its first write, in the other rounds at any
    // time after its start.
    const std::size_t acknowledged = kept + writesUntilKilled(round % 2 == 1, 20ms, writeForEver,
                                                              [] { std::this_thread::sleep_for(100us); });
    const List found = listIn(SqliteSettingsStore(file).object("state"));
    kept = found.empty() ? 0 : std::stoul(found.front());
    ASSERT_TRUE(kept == acknowledged || kept == acknowledged + 1) << kept << " after " << acknowledged;
    if (kept > 0) {
      ASSERT_EQ(found, state(kept));
    }
  }
  EXPECT_GT(kept, 0u);
  for (const auto& entry : std::filesystem::directory_iterator(directory.path())) {
    EXPECT_THAT(entry.path().filename().string(),
                testing::AnyOf("settings.sqlite", "settings.sqlite-wal", "settings.sqlite-shm"));
  }
}

}  // namespace
}  // namespace glyph
