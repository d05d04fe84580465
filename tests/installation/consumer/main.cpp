// SPDX-License-Identifier: MIT
#include <glyphorium/catalog/glyphorium.h>
#include <glyphorium/search/search.h>
#include <glyphorium/services/diagnostics/diagnostics.h>
#include <glyphorium/services/notifications/notification_center.h>
#include <glyphorium/services/notifications/notification_names.h>
#include <glyphorium/services/settings/memory_settings_store.h>
#include <glyphorium/state/selected_entities.h>

#include <iostream>
#include <memory>

namespace {

// What a host does when its user types into the search field.
void filter(const glyph::Search& search, const std::string& typed) {
  const std::vector<glyph::Entity>& displayed = glyph::selectedEntities();
  std::vector<glyph::Entity> filtered;
  for (const glyph::SearchResult& result : search.query(typed).results) {
    filtered.push_back(displayed[result.index]);
  }
  glyph::filteredEntities() = std::move(filtered);
  glyph::NotificationCenter::defaultCenter().post(
      {glyph::notificationName::filteredContentHasChanged, std::nullopt});
}

}  // namespace

int main() {
  glyph::setDiagnosticsSink([](std::string_view) {});
  glyph::setSettingsStore(std::make_shared<glyph::MemorySettingsStore>());
  glyph::Glyphorium& catalog = glyph::glyphorium();
  catalog.setSelectedGroups({"SF Symbols", "arrows"});
  catalog.configure();
  const auto token = glyph::NotificationCenter::defaultCenter().addObserver(
      glyph::notificationName::filteredContentHasChanged, [](const auto&) {
        std::cout << "first found: " << glyph::filteredEntities()->front().computed.symbol << "\n";
      });
  filter(glyph::Search(glyph::selectedEntities().get()), "leftwards double arrow");
  std::cout << catalog.buildInEntities().size() << " characters, " << glyph::selectedEntities()->size()
            << " displayed\n";
}
