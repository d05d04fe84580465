// SPDX-License-Identifier: MIT
// Measures the desktop's search index: indexing, replacing, querying and deleting the whole catalog. As a
// lower limit, also measures writing the same texts into a plain SQLite table.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <filesystem>
#include <unordered_set>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/search_index/index_store.h"
#include "glyphorium/services/search_index/searchable_index_reader.h"
#include "glyphorium/services/search_index/sqlite_searchable_index.h"
#include "glyphorium/services/settings/memory_settings_store.h"
#include "glyphorium/text/text_pieces.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace {

using namespace glyph;
namespace fs = std::filesystem;

const fs::path folder = fs::temp_directory_path() / "glyphorium-index-benchmark";

const std::vector<SearchableItem>& wholeCatalog() {
  static const std::vector<SearchableItem> items = [] {
    setDiagnosticsSink([](std::string_view) {});
    setSettingsStore(std::make_shared<MemorySettingsStore>());
    glyphorium().configure();
    std::vector<SearchableItem> all;
    std::unordered_set<std::string> seen;
    for (const Entity& entity : glyphorium().buildInEntities()) {
      if (seen.insert(entity.computed.hex).second) all.push_back(toolKit().searchableItem(entity));
    }
    return all;
  }();
  return items;
}

void makeItems(benchmark::State& state) {
  wholeCatalog();
  for (auto _ : state) {
    for (const Entity& entity : glyphorium().buildInEntities()) {
      benchmark::DoNotOptimize(toolKit().searchableItem(entity));
    }
  }
}
BENCHMARK(makeItems)->Unit(benchmark::kMillisecond);

constexpr auto patience = std::chrono::minutes(1);

void indexAll(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    fs::remove_all(folder);
    auto items = wholeCatalog();
    {
      SqliteSearchableIndex index(folder / "index.sqlite");
      state.ResumeTiming();
      index.indexItems(std::move(items), {});
      index.waitUntilIdle(patience);
      state.PauseTiming();  // closing the file is not measured, as in plainTable()
    }
    state.ResumeTiming();
  }
}
BENCHMARK(indexAll)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(2);

// Returns an index that contains the whole catalog. Fills the index if it is not complete.
SqliteSearchableIndex& filledIndex() {
  static SqliteSearchableIndex index(folder / "index.sqlite");
  if (SearchableIndexReader(folder / "index.sqlite").count() != wholeCatalog().size()) {
    index.indexItems(wholeCatalog(), {});
    index.waitUntilIdle(patience);
  }
  return index;
}

void replaceAll(benchmark::State& state) {
  filledIndex();
  for (auto _ : state) {
    filledIndex().indexItems(wholeCatalog(), {});
    filledIndex().waitUntilIdle(patience);
  }
}
BENCHMARK(replaceAll)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(2);

void replaceOne(benchmark::State& state) {
  filledIndex();
  for (auto _ : state) {
    filledIndex().indexItems({wholeCatalog()[4000]}, {});
    filledIndex().waitUntilIdle(patience);
  }
}
BENCHMARK(replaceOne)->Unit(benchmark::kMillisecond);

void query(benchmark::State& state, const char* words) {
  filledIndex();
  SearchableIndexReader reader(folder / "index.sqlite");
  for (auto _ : state) benchmark::DoNotOptimize(reader.search(words, 20));
}
BENCHMARK_CAPTURE(query, symbol, "→")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(query, word, "arrow")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(query, twoWords, "double arrow")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(query, everything, "qv:")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(query, nothing, "qqqqqq")->Unit(benchmark::kMicrosecond);

void deleteAllByIdentifier(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    filledIndex();
    std::vector<std::string> identifiers;
    for (const SearchableItem& item : wholeCatalog()) identifiers.push_back(item.uniqueIdentifier);
    state.ResumeTiming();
    filledIndex().deleteItems(std::move(identifiers), {});
    filledIndex().waitUntilIdle(patience);
  }
}
BENCHMARK(deleteAllByIdentifier)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(2);

void clear(benchmark::State& state) {
  for (auto _ : state) {
    state.PauseTiming();
    filledIndex();
    state.ResumeTiming();
    filledIndex().deleteAllItems({});
    filledIndex().waitUntilIdle(patience);
  }
}
BENCHMARK(clear)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(2);

// Writes one row for each item into a new file, in one transaction. This is a lower limit for the time of
// indexing. `create` is the SQL statement that creates the table t, and `columns` returns the texts of the
// row for an item.
template <class Columns>
void writeRows(benchmark::State& state, const char* create, const char* insertRow, Columns columns) {
  for (auto _ : state) {
    state.PauseTiming();
    fs::remove_all(folder / "plain");
    fs::create_directories(folder / "plain");
    sqlite3* database = nullptr;
    sqlite3_open((folder / "plain/plain.sqlite").c_str(), &database);
    sqlite3_exec(database, "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL", nullptr, nullptr, nullptr);
    sqlite3_exec(database, create, nullptr, nullptr, nullptr);
    state.ResumeTiming();
    sqlite3_exec(database, "BEGIN", nullptr, nullptr, nullptr);
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(database, insertRow, -1, &insert, nullptr);
    for (const SearchableItem& item : wholeCatalog()) {
      const std::vector<std::string> texts = columns(item);
      int at = 0;
      for (const std::string& text : texts) {
        sqlite3_bind_text(insert, ++at, text.data(), static_cast<int>(text.size()), SQLITE_STATIC);
      }
      if (sqlite3_step(insert) != SQLITE_DONE) state.SkipWithError(sqlite3_errmsg(database));
      sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    sqlite3_exec(database, "COMMIT", nullptr, nullptr, nullptr);
    state.PauseTiming();
    sqlite3_close(database);
    state.ResumeTiming();
  }
}

// A table of all texts of the items, without a full-text index.
void plainTable(benchmark::State& state) {
  writeRows(state, "CREATE TABLE t(uid, domain, type, title, comment, genre, keywords)",
            "INSERT INTO t VALUES(?,?,?,?,?,?,?)", [](const SearchableItem& item) {
              return std::vector<std::string>{item.uniqueIdentifier,     item.domainIdentifier,
                                              item.contentType,          item.title,
                                              item.comment.value_or(""), item.genre,
                                              packTexts(item.keywords)};
            });
}
BENCHMARK(plainTable)->Unit(benchmark::kMillisecond)->UseRealTime();

// Only a full-text index of the items' words, with the default settings of SQLite.
void fullTextOfWords(benchmark::State& state) {
  writeRows(state, "CREATE VIRTUAL TABLE t USING fts5(words)", "INSERT INTO t VALUES(?)",
            [](const SearchableItem& item) { return std::vector<std::string>{joined(item.keywords, " ")}; });
}
BENCHMARK(fullTextOfWords)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  fs::remove_all(folder);
  return 0;
}
