// SPDX-License-Identifier: MIT
// Measures building the displayed list and adding a character. For comparison, it also measures configuring
// the catalog, and a plain sort and copy.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <filesystem>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/search_index/searchable_index.h"
#include "glyphorium/services/settings/memory_settings_store.h"
#include "glyphorium/services/settings/sqlite_settings_store.h"
#include "glyphorium/state/selected_entities.h"

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

void configure(benchmark::State& state) {
  displayAllGroups(configuredCatalog());
  for (auto _ : state) configuredCatalog().configure();
}
BENCHMARK(configure)->Unit(benchmark::kMillisecond);

void buildAllGroups(benchmark::State& state) {
  displayAllGroups(configuredCatalog());
  for (auto _ : state) configuredCatalog().setSelectedEntities();
}
BENCHMARK(buildAllGroups)->Unit(benchmark::kMillisecond);

// The lower limit of the time: the same entities are only sorted and copied.
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
BENCHMARK(plainSortAndCopy)->Unit(benchmark::kMillisecond);

// Adds and removes a character while a few groups are displayed. With the argument 0 the settings are stored
// in memory, with 1 on disk.
void addOneCharacter(benchmark::State& state) {
  Glyphorium& catalog = configuredCatalog();
  const auto folder = std::filesystem::temp_directory_path() / "glyphorium-state-benchmark";
  if (state.range(0) == 1) {
    setSettingsStore(std::make_shared<SqliteSettingsStore>(folder / "settings.sqlite"));
  }
  catalog.setSelectedGroups({"custom", "arrows", "punctuation"});
  for (auto _ : state) {
    catalog.addCustomAddedEntity("21d0");
    catalog.removeCustomAddedEntity("21d0");
  }
  setSettingsStore(std::make_shared<MemorySettingsStore>());
  std::filesystem::remove_all(folder);
  state.SetLabel(state.range(0) == 1 ? "add and remove, durable" : "add and remove, in memory");
}
BENCHMARK(addOneCharacter)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
