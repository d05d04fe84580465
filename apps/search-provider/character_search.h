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

/// How well a character matches the query.
enum class Exactness {
  code,  ///< the whole query is the character itself, its code or its HTML reference
  name,  ///< the whole query is the character's name
  word,  ///< the whole query is another term for the character
  part,  ///< every other match
};

struct Found {
  std::string identifier;
  glyph::Entity entity;
  Exactness exactness;
};

/// The search that the desktop uses. It finds characters of the catalog, characters that the user added,
/// and items that hosts put into their indexes. The user can exclude the catalog, see
/// glyph::desktopSearchesCatalog(). The methods throw only if memory runs out.
class CharacterSearch {
 public:
  /// Returns the best characters, at most `limit`. Characters that match the whole query come first, then all
  /// others (Exactness::part). Within each of these two parts, the results of glyph::CatalogSearch come
  /// first, in their order. Characters that only an index contains follow.
  std::vector<Found> find(std::string_view query, std::size_t limit);

  /// Like find(), but returns only characters that the query clearly asks for. It is for desktops that send
  /// every query to every program. The query must be the character itself, a full code or HTML reference, a
  /// whole name or a whole everyday word. If the query begins with "qv:", returns the same as find().
  std::vector<Found> findMeant(std::string_view query, std::size_t limit);

  /// Returns the character with this identifier (see Found), or nullopt if there is no such character.
  std::optional<glyph::Entity> entity(std::string_view identifier);

 private:
  void readSettings();

  HostIndexes indexes_;
  std::optional<glyph::CatalogSearch> search_;
  bool wholeCatalog_ = true;
  // The state of the settings files when all settings were read, or nullopt if they must be read again.
  std::optional<std::string> settingsState_;
};

/// Whether the query begins with "qv:". With this prefix, the user asks for characters from Glyphorium
/// only.
bool isScoped(std::string_view query);

}  // namespace provider
