// SPDX-License-Identifier: MIT
#pragma once

#include <glyphorium/glyphorium.h>

#include <QObject>
#include <QString>
#include <optional>
#include <string>
#include <unordered_set>
#include <vector>

#include "grid_layout.h"

namespace browser {

class Catalog;

/// The set of characters that a window shows.
struct Scope {
  enum class Kind { all, displayed, favourites, recentlyCopied, group, emoji, block, text, picker };
  /// Two kinds need an explanation. Kind::text contains the characters of a text. Kind::picker contains the
  /// characters that the user is likely to want: favourites, recently copied characters and the characters of
  /// the displayed groups. A query with Kind::picker searches all characters.
  Kind kind = Kind::all;
  std::string group{};  ///< the name of the group, emoji group or block; for Kind::text, the text

  bool operator==(const Scope&) const = default;

  /// Convert a scope to a text that can be stored, and back. A text of any other form gives Kind::all.
  std::string text() const;
  static Scope fromText(std::string_view text);
  /// The name of the scope in the user's language.
  QString title() const;
};

/// Determines the characters that a window shows: the characters of a scope that match the query that the
/// user typed.
class CharacterFilter : public QObject {
  Q_OBJECT

 public:
  /// The filter writes the characters to show into `list`. While these are glyph::selectedEntities()
  /// unchanged, `list` is nullopt. The main window passes glyph::filteredEntities(), so that other parts of
  /// the application can read the list there.
  CharacterFilter(Catalog& catalog, std::optional<std::vector<glyph::Entity>>& list);

  const Scope& scope() const { return scope_; }
  const QString& query() const { return query_; }
  void setScope(const Scope& scope);
  void setQuery(const QString& query);

  /// The characters to show. The reference is valid until the next changed().
  const std::vector<glyph::Entity>& characters() const;
  const std::vector<GridSection>& sections() const { return sections_; }
  /// The number of characters outside the scope that match the query.
  std::size_t elsewhere() const { return elsewhere_; }
  /// Whether the characters match a corrected query, because nothing matches the query as typed.
  bool isApproximate() const { return approximate_; }

 Q_SIGNALS:
  /// Emitted when characters() has changed. `isSameView` is true if the scope and the query are still the
  /// same.
  void changed(bool isSameView);

 private:
  void update(bool isSameView);
  void fillScope();
  void search();
  bool searchesEverything() const;
  std::vector<glyph::Entity> likelyCharacters();
  std::vector<glyph::Entity> beyondCatalog() const;
  std::vector<glyph::Entity> charactersOfText() const;
  std::vector<glyph::Entity> charactersOfBlock() const;
  std::vector<glyph::Entity> emojiOfGroup(std::string_view group, std::vector<GridSection>& sections) const;
  const std::unordered_set<std::string>& members();

  Catalog& catalog_;
  std::optional<std::vector<glyph::Entity>>& list_;
  Scope scope_;
  QString query_;
  std::optional<glyph::CatalogSearch> search_;              // made at the first query
  std::optional<std::unordered_set<std::string>> members_;  // hex codes of the scope, made when needed
  std::vector<GridSection> sections_;
  std::size_t elsewhere_ = 0;
  bool approximate_ = false;
};

}  // namespace browser
