// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/entity/records.h"
#include "glyphorium/search/catalog_search.h"
#include "host_indexes.h"

namespace provider {

/// How much of what was typed a character is.
enum class Exactness {
  code,  ///< all of it is the character itself, its code or its HTML reference
  name,  ///< all of it is the character's name
  word,  ///< all of it is something else that the character is called
  part,
};

struct Found {
  std::string identifier;
  glyph::Entity entity;
  Exactness exactness;
};

/// What people look for from the desktop: the characters of the catalog, those that the user added, and what
/// hosts put into their indexes. A stored choice of the user's leaves the catalog's out, see
/// glyph::desktopSearchesCatalog(). Throws nothing but for want of memory.
class CharacterSearch {
 public:
  /// The best characters, at most `limit`, ranked as glyph::CatalogSearch does; what only an index has comes
  /// behind those that are just what was typed, or among them.
  std::vector<Found> find(std::string_view query, std::size_t limit);

  /// Only what the query means for certain, for desktops that ask every program about everything: the
  /// character itself, a code or HTML reference in its full form, a name or an everyday word as a whole. With
  /// "qv:" in front of the query all that find() gives.
  std::vector<Found> findMeant(std::string_view query, std::size_t limit);

  /// The character of a result's identifier.
  std::optional<glyph::Entity> entity(std::string_view identifier);

 private:
  void readSettings();

  HostIndexes indexes_;
  std::optional<glyph::CatalogSearch> search_;
  bool wholeCatalog_ = true;
  std::string settingsState_;  // of the settings' files when they were last read
};

/// Whether the query asks for these characters alone ("qv:" in front).
bool isScoped(std::string_view query);

}  // namespace provider
