// SPDX-License-Identifier: MIT
#include "catalog.h"

#include <QTimer>
#include <QUndoCommand>
#include <algorithm>

#include "character_texts.h"
#include "preferences.h"
#include "user_lists.h"

namespace browser {
namespace {

using glyph::Entity;

bool contains(const std::vector<std::string>& texts, const std::string& text) {
  return std::find(texts.begin(), texts.end(), text) != texts.end();
}

// A change of the settings and the change that reverts it.
class Change : public QUndoCommand {
 public:
  Change(const QString& title, std::function<void()> apply, std::function<void()> revert)
      : QUndoCommand(title), apply_(std::move(apply)), revert_(std::move(revert)) {}
  void redo() override { apply_(); }
  void undo() override { revert_(); }

 private:
  std::function<void()> apply_, revert_;
};

}  // namespace

Catalog::Catalog() {
  auto& center = glyph::NotificationCenter::defaultCenter();
  copiedToken_ = center.addObserver(glyph::notificationName::entityCopied, [this](const auto& notification) {
    Q_EMIT copied(QString::fromStdString(notification.object.value_or("")));
  });
  glyph::glyphorium().configure();
  glyph::glyphorium().selectedGroupsHadChanged = false;
  indexPlaces();
  displayedGroups_ = glyph::glyphorium().selectedGroups();
  added_ = glyph::glyphorium().customAddedEntityUnicodes();
  favourites_ = favouriteCharacters.codes();
  recentlyCopied_ = recentlyCopiedCharacters.codes();
  skinTone_ = glyph::preferredSkinTone();
  contentToken_ = center.addObserver(glyph::notificationName::contentHasChanged,
                                     [this](const auto&) { Q_EMIT contentChanged(); });
}

void Catalog::indexPlaces() {
  places_.clear();
  const auto& entities = glyph::glyphorium().buildInEntities();
  places_.reserve(entities.size());
  for (std::size_t i = 0; i < entities.size(); ++i) places_.try_emplace(entities[i].computed.hex, i);
}

Entity Catalog::entity(const std::string& hex) const {
  for (const Entity& added : glyph::glyphorium().allCustomEntities) {
    if (added.computed.hex == hex) return added;
  }
  const auto place = places_.find(hex);
  if (place != places_.end()) return glyph::glyphorium().buildInEntities()[place->second];
  return glyph::supplementEntity(glyph::toolKit().getAdvancedSymbol(hex));
}

Entity Catalog::characterOf(std::string_view text) const {
  const std::u32string points = glyph::codePoints(text);
  return points.size() == 1 ? entity(glyph::toolKit().getHex(points.front())) : glyph::supplementEntity(text);
}

std::vector<std::string> Catalog::groupsOf(const std::string& hex) const {
  std::vector<std::string> groups;
  for (const Entity& entity : glyph::glyphorium().buildInEntities()) {
    if (entity.computed.hex == hex) groups.emplace_back(entity.computed.group);
  }
  if (isAdded(hex)) groups.emplace_back(glyph::customGroup);
  return groups;
}

bool Catalog::isDisplayed(const std::string& group) const {
  return std::any_of(displayedGroups_.begin(), displayedGroups_.end(), [&](const std::string& displayed) {
    return glyph::lowercased(displayed) == glyph::lowercased(group);
  });
}

bool Catalog::isAdded(const std::string& hex) const {
  return contains(added_, hex);
}

bool Catalog::isFavourite(const std::string& hex) const {
  return contains(favourites_, hex);
}

void Catalog::setDisplayed(const std::string& group, bool displayed) {
  glyph::Glyphorium& catalog = glyph::glyphorium();
  displayed ? catalog.addSelectedGroup(group) : catalog.removeSelectedGroup(group);
  displayedGroups_ = catalog.selectedGroups();
  checkStored();
  Q_EMIT groupsChanged();
  // Rebuild the list when control returns to the event loop, so that several changes rebuild it only once.
  QTimer::singleShot(0, this, [] {
    glyph::Glyphorium& changed = glyph::glyphorium();
    if (!changed.selectedGroupsHadChanged.get()) return;
    changed.selectedGroupsHadChanged = false;
    changed.setSelectedEntities();
  });
}

void Catalog::add(const std::vector<std::string>& hexes) {
  std::vector<std::string> missing;
  for (const std::string& hex : hexes) {
    if (!isAdded(hex) && !contains(missing, hex)) missing.push_back(hex);
  }
  if (missing.empty()) return;
  undoStack_.push(new Change(
      tr("Add “%1”").arg(shownTexts(*this, missing)), [=, this] { changeAdded(missing, true); },
      [=, this] { changeAdded(missing, false); }));
}

void Catalog::remove(const std::vector<std::string>& hexes) {
  undoStack_.push(new Change(
      tr("Remove “%1”").arg(shownTexts(*this, hexes)), [=, this] { changeAdded(hexes, false); },
      [=, this] { changeAdded(hexes, true); }));
}

void Catalog::changeAdded(const std::vector<std::string>& hexes, bool add) {
  glyph::Glyphorium& catalog = glyph::glyphorium();
  // Change the lists of this object before calling the library: the library notifies observers, which read
  // these lists, before it returns.
  for (const std::string& hex : hexes) {
    std::erase(added_, hex);
    if (add) added_.push_back(hex);
  }
  add ? catalog.addCustomAddedEntities(hexes) : catalog.removeCustomAddedEntities(hexes);
  catalog.selectedGroupsHadChanged = false;
  added_ = catalog.customAddedEntityUnicodes();
  displayedGroups_ = catalog.selectedGroups();
  checkStored();
  Q_EMIT groupsChanged();
}

void Catalog::toggleFavourite(const std::string& hex) {
  const QString title =
      isFavourite(hex) ? tr("Remove “%1” from the favourites") : tr("Add “%1” to the favourites");
  const auto change = [=, this] { switchFavourite(hex); };
  undoStack_.push(new Change(title.arg(shownTexts(*this, {hex})), change, change));
}

void Catalog::switchFavourite(const std::string& hex) {
  favouriteCharacters.toggle(hex);
  favourites_ = favouriteCharacters.codes();
  checkStored();
  Q_EMIT favouritesChanged();
}

void Catalog::copy(const Entity& entity, const glyph::CopyForm& form) {
  const auto text = form.text(entity);
  if (!text) return;
  noteCopied(entity.computed.hex);
  const bool isCharacter = form.identifier == "character";
  glyph::toolKit().writeToPasteboard(*text, isCharacter ? glyph::visibleSymbol(*text) : *text);
}

const glyph::CopyForm& Catalog::otherForm(const Entity& entity) const {
  const glyph::CopyForm& form = *glyph::copyForm(preferences::otherForm());
  return form.text(entity) ? form : *glyph::copyForm("html-hex");
}

void Catalog::copyText(const QString& text, const std::vector<std::string>& hexes) {
  for (const std::string& hex : hexes) noteCopied(hex);
  glyph::toolKit().writeToPasteboard(text.toStdString());
}

void Catalog::noteCopied(const std::string& hex) {
  recentlyCopiedCharacters.putFirst(hex);
  recentlyCopied_ = recentlyCopiedCharacters.codes();
  glyph::NotificationCenter::defaultCenter().post({glyph::notificationName::frequentlyUsedEntitiesChanged});
  Q_EMIT recentlyCopiedChanged();
}

void Catalog::forgetRecentlyCopied() {
  recentlyCopiedCharacters.clear();
  recentlyCopied_.clear();
  Q_EMIT recentlyCopiedChanged();
}

void Catalog::setSkinTone(glyph::SkinTone tone) {
  glyph::setPreferredSkinTone(tone);
  checkStored();
  if (tone == skinTone_) return;
  skinTone_ = tone;
  Q_EMIT skinToneChanged();
}

void Catalog::copyWithTone(const Entity& emoji, glyph::SkinTone tone) {
  copy(characterOf(glyph::withSkinTone(emoji.computed.symbol, tone)), *glyph::copyForm("character"));
  setSkinTone(tone);
}

void Catalog::applySkinTone(std::vector<Entity>& characters) const {
  if (skinTone_ == glyph::SkinTone::none) return;
  for (Entity& entity : characters) {
    // An emoji that the user added keeps its own skin tone, because the user chose it.
    const bool isEmoji = entity.computed.group.view() == "emoji" || entity.computed.group.empty();
    if (!isEmoji) continue;
    const std::string text = glyph::withSkinTone(entity.computed.symbol, skinTone_);
    if (entity.computed.symbol.view() != text) entity = characterOf(text);
  }
}

void Catalog::readSettings() {
  glyph::Glyphorium& catalog = glyph::glyphorium();
  const auto groups = catalog.selectedGroups();
  const auto added = catalog.customAddedEntityUnicodes();
  const auto store = glyph::settingsStore();
  using Key = glyph::UserInfluencedEntityKey;
  for (const Key key : Key::allCases()) {
    // If the list cannot be read now, keep the present one. An unreadable list must not look like an empty
    // list.
    if (const auto failure = store->readFailure(key.rawValue())) {
      Q_EMIT settingsFailed(QString::fromStdString(*failure));
      return;
    }
  }
  const bool groupsDiffer = groups != displayedGroups_;
  const bool addedDiffer = added != added_;
  displayedGroups_ = groups;
  added_ = added;
  if (addedDiffer) {
    catalog.configure();
    indexPlaces();
  } else if (groupsDiffer) {
    catalog.setSelectedEntities();
  }
  if (groupsDiffer || addedDiffer) Q_EMIT groupsChanged();
  if (auto codes = favouriteCharacters.codes(); codes != favourites_) {
    favourites_ = std::move(codes);
    Q_EMIT favouritesChanged();
  }
  if (auto codes = recentlyCopiedCharacters.codes(); codes != recentlyCopied_) {
    recentlyCopied_ = std::move(codes);
    Q_EMIT recentlyCopiedChanged();
  }
  if (const glyph::SkinTone tone = glyph::preferredSkinTone(); tone != skinTone_) {
    skinTone_ = tone;
    Q_EMIT skinToneChanged();
  }
}

void Catalog::checkStored() {
  if (!glyph::settingsStore()->synchronize()) {
    Q_EMIT settingsFailed(tr("The choice could not be saved. It is kept until the program ends."));
  }
}

}  // namespace browser
