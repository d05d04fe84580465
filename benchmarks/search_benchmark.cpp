// SPDX-License-Identifier: MIT
// Measures the search of the whole catalog: building it, and answering a query. Other libraries and data
// structures that find the same words are measured for comparison. Compare only figures from the same run,
// because other programs run on the same machine.
#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <malloc.h>
#include <spawn.h>
#include <sqlite3.h>
#include <sys/wait.h>
#include <unicode/uchar.h>
#include <unistd.h>

#ifdef HAVE_UNISTRING
#include <uniname.h>
#endif

#include <algorithm>
#include <chrono>
#include <cstring>
#include <fstream>
#include <memory>
#include <string>
#include <vector>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/search/catalog_search.h"
#include "glyphorium/search/search.h"
#include "glyphorium/services/diagnostics/diagnostics.h"

namespace {

using namespace glyph;

std::vector<Entity> decodeAndJoin() {
  Glyphorium catalog;
  std::vector<ComputedEntity> records;
  for (const EmbeddedText& table : embeddedTexts()) {
    if (!table.configured) continue;
    auto rows = catalog.getComputedEntitiesFrom(table.text);
    if (!rows) continue;
    records.insert(records.end(), std::make_move_iterator(rows->begin()),
                   std::make_move_iterator(rows->end()));
  }
  return catalog.getEntitiesByEnriching(std::move(records), catalog.getAdditionalDataFrom(additionalJson));
}

const std::vector<Entity>& entities() {
  static const std::vector<Entity> all = decodeAndJoin();
  return all;
}

const Search& search() {
  static const Search made(entities());
  return made;
}

struct ListedQuery {
  std::string text;
  SearchOptions options;
};

// Returns the queries from the list of everyday queries. If `typed` is true, returns all prefixes of each
// query instead, as they occur when the user types the query.
std::vector<ListedQuery> listedQueries(bool typed) {
  std::vector<ListedQuery> queries;
  std::ifstream file(SEARCH_QUERY_LIST);
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("#")) continue;
    const std::string text = line.substr(0, line.find('\t'));
    const SearchOptions options{100, {{line.substr(line.rfind('\t') + 1)}}, {}};
    for (std::size_t size = typed ? 1 : text.size(); size <= text.size(); ++size) {
      const bool cutsCharacter = size < text.size() && (text[size] & 0xC0) == 0x80;
      if (!cutsCharacter) queries.push_back({text.substr(0, size), options});
    }
  }
  return queries;
}

void decodingAndJoining(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(decodeAndJoin());
}
BENCHMARK(decodingAndJoining)->Unit(benchmark::kMillisecond);

void buildingSearch(benchmark::State& state) {
  const auto& all = entities();
  for (auto _ : state) benchmark::DoNotOptimize(Search(all));
  state.counters["bytes"] = static_cast<double>(search().byteCount());
}
BENCHMARK(buildingSearch)->Unit(benchmark::kMillisecond);

// Makes a CatalogSearch and answers one query with it. The argument is the number of characters that the user
// has added.
void besideAdded(benchmark::State& state) {
  std::vector<std::string> codes;
  const std::size_t step = entities().size() / 100;
  for (std::size_t i = 0; codes.size() < static_cast<std::size_t>(state.range(0)); i += step)
    codes.emplace_back(entities()[i % entities().size()].computed.hex);
  for (auto _ : state) benchmark::DoNotOptimize(CatalogSearch(codes).query("arrow", {100, {{"en"}}, {}}));
}
BENCHMARK(besideAdded)->Arg(0)->Arg(1)->Arg(10)->Arg(100)->Unit(benchmark::kMicrosecond);

