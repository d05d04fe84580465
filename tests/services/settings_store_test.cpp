// SPDX-License-Identifier: MIT
#include "glyphorium/services/settings/settings_store.h"

#include <gmock/gmock.h>
#include <sqlite3.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include <atomic>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iostream>
#include <thread>

#include "glyphorium/services/application/application.h"
#include "glyphorium/services/settings/memory_settings_store.h"
#include "glyphorium/services/settings/sqlite_settings_store.h"
#include "glyphorium/services/sqlite/lock_wait.h"
#include "glyphorium/services/sqlite/sqlite.h"
#include "tests/support/program.h"
#include "tests/support/recorded_diagnostics.h"
#include "tests/support/sandbox.h"

namespace glyph {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using List = std::vector<std::string>;
using Value = std::optional<SettingValue>;
namespace fs = std::filesystem;

unsigned mode(const fs::path& file) {
  return static_cast<unsigned>(fs::status(file).permissions());
}

class SettingsStoreTest : public testing::Test {
 protected:
  // Returns the value that a new process would read.
  Value stored(std::string_view key) const { return SqliteSettingsStore(file).object(key); }

  void execute(const std::string& sql) const { Database(file, SQLITE_OPEN_READWRITE).execute(sql.c_str()); }

  // Runs the checks in a process that has no privileges and no entry in the user database.
  void asNobody(const std::function<void()>& checks) const {
    ASSERT_EQ(chmod(directory.path().c_str(), 0777), 0);
    const auto run = [&] {
      constexpr unsigned nobody = 54321;
      if (geteuid() == 0 && (setgid(nobody) != 0 || setuid(nobody) != 0)) return 2;
      checks();
      std::cout.flush();
      return HasFailure() ? 1 : 0;
    };
    EXPECT_EQ(inChild(run), 0) << "a check in the other process failed";
  }

