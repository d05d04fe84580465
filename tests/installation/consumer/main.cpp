// SPDX-License-Identifier: MIT
#include <glyphorium/glyphorium.h>

#include <iostream>
#include <memory>

namespace {

// Filters the displayed entities, as a host does when the user types into its search field.
void filter(const glyph::Search& search, const std::string& typed) {
  std::vector<glyph::Entity> filtered;
  for (const glyph::SearchResult& result : search.query(typed).results) {
    filtered.push_back(glyph::selectedEntities()[result.index]);
  }
  glyph::filteredEntities() = std::move(filtered);
  glyph::NotificationCenter::defaultCenter().post({glyph::notificationName::filteredContentHasChanged});
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
  filter(glyph::Search(glyph::selectedEntities()), "leftwards double arrow");
  std::cout << catalog.buildInEntities().size() << " characters, " << glyph::selectedEntities().size()
            << " displayed\n";
}
