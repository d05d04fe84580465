// SPDX-License-Identifier: MIT
// What happens when memory runs out at any moment: std::bad_alloc reaches the caller, or the operation
// succeeds all the same; afterwards everything works. The address sanitizer finds what would be lost
// meanwhile.
#include <gmock/gmock.h>

#include <functional>
#include <limits>
#include <memory>
#include <new>

#include "glyphorium/catalog/entity/codec.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/platform/diagnostics.h"
#include "glyphorium/platform/memory_settings_store.h"
#include "glyphorium/platform/sqlite_settings_store.h"
#include "glyphorium/platform/unicode_text.h"
#include "glyphorium/platform/xml_unescape.h"
#include "glyphorium/search/search.h"
#include "glyphorium/state/selected_entities.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "tests/memory/failing_new.h"
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

  // What an operation did while operator new failed from its k-th call on, or at it.
  enum class Outcome { succeeded, threw };
  static Outcome run(std::size_t k, FailingNew::Mode mode, const std::function<void()>& operation) {
    const FailingNew failing(k, mode);
    try {
      operation();
    } catch (const std::bad_alloc&) {
      return Outcome::threw;
    }
    return Outcome::succeeded;
  }

  // Runs the operation with each of its calls failing, and `check` after each run. Of very many calls the
  // first and last ones fail, where something begins or is put in place, and some between.
  static void failAtEveryCall(const std::function<void()>& operation,
                              const std::function<void(Outcome)>& check, std::size_t atMost = 200) {
    std::size_t calls;
    {
      const FailingNew counting(std::numeric_limits<std::size_t>::max(), FailingNew::Mode::once);
      operation();
      calls = counting.calls();
    }
    check(Outcome::succeeded);
    ASSERT_GT(calls, 0u);
    std::size_t failures = 0;
    for (std::size_t k = 1; k <= calls; ++k) {
      const std::size_t edge = atMost / 3;
      const std::size_t stride = calls / edge + 1;
      if (calls > atMost && k > edge && k + edge < calls && k % stride != 0) continue;
      for (const auto mode : {FailingNew::Mode::once, FailingNew::Mode::fromThenOn}) {
        const Outcome outcome = run(k, mode, operation);
        failures += outcome == Outcome::threw;
        check(outcome);
      }
      if (testing::Test::HasFailure()) FAIL() << "at call " << k << " of " << calls;
    }
    EXPECT_GT(failures, 0u);
    operation();
    check(Outcome::succeeded);
  }
};

