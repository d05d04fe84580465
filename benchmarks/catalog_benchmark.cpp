// SPDX-License-Identifier: MIT
// Measures configuring the catalog, and decoding and joining its tables, compared with only parsing or
// copying the same bytes.
#include <benchmark/benchmark.h>
#include <malloc.h>
#include <simdjson.h>

#include "benchmarks/fresh_process.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/data/name_table.h"
#include "glyphorium/entity/decoding.h"
#include "glyphorium/entity/enrichment.h"
#include "glyphorium/entity/table_repair.h"
#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/settings/memory_settings_store.h"
#include "glyphorium/state/structured_unicodes.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace {

using namespace glyph;

std::vector<std::string_view> configuredTables() {
  static const std::string repaired =
      *repairedTable(embeddedText("latinBasicJson")->text) + std::string(64, '\0');
  std::vector<std::string_view> tables;
  for (const EmbeddedText& text : embeddedTexts()) {
    if (text.configured) tables.push_back(text.text);
  }
  tables.front() = std::string_view(repaired).substr(0, repaired.size() - 64);
  tables.push_back(additionalJson);
  return tables;
}

// A lower limit for the time of decoding: parses the tables without creating records.
void bareParse(benchmark::State& state) {
  const auto tables = configuredTables();
  simdjson::dom::parser parser;
  std::int64_t bytes = 0;
  for (auto _ : state) {
    for (const std::string_view table : tables) {
      benchmark::DoNotOptimize(parser.parse(table.data(), table.size(), false).error());
      bytes += static_cast<std::int64_t>(table.size());
    }
  }
  state.SetBytesProcessed(bytes);
}
BENCHMARK(bareParse)->Unit(benchmark::kMillisecond);

// A lower limit for the time of any pass over the tables: copies their bytes.
void copyBytes(benchmark::State& state) {
  const auto tables = configuredTables();
  std::string copy;
  for (auto _ : state) {
    copy.clear();
    for (const std::string_view table : tables) copy += table;
    benchmark::DoNotOptimize(copy.data());
  }
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(copy.size()));
}
BENCHMARK(copyBytes)->Unit(benchmark::kMillisecond);

// Configures the catalog either for a new user, who has no displayed groups, or with all groups displayed.
void configure(bool allGroups) {
  const auto settings = std::make_shared<MemorySettingsStore>();
  if (allGroups) {
    std::vector<std::string> groups;
    for (const EmbeddedText& text : embeddedTexts()) {
      if (text.configured) groups.emplace_back(text.group);
    }
    settings->set(UserInfluencedEntityKey::displayedGroups.rawValue(), groups);
  }
  setSettingsStore(settings);
  glyphorium().configure();
}

void configureAgain(benchmark::State& state, bool allGroups) {
  for (auto _ : state) configure(allGroups);
}
BENCHMARK_CAPTURE(configureAgain, noGroups, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(configureAgain, allGroups, true)->Unit(benchmark::kMillisecond);

const Actions actions{
    {"nothing", [] {}},
    {"bareParse",
     [] {
       simdjson::dom::parser parser;
       for (const EmbeddedText& text : embeddedTexts()) {
         const bool isTable = text.configured || text.text.data() == additionalJson.data();
         if (isTable)
           benchmark::DoNotOptimize(parser.parse(text.text.data(), text.text.size(), false).error());
       }
     }},
    {"configure", [] { configure(false); }},
    {"configureAllGroups", [] { configure(true); }},
    {"oneEntity", [] { benchmark::DoNotOptimize(buildInEntity(4000)); }}};
constexpr int processes = 20;
BENCHMARK_CAPTURE(inFreshProcess, nothing, "nothing")->UseManualTime()->Iterations(processes);
BENCHMARK_CAPTURE(inFreshProcess, bareParse, "bareParse")->UseManualTime()->Iterations(processes);
BENCHMARK_CAPTURE(inFreshProcess, configure, "configure")->UseManualTime()->Iterations(processes);
BENCHMARK_CAPTURE(inFreshProcess, configureAllGroups, "configureAllGroups")
    ->UseManualTime()
    ->Iterations(processes);
BENCHMARK_CAPTURE(inFreshProcess, oneEntity, "oneEntity")->UseManualTime()->Iterations(processes);

// Decodes the embedded tables in the way in which a host decodes its own tables.
std::vector<Entity> decodedRows() {
  std::vector<Entity> records;
  records.reserve(17532);
  TableDecoder decoder;
  for (const std::string_view table : configuredTables()) {
    if (table.data() == additionalJson.data()) continue;
    if (const auto repaired = repairedTable(table)) {
      decoder.append(*repaired, records);
    } else {
      decoder.append(table, records);
    }
  }
  return records;
}

// Measures `make`, but not the destruction of its result, because a program fills its catalog once and keeps
// it.
template <class Make>
void measureMaking(benchmark::State& state, Make make) {
  for (auto _ : state) {
    auto made = make();
    benchmark::DoNotOptimize(made);
    state.PauseTiming();
    made = {};
    state.ResumeTiming();
  }
}

void decodeTables(benchmark::State& state) {
  measureMaking(state, decodedRows);
}
BENCHMARK(decodeTables)->Unit(benchmark::kMillisecond);

void decodeEnrichment(benchmark::State& state) {
  const Glyphorium catalog;
  for (auto _ : state) benchmark::DoNotOptimize(catalog.getAdditionalDataFrom(additionalJson));
}
BENCHMARK(decodeEnrichment)->Unit(benchmark::kMillisecond);

void decodeAndJoin(benchmark::State& state) {
  const Glyphorium catalog;
  measureMaking(state, [&] {
    auto entities = decodedRows();
    enrich(entities, *catalog.getAdditionalDataFrom(additionalJson));
    return entities;
  });
}
BENCHMARK(decodeAndJoin)->Unit(benchmark::kMillisecond);

void joinAlone(benchmark::State& state) {
  const Glyphorium catalog;
  const auto rows = decodedRows();
  const auto enrichment = catalog.getAdditionalDataFrom(additionalJson);
  for (auto _ : state) {
    state.PauseTiming();
    auto copy = rows;
    state.ResumeTiming();
    enrich(copy, *enrichment);
    state.PauseTiming();
    copy = {};
    state.ResumeTiming();
  }
}
BENCHMARK(joinAlone)->Unit(benchmark::kMillisecond);

// Completes the names of the given number of records. Compare this with decodeNameTable, which decodes the
// name table once.
void completeNames(benchmark::State& state) {
  std::vector<ComputedEntity> records(static_cast<std::size_t>(state.range(0)));
  for (std::size_t i = 0; i < records.size(); ++i) {
    records[i] = Unicode(toolKit().getHex(static_cast<std::int64_t>(0x21 + i % 0x2000))).computedEntity();
  }
  for (auto _ : state) benchmark::DoNotOptimize(toolKit().addNames(records));
}
BENCHMARK(completeNames)->Arg(1)->Arg(100)->Arg(10000)->Unit(benchmark::kMicrosecond);

void decodeNameTable(benchmark::State& state) {
  for (auto _ : state) loadStructuredUnicodes();
}
BENCHMARK(decodeNameTable)->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  setDiagnosticsSink([](std::string_view) {});
  if (runAction(argc, argv, actions)) return 0;
  // The parser keeps its memory, so let malloc() keep freed memory too. Otherwise the comparison would mainly
  // measure the time that the kernel needs for new pages. (A new process needs about 1 ms for 4 MB, once.)
  mallopt(M_TRIM_THRESHOLD, 1 << 30);
  mallopt(M_MMAP_THRESHOLD, 1 << 30);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
