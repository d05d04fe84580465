// SPDX-License-Identifier: MIT
#include "glyphorium/state/desktop_search_scope.h"

#include "glyphorium/services/settings/settings_store.h"

namespace glyph {

bool desktopSearchesCatalog() {
  const auto stored = settingsStore()->object(desktopSearchesCatalogKey);
  const bool* const value = stored ? std::get_if<bool>(&*stored) : nullptr;
  return !value || *value;
}

bool setDesktopSearchesCatalog(bool wholeCatalog) {
  const auto store = settingsStore();
  store->set(desktopSearchesCatalogKey, wholeCatalog);
  return store->synchronize();
}

}  // namespace glyph
