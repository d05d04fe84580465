// SPDX-License-Identifier: MIT
#include "glyphorium/platform/settings_store.h"

#include <gmock/gmock.h>
#include <sqlite3.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>
#include <stdexcept>
#include <thread>

#include "glyphorium/platform/application.h"
#include "glyphorium/platform/diagnostics.h"
#include "glyphorium/platform/memory_settings_store.h"
#include "glyphorium/platform/settings_database_internal.h"
#include "glyphorium/platform/sqlite_settings_store.h"

namespace glyph {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using List = std::vector<std::string>;
using Value = std::optional<SettingValue>;
namespace fs = std::filesystem;

std::string contents(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void writeFile(const fs::path& file, std::string_view text) {
  std::ofstream(file, std::ios::binary) << text;
}

unsigned mode(const fs::path& file) {
  return static_cast<unsigned>(fs::status(file).permissions());
}

class SettingsStoreTest : public testing::Test {
 protected:
  SettingsStoreTest() {
    std::string pattern = testing::TempDir() + "settingsXXXXXX";
    directory = mkdtemp(pattern.data());
    file = directory / "settings.sqlite";
    setDiagnosticsSink([this](std::string_view line) { lines.emplace_back(line); });
  }
  ~SettingsStoreTest() override {
    setDiagnosticsSink(nullptr);
    setSettingsStore(nullptr);
    fs::remove_all(directory);
  }

  // What a process started now would find.
  Value stored(std::string_view key) const { return SqliteSettingsStore(file).object(key); }

  void execute(const std::string& sql) const {
    sqlite3* connection = nullptr;
    sqlite3_open(file.c_str(), &connection);
    EXPECT_EQ(sqlite3_exec(connection, sql.c_str(), nullptr, nullptr, nullptr), SQLITE_OK)
        << sqlite3_errmsg(connection);
    sqlite3_close(connection);
  }

  // Runs the checks in a process that has neither privileges nor an entry in the user database.
  void asNobody(const std::function<void()>& checks) const {
    ASSERT_EQ(chmod(directory.c_str(), 0777), 0);
    const pid_t child = fork();
    if (child == 0) {
      constexpr unsigned nobody = 54321;
      if (geteuid() == 0 && (setgid(nobody) != 0 || setuid(nobody) != 0)) _exit(2);
      checks();
      std::cout.flush();
      _exit(HasFailure() ? 1 : 0);
    }
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0) << "a check in the other process failed";
  }

  fs::path directory, file;
  List lines;
};

const SettingValue values[] = {true,
                               false,
                               std::int64_t{1},
                               std::numeric_limits<std::int64_t>::min(),
                               1.0,
                               -0.1,
                               "",
                               std::string("text \"quoted\" \0 é😀", 22),
                               List{},
                               List{"custom"},
                               List{"arrows", "", "é"},
                               RawJson{"null"},
                               RawJson{R"({"a": [1, {"b": 1.50}]})"},
                               RawJson{"[\"a\", 1]"},
                               RawJson{"9223372036854775808"},
                               RawJson{"99999999999999999999"}};

TEST_F(SettingsStoreTest, GivesBackEveryTypeAsItWasSet) {
  constexpr std::string_view key("key\0é", 6);
  SqliteSettingsStore sqlite(file);
  MemorySettingsStore memory;
  for (SettingsStore* const store :
       {static_cast<SettingsStore*>(&sqlite), static_cast<SettingsStore*>(&memory)}) {
    for (const auto& value : values) {
      store->set(key, value);
      EXPECT_TRUE(store->synchronize());
      EXPECT_EQ(store->object(key), value) << testing::PrintToString(value.index());
      if (store == &sqlite) {
        EXPECT_EQ(stored(key), value);
      }
    }
    EXPECT_EQ(store->object("key"), std::nullopt);
  }
  EXPECT_THAT(lines, IsEmpty());

  // What JSON cannot hold.
  sqlite.set("bytes", List{"a\xFFz", "b"});
  EXPECT_EQ(stored("bytes"), SettingValue(List{"a\uFFFDz", "b"}));
  sqlite.set("number", std::nan(""));
  EXPECT_EQ(stored("number"), SettingValue(RawJson{"null"}));
  sqlite.set("bytes", RawJson{"{]"});
  sqlite.set("bytes", RawJson{std::string("[1]\0", 4)});
  EXPECT_EQ(stored("bytes"), SettingValue(List{"a\uFFFDz", "b"}));
  EXPECT_THAT(lines, ElementsAre(HasSubstr("'bytes'")));
}

TEST_F(SettingsStoreTest, LeavesAloneWhatOthersHaveStored) {
  SqliteSettingsStore(file).set("own", true);
  const std::pair<std::string, SettingValue> foreign[] = {
      {"{\"a\":1,\"a\":2}", RawJson{"{\"a\":1,\"a\":2}"}},
      {"not json", RawJson{"not json"}},
      {"1e999", RawJson{"1e999"}},
      {"true' || char(0) || 'x", RawJson{std::string("true\0x", 6)}},  // as SQL puts a NUL byte into a text
      {" [\"a\"] ", List{"a"}},
      {std::string(100000, '['), RawJson{std::string(100000, '[')}},
      {std::string(100000, '[') + std::string(100000, ']'),
       RawJson{std::string(100000, '[') + std::string(100000, ']')}}};
  for (const auto& [text, value] : foreign) {
    execute("INSERT OR REPLACE INTO setting VALUES ('foreign', '" + text + "')");
    EXPECT_EQ(stored("foreign"), value) << text.substr(0, 100);
    SqliteSettingsStore(file).set("own", false);
    execute("UPDATE setting SET value = 'found' WHERE key = 'foreign' AND value = '" + text + "'");
    EXPECT_EQ(stored("foreign"), SettingValue(RawJson{"found"})) << "it was rewritten";
  }
  execute("DROP TABLE setting; CREATE TABLE other (x)");
  EXPECT_EQ(stored("own"), std::nullopt);
  SqliteSettingsStore(file).set("own", true);
  EXPECT_EQ(stored("own"), SettingValue(true));
  execute("SELECT x FROM other");
  EXPECT_THAT(lines, IsEmpty());
}

TEST_F(SettingsStoreTest, IsCreatedPrivateByTheFirstWrite) {
  setenv("XDG_CONFIG_HOME", (directory / "new" / "config").c_str(), 1);
  const fs::path place = applicationConfigDirectory().value();
  const auto store = settingsStore();
  EXPECT_EQ(settingsStore(), store);
  EXPECT_EQ(store->object("key"), std::nullopt);
  EXPECT_TRUE(store->synchronize());
  EXPECT_TRUE(fs::is_empty(directory));

  const mode_t before = umask(0);
  store->set("key", true);
  umask(before);
  unsetenv("XDG_CONFIG_HOME");
  EXPECT_EQ(mode(directory / "new"), 0700u);
  EXPECT_EQ(mode(place), 0700u);
  for (const char* const suffix : {"", "-wal", "-shm"}) {
    EXPECT_EQ(mode(place / ("settings.sqlite" + std::string(suffix))), 0600u) << suffix;
  }
  const auto memory = std::make_shared<MemorySettingsStore>();
  setSettingsStore(memory);
  EXPECT_EQ(settingsStore(), memory);
  EXPECT_THAT(lines, IsEmpty());
}

TEST_F(SettingsStoreTest, UpdatesInOneStep) {
  SqliteSettingsStore sqlite(file);
  MemorySettingsStore memory;
  for (SettingsStore* const store :
       {static_cast<SettingsStore*>(&sqlite), static_cast<SettingsStore*>(&memory)}) {
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
      threads.emplace_back([&] {
        for (int round = 0; round < 50; ++round) {
          store->update("sum",
                        [](Value sum) -> Value { return (sum ? std::get<std::int64_t>(*sum) : 0) + 1; });
        }
      });
    }
    for (auto& thread : threads) thread.join();
    EXPECT_EQ(store->object("sum"), SettingValue(std::int64_t{200}));
    // A change may use the store.
    store->update("sum", [&](Value) -> Value {
      store->set("inner", true);
      store->update("inner", [&](Value inner) -> Value { return inner != SettingValue(true); });
      EXPECT_EQ(store->object("inner"), SettingValue(false));
      return store->object("sum") == SettingValue(std::int64_t{200}) ? Value("seen") : std::nullopt;
    });
    EXPECT_EQ(store->object("sum"), SettingValue("seen"));
    store->update("sum", [](Value) { return std::nullopt; });
    EXPECT_EQ(store->object("sum"), SettingValue("seen"));
  }
  EXPECT_EQ(stored("inner"), SettingValue(false));
  EXPECT_EQ(stored("sum"), SettingValue("seen"));