// Measures each query separately, because users notice slow queries rather than the mean. The time of a query
// is the median of its runs, because other processes have little influence on the median.
// If `everywhere` is true, the supplement is searched, too.
void measureQueries(benchmark::State& state, bool typed, bool everywhere) {
  using Clock = std::chrono::steady_clock;
  const std::vector<ListedQuery> queries = listedQueries(typed);
  const CatalogSearch everything{std::vector<std::string>()};
  std::vector<std::vector<double>> times(queries.size());
  for (auto _ : state) {
    for (std::size_t i = 0; i < queries.size(); ++i) {
      const auto begin = Clock::now();
      benchmark::DoNotOptimize(everywhere ? everything.query(queries[i].text, queries[i].options)
                                          : search().query(queries[i].text, queries[i].options));
      times[i].push_back(std::chrono::duration<double, std::micro>(Clock::now() - begin).count());
    }
  }
  std::vector<double> medians;
  std::vector<double> all;
  for (auto& runs : times) {
    all.insert(all.end(), runs.begin(), runs.end());
    std::nth_element(runs.begin(), runs.begin() + static_cast<std::ptrdiff_t>(runs.size() / 2), runs.end());
    medians.push_back(runs[runs.size() / 2]);
  }
  const auto quantile = [](std::vector<double>& values, double share) {
    std::sort(values.begin(), values.end());
    return values[static_cast<std::size_t>(share * static_cast<double>(values.size() - 1))];
  };
  state.SetItemsProcessed(state.iterations() * static_cast<std::int64_t>(queries.size()));
  state.counters["p50_us"] = quantile(medians, 0.5);
  state.counters["p99_us"] = quantile(medians, 0.99);
  state.counters["max_us"] = quantile(medians, 1);
  state.counters["p99_all_us"] = quantile(all, 0.99);
}
BENCHMARK_CAPTURE(measureQueries, wholeQueries, false, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(measureQueries, typedLetterByLetter, true, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(measureQueries, wholeQueriesOfEverything, false, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(measureQueries, everythingLetterByLetter, true, true)->Unit(benchmark::kMillisecond);

void oneWord(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(search().query("arrow", {100, {{"en"}}, {}}));
}
BENCHMARK(oneWord)->Unit(benchmark::kMicrosecond);

// Measures queries of several words. The argument of the benchmark says how many words a query has.
void severalWords(benchmark::State& state) {
  constexpr std::string_view words = "rightwards white arrow with corner ";
  std::size_t end = 0;
  for (auto left = state.range(0); left > 0; --left) end = words.find(' ', end) + 1;
  const std::string query(words.substr(0, end - 1));
  for (auto _ : state) benchmark::DoNotOptimize(Search::ofCatalog().query(query, {100, {{"en"}}, {}}));
}
BENCHMARK(severalWords)->DenseRange(1, 5)->Unit(benchmark::kMicrosecond);

// Several threads search at the same time. The time is per query.
void threads(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(Search::ofCatalog().query("arrow", {100, {{"en"}}, {}}));
  state.SetItemsProcessed(state.iterations());
}
BENCHMARK(threads)->ThreadRange(1, 8)->UseRealTime()->Unit(benchmark::kMicrosecond);

// The following benchmarks find "arrow" in the names, without ranking.

UBool countArrow(void* count, UChar32, UCharNameChoice, const char* name, int32_t) {
  *static_cast<int*>(count) += std::strstr(name, "ARROW") != nullptr;
  return true;
}

void icuNameScan(benchmark::State& state) {
  for (auto _ : state) {
    int count = 0;
    UErrorCode status = U_ZERO_ERROR;
    u_enumCharNames(0, 0x110000, countArrow, &count, U_UNICODE_CHAR_NAME, &status);
    benchmark::DoNotOptimize(count);
  }
}
BENCHMARK(icuNameScan)->Unit(benchmark::kMicrosecond);

#ifdef HAVE_UNISTRING
void unistringNameScan(benchmark::State& state) {
  char name[UNINAME_MAX];
  for (auto _ : state) {
    int count = 0;
    for (ucs4_t c = 0; c < 0x20000; ++c) {
      if (unicode_character_name(c, name)) count += std::strstr(name, "ARROW") != nullptr;
    }
    benchmark::DoNotOptimize(count);
  }
}
BENCHMARK(unistringNameScan)->Unit(benchmark::kMicrosecond);
#endif

void memmemOverNames(benchmark::State& state) {
  std::string names;
  for (const Entity& entity : entities()) names += entity.name() + '\n';
  for (auto _ : state) {
    int count = 0;
    const char* at = names.data();
    const char* const end = at + names.size();
    while (const void* const found = memmem(at, static_cast<std::size_t>(end - at), "Arrow", 5)) {
      ++count;
      at = static_cast<const char*>(found) + 5;
    }
    benchmark::DoNotOptimize(count);
  }
}
BENCHMARK(memmemOverNames)->Unit(benchmark::kMicrosecond);

// An FTS5 table of the names, in memory. A query returns the best 100 matches, as the search does for a user
// who is typing.
class FullTextTable {
 public:
  FullTextTable() {
    sqlite3_open(":memory:", &database_);
    run("create virtual table names using fts5(name, prefix='1 2 3')");
    run("begin");
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(database_, "insert into names(rowid, name) values (?, ?)", -1, &insert, nullptr);
    for (std::size_t i = 0; i < entities().size(); ++i) {
      const std::string name = entities()[i].name();
      sqlite3_bind_int64(insert, 1, static_cast<sqlite3_int64>(i));
      sqlite3_bind_text(insert, 2, name.data(), static_cast<int>(name.size()), SQLITE_TRANSIENT);
      sqlite3_step(insert);
      sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    run("commit");
    sqlite3_prepare_v2(database_, "select rowid from names(?) order by rank limit 100", -1, &select_,
                       nullptr);
  }
  FullTextTable(const FullTextTable&) = delete;
  FullTextTable& operator=(const FullTextTable&) = delete;
  ~FullTextTable() {
    sqlite3_finalize(select_);
    sqlite3_close(database_);
  }

  int count(const char* match) {
    int rows = 0;
    sqlite3_bind_text(select_, 1, match, -1, SQLITE_STATIC);
    while (sqlite3_step(select_) == SQLITE_ROW) ++rows;
    sqlite3_reset(select_);
    return rows;
  }

 private:
  void run(const char* sql) { sqlite3_exec(database_, sql, nullptr, nullptr, nullptr); }

  sqlite3* database_ = nullptr;
  sqlite3_stmt* select_ = nullptr;
};

void fullTextBuilding(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(std::make_unique<FullTextTable>());
}
BENCHMARK(fullTextBuilding)->Unit(benchmark::kMillisecond)->Iterations(1);

void fullTextQuery(benchmark::State& state, const char* match) {
  FullTextTable table;
  for (auto _ : state) benchmark::DoNotOptimize(table.count(match));
}
BENCHMARK_CAPTURE(fullTextQuery, arrow, "arrow*")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(fullTextQuery, let, "let*")->Unit(benchmark::kMicrosecond);

// Decodes only the entities of the results, like a program that shows results and needs nothing else from the
// catalog.
void decodingTwentyResults(benchmark::State& state) {
  const auto results = Search::ofCatalog().query("arrow", {20, {{"en"}}, {}}).results;
  for (auto _ : state) {
    for (const SearchResult& result : results) benchmark::DoNotOptimize(buildInEntity(result.index));
  }
}
BENCHMARK(decodingTwentyResults)->Unit(benchmark::kMicrosecond);

// Measures the run of a program from its start to its end, without stored settings.
void wholeProcess(benchmark::State& state, std::vector<std::string> command) {
  std::vector<char*> arguments;
  for (std::string& argument : command) arguments.push_back(argument.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t redirections;
  posix_spawn_file_actions_init(&redirections);
  for (const int output : {STDOUT_FILENO, STDERR_FILENO})
    posix_spawn_file_actions_addopen(&redirections, output, "/dev/null", O_WRONLY, 0);
  setenv("XDG_CONFIG_HOME", "/nonexistent", 1);
  for (auto _ : state) {
    pid_t process = 0;
    int status = -1;
    const bool started =
        posix_spawnp(&process, arguments[0], &redirections, nullptr, arguments.data(), environ) == 0;
    if (started) waitpid(process, &status, 0);
    if (status != 0) {
      state.SkipWithError("is not installed, or fails");
      break;
    }
  }
  posix_spawn_file_actions_destroy(&redirections);
}
const std::vector<std::string> nothing{"true"};
const std::vector<std::string> ourSearch{COMMAND_LINE, "search", "arrow"};
const std::vector<std::string> peersSearch{"unicode", "arrow"};
BENCHMARK_CAPTURE(wholeProcess, nothing, nothing)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(wholeProcess, glyphorium, ourSearch)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK_CAPTURE(wholeProcess, unicode, peersSearch)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
  setDiagnosticsSink([](std::string_view) {});
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