  const TemporaryDirectory directory;
  fs::path file = directory / "settings.sqlite";
  RecordedDiagnostics diagnostics;
  SqliteSettingsStore sqlite{file};
  MemorySettingsStore memory;
  SettingsStore* const both[2] = {&sqlite, &memory};
};

TEST_F(SettingsStoreTest, ReturnsValuesOfEveryTypeUnchanged) {
  constexpr std::string_view key("key\0é", 6);
  std::vector<SettingValue> values = {true, false, std::int64_t{1}, INT64_MIN, 1.0, -0.1, "", List{}};
  values.emplace_back(List{"arrows", "", "é"});
  values.emplace_back(std::string("text \"quoted\" \0 é😀", 22));
  for (const char* const other :
       {"null", R"({"a": [1, {"b": 1.50}]})", "[\"a\", 1]", "9223372036854775808", "99999999999999999999"}) {
    values.emplace_back(RawJson{other});
  }
  for (SettingsStore* const store : both) {
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
  EXPECT_THAT(diagnostics.take(), IsEmpty());

  // Tests values that JSON cannot express.
  sqlite.set("bytes", List{"a\xFFz", "b"});
  sqlite.set("number", std::nan(""));
  EXPECT_EQ(stored("number"), SettingValue(RawJson{"null"}));
  sqlite.set("bytes", RawJson{"{]"});
  sqlite.set("bytes", RawJson{std::string("[1]\0", 4)});
  EXPECT_EQ(stored("bytes"), SettingValue(List{"a\uFFFDz", "b"}));
  EXPECT_THAT(diagnostics.take(), ElementsAre(HasSubstr("'bytes'")));
}

TEST_F(SettingsStoreTest, DoesNotChangeValuesOfOtherPrograms) {
  SqliteSettingsStore(file).set("own", true);
  const std::string deep = std::string(100000, '[') + std::string(100000, ']');
  const std::pair<std::string, SettingValue> foreign[] = {
      {"{\"a\":1,\"a\":2}", RawJson{"{\"a\":1,\"a\":2}"}},
      {"not json", RawJson{"not json"}},
      {"1e999", RawJson{"1e999"}},
      {"true' || char(0) || 'x", RawJson{std::string("true\0x", 6)}},  // this SQL produces a text with a NUL
      {" [\"a\"] ", List{"a"}},
      {deep, RawJson{deep}}};
  for (const auto& [text, value] : foreign) {
    execute("INSERT OR REPLACE INTO setting VALUES ('foreign', '" + text + "')");
    EXPECT_EQ(stored("foreign"), value) << text.substr(0, 100);
    SqliteSettingsStore(file).set("own", false);
    execute("UPDATE setting SET value = 'found' WHERE key = 'foreign' AND value = '" + text + "'");
    EXPECT_EQ(stored("foreign"), SettingValue(RawJson{"found"})) << "another process's value was overwritten";
  }
  EXPECT_THAT(diagnostics.take(), IsEmpty());
  // Turns the file into the database of another program.
  execute("DROP TABLE setting; CREATE TABLE other (x)");
  SqliteSettingsStore(file).set("own", true);
  EXPECT_EQ(stored("own"), SettingValue(true));
  Database(file.string() + ".damaged", SQLITE_OPEN_READONLY).execute("SELECT x FROM other");
  EXPECT_THAT(diagnostics.take(), ElementsAre(HasSubstr("kept in")));
}

TEST_F(SettingsStoreTest, FirstWriteCreatesPrivateFiles) {
  const ScopedVariable home("XDG_CONFIG_HOME", directory / "new/config");
  const fs::path place = applicationConfigDirectory().value();
  const auto store = settingsStore();
  EXPECT_EQ(store->object("key"), std::nullopt);
  EXPECT_TRUE(store->synchronize());
  EXPECT_TRUE(fs::is_empty(directory.path()));

  const mode_t before = umask(0);
  settingsStore()->set("key", true);
  umask(before);
  for (const fs::path& created : {directory / "new", place}) EXPECT_EQ(mode(created), 0700u) << created;
  for (const char* const name : {"settings.sqlite", "settings.sqlite-wal", "settings.sqlite-shm"}) {
    EXPECT_EQ(mode(place / name), 0600u) << name;
  }
  const auto own = std::make_shared<MemorySettingsStore>();
  setSettingsStore(own);
  EXPECT_EQ(settingsStore(), own);
  setSettingsStore(nullptr);
  EXPECT_THAT(diagnostics.take(), IsEmpty());
}

TEST_F(SettingsStoreTest, UpdatesInOneStep) {
  for (SettingsStore* const store : both) {
    const auto add = [](const Value& sum) -> Value { return (sum ? std::get<std::int64_t>(*sum) : 0) + 1; };
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
      threads.emplace_back([&] {
        for (int round = 0; round < 50; ++round) store->update("sum", add);
      });
    }
    for (auto& thread : threads) thread.join();
    EXPECT_EQ(store->object("sum"), SettingValue(std::int64_t{200}));
    // The function that update() calls may use the same store.
    store->update("sum", [&](Value) -> Value {
      store->set("inner", true);
      store->update("inner", [&](Value inner) -> Value { return inner != SettingValue(true); });
      EXPECT_EQ(store->object("inner"), SettingValue(false));
      return store->object("sum") == SettingValue(std::int64_t{200}) ? Value("seen") : std::nullopt;
    });
    store->update("sum", [](Value) { return std::nullopt; });
    EXPECT_EQ(store->object("sum"), SettingValue("seen"));
  }
  EXPECT_EQ(stored("inner"), SettingValue(false));
  EXPECT_EQ(stored("sum"), SettingValue("seen"));

  const auto failing = [&](Value) -> Value {
    sqlite.set("inner", true);
    throw std::runtime_error("the caller's own");
  };
  EXPECT_THROW(sqlite.update("sum", failing), std::runtime_error);
  EXPECT_EQ(sqlite.object("inner"), SettingValue(false));
  sqlite.set("sum", true);  // works, because the failed update left no lock
  EXPECT_EQ(stored("sum"), SettingValue(true));
  EXPECT_THAT(diagnostics.take(), IsEmpty());
}

TEST_F(SettingsStoreTest, RenamesADamagedFileOnTheNextWrite) {
  SqliteSettingsStore(file).set("key", List(2000, "a value of several pages"));
  sqlite.set("another", true);
  const std::string good = fileContent(file), log = fileContent(file.string() + "-wal");
  ASSERT_NE(log, "");
  std::string corrupt = good;
  corrupt.replace(8192, 4096, 4096, '\xFF');
  const std::pair<std::string, std::string> filesAndLogs[] = {{"{\"displayedGroups\": [\"custom\"]}\n", ""},
                                                              {"SQ", ""},
                                                              {std::string(8192, '\0'), ""},
                                                              {corrupt, ""},
                                                              {good.substr(0, good.size() - 1), ""},
                                                              {corrupt, log}};
  for (const auto& [bytes, pending] : filesAndLogs) {
    SCOPED_TRACE(bytes.substr(0, 20) + " of " + std::to_string(bytes.size()));
    fs::remove_all(directory / "real");
    fs::remove(file);
    fs::create_directory(directory / "real");
    const fs::path real = directory / "real/user.sqlite", aside = real.string() + ".damaged";
    writeFile(real, bytes);
    if (!pending.empty()) writeFile(real.string() + "-wal", pending);
    writeFile(aside, "an older one");
    fs::create_symlink("real/user.sqlite", file);

    diagnostics.take();
    {
      SqliteSettingsStore reader(file);
      for (int read = 0; read < 2; ++read) EXPECT_EQ(reader.object("key"), std::nullopt);
      EXPECT_THAT(reader.readFailure("key").value_or(""), HasSubstr("damaged"));
    }
    EXPECT_EQ(fileContent(real), bytes);
    EXPECT_EQ(fileContent(real.string() + "-wal"), pending);
    EXPECT_THAT(diagnostics.take(), ElementsAre(HasSubstr("damaged")));

    SqliteSettingsStore witness(file), store(file);
    witness.object("key");
    diagnostics.take();
    store.update("key", [](Value present) -> Value { return !present.has_value(); });
    EXPECT_EQ(store.object("key"), SettingValue(true));
    EXPECT_EQ(fileContent(aside.string() + "2"), bytes);
    EXPECT_EQ(fileContent(aside.string() + "2-wal"), pending);
    EXPECT_EQ(fileContent(aside), "an older one");
    EXPECT_THAT(diagnostics.take(), Contains(HasSubstr("kept in " + aside.string() + "2")).Times(1));
    // A store that has already opened the damaged file switches to the new file, and does not rename it.
    witness.set("other", true);
    EXPECT_EQ(stored("key"), SettingValue(true));
    EXPECT_EQ(stored("other"), SettingValue(true));
    EXPECT_TRUE(fs::is_symlink(file));
    EXPECT_FALSE(fs::exists(aside.string() + "3"));
  }
}

TEST_F(SettingsStoreTest, SurvivesTruncatedFilesAndChangedBytes) {
  SqliteSettingsStore(file).set("key", List(300, "a value of several pages"));
  const std::string good = fileContent(file);
  for (std::size_t i = 0; i < good.size(); i += i < 100 ? 9 : 1021) {
    std::string flipped = good;
    flipped[i] = static_cast<char>(flipped[i] ^ 0x55);
    // The bytes at 18 and 47 contain version numbers of the file format. A changed byte means a newer format,
    // and SQLite does not write to such a file.
    const bool newer = i == 18 || i == 47;
    for (const auto& [bytes, writable] : {std::pair(good.substr(0, i), true), std::pair(flipped, !newer)}) {
      for (const auto& entry : fs::directory_iterator(directory.path())) fs::remove(entry);
      writeFile(file, bytes);
      SqliteSettingsStore store(file);
      store.object("key");
      ASSERT_EQ(fileContent(file), bytes) << "a read changed the file; changed position: " << i;
      store.set("other", true);
      ASSERT_EQ(store.synchronize(), writable) << i << ": " << testing::PrintToString(diagnostics.take());
      ASSERT_EQ(store.object("other"), SettingValue(true)) << i;
    }
  }
}

TEST_F(SettingsStoreTest, UsesTheNewFileAfterTheFileWasReplaced) {
  sqlite.set("key", "old");
  for (const auto& entry : fs::directory_iterator(directory.path())) fs::remove(entry);
  EXPECT_EQ(sqlite.object("key"), std::nullopt);
  SqliteSettingsStore(file).set("key", "new");
  EXPECT_EQ(sqlite.object("key"), SettingValue("new"));
  sqlite.set("other", true);
  EXPECT_EQ(stored("other"), SettingValue(true));

  // A forked child process inherits the handle of the open file, but not the locks of its parent.
  asNobody([&] {
    sqlite.set("key", "forked");
    EXPECT_FALSE(sqlite.synchronize());
    EXPECT_EQ(sqlite.object("other"), std::nullopt);
    EXPECT_THAT(diagnostics.take(), ElementsAre(HasSubstr("forked"), HasSubstr("forked")));
  });
  EXPECT_EQ(sqlite.object("key"), SettingValue("new"));
}

// At first, a lock prevents a value from being stored. Tests whether the value is stored after the lock has
// ended.
TEST_F(SettingsStoreTest, DropsResultsComputedFromAnOutdatedValue) {
  std::atomic<int> asked = 0;
  setLockWaitPolicy([&](std::chrono::milliseconds) { return ++asked % 3 != 0; });
  const auto append = [](const Value& present) -> Value {
    List list = present ? std::get<List>(*present) : List{};
    list.emplace_back("new");
    return list;
  };
  enum class How { set, update };
  const struct {
    const char* lock;  // an exclusive lock also prevents other programs from reading
    How how;
    bool otherStores;
    bool storable;
  } cases[] = {
      {"PRAGMA locking_mode=exclusive; BEGIN EXCLUSIVE", How::set, false, true},
      {"PRAGMA locking_mode=exclusive; BEGIN EXCLUSIVE", How::update, false, false},
      {"BEGIN IMMEDIATE", How::set, true, true},
      {"BEGIN IMMEDIATE", How::update, false, true},
      {"BEGIN IMMEDIATE", How::update, true, false},
  };
  for (const auto& [lock, how, otherStores, storable] : cases) {
    for (const bool atTheEnd : {false, true}) {
      SCOPED_TRACE(std::string(lock) + (how == How::set ? " set" : " update") +
                   (otherStores ? " other" : "") + (atTheEnd ? " at the end" : ""));
      SqliteSettingsStore(file).set("key", List{"old"});
      std::optional<SqliteSettingsStore> store(file);
      {
        Database other(file, SQLITE_OPEN_READWRITE);
        other.execute(lock);
        how == How::set ? store->set("key", List{"old", "new"}) : store->update("key", append);
        // The wait has timed out, so the next operation must not wait.
        const int before = asked;
        EXPECT_GT(before, 0);
        EXPECT_FALSE(store->synchronize());
        EXPECT_EQ(asked, before);
        if (otherStores) other.execute("UPDATE setting SET value = '[\"other\"]'");
        other.execute("COMMIT");
      }
      if (atTheEnd) {
        store.reset();
      } else {
        EXPECT_EQ(store->synchronize(), storable);
        EXPECT_EQ(store->synchronize(), storable) << "the second call returned a different result";
      }
      EXPECT_EQ(stored("key"), SettingValue(storable      ? List{"old", "new"}
                                            : otherStores ? List{"other"}
                                                          : List{"old"}));
      if (atTheEnd) continue;
      EXPECT_EQ(store->object("key"), stored("key"));
      EXPECT_EQ(store->readFailure("key"), std::nullopt);
      store->set("key", List{});
      EXPECT_TRUE(store->synchronize());
    }
  }
  setLockWaitPolicy(nullptr);
}

// At exit the library stores the values that could not be stored before. Functions that run even later can
// use settings.
TEST_F(SettingsStoreTest, WorksUntilTheProcessEnds) {
  const ScopedVariable home("XDG_CONFIG_HOME", directory.path().string());
  file = *applicationConfigDirectory() / "settings.sqlite";
  SqliteSettingsStore(file).set("before", true);
  int locked[2], unlocked[2];
  ASSERT_EQ(pipe(locked) | pipe(unlocked), 0);
  const pid_t child = fork();
  if (child == 0) {
    char byte;
    std::atexit([] {
      if (settingsStore()->object("late") != SettingValue("stored")) _exit(4);
      settingsStore()->set("later", true);
      _exit(settingsStore()->synchronize() ? 0 : 5);
    });
    if (read(locked[0], &byte, 1) != 1) _exit(2);
    setLockWaitPolicy([](auto) { return false; });
    settingsStore()->set("late", "stored");
    if (settingsStore()->synchronize() || write(unlocked[1], "", 1) != 1 || read(locked[0], &byte, 1) != 1) {
      _exit(3);
    }
    std::exit(1);
  }
  char byte;
  {
    Database other(file, SQLITE_OPEN_READWRITE);
    other.execute("BEGIN IMMEDIATE");
    EXPECT_EQ(write(locked[1], "", 1), 1);
    EXPECT_EQ(read(unlocked[0], &byte, 1), 1);
  }
  EXPECT_EQ(write(locked[1], "", 1), 1);
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_EQ(WEXITSTATUS(status), 0);
  EXPECT_EQ(stored("late"), SettingValue("stored"));
  EXPECT_EQ(stored("later"), SettingValue(true));
  for (const int end : {locked[0], locked[1], unlocked[0], unlocked[1]}) close(end);
}

TEST_F(SettingsStoreTest, ReadsNumbersInEveryLocale) {
  const ScopedVariable place("LOCPATH", directory.path().string());
  writeFile(directory / "source",
            "LC_NUMERIC\ndecimal_point \",\"\nthousands_sep \"\"\ngrouping -1\nEND LC_NUMERIC\n");
  const std::string source = (directory / "source").string(), locale = (directory / "comma").string();
  runProgram("localedef -c -i " + source + " -f ANSI_X3.4-1968 " + locale + " >/dev/null 2>&1");
  ASSERT_NE(setlocale(LC_NUMERIC, "comma"), nullptr) << "the Debian package locales is needed";
  ASSERT_EQ(std::to_string(0.5).substr(0, 3), "0,5");
  sqlite.set("number", 1234.5);
  const Value read = sqlite.object("number");
  setlocale(LC_NUMERIC, "C");
  EXPECT_EQ(read, SettingValue(1234.5));
}

// Each case prevents settings from being saved and then removes the obstacle. After that, the settings must
// be saved.
TEST_F(SettingsStoreTest, KeepsUnsavedValuesUntilTheyCanBeSaved) {
  const auto check = [&](SettingsStore& store, const std::function<void()>& clear) {
    const List large(5000, "a text that does not fit on the disk");
    diagnostics.take();
    store.set("large", large);
    EXPECT_FALSE(store.synchronize());
    EXPECT_EQ(store.object("large"), SettingValue(large));
    store.set("large", large);
    store.update("large", [&](Value present) -> Value {
      EXPECT_EQ(present, SettingValue(large));
      return List{"less"};
    });
    EXPECT_EQ(store.object("large"), SettingValue(List{"less"}));
    EXPECT_THAT(diagnostics.take(), Contains(HasSubstr("cannot be saved")).Times(1));
    clear();
    store.set("other", true);
    EXPECT_TRUE(store.synchronize());
    EXPECT_EQ(stored("large"), SettingValue(List{"less"}));
    EXPECT_EQ(stored("other"), SettingValue(true));
  };

  const fs::path disk = directory / "disk";
  fs::create_directory(disk);
  if (mount("none", disk.c_str(), "tmpfs", 0, "size=160k") == 0) {
    file = disk / "settings.sqlite";
    std::optional<SqliteSettingsStore> store(file);
    store->set("before", true);
    writeFile(disk / "filler", std::string(64 << 10, 'x'));
    check(*store, [&] { fs::remove(disk / "filler"); });
    EXPECT_EQ(stored("before"), SettingValue(true));
    store.reset();
    EXPECT_EQ(umount(disk.c_str()), 0);
  } else {
    std::cout << "skipped the test with a full disk, because mount() failed: " << std::strerror(errno)
              << '\n';
  }

  asNobody([&] {
    const fs::path own = directory / "#own? %41";
    fs::create_directory(own);
    file = own / "settings.sqlite";
    for (const auto& [place, usual] : {std::pair(own, fs::perms(0700)), std::pair(file, fs::perms(0600))}) {
      SqliteSettingsStore(file).set("large", List{"before"});
      fs::permissions(place, usual & ~fs::perms::owner_write);
      diagnostics.take();
      SqliteSettingsStore store(file);
      EXPECT_EQ(store.object("large"), SettingValue(List{"before"}));
      EXPECT_THAT(diagnostics.take(), IsEmpty());
      check(store, [&, &changed = place, &permissions = usual] { fs::permissions(changed, permissions); });
    }

    // The file cannot be read, so update() computes a new value without the stored value. Such a result must
    // never replace the stored value.
    fs::permissions(file, fs::perms(0));
    SqliteSettingsStore blind(file);
    blind.update("large", [](Value present) -> Value { return List{present ? "both" : "more"}; });
    EXPECT_EQ(blind.object("large"), SettingValue(List{"more"}));
    fs::permissions(file, fs::perms(0600));
    blind.set("other", false);
    EXPECT_EQ(blind.object("large"), SettingValue(List{"less"}));
    EXPECT_EQ(stored("other"), SettingValue(false));
    fs::remove_all(own);

    // Without a home directory, the store has no file.
    unsetenv("HOME");
    unsetenv("XDG_CONFIG_HOME");
    SqliteSettingsStore homeless;
    EXPECT_EQ(homeless.object("large"), std::nullopt);
    check(homeless, [&] {
      setenv("HOME", (directory / "home").c_str(), 1);
      file = *applicationConfigDirectory() / "settings.sqlite";
    });
    fs::remove_all(directory / "home");
  });
}

}  // namespace
}  // namespace glyph