// Operations that change nothing: a result is right or there is none.
TEST_F(ExhaustedMemory, LeavesNoWrongResults) {
  const Glyphorium catalog;
  const std::string row =
      R"({"symbol":"A","hex":"0041","htmlHex":"&#x41;","fallbackName":"A name of more than a few letters",)"
      R"("htmlDecimal":"&#65;","decimal":65,"group":"a group of that length too"})";
  const std::string table = "[" + row + "," + row + "," + row + "]";
  const std::string enrichment =
      R"([{"hex":"0041","betterName":"A better name than the other","searchTerms":["a term of some letters"],)"
      R"("advice":[{"lang":"en","text":"a note of more than a few letters"}]}])";
  const auto records = catalog.getComputedEntitiesFrom(table).value();
  const auto additional = catalog.getAdditionalDataFrom(enrichment).value();
  const Entity entity = catalog.getEntitiesByEnriching(records, additional).front();
  const std::string longText = "ΟΔΟΣ: a text of several words &amp; more than ASCII, e\u0301 👩‍👧";
  const std::vector<Entity> entities(1, entity);
  const Search search(entities);

  const std::pair<const char*, std::function<std::string()>> operations[] = {
      {"getComputedEntitiesFrom",
       [&] {
         const auto rows = catalog.getComputedEntitiesFrom(table);
         return rows.value().back().fallbackName;
       }},
      {"repair", [&] { return catalog.getComputedEntitiesFrom(R"([{"symbol":"\"}])") ? "rows" : "none"; }},
      {"getAdditionalDataFrom",
       [&] { return catalog.getAdditionalDataFrom(enrichment).value().front().advice.front().text; }},
      {"getEntitiesByEnriching",
       [&] { return catalog.getEntitiesByEnriching(records, additional).back().name(); }},
      {"encode", [&] { return encode(records.front()) + encode(additional.front()); }},
      {"addNames",
       [&] {
         return toolKit().addNames({records.front(), Unicode("1f600").computedEntity()}).back().fallbackName;
       }},
      {"searchString", [&] { return entity.searchString(); }},
      {"localizedAdvice", [&] { return entity.additional->localizedAdvice().value_or("none"); }},
      {"searchableItem", [&] { return toolKit().searchableItem(entity).title; }},
      {"xmlUnescaped", [&] { return xmlUnescaped(longText); }},
      {"lowercased", [&] { return lowercased(longText); }},
      {"graphemeClusters", [&] { return std::string(graphemeClusters(longText).back()); }},
      {"getAdvancedSymbol", [&] { return CodeFormats().getAdvancedSymbol("0041,030a,0042,0043,0044"); }},
  };
  for (const auto& [name, operation] : operations) {
    SCOPED_TRACE(name);
    const std::string expected = operation();
    std::string result;
    failAtEveryCall([&result, &perform = operation] { result = perform(); },
                    [&](Outcome outcome) { EXPECT_TRUE(outcome == Outcome::threw || result == expected); });
  }

  // The search would rather find nothing than fail while a person types.
  std::size_t found = 0;
  failAtEveryCall(
      [&] {
        found = search.query("better name").results.size();
        if (found == 0) throw std::bad_alloc();
      },
      [&](Outcome) { EXPECT_EQ(search.query("better name").results.size(), 1u); });
}

TEST_F(ExhaustedMemory, LeavesACatalogThatCanBeConfigured) {
  const auto settings = std::make_shared<MemorySettingsStore>();
  setSettingsStore(settings);
  settings->set("displayedGroups", Names{"custom", "arrows", "a group that no table has"});
  settings->set("customAddedEntities", Names{"2190", "1f600", "0041,030a"});
  Glyphorium catalog;
  // As at the start of the program, so that an old list and a complete one differ.
  const auto reset = [&] {
    catalog = Glyphorium();
    selectedEntities() = std::vector<Entity>();
    allBuildInEntityGroups().clear();
  };
  const auto oneOf = [](std::size_t size, std::size_t whole) { return size == 0 || size == whole; };
  reset();
  failAtEveryCall([&] { catalog.configure(); },
                  [&](Outcome outcome) {
                    EXPECT_TRUE(oneOf(catalog.buildInEntities().size(), 17532));
                    EXPECT_TRUE(oneOf(catalog.allCustomEntities->size(), 2));
                    EXPECT_TRUE(oneOf(allBuildInEntityGroups().size(), 113));
                    EXPECT_TRUE(oneOf(catalog.allEntityGroupNamesWithCount->size(), 113));
                    EXPECT_TRUE(oneOf(selectedEntities()->size(), 113));
                    EXPECT_TRUE(outcome == Outcome::threw || selectedEntities()->size() == 113);
                    reset();
                  },
                  120);
  setSettingsStore(nullptr);
}

TEST_F(ExhaustedMemory, LeavesTheOldChoiceOrTheNewOne) {
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
      [&](Outcome outcome) {
        // Another connection sees it: no transaction is left open, and none is half done.
        const std::size_t now = stored();
        EXPECT_EQ(now, outcome == Outcome::succeeded || now != size ? size + 1 : size);
        size = now;
        store->set("another key", true);
        EXPECT_TRUE(store->synchronize());
        EXPECT_EQ(SqliteSettingsStore(file).object("another key"), SettingValue(true));
        SqliteSettingsStore(file).set("another key", false);
        store = std::make_unique<SqliteSettingsStore>(file);  // each update opens the file anew
      });
}

}  // namespace
}  // namespace glyph