  EXPECT_THROW(sqlite.update("sum",
                             [&](Value) -> Value {
                               sqlite.set("inner", true);
                               throw std::runtime_error("the caller's own");
                             }),
               std::runtime_error);
  EXPECT_EQ(sqlite.object("inner"), SettingValue(false));
  sqlite.set("sum", true);  // not held up by what was left behind
  EXPECT_EQ(stored("sum"), SettingValue(true));
  EXPECT_THAT(lines, IsEmpty());
}

TEST_F(SettingsStoreTest, KeepsADamagedFileAsideOnTheNextWrite) {
  {
    SqliteSettingsStore store(file);
    store.set("key", List(2000, "a value of several pages"));
  }
  SqliteSettingsStore open(file);
  open.set("another", true);
  const std::string good = contents(file), log = contents(file.string() + "-wal");
  ASSERT_NE(log, "");
  std::string headless = good, corrupt = good;
  headless[0] = 'X';
  corrupt.replace(8192, 4096, 4096, '\xFF');
  const struct {
    const char* name;
    std::string bytes, log = {};
  } cases[] = {{"no database", "{\"displayedGroups\": [\"custom\"]}\n"},
               {"two bytes", "SQ"},
               {"zeros", std::string(8192, '\0')},
               {"wrong magic", headless},
               {"a page of garbage", corrupt},
               {"a page of garbage beside a log", corrupt, log},
               {"cut off", good.substr(0, 5000)}};
  for (const auto& [name, bytes, pending] : cases) {
    SCOPED_TRACE(name);
    fs::remove_all(directory / "real");
    fs::remove(file);
    fs::create_directory(directory / "real");
    const fs::path real = directory / "real" / "user.sqlite", aside = real.string() + ".damaged";
    writeFile(real, bytes);
    if (!pending.empty()) writeFile(real.string() + "-wal", pending);
    writeFile(aside, "an older one");
    fs::create_symlink("real/user.sqlite", file);

    lines.clear();
    {
      SqliteSettingsStore store(file);
      EXPECT_EQ(store.object("key"), std::nullopt);
      EXPECT_EQ(store.object("key"), std::nullopt);
    }
    EXPECT_EQ(contents(real), bytes);
    EXPECT_EQ(contents(real.string() + "-wal"), pending);
    EXPECT_THAT(lines, ElementsAre(HasSubstr("damaged")));

    SqliteSettingsStore witness(file), store(file);
    witness.object("key");
    lines.clear();
    store.update("key", [](Value present) -> Value { return !present.has_value(); });
    EXPECT_EQ(store.object("key"), SettingValue(true));
    EXPECT_EQ(contents(aside.string() + "2"), bytes);
    EXPECT_EQ(contents(aside.string() + "2-wal"), pending);
    EXPECT_EQ(contents(aside), "an older one");
    EXPECT_THAT(lines, Contains(HasSubstr("kept in " + aside.string() + "2")).Times(1));
    // Another one that knew the damaged file goes on with the new one, and takes nothing aside.
    witness.set("other", true);
    EXPECT_EQ(stored("key"), SettingValue(true));
    EXPECT_EQ(stored("other"), SettingValue(true));
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_FALSE(fs::exists(aside.string() + "3"));
  }
}

