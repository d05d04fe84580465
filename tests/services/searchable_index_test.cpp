// SPDX-License-Identifier: MIT
#include "glyphorium/services/search_index/searchable_index.h"

#include <gmock/gmock.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <future>
#include <random>
#include <thread>

#include "glyphorium/services/application/application.h"
#include "glyphorium/services/search_index/searchable_index_reader.h"
#include "glyphorium/services/search_index/sqlite_searchable_index.h"
#include "glyphorium/services/sqlite/lock_wait.h"
#include "glyphorium/services/sqlite/sqlite.h"
#include "tests/support/killed_writer.h"
#include "tests/support/recorded_diagnostics.h"
#include "tests/support/sandbox.h"

namespace glyph {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

constexpr auto longEnough = 120s;

SearchableItem glyphItem(const std::string& uid, const std::string& symbol, const std::string& name,
                         const std::vector<std::string>& more = {}, const std::string& genre = "other") {
  SearchableItem item{uid, "org.example", "Glyph", symbol + "\t" + name, std::nullopt, genre, {}, symbol};
  item.keywords = {symbol, name, "qv:", "qv: ", "entity"};
  item.keywords.insert(item.keywords.end(), more.begin(), more.end());
  return item;
}

// The errors that the completions received, in the order of the calls. An empty text means success.
using Outcomes = std::vector<std::string>;
SearchableIndex::Completion noting(Outcomes& outcomes) {
  return [&](std::optional<std::string> error) { outcomes.push_back(error.value_or("")); };
}

// Indexes the items and waits. Returns the error that the completion received, or an empty text.
std::string indexAndWait(SearchableIndex& index, std::vector<SearchableItem> items) {
  Outcomes outcomes;
  index.indexItems(std::move(items), noting(outcomes));
  EXPECT_TRUE(index.waitUntilIdle(longEnough));
  EXPECT_EQ(outcomes.size(), 1u);
  return outcomes.front();
}

std::string identifiers(const std::vector<SearchableItem>& items) {
  std::string result;
  for (const auto& item : items) result += (result.empty() ? "" : " ") + item.uniqueIdentifier;
  return result;
}

void removeIndex(const std::filesystem::path& file) {
  for (const char* const suffix : {"", "-wal", "-shm"}) std::filesystem::remove(file.string() + suffix);
}

TEST(SearchableIndex, FindsItemsByTypedSymbolsAndWords) {
  const TemporaryDirectory directory;
  SqliteSearchableIndex index(directory / "index");
  const std::string latin = "latin basic";
  std::vector<SearchableItem> items = {glyphItem("2192", "→", "Rightwards Arrow", {"&rarr;", "NEAR", "OR"}),
                                       glyphItem("2190", "←", "Leftwards Arrow"),
                                       glyphItem("0026", "&", "Ampersand", {"&amp;", ""}, latin),
                                       glyphItem("2103", "℃", "Degree Celsius", {"°C"}),
                                       glyphItem("1f600", "😀", "Grinning Face"),
                                       glyphItem("1fa95", "🪕", "Banjo"),
                                       glyphItem("100202", "\U00100202", "Square.And.Arrow.Up"),
                                       glyphItem("0041", "A", "Latin Capital Letter A", {}, latin),
                                       glyphItem("0061", "a", "Latin Small Letter A", {}, latin),
                                       glyphItem("00c1", "Á", "Latin Capital Letter A With Acute", {}, latin),
                                       glyphItem("0301", "\u0301", "Combining Acute Accent"),
                                       glyphItem("0022", "\"", "Quotation Mark", {"\"\""}, latin),
                                       glyphItem("002c", ",", "Comma", {}, latin),
                                       glyphItem("0009", "\t", "Character Tabulation")};
  items[1].comment = "zeigt zurück";
  ASSERT_EQ(indexAndWait(index, items), "");
  std::string manyTerms;
  for (int i = 0; i < 2'000; ++i) manyTerms += "arrow" + std::to_string(i) + " ";
  const struct {
    std::string found;
    std::vector<std::string> queries;
  } cases[] = {
      {"2192", {"→", "OR", "arrow right", "QV: →", "→\0arrow"s, "arrow\u2003right"}},
      {"2190", {"ZURÜCK"}},
      {"0026", {"&amp;", "amp"}},
      {"2103", {"°C"}},
      {"1f600", {"1F600", "😀"}},
      {"100202", {"square.and.arrow.up"}},
      {"00c1", {"á"}},
      {"0301", {"\u0301"}},
      {"0022", {"\""}},
      {"002c", {",", "latin basic comma"}},
      // The order of the results: the typed character itself, then shorter names, then lower identifiers.
      {"2190 2192 100202", {"qv:arrow"}},
      {"0026 0061 0041 00c1", {"a latin"}},
      {"0041 0026 2190 2192 100202 0061 0301 00c1", {"A"}},
      // A query has no operators, and no text may change the meaning of the SQL statement or the FTS5
      // expression.
      {"",
       {"arrow OR comma", "tok:arrow", "arrow*", "-comma", "arr\" OR \"comma", "(", "';DROP TABLE item;--"}},
      {"", {"", "\0"s, "\xff\x80\xa0", " \t\u00a0\u3000\u180e", std::string(100'000, '"'), manyTerms}}};
  SearchableIndexReader reader(directory / "index");
  RecordedDiagnostics diagnostics;
  for (const auto& [found, queries] : cases) {
    for (const auto& query : queries) EXPECT_EQ(identifiers(reader.search(query, 100)), found) << query;
  }
  EXPECT_EQ(reader.search("qv:", 100).size(), std::size(items));
  const SearchableItem tab = reader.search("tabulation", 1).at(0);
  EXPECT_EQ(tab.symbol + "/" + tab.name(), "\t/Character Tabulation");
  EXPECT_EQ(identifiers(reader.search("qv:", 2)), "002c 1fa95");
  EXPECT_THAT(reader.search("qv:", -1), IsEmpty());
  EXPECT_THAT(diagnostics.take(), IsEmpty());
}

TEST(SearchableIndex, HasTheSameItemsAsAnIndexInMemoryAfterTheSameRequests) {
  const TemporaryDirectory directory;
  SqliteSearchableIndex index(directory / "index");
  MemorySearchableIndex memory;
  SearchableIndexReader reader(directory / "index");
  Outcomes outcomes, inMemory;
  std::minstd_rand random(1);
  const auto number = [&](unsigned below) { return static_cast<unsigned>(random() % below); };
  const auto identifier = [&] { return "\0u"s + std::to_string(number(40)); };
  for (int round = 0; round < 400; ++round) {
    const auto kind = number(20);
    std::vector<SearchableItem> items;
    std::vector<std::string> removed;
    for (auto count = number(6); count > 0; --count) {
      const std::string text = "\xff\0\t" + std::to_string(round);
      items.push_back({identifier(), "d", "t", text, {}, "", {"", "1:a", "\n\0"s}, "\xff\0"s});
      if (number(2)) items.back().comment = "";
      removed.push_back(identifier());
    }
    const auto request = [&](SearchableIndex& each, Outcomes& noted) {
      if (kind == 0) return each.deleteAllItems(noting(noted));
      if (kind < 6) return each.deleteItems(removed, noting(noted));
      each.indexItems(items, noting(noted));
    };
    request(index, outcomes);
    request(memory, inMemory);
    if (round % 50 != 49) continue;
    PendingIndexWork last{1, 1};
    EXPECT_TRUE(index.waitUntilIdle(longEnough, [&](PendingIndexWork left) { last = left; }));
    EXPECT_EQ(last, PendingIndexWork{});
    std::vector<SearchableItem> held;
    for (const auto& item : memory.items()) held.push_back(*reader.item(item.uniqueIdentifier));
    EXPECT_EQ(held, memory.items());
    EXPECT_EQ(reader.count(), held.size());
    EXPECT_EQ(reader.search("u", 100).size(), held.size());
  }
  EXPECT_EQ(outcomes, Outcomes(400));
  EXPECT_EQ(inMemory, outcomes);
}

std::vector<SearchableItem> arrows(int count) {
  std::vector<SearchableItem> items;
  for (int i = 0; i < count; ++i) items.push_back(glyphItem(std::to_string(i), "→", "Arrow"));
  return items;
}

TEST(SearchableIndex, PutsDamagedFilesAsideAndKeepsReadableItems) {
  const TemporaryDirectory directory;
  const auto file = directory / "index", aside = directory / "index.damaged";
  {
    SqliteSearchableIndex index(file);
    ASSERT_EQ(indexAndWait(index, arrows(500)), "");
  }
  const std::string whole = fileContent(file);
  ASSERT_GT(whole.size(), 40'000u);
  const auto overwritten = [&](std::size_t at, std::size_t length) {
    return std::string(whole).replace(at, length, length, '\x5a');
  };
  const std::string contents[] = {overwritten(0, 100),       overwritten(4096, whole.size() - 4096),
                                  whole.substr(0, 4096 * 3), whole.substr(0, 600),
                                  std::string(20'000, 't'),  "a diary"};
  for (const auto& content : contents) {
    SCOPED_TRACE(&content - contents);
    removeIndex(file);
    std::filesystem::remove(aside);
    writeFile(file, content);
    RecordedDiagnostics diagnostics;
    SearchableIndexReader reader(file);
    for (int question = 0; question < 3; ++question) {
      EXPECT_THAT(reader.search("arrow", 10), IsEmpty());
      EXPECT_NE(reader.error(), "");
    }
    EXPECT_THAT(diagnostics.take(), ElementsAre(HasSubstr("not readable")));
    SqliteSearchableIndex index(file);
    EXPECT_EQ(indexAndWait(index, {glyphItem("new", "→", "Arrow")}), "");
    EXPECT_THAT(diagnostics.take(), ElementsAre(HasSubstr("put aside")));
    EXPECT_EQ(fileContent(aside), content);
    EXPECT_TRUE(reader.item("new"));
    EXPECT_EQ(reader.error(), "");
  }

  // Tests damage that only some queries detect, while another program has the file open.
  removeIndex(file);
  {
    SqliteSearchableIndex index(file);
    ASSERT_EQ(indexAndWait(index, arrows(500)), "");
  }
  const std::pair<const char*, std::size_t> damages[] = {
      {"DROP TABLE token", 501}, {"ALTER TABLE token RENAME tok TO text", 501}, {"DROP TABLE item", 1}};
  for (const auto& [damage, kept] : damages) {
    Database(file, SQLITE_OPEN_READWRITE).execute(damage);
    RecordedDiagnostics diagnostics;
    SearchableIndexReader bystander(file);
    bystander.count();
    diagnostics.take();
    SqliteSearchableIndex index(file);
    EXPECT_EQ(indexAndWait(index, {glyphItem("new", "→", "Arrow")}), "") << damage;
    EXPECT_THAT(diagnostics.take(), ElementsAre(HasSubstr("put aside"))) << damage;
    EXPECT_EQ(bystander.count(), kept) << damage;
    EXPECT_EQ(bystander.search("arrow", 1000).size(), kept) << damage;
  }
  // A statement that fails in an intact file must not cause the file to be replaced.
  Database(file, SQLITE_OPEN_READWRITE)
      .execute("CREATE TRIGGER faulty AFTER INSERT ON item BEGIN SELECT absent(); END");
  SqliteSearchableIndex index(file);
  EXPECT_THAT(indexAndWait(index, {glyphItem("8", "→", "Arrow")}), HasSubstr("absent"));
  EXPECT_EQ(identifiers(SearchableIndexReader(file).search("arrow", 10)), "new");
}

TEST(SearchableIndex, ReadsAndUpdatesAFileOfTheEarlierFormat) {
  const TemporaryDirectory directory;
  const auto file = directory / "index";
  {
    SqliteSearchableIndex index(file);
    ASSERT_EQ(indexAndWait(index, arrows(20)), "");
  }
  // The earlier format had a full-text table in place of the plain one.
  Database(file, SQLITE_OPEN_READWRITE)
      .execute(
          "ALTER TABLE token RENAME TO plain;"
          "CREATE VIRTUAL TABLE token USING fts5(tok, detail=none, prefix='1 2 3');"
          "INSERT INTO token(rowid, tok) SELECT id, tok FROM plain; DROP TABLE plain;"
          "PRAGMA user_version=1");
  RecordedDiagnostics diagnostics;
  SearchableIndexReader reader(file);
  EXPECT_EQ(reader.search("arrow", 100).size(), 20u);
  SqliteSearchableIndex index(file);
  EXPECT_EQ(indexAndWait(index, {glyphItem("new", "↓", "Downwards Arrow")}), "");
  EXPECT_EQ(reader.search("arrow", 100).size(), 21u);
  EXPECT_EQ(identifiers(reader.search("downwards", 100)), "new");
  EXPECT_THAT(diagnostics.take(), IsEmpty());
  Statement tables(Database(file, SQLITE_OPEN_READONLY),
                   "SELECT group_concat(name) FROM sqlite_schema WHERE type = 'table'");
  EXPECT_EQ((tables.step(), tables.text(0)), "item,token");
}

TEST(SearchableIndex, OnlyOneOfSeveralWritersRepairsADamagedFile) {
  for (int round = 0; round < 6; ++round) {
    const TemporaryDirectory directory;
    const auto file = directory / "index";
    writeFile(file, std::string(20'000, 't'));
    EXPECT_TRUE(inChildren(8, [&](int writer) -> int {
      setDiagnosticsSink([](std::string_view) {});
      SqliteSearchableIndex index(file);
      for (int i = 0; i < 5; ++i) {
        if (indexAndWait(index, {glyphItem(std::to_string(writer * 5 + i), "→", "Arrow")}) != "") return 1;
      }
      return 0;
    }));
    EXPECT_EQ(SearchableIndexReader(file).count(), 40u);
  }
}

TEST(SearchableIndex, DoesNotChangeFilesOfOtherPrograms) {
  const TemporaryDirectory directory;
  const auto file = directory / "index", foreign = directory / "foreign";
  const auto execute = [](const std::filesystem::path& database, const char* sql) {
    Database(database, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE).execute(sql);
  };
  const struct {
    const char* error;
    std::function<void()> make;
  } cases[] = {{"symbolic link", [&] { writeFile(foreign, std::string(3'000, 'd')); }},
               {"symbolic link", [&] { execute(foreign, "CREATE TABLE note(text)"); }},
               {"later version", [&] { execute(foreign, "CREATE TABLE item(id); PRAGMA user_version=3"); }},
               {"later version", [&] { execute(file, "CREATE TABLE item(id); PRAGMA user_version=3"); }},
               {"not a regular file", [&] { mkfifo(file.c_str(), 0600); }},
               {"not a regular file",
                [&] {
                  execute(file, "CREATE TABLE item(id)");
                  mkfifo((file.string() + "-journal").c_str(), 0600);
                }},
               {"not a regular file", [&] { std::filesystem::create_directory(file); }},
               {"not a regular file", [&] { std::filesystem::create_symlink("/dev/zero", file); }}};
  for (const auto& [expected, make] : cases) {
    SCOPED_TRACE(&expected - &cases[0].error);
    for (const auto& each : std::filesystem::directory_iterator(directory.path())) remove(each.path());
    make();
    std::error_code exists;
    std::filesystem::create_symlink(foreign, file, exists);
    const bool regular = std::filesystem::is_regular_file(file);
    const std::string before = regular ? fileContent(file) : "";
    RecordedDiagnostics diagnostics;
    SearchableIndexReader reader(file);
    EXPECT_EQ(reader.count(), 0u);
    EXPECT_NE(reader.error(), "");
    SqliteSearchableIndex index(file);
    EXPECT_THAT(indexAndWait(index, {glyphItem("1", "→", "Arrow")}), HasSubstr(expected));
    Outcomes outcomes;
    index.deleteAllItems(noting(outcomes));
    EXPECT_TRUE(index.waitUntilIdle(longEnough));
    EXPECT_THAT(outcomes, ElementsAre(HasSubstr(expected)));
    EXPECT_EQ(regular ? fileContent(file) : "", before);
  }
}

TEST(SearchableIndex, PassesDiskErrorsToTheCompletion) {
  const TemporaryDirectory directory;
  writeFile(directory / "file", "");
  SqliteSearchableIndex nowhere(directory / "file/index");
  EXPECT_THAT(indexAndWait(nowhere, {glyphItem("1", "→", "Arrow")}), HasSubstr("Not a directory"));

  SqliteSearchableIndex index(directory / "index");
  SearchableIndexReader reader(directory / "index");
  EXPECT_EQ(reader.count(), 0u);
  EXPECT_EQ(indexAndWait(index, {glyphItem("1", "→", "Arrow")}), "");
  EXPECT_EQ(reader.count(), 1u);  // from here on, the reader keeps the log open
  rlimit before{};
  getrlimit(RLIMIT_FSIZE, &before);
  const rlimit small{200'000, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &small);
  EXPECT_NE(indexAndWait(index, arrows(5'000)), "");
  // The data that the failed request wrote must not stay on the disk.
  EXPECT_EQ(std::filesystem::file_size(directory / "index-wal"), 0u);
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_EQ(reader.count(), 1u);
  EXPECT_EQ(indexAndWait(index, arrows(5'000)), "");
  EXPECT_EQ(reader.count(), 5'000u);
  const rlimit none{0, before.rlim_max};
  setrlimit(RLIMIT_FSIZE, &none);
  Outcomes emptied;
  index.deleteAllItems(noting(emptied));
  EXPECT_TRUE(index.waitUntilIdle(longEnough));
  setrlimit(RLIMIT_FSIZE, &before);
  EXPECT_THAT(emptied, ElementsAre(""));
  EXPECT_EQ(reader.count(), 0u);
  EXPECT_EQ(indexAndWait(index, {glyphItem("1", "→", "Arrow")}), "");

  // Deletes the file while both the index and the reader have it open.
  removeIndex(directory / "index");
  EXPECT_EQ(reader.count(), 0u);
  EXPECT_EQ(indexAndWait(index, {glyphItem("2", "→", "Arrow")}), "");
  EXPECT_EQ(reader.count(), 1u);
}

TEST(SearchableIndex, AllWaitingRequestsShareOneWaitForALock) {
  const TemporaryDirectory directory;
  {
    SqliteSearchableIndex index(directory / "index");
    ASSERT_EQ(indexAndWait(index, {glyphItem("1", "→", "Arrow")}), "");
  }
  Outcomes outcomes;
  RecordedDiagnostics diagnostics;
  Database other(directory / "index", SQLITE_OPEN_READWRITE);
  other.execute("PRAGMA locking_mode=EXCLUSIVE; BEGIN EXCLUSIVE");
  SqliteSearchableIndex blocked(directory / "index");
  const auto begin = std::chrono::steady_clock::now();
  blocked.deleteAllItems(noting(outcomes));
  EXPECT_TRUE(eventually([&] { return !diagnostics.take().empty(); }));
  for (int i = 0; i < 600; ++i) blocked.deleteAllItems(noting(outcomes));
  EXPECT_TRUE(blocked.waitUntilIdle(longEnough));
  EXPECT_LT(std::chrono::steady_clock::now() - begin, 9s);
  EXPECT_THAT(outcomes, AllOf(SizeIs(601), Each(HasSubstr("locked"))));

  // If the lock wait policy refuses to wait, the request fails at once.
  setLockWaitPolicy([](std::chrono::milliseconds) { return false; });
  const auto again = std::chrono::steady_clock::now();
  blocked.deleteAllItems(noting(outcomes));
  EXPECT_TRUE(blocked.waitUntilIdle(longEnough));
  EXPECT_LT(std::chrono::steady_clock::now() - again, 4s);
  EXPECT_THAT(outcomes, SizeIs(602));
  setLockWaitPolicy(nullptr);
  other.execute("ROLLBACK");
}

TEST(SearchableIndex, CarriesOutAllRequestsBeforeTheProgramEnds) {
  const TemporaryDirectory directory;
  const ScopedVariable data("XDG_DATA_HOME", directory / "data");
  EXPECT_TRUE(inChildren(3, [](int program) -> int {
    for (int i = 0; i < 300; ++i) {
      searchableIndex()->indexItems({glyphItem(std::to_string(program * 1000 + i), "→", "Arrow")}, {});
    }
    std::exit(0);
  }));
  EXPECT_EQ(SearchableIndexReader().count(), 900u);
  const auto mode = [](const auto& file) { return std::filesystem::status(file).permissions(); };
  EXPECT_EQ(mode(*applicationDataDirectory()), std::filesystem::perms(0700));
  EXPECT_EQ(mode(*applicationDataDirectory() / "index.sqlite"), std::filesystem::perms(0600));
}

TEST(SearchableIndex, ACompletionMayUseAndDestroyTheIndex) {
  std::thread([] {}).join();  // a sanitizer starts its own permanent thread together with the first thread
  const auto threads = [] {
    return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
  };
  const auto before = threads();
  const TemporaryDirectory directory;
  std::promise<void> done;
  auto index = std::make_shared<SqliteSearchableIndex>(directory / "index");
  index->indexItems({glyphItem("1", "→", "Arrow")}, [&index, &done](auto) {
    index->indexItems({glyphItem("2", "→", "Arrow")}, [&done](auto) {
      done.set_value();
      throw std::runtime_error("the host's own");
    });
    index.reset();
  });
  EXPECT_EQ(done.get_future().wait_for(longEnough), std::future_status::ready);
  EXPECT_EQ(SearchableIndexReader(directory / "index").count(), 2u);
  // The thread of the destroyed index must end, too.
  EXPECT_TRUE(eventually([&] { return threads() == before; }));
}

TEST(SearchableIndex, KeepsAcknowledgedRequestsWhenItsProcessIsKilled) {
  const TemporaryDirectory directory;
  const auto file = directory / "index";
  SearchableIndexReader reader(file);
  RecordedDiagnostics diagnostics;
  std::size_t kept = 0;
  // Request n adds item n and replaces the item "last".
  const auto writeForEver = [&](int acknowledgements) {
    SqliteSearchableIndex index(file);
    const auto acknowledge = [&](const auto& error) {
      if (error || write(acknowledgements, "", 1) != 1) _exit(1);
    };
    for (std::size_t n = kept;; ++n) {
      const auto number = std::to_string(n);
      index.indexItems({glyphItem(number, "→", "Arrow", {"words", number}), glyphItem("last", "↓", number)},
                       acknowledge);
      if (n % 100 == 0) index.waitUntilIdle(longEnough);
    }
  };
  for (int round = killRounds(20); round > 0; --round) {
    if (kept > 20'000) {  // a larger index would make later rounds slow
      removeIndex(file);
      kept = 0;
    }
    std::size_t before = 0;
    const auto acknowledged = kept + writesUntilKilled(true, 30ms, writeForEver, [&] {
                                const auto now = reader.search("words", 1'000'000).size();
                                EXPECT_GE(now, before);
                                before = now;
                              });

    Database database(file, SQLITE_OPEN_READWRITE);
    Statement check(database, "PRAGMA quick_check");
    ASSERT_TRUE(check.step() && check.text(0) == "ok");
    Statement counts(database,
                     "SELECT (SELECT count(*) FROM item), (SELECT count(*) FROM token),"
                     " (SELECT max(CAST(uid AS INTEGER)) FROM item WHERE uid <> 'last')");
    counts.step();
    kept = static_cast<std::size_t>(counts.integer(2)) + 1;
    ASSERT_GE(kept, acknowledged);
    ASSERT_EQ(counts.integer(0), static_cast<std::int64_t>(kept) + 1) << "requests are whole and in order";
    ASSERT_EQ(counts.integer(1), counts.integer(0));
  }
  EXPECT_THAT(diagnostics.take(), IsEmpty());
}

}  // namespace
}  // namespace glyph
