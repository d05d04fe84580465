// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/services/notifications/notification_center.h"
#include "glyphorium/services/notifications/notification_names.h"
#include "glyphorium/services/pasteboard/pasteboard.h"
#include "glyphorium/services/search_index/searchable_index.h"
#include "glyphorium/services/settings/memory_settings_store.h"
#include "glyphorium/state/selected_entities.h"
#include "tests/support/recorded_diagnostics.h"

namespace glyph {

/// A test whose settings, index and clipboard are in memory and empty at the start. `events` records all
/// writes, index requests, notifications and diagnostic lines in order.
class CatalogFixture : public testing::Test {
 protected:
  using Names = std::vector<std::string>;

  // Settings that record each write as an event.
  class Settings final : public SettingsStore {
   public:
    explicit Settings(Names& events) : events_(events) {}
    std::optional<SettingValue> object(std::string_view key) override {
      ++reads;
      return values.object(key);
    }
    void set(std::string_view key, SettingValue value) override {
      events_.push_back("saved " + std::string(key));
      values.set(key, std::move(value));
    }
    bool synchronize() override {
      ++synchronized;
      return true;
    }

    MemorySettingsStore values;
    int reads = 0;
    int synchronized = 0;

   private:
    Names& events_;
  };

  // An index that records each request as an event.
  class Index final : public SearchableIndex {
   public:
    explicit Index(Names& events) : events_(events) {}
    void indexItems(std::vector<SearchableItem> items, Completion) override {
      std::string& event = events_.emplace_back("indexed");
      for (const SearchableItem& item : items) event += " " + item.uniqueIdentifier;
      indexed = std::move(items);
    }
    void deleteItems(std::vector<std::string> identifiers, Completion) override {
      std::string& event = events_.emplace_back("deleted");
      for (const std::string& identifier : identifiers) event += " " + identifier;
    }
    void deleteAllItems(Completion) override { events_.push_back("deleted all"); }
    bool waitUntilIdle(std::chrono::milliseconds, const Progress&) override { return true; }

    std::vector<SearchableItem> indexed;

   private:
    Names& events_;
  };

  CatalogFixture() {
    setSettingsStore(settings);
    setSearchableIndex(index);
    setPasteboard(clipboard);
    selectedEntities() = std::vector<Entity>();
    setDiagnosticsSink([this](std::string_view line) { events.emplace_back(line); });
    token =
        NotificationCenter::defaultCenter().addObserver(notificationName::contentHasChanged, [this](auto&) {
          events.push_back("contentHasChanged " + std::to_string(selectedEntities()->size()));
        });
  }
  ~CatalogFixture() override {
    setDiagnosticsSink(nullptr);
    setSettingsStore(nullptr);
    setSearchableIndex(nullptr);
    setPasteboard(nullptr);
  }

  /// Returns the events since the last call.
  Names taken() { return std::exchange(events, {}); }

  void store(std::string_view key, SettingValue value) { settings->values.set(key, std::move(value)); }
  std::optional<SettingValue> stored(std::string_view key) { return settings->values.object(key); }

  static Names hexCodes(const std::vector<Entity>& entities) {
    Names codes;
    for (const Entity& entity : entities) codes.push_back(entity.computed.hex);
    return codes;
  }

  Names events;
  std::shared_ptr<Settings> settings = std::make_shared<Settings>(events);
  std::shared_ptr<Index> index = std::make_shared<Index>(events);
  std::shared_ptr<MemoryPasteboard> clipboard = std::make_shared<MemoryPasteboard>();
  NotificationToken token;
};

}  // namespace glyph