TEST_F(SettingsStoreTest, PutsAsideOnlyOnceWhatTwoFindDamaged) {
  using Outcome = SettingsDatabase::Outcome;
  writeFile(file, "this is no database");
  SettingsDatabase first(file), second(file);
  EXPECT_EQ(first.begin(), Outcome::damaged);
  EXPECT_EQ(second.begin(), Outcome::damaged);
  fs::path name;
  EXPECT_EQ(first.putAside(name), Outcome::done);
  EXPECT_EQ(name, file.string() + ".damaged");
  SqliteSettingsStore(file).set("key", true);
  EXPECT_EQ(second.putAside(name), Outcome::done);
  EXPECT_EQ(name, "");
  EXPECT_EQ(stored("key"), SettingValue(true));
}

TEST_F(SettingsStoreTest, SurvivesEveryCutAndFlippedByte) {
  SqliteSettingsStore(file).set("key", List(300, "a value of several pages"));
  const std::string good = contents(file);
  for (std::size_t i = 0; i < good.size(); i += i < 100 ? 1 : 127) {
    std::string flipped = good;
    flipped[i] = static_cast<char>(flipped[i] ^ 0x55);
    // Two bytes number versions of the format: a file of a newer one is not to be written.
    const bool newer = i == 18 || i == 47;
    for (const auto& [bytes, writable] : {std::pair(good.substr(0, i), true), std::pair(flipped, !newer)}) {
      for (const auto& entry : fs::directory_iterator(directory)) fs::remove(entry);
      writeFile(file, bytes);
      SqliteSettingsStore store(file);
      store.object("key");
      ASSERT_EQ(contents(file), bytes) << "rewritten by a read at " << i;
      store.set("other", true);
      ASSERT_EQ(store.synchronize(), writable) << i << ": " << testing::PrintToString(lines);
      ASSERT_EQ(store.object("other"), SettingValue(true)) << i;
    }
  }
}

