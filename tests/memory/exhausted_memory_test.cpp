// SPDX-License-Identifier: MIT
// Runs an operation many times. Each time, a different memory allocation fails. The operation must either
// succeed or throw std::bad_alloc, and the library must still work correctly afterwards. With the address
// sanitizer, these tests also find leaks.
#include <gmock/gmock.h>

#include <cstdint>
#include <functional>
#include <new>

#include "glyphorium/c/glyphorium.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/entity/codec.h"
#include "glyphorium/search/search.h"
#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/search_index/searchable_index_reader.h"
#include "glyphorium/services/search_index/sqlite_searchable_index.h"
#include "glyphorium/services/settings/memory_settings_store.h"
#include "glyphorium/services/settings/sqlite_settings_store.h"
#include "glyphorium/state/selected_entities.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "tests/memory/failing_new.h"
#include "tests/support/catalog_figures.h"
#include "tests/support/sandbox.h"

namespace glyph {
namespace {

using Names = std::vector<std::string>;

class ExhaustedMemory : public testing::Test {
 protected:
  ExhaustedMemory() {
    setDiagnosticsSink([](std::string_view) {});
  }
  ~ExhaustedMemory() override { setDiagnosticsSink(nullptr); }

  // Runs the operation. Meanwhile, the calls of operator new with the numbers `first` to `last` fail. Returns
  // whether the operation succeeded nevertheless.
  static bool run(std::size_t first, std::size_t last, const std::function<void()>& operation) {
    failingNew = {first, last};
    bool succeeded = true;
    try {
      operation();
    } catch (const std::bad_alloc&) {
      succeeded = false;
    }
    failingNew.last = 0;
    return succeeded;
  }

