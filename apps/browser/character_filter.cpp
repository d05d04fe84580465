// SPDX-License-Identifier: MIT
#include "character_filter.h"

#include <QCoreApplication>
#include <unordered_set>

#include "catalog.h"
#include "character_texts.h"
#include "group_titles.h"

namespace browser {
namespace {

using glyph::Entity;
using Kind = Scope::Kind;

struct KindName {
  Kind kind;
  std::string_view name;
};
constexpr KindName kindNames[] = {{Kind::all, "all"},
                                  {Kind::displayed, "displayed"},
                                  {Kind::favourites, "favourites"},
                                  {Kind::recentlyCopied, "recently-copied"}};

// A scope that has a name is stored as one of these prefixes and the name.
constexpr KindName prefixes[] = {{Kind::group, "group:"}, {Kind::emoji, "emoji:"}, {Kind::block, "block:"}};

// A limit for the number of search results that is never reached, because it is larger than the catalog.
constexpr std::size_t everything = 100'000;

// Returns the characters that the user added, then all characters of the catalog, each character once. Stores
// one section for each group in `sections`.
std::vector<Entity> allCharacters(std::vector<GridSection>& sections) {
  std::vector<Entity> all;
  std::unordered_set<std::string_view> seen;
  const auto append = [&](const std::vector<Entity>& entities) {
    for (const Entity& entity : entities) {
      if (!seen.insert(entity.computed.hex).second) continue;
      const bool isNewGroup = all.empty() || all.back().computed.group != entity.computed.group;
      if (isNewGroup)
        sections.push_back({groupTitle(entity.computed.group), static_cast<int>(all.size()), 0});
      all.push_back(entity);
      ++sections.back().count;
    }
  };
  all.reserve(glyph::glyphorium().buildInEntities().size());
  append(glyph::glyphorium().allCustomEntities);
  append(glyph::glyphorium().buildInEntities());
  return all;
}

std::vector<Entity> charactersOfGroup(const std::string& group) {
  if (group == glyph::customGroup) return glyph::glyphorium().allCustomEntities;
  std::vector<Entity> found;
  for (const Entity& entity : glyph::glyphorium().buildInEntities()) {
    if (entity.computed.group == group) found.push_back(entity);
  }
  return found;
}

// Returns a section for each run of characters of one group. Returns no sections if the groups alternate so
// often that there would be too many headings.
std::vector<GridSection> groupSections(const std::vector<Entity>& entities) {
  std::vector<GridSection> sections;
  std::unordered_set<std::string_view> groups;
  for (std::size_t i = 0; i < entities.size(); ++i) {
    const auto& group = entities[i].computed.group;
    if (i == 0 || group != entities[i - 1].computed.group) {
      sections.push_back({groupTitle(group), static_cast<int>(i), 0});
      groups.insert(group);
    }
    ++sections.back().count;
  }
  if (sections.size() > groups.size() + 8) sections.clear();
  return sections;
}

}  // namespace

std::string Scope::text() const {
  for (const KindName& one : prefixes) {
    if (one.kind == kind) return std::string(one.name) + group;
  }
  for (const KindName& one : kindNames) {
    if (one.kind == kind) return std::string(one.name);
  }
  return {};
}

Scope Scope::fromText(std::string_view text) {
  for (const KindName& one : prefixes) {
    if (text.starts_with(one.name)) return {one.kind, std::string(text.substr(one.name.size()))};
  }
  for (const KindName& one : kindNames) {
    if (one.name == text) return {one.kind};
  }
  return {};
}

QString Scope::title() const {
  switch (kind) {
    case Kind::all:
      return CharacterFilter::tr("All characters");
    case Kind::displayed:
      return CharacterFilter::tr("Checked groups");
    case Kind::favourites:
      return CharacterFilter::tr("Favourites");
    case Kind::recentlyCopied:
      return CharacterFilter::tr("Recently copied");
    case Kind::group:
      return groupTitle(group);
    case Kind::emoji:
      return emojiGroupTitle(group);
    case Kind::block:
      return blockTitle(group);
    case Kind::text:
      return CharacterFilter::tr("Characters of “%1”").arg(fromUtf8(group).simplified().left(40));
    case Kind::picker:
      return {};
  }
  return {};
}

CharacterFilter::CharacterFilter(Catalog& catalog, std::optional<std::vector<Entity>>& list)
    : catalog_(catalog), list_(list) {
  const auto follow = [this] {
    members_.reset();
    update(true);
  };
  connect(&catalog, &Catalog::contentChanged, this, [=, this] {
    search_.reset();
    follow();
  });
  connect(&catalog, &Catalog::favouritesChanged, this, [=, this] {
    if (scope_.kind == Kind::favourites) follow();
  });
  connect(&catalog, &Catalog::recentlyCopiedChanged, this, [=, this] {
    if (scope_.kind == Kind::recentlyCopied) follow();
  });
  connect(&catalog, &Catalog::skinToneChanged, this, follow);
}

void CharacterFilter::setScope(const Scope& scope) {
  const bool isSame = scope == scope_;
  scope_ = scope;
  members_.reset();
  update(isSame);
}

void CharacterFilter::setQuery(const QString& query) {
  if (query == query_) return;
  query_ = query;
  update(false);
}

const std::vector<Entity>& CharacterFilter::characters() const {
  return list_ ? *list_ : glyph::selectedEntities().get();
}

void CharacterFilter::update(bool isSameView) {
  sections_.clear();
  elsewhere_ = 0;
  approximate_ = false;
  query_.trimmed().isEmpty() ? fillScope() : search();
  if (&list_ == &glyph::filteredEntities()) {
    glyph::NotificationCenter::defaultCenter().post({glyph::notificationName::filteredContentHasChanged});
  }
  Q_EMIT changed(isSameView);
}

void CharacterFilter::fillScope() {
  const auto fromCodes = [&](const std::vector<std::string>& codes) {
    std::vector<Entity> entities;
    for (const std::string& code : codes) entities.push_back(catalog_.entity(code));
    return entities;
  };
  switch (scope_.kind) {
    case Kind::all:
      list_ = allCharacters(sections_);
      break;
    case Kind::displayed:
      list_.reset();
      sections_ = groupSections(glyph::selectedEntities());
      break;
    case Kind::favourites:
      list_ = fromCodes(catalog_.favourites());
      break;
    case Kind::recentlyCopied:
      list_ = fromCodes(catalog_.recentlyCopied());
      break;
    case Kind::group:
      list_ = charactersOfGroup(scope_.group);
      break;
    case Kind::emoji:
      list_ = emojiOfGroup(scope_.group, sections_);
      catalog_.applySkinTone(*list_);
      break;
    case Kind::block:
      list_ = charactersOfBlock();
      break;
    case Kind::text:
      list_ = charactersOfText();
      break;
    case Kind::picker:
      list_ = likelyCharacters();
      break;
  }
}

std::vector<Entity> CharacterFilter::likelyCharacters() {
  std::vector<Entity> likely;
  const auto append = [&](const QString& title, const std::vector<Entity>& entities) {
    if (entities.empty()) return;
    sections_.push_back({title, static_cast<int>(likely.size()), static_cast<int>(entities.size())});
    likely.insert(likely.end(), entities.begin(), entities.end());
  };
  const auto appendCodes = [&](Kind kind, const std::vector<std::string>& codes) {
    std::vector<Entity> entities;
    for (const std::string& code : codes) entities.push_back(catalog_.entity(code));
    append(Scope{kind}.title(), entities);
  };
  appendCodes(Kind::favourites, catalog_.favourites());
  appendCodes(Kind::recentlyCopied, catalog_.recentlyCopied());
  append(Scope{Kind::displayed}.title(), glyph::selectedEntities());
  if (glyph::selectedEntities().empty()) {
    for (const std::string group : {"design inspiration", "emoji"}) {
      std::vector<Entity> entities = charactersOfGroup(group);
      catalog_.applySkinTone(entities);
      append(groupTitle(group), entities);
    }
  }

  return likely;
}

std::vector<Entity> CharacterFilter::charactersOfBlock() const {
  std::vector<Entity> found;
  for (const auto& range : glyph::charactersWith(glyph::CharacterProperty::block, scope_.group)) {
    for (char32_t codePoint = range.first; codePoint <= range.last; ++codePoint) {
      found.push_back(catalog_.entity(glyph::toolKit().getHex(codePoint)));
    }
  }
  return found;
}

// Returns the emoji of the group, with a section for each subgroup.
std::vector<Entity> CharacterFilter::emojiOfGroup(std::string_view group,
                                                  std::vector<GridSection>& sections) const {
  std::vector<Entity> found;
  std::string_view subgroup;
  for (std::size_t place = 0; place < glyph::emojiCount(); ++place) {
    const glyph::Emoji emoji = glyph::emojiAt(place);
    if (emoji.group != group || glyph::emojiBase(place) != place) continue;
    if (emoji.subgroup != subgroup) {
      subgroup = emoji.subgroup;
      sections.push_back({{}, static_cast<int>(found.size()), 0});
    }
    ++sections.back().count;
    found.push_back(catalog_.characterOf(emoji.text));
  }
  return found;
}

// Returns each character of the text once, in the order of the text. An emoji of several code points is one
// character.
std::vector<Entity> CharacterFilter::charactersOfText() const {
  std::vector<Entity> found;
  std::unordered_set<std::string> seen;
  const auto add = [&](const std::string& character) {
    if (seen.insert(character).second) found.push_back(catalog_.characterOf(character));
  };
  for (const std::string_view cluster : glyph::graphemeClusters(scope_.group)) {
    if (glyph::emojiPlace(cluster)) {
      add(std::string(cluster));
      continue;
    }
    for (const char32_t codePoint : glyph::codePoints(cluster)) add(glyph::utf8(codePoint));
  }
  return found;
}

const std::unordered_set<std::string>& CharacterFilter::members() {
  if (members_) return *members_;
  members_.emplace();
  const auto insert = [&](const std::vector<Entity>& entities) {
    for (const Entity& entity : entities) members_->insert(entity.computed.hex);
  };
  switch (scope_.kind) {
    case Kind::all:
      break;
    case Kind::displayed:
      insert(glyph::selectedEntities());
      break;
    case Kind::favourites:
      members_->insert(catalog_.favourites().begin(), catalog_.favourites().end());
      break;
    case Kind::recentlyCopied:
      members_->insert(catalog_.recentlyCopied().begin(), catalog_.recentlyCopied().end());
      break;
    case Kind::group:
      insert(charactersOfGroup(scope_.group));
      break;
    case Kind::emoji: {
      std::vector<GridSection> ignored;
      insert(emojiOfGroup(scope_.group, ignored));
      break;
    }
    case Kind::block:
      insert(charactersOfBlock());
      break;
    case Kind::text:
      insert(charactersOfText());
      break;
    case Kind::picker:
      break;
  }
  return *members_;
}

bool CharacterFilter::searchesEverything() const {
  return scope_.kind == Kind::all || scope_.kind == Kind::picker;
}

void CharacterFilter::search() {
  if (!search_) search_.emplace();
  glyph::SearchOptions options;
  options.limit = everything;
  const std::string text = query_.toStdString();
  const glyph::SearchResults found = search_->query(text, options);
  approximate_ = found.approximate;
  const bool isWhole = searchesEverything();
  const auto& catalog = glyph::glyphorium().buildInEntities();
  std::vector<Entity> matching;
  for (const glyph::SearchResult& result : found.results) {
    const auto add = [&](const Entity& entity) {
      if (isWhole || members().contains(entity.computed.hex)) {
        matching.push_back(entity);
      } else {
        ++elsewhere_;
      }
    };
    search_->isInCatalog(result) ? add(catalog[search_->buildInPlace(result)]) : add(search_->entity(result));
  }
  if (isWhole && (matching.empty() || approximate_)) {
    std::vector<Entity> exact = beyondCatalog();
    if (!exact.empty()) {
      approximate_ = false;
      matching = std::move(exact);
    }
  }
  catalog_.applySkinTone(matching);
  list_ = std::move(matching);
}

// Returns the characters and emoji that the query names exactly, also those outside the catalog. The user can
// look at them and add them.
std::vector<Entity> CharacterFilter::beyondCatalog() const {
  const std::string text = query_.trimmed().toStdString();
  if (glyph::emojiPlace(text)) return {catalog_.characterOf(text)};
  std::vector<Entity> found;
  for (const glyph::Character& character : glyph::resolve(text).characters) {
    Entity entity = catalog_.entity(character.front().computed.hex);
    if (hasName(entity)) found.push_back(std::move(entity));
  }
  const auto named = found.empty() ? glyph::characterNamed(text) : std::nullopt;
  if (named) found.push_back(catalog_.characterOf(glyph::utf8(*named)));
  return found;
}

}  // namespace browser