TEST_F(SettingsStoreTest, FollowsTheFileInPlace) {
  SqliteSettingsStore store(file);
  store.set("key", "old");
  for (const auto& entry : fs::directory_iterator(directory)) fs::remove(entry);
  EXPECT_EQ(store.object("key"), std::nullopt);
  SqliteSettingsStore(file).set("key", "new");
  EXPECT_EQ(store.object("key"), SettingValue("new"));
  store.set("other", true);
  EXPECT_EQ(stored("other"), SettingValue(true));

  // A process forked from one that has the file open has its handle but not its locks.
  asNobody([&] {
    store.set("key", "forked");
    EXPECT_FALSE(store.synchronize());
    EXPECT_EQ(store.object("other"), std::nullopt);
    EXPECT_THAT(lines, ElementsAre(HasSubstr("forked"), HasSubstr("forked")));
  });
  EXPECT_EQ(store.object("key"), SettingValue("new"));
}

// Each obstacle keeps settings from being saved until it goes away.
TEST_F(SettingsStoreTest, KeepsWhatCannotBeSavedUntilItCan) {
  const fs::path room = directory / "room";
  const auto check = [&](SettingsStore& store, const std::function<void()>& clear) {
    const List large(5000, "more than there is room for");
    lines.clear();
    store.set("large", large);
    EXPECT_FALSE(store.synchronize());
    EXPECT_EQ(store.object("large"), SettingValue(large));
    store.set("large", large);
    store.update("large", [&](Value present) -> Value {
      EXPECT_EQ(present, SettingValue(large));
      return List{"less"};
    });
    EXPECT_EQ(store.object("large"), SettingValue(List{"less"}));
    EXPECT_THAT(lines, Contains(HasSubstr("cannot be saved")).Times(1));
    clear();
    store.set("other", true);
    EXPECT_TRUE(store.synchronize());
  };
  const auto expectSaved = [&] {
    EXPECT_EQ(stored("large"), SettingValue(List{"less"}));
    EXPECT_EQ(stored("other"), SettingValue(true));
  };

  fs::create_directory(room);
  if (mount("none", room.c_str(), "tmpfs", 0, "size=160k") == 0) {
    {
      file = room / "settings.sqlite";
      SqliteSettingsStore store(file);
      store.set("before", true);
      writeFile(room / "filler", std::string(64 << 10, 'x'));
      check(store, [&] { fs::remove(room / "filler"); });
      EXPECT_EQ(stored("before"), SettingValue(true));
      expectSaved();
    }
    EXPECT_EQ(umount(room.c_str()), 0);
  } else {
    std::cout << "no full disk tried: mounting one failed, " << std::strerror(errno) << '\n';
  }

  file = directory / "read-only" / "settings.sqlite";
  SqliteSettingsStore(file).set("large", List{"before"});
  ASSERT_EQ(chmod(file.parent_path().c_str(), 0777), 0);
  ASSERT_EQ(chmod(file.c_str(), 0666), 0);
  asNobody([&] {
    // The directory belongs to another user, so it is a third one that is opened and closed.
    const fs::path own = directory / "#own? %41";
    fs::create_directory(own);
    fs::copy(file, own / "settings.sqlite");
    file = own / "settings.sqlite";
    fs::permissions(own, fs::perms(0500));
    lines.clear();
    {
      SqliteSettingsStore store(file);
      EXPECT_EQ(store.object("large"), SettingValue(List{"before"}));
      EXPECT_THAT(lines, IsEmpty());
      check(store, [&] { fs::permissions(own, fs::perms(0700)); });
    }
    expectSaved();

    {
      fs::permissions(file, fs::perms(0400));
      SqliteSettingsStore store(file);
      store.object("large");
      check(store, [&] { fs::permissions(file, fs::perms(0600)); });
      expectSaved();
    }

    // Unreadable: what is changed without knowing the present value never replaces it.
    fs::permissions(file, fs::perms(0));
    SqliteSettingsStore blind(file);
    const auto append = [](Value present) -> Value {
      List list = present ? std::get<List>(*present) : List{};
      list.push_back("more");
      return list;
    };
    blind.update("large", append);
    EXPECT_EQ(blind.object("large"), SettingValue(List{"more"}));
    fs::permissions(file, fs::perms(0600));
    blind.set("other", false);
    EXPECT_EQ(blind.object("large"), SettingValue(List{"less"}));
    EXPECT_EQ(stored("other"), SettingValue(false));
    fs::remove_all(own);

    // No home at all.
    unsetenv("HOME");
    unsetenv("XDG_CONFIG_HOME");
    SqliteSettingsStore homeless;
    EXPECT_EQ(homeless.object("large"), std::nullopt);
    check(homeless, [&] { setenv("HOME", (directory / "home").c_str(), 1); });
    file = *applicationConfigDirectory() / "settings.sqlite";
    expectSaved();
    fs::remove_all(directory / "home");
  });
}

}  // namespace
}  // namespace glyph
