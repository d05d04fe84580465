// SPDX-License-Identifier: MIT
#pragma once

#include <glyphorium/glyphorium.h>

#include <QObject>
#include <QUndoStack>
#include <string>
#include <unordered_map>
#include <vector>

namespace browser {

/// The interface through which the windows use the library: its lists, its notifications as signals, and the
/// user's commands. All windows share one object. Only the GUI thread may use it.
class Catalog : public QObject {
  Q_OBJECT

 public:
  /// Configures the library's catalog.
  Catalog();

  /// Returns the entity of a hex code or hex list, from the added characters, the catalog or the supplement.
  /// Its name is empty if the code is neither a character nor an emoji.
  glyph::Entity entity(const std::string& hex) const;
  /// Returns the entity of a character or an emoji, given as UTF-8.
  glyph::Entity characterOf(std::string_view text) const;

  /// Returns the names of the groups that contain the character.
  std::vector<std::string> groupsOf(const std::string& hex) const;

  bool isDisplayed(const std::string& group) const;
  bool isAdded(const std::string& hex) const;
  bool isFavourite(const std::string& hex) const;
  const std::vector<std::string>& favourites() const { return favourites_; }
  const std::vector<std::string>& recentlyCopied() const { return recentlyCopied_; }

  /// Adds the group to the displayed groups, or removes it. The displayed list is rebuilt a moment later, and
  /// only once if several groups change.
  void setDisplayed(const std::string& group, bool displayed);

  /// Adds characters to the group "custom" or removes them. The user can undo this.
  void add(const std::vector<std::string>& hexes);
  void remove(const std::vector<std::string>& hexes);
  QUndoStack& undoStack() { return undoStack_; }

  /// Adds the character to the favourites, or removes it from them. The user can undo this.
  void toggleFavourite(const std::string& hex);

  /// Copies the character in this form. Does nothing if the character does not have the form.
  void copy(const glyph::Entity& entity, const glyph::CopyForm& form);
  /// Returns the form that the user copies with Alt+Enter. If the character does not have this form, returns
  /// a form that every character has.
  const glyph::CopyForm& otherForm(const glyph::Entity& entity) const;
  /// Copies a text that was composed from these characters.
  void copyText(const QString& text, const std::vector<std::string>& hexes);

  void forgetRecentlyCopied();

  /// Returns the skin tone in which lists of emoji and search results show people and hands.
  glyph::SkinTone skinTone() const { return skinTone_; }
  /// Makes `tone` the preferred skin tone, and copies the emoji with it.
  void copyWithTone(const glyph::Entity& emoji, glyph::SkinTone tone);
  void setSkinTone(glyph::SkinTone tone);
  /// Replaces each emoji in the list with its variant in the preferred skin tone.
  void applySkinTone(std::vector<glyph::Entity>& characters) const;

  /// Reads the settings again, because another program may have changed them.
  void readSettings();

 Q_SIGNALS:
  /// Emitted when the displayed characters or the added characters have changed.
  void contentChanged();
  /// Emitted when the list of displayed groups has changed.
  void groupsChanged();
  void favouritesChanged();
  void recentlyCopiedChanged();
  void skinToneChanged();
  /// Emitted when a text was copied. `text` is what to show to the user, which may differ from the copied
  /// text.
  void copied(const QString& text);
  /// Emitted when the settings could not be stored or read. `reason` is the library's error message.
  void settingsFailed(const QString& reason);

 private:
  void changeAdded(const std::vector<std::string>& hexes, bool add);
  void switchFavourite(const std::string& hex);
  void indexPlaces();
  void noteCopied(const std::string& hex);
  void checkStored();

  std::unordered_map<std::string_view, std::size_t> places_;  // of hex codes in buildInEntities()
  std::vector<std::string> displayedGroups_;
  std::vector<std::string> added_;
  std::vector<std::string> favourites_;
  std::vector<std::string> recentlyCopied_;
  glyph::SkinTone skinTone_ = glyph::SkinTone::none;
  QUndoStack undoStack_;
  glyph::NotificationToken contentToken_;
  glyph::NotificationToken copiedToken_;
};

}  // namespace browser
