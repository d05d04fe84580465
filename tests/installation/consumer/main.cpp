// SPDX-License-Identifier: MIT
#include <glyphorium/catalog/glyphorium.h>
#include <glyphorium/platform/diagnostics.h>
#include <glyphorium/platform/memory_settings_store.h>
#include <glyphorium/state/selected_entities.h>

#include <iostream>
#include <memory>

int main() {
  glyph::setDiagnosticsSink([](std::string_view) {});
  glyph::setSettingsStore(std::make_shared<glyph::MemorySettingsStore>());
  glyph::Glyphorium& catalog = glyph::glyphorium();
  catalog.setSelectedGroups({"SF Symbols", "arrows"});
  catalog.configure();
  std::cout << catalog.buildInEntities().size() << " characters, " << glyph::selectedEntities()->size()
            << " displayed\n";
}
