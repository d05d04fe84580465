// SPDX-License-Identifier: MIT
// Measures building the displayed list and adding characters, and how both times grow. For comparison, it
// also measures a plain sort and copy, and writes to the settings.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/search_index/searchable_index.h"
#include "glyphorium/services/settings/memory_settings_store.h"
#include "glyphorium/services/settings/sqlite_settings_store.h"
#include "glyphorium/state/selected_entities.h"
#include "glyphorium/state/structured_unicodes.h"
#include "glyphorium/text/unicode_text.h"

namespace {

using namespace glyph;

Glyphorium& configuredCatalog() {
  static const bool once = [] {
    setDiagnosticsSink([](std::string_view) {});
    setSettingsStore(std::make_shared<MemorySettingsStore>());
    setSearchableIndex(std::make_shared<MemorySearchableIndex>());
    glyphorium().configure();
    return true;
  }();
  benchmark::DoNotOptimize(once);
  return glyphorium();
}

void displayAllGroups(Glyphorium& catalog) {
  catalog.setSelectedGroups(allBuildInEntityGroups());
}

// Measures building the displayed list. The argument is the number of displayed groups. Compare the time for
// all groups with plainSortAndCopy.
void buildGroups(benchmark::State& state) {
  Glyphorium& catalog = configuredCatalog();
  std::vector<std::string> groups = allBuildInEntityGroups();
  groups.resize(static_cast<std::size_t>(state.range(0)) + 1);  // the first group is "custom", which is empty
  catalog.setSelectedGroups(groups);
  for (auto _ : state) catalog.setSelectedEntities();
  state.counters["entities"] = static_cast<double>(selectedEntities()->size());
}
BENCHMARK(buildGroups)->Arg(1)->Arg(10)->Arg(112)->Unit(benchmark::kMicrosecond);

// A lower limit for the time of building the displayed list: only sorts and copies the same entities.
void plainSortAndCopy(benchmark::State& state) {
  displayAllGroups(configuredCatalog());
  configuredCatalog().setSelectedEntities();
  const std::vector<Entity> entities(selectedEntities()->rbegin(), selectedEntities()->rend());
  for (auto _ : state) {
    std::vector<const Entity*> order;
    for (const Entity& entity : entities) order.push_back(&entity);
    std::sort(order.begin(), order.end(),
              [](const Entity* a, const Entity* b) { return a->computed.decimal < b->computed.decimal; });
    std::vector<Entity> sorted;
    sorted.reserve(order.size());
    for (const Entity* entity : order) sorted.push_back(*entity);
    selectedEntities() = std::move(sorted);
  }
}
BENCHMARK(plainSortAndCopy)->Unit(benchmark::kMicrosecond);

// Stores the settings in a file, which the destructor deletes.
class DurableSettings {
 public:
  DurableSettings() { setSettingsStore(std::make_shared<SqliteSettingsStore>(folder_ / "settings.sqlite")); }
  DurableSettings(const DurableSettings&) = delete;
  DurableSettings& operator=(const DurableSettings&) = delete;
  ~DurableSettings() {
    setSettingsStore(std::make_shared<MemorySettingsStore>());
    std::filesystem::remove_all(folder_);
  }

 private:
  const std::filesystem::path folder_ = std::filesystem::temp_directory_path() / "glyphorium-state-benchmark";
};

// Adds and removes a character while all groups are displayed. These are two durable writes.
void addAndRemove(benchmark::State& state) {
  Glyphorium& catalog = configuredCatalog();
  const DurableSettings settings;
  displayAllGroups(catalog);
  for (auto _ : state) {
    catalog.addCustomAddedEntity("21d0");
    catalog.removeCustomAddedEntity("21d0");
  }
}
BENCHMARK(addAndRemove)->Unit(benchmark::kMicrosecond)->UseRealTime();

// A lower limit for the time of addAndRemove: only its two writes.
void writeTwice(benchmark::State& state) {
  const DurableSettings settings;
  for (auto _ : state) {
    for (const char* const code : {"21d0", "21d1"}) {
      settingsStore()->set("customAddedEntities", std::vector<std::string>{code});
      settingsStore()->synchronize();
    }
  }
}
BENCHMARK(writeTwice)->Unit(benchmark::kMicrosecond)->UseRealTime();

// Returns the codes of characters that have names.
std::vector<std::string> namedCodes(std::size_t count) {
  if (structuredUnicodes().empty()) loadStructuredUnicodes();
  std::vector<std::string> codes;
  for (std::size_t i = 0; i < count; ++i) codes.push_back(lowercased(structuredUnicodes()[1000 + i].hex));
  return codes;
}

// Adds several characters in one step; the argument is their number. The settings are in memory.
void addMany(benchmark::State& state) {
  Glyphorium& catalog = configuredCatalog();
  const auto codes = namedCodes(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {
    catalog.addCustomAddedEntities(codes);
    state.PauseTiming();
    catalog.removeCustomAddedEntities(codes);
    setSearchableIndex(std::make_shared<MemorySearchableIndex>());  // drops the recorded requests
    state.ResumeTiming();
  }
}
BENCHMARK(addMany)->Arg(1)->Arg(100)->Arg(10000)->Unit(benchmark::kMicrosecond);

// Adds one character; the argument is the number of characters already added. The settings are in memory.
void addOneMore(benchmark::State& state) {
  Glyphorium& catalog = configuredCatalog();
  catalog.setCustomAddedEntityUnicodes(namedCodes(static_cast<std::size_t>(state.range(0))));
  for (auto _ : state) {
    state.PauseTiming();
    setSearchableIndex(std::make_shared<MemorySearchableIndex>());
    state.ResumeTiming();
    catalog.addCustomAddedEntity("1f600");
    state.PauseTiming();
    catalog.removeCustomAddedEntity("1f600");
    state.ResumeTiming();
  }
  catalog.setCustomAddedEntityUnicodes({});
}
BENCHMARK(addOneMore)->Arg(1)->Arg(100)->Arg(10000)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