  // Counts the allocations of the operation. Then repeats the operation for each allocation: once only this
  // allocation fails, and once this allocation and all later allocations fail. Runs `check` after each run.
  // If there are more than `atMost` allocations, only the first ones, the last ones and some in between fail.
  static void failAtEveryCall(const std::function<void()>& operation, const std::function<void(bool)>& check,
                              std::size_t atMost = 200) {
    const bool undisturbed = run(0, 0, operation);
    const std::size_t calls = failingNew.calls;
    check(undisturbed);
    const std::size_t edge = atMost / 3;
    std::size_t failures = 0;
    for (std::size_t k = 1; k <= calls; ++k) {
      if (calls > atMost && k > edge && k + edge < calls && k % (calls / edge + 1) != 0) continue;
      for (const std::size_t last : {k, SIZE_MAX}) {
        const bool succeeded = run(k, last, operation);
        failures += !succeeded;
        check(succeeded);
      }
      if (testing::Test::HasFailure()) FAIL() << "at call " << k << " of " << calls;
    }
    EXPECT_GT(failures, 0u);
    check(run(0, 0, operation));
  }
};

// Operations that only read must either return the right result or throw.
TEST_F(ExhaustedMemory, NeverGivesAWrongResult) {
  const Glyphorium catalog;
  ComputedEntity record = Unicode("0041").computedEntity();
  record.fallbackName = "A name of more than a few letters";
  const std::string table = "[" + encode(record) + "," + encode(record) + "]";
  const std::string enrichment =
      R"([{"hex":"0041","betterName":"A better name than the other","searchTerms":["a term of some letters"],)"
      R"("advice":[{"lang":"en","text":"a note of more than a few letters"}]}])";
  const auto records = catalog.getComputedEntitiesFrom(table).value();
  const auto additional = catalog.getAdditionalDataFrom(enrichment).value();
  const Entity entity = catalog.getEntitiesByEnriching(records, additional).front();
  const std::vector<Entity> entities(1, entity);
  const Search search(entities);

  const std::function<std::string()> operations[] = {
      [&] { return catalog.getComputedEntitiesFrom(table).value().back().fallbackName; },
      [&] { return catalog.getAdditionalDataFrom(enrichment).value().front().advice.front().text; },
      [&] { return catalog.getEntitiesByEnriching(records, additional).back().name(); },
      [&] {
        return toolKit().addNames({records.front(), records.front()}).back().fallbackName;
      },
      [&] { return entity.searchString() + toolKit().searchableItem(entity).title; },
  };
  for (const auto& operation : operations) {
    SCOPED_TRACE(&operation - operations);
    const std::string expected = operation();
    std::string result;
    failAtEveryCall([&] { result = operation(); },
                    [&](bool succeeded) { EXPECT_TRUE(!succeeded || result == expected); });
  }

  // A search does not throw when memory runs out. It returns no results instead.
  std::size_t found = 0;
  failAtEveryCall(
      [&] {
        found = search.query("better name").results.size();
        if (found == 0) throw std::bad_alloc();
      },
      [&](bool) { EXPECT_EQ(search.query("better name").results.size(), 1u); });
}

TEST_F(ExhaustedMemory, LeavesACatalogThatCanBeConfigured) {
  const auto settings = std::make_shared<MemorySettingsStore>();
  setSettingsStore(settings);
  settings->set("displayedGroups", Names{"custom", "arrows", "a group that no table has"});
  settings->set("customAddedEntities", Names{"2190", "1f600", "0041,030a"});
  Glyphorium catalog;
  // Empties the catalog before each run, so that the old and the new lists differ.
  const auto reset = [&] {
    catalog = Glyphorium();
    selectedEntities() = std::vector<Entity>();
    allBuildInEntityGroups().clear();
  };
  const auto oneOf = [](std::size_t size, std::size_t whole) { return size == 0 || size == whole; };
  reset();
  failAtEveryCall([&] { catalog.configure(); },
                  [&](bool succeeded) {
                    EXPECT_TRUE(oneOf(catalog.buildInEntities().size(), figures::entities));
                    EXPECT_TRUE(oneOf(catalog.allCustomEntities->size(), 2));
                    EXPECT_TRUE(oneOf(allBuildInEntityGroups().size(), figures::groups + 1));
                    EXPECT_TRUE(oneOf(catalog.allEntityGroupNamesWithCount->size(), figures::groups + 1));
                    EXPECT_TRUE(oneOf(selectedEntities().size(), figures::arrows + 1));
                    EXPECT_TRUE(!succeeded || selectedEntities().size() == figures::arrows + 1);
                    reset();
                  },
                  120);
  setSettingsStore(nullptr);
}

// The functions of the C interface do not throw. They return the neutral value, and the status contains the
// reason.
TEST_F(ExhaustedMemory, SetsTheStatusOfTheCInterface) {
  setSettingsStore(std::make_shared<MemorySettingsStore>());
  const char* const codes[] = {"2190", "1f600"};
  glyphorium_entities* const list = glyphorium_resolve("U+2190 U+2191", GLYPHORIUM_TERMINATED, nullptr);
  int begun = 0;
  int ended = 0;
  const std::function<bool()> operations[] = {
      [&] { return glyphorium_set_forbidden_codes(codes, 2); },
      [&] {
        glyphorium_search* const search = glyphorium_search_over(list);
        glyphorium_search_free(search);
        return search != nullptr;
      },
      [&] {
        char* const text = glyphorium_entity_search_string(glyphorium_entities_at(list, 0), nullptr);
        glyphorium_free(text);
        return text != nullptr;
      },
      [&] {
        const auto observer = [](void*, const char*, glyphorium_text) {};
        const auto end = [](void* user) { ++*static_cast<int*>(user); };
        ++begun;
        glyphorium_observation* const observation =
            glyphorium_observe("a name of many letters", observer, &ended, end);
        const bool succeeded = observation != nullptr;
        glyphorium_observation_free(observation);
        return succeeded;
      },
  };
  for (const auto& operation : operations) {
    SCOPED_TRACE(&operation - operations);
    failAtEveryCall(
        [&] {
          const bool succeeded = operation();
          if (succeeded) return;
          EXPECT_EQ(glyphorium_last_status(), static_cast<glyphorium_status>(GLYPHORIUM_OUT_OF_MEMORY));
          throw std::bad_alloc();
        },
        [&](bool) {});
  }
  EXPECT_EQ(begun, ended) << "each `user` is freed";
  glyphorium_set_forbidden_codes(nullptr, 0);
  glyphorium_entities_free(list);
  setSettingsStore(nullptr);
}

TEST_F(ExhaustedMemory, IndexSearchReturnsResultsOrAnError) {
  const TemporaryDirectory directory;
  const auto file = directory / "index of more than a few letters";
  SqliteSearchableIndex index(file);
  index.indexItems({toolKit().searchableItem({Unicode("0041").computedEntity(), {}})}, {});
  ASSERT_TRUE(index.waitUntilIdle(std::chrono::minutes(1)));
  std::optional<SearchableIndexReader> reader;
  std::size_t found = 0;
  failAtEveryCall(
      [&] {
        reader.emplace(file);
        found = reader->search("a", 10).size();
        if (!reader->error().empty()) throw std::bad_alloc();
      },
      [&](bool succeeded) { EXPECT_TRUE(!succeeded || found == 1); });
}

TEST_F(ExhaustedMemory, LeavesTheOldOrTheNewSetting) {
  const TemporaryDirectory directory;
  const auto file = directory / "settings.sqlite";
  auto store = std::make_unique<SqliteSettingsStore>(file);
  const std::string key = "a key of more than a few letters";
  std::size_t size = 0;
  const auto stored = [&] {
    const auto value = SqliteSettingsStore(file).object(key);
    return value ? std::get<Names>(*value).size() : 0;
  };
  failAtEveryCall(
      [&] {
        store->update(key, [](const std::optional<SettingValue>& before) {
          Names names = before ? std::get<Names>(*before) : Names();
          names.emplace_back("a name of more than a few letters");
          return SettingValue(std::move(names));
        });
      },
      [&](bool succeeded) {
        // Another connection must be able to read and write values: no transaction may be left open.
        const std::size_t now = stored();
        EXPECT_EQ(now, succeeded || now != size ? size + 1 : size);
        size = now;
        store->set("another key", true);
        EXPECT_TRUE(store->synchronize());
        EXPECT_EQ(SqliteSettingsStore(file).object("another key"), SettingValue(true));
        SqliteSettingsStore(file).set("another key", false);
        store = std::make_unique<SqliteSettingsStore>(file);  // so that each update opens the file again
      });
}

}  // namespace
}  // namespace glyph
