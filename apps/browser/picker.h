// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "character_filter.h"

class QLabel;
class QLineEdit;

namespace browser {

class Catalog;
class CharacterGrid;
class Collector;

/// A small window to pick a character for another program. It has a search field above favourites and
/// recently copied characters. Enter copies the character and closes the window.
class Picker : public QWidget {
  Q_OBJECT

 public:
  explicit Picker(Catalog& catalog);

  /// Shows the window at the pointer, with an empty search field.
  void open();

 Q_SIGNALS:
  /// Emitted when the window has closed. `text` is the copied text, or null if the user picked nothing.
  void closed(const QString& text);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void showCharacters();
  void showCurrent();
  void pick(int index, Qt::KeyboardModifiers modifiers);
  void collect(int index);
  void pickAs(const glyph::Entity& entity, const glyph::CopyForm& form);
  void pickWithTone(const glyph::Entity& emoji, glyph::SkinTone tone);
  void showMenu(int index, QPoint globalPosition);
  void offerSkinTones(int index, QPoint globalPosition);
  void finish(const QString& text);

  Catalog& catalog_;
  std::optional<std::vector<glyph::Entity>> list_;
  CharacterFilter filter_;
  QLineEdit* field_;
  CharacterGrid* grid_;
  QLabel* name_;
  QLabel* keys_;
  Collector* collector_;
  std::vector<std::string> collected_;  // hex codes
};

}  // namespace browser
