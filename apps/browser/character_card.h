// SPDX-License-Identifier: MIT
#pragma once

#include <glyphorium/glyphorium.h>

#include <QScrollArea>
#include <optional>
#include <vector>

class QBoxLayout;
class QLabel;
class QPushButton;
class QToolButton;
class QGridLayout;
class QVBoxLayout;

namespace browser {

class Catalog;
class CharacterButton;
class FlowLayout;

/// Shows one character large, with a border. The user can drag it into other programs.
class LargeGlyph : public QWidget {
  Q_OBJECT

 public:
  explicit LargeGlyph(QWidget* parent = nullptr);
  void setCharacter(const glyph::Entity& entity);
  /// Removes the character, so that the widget is empty.
  void clear();
  QSize sizeHint() const override { return {200, 168}; }
  QSize minimumSizeHint() const override { return {96, 96}; }

 Q_SIGNALS:
  /// Emitted when it is known which font draws the character. `family` is empty if no installed font has the
  /// character.
  void fontKnown(const QString& family);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  std::optional<glyph::Entity> entity_;
  QPoint pressed_;
};

/// Shows all that is known about one character, with a button to copy each of its forms.
class CharacterCard : public QScrollArea {
  Q_OBJECT

 public:
  explicit CharacterCard(Catalog& catalog, QWidget* parent = nullptr);

  /// Shows this character. A null pointer empties the card.
  void setCharacter(const glyph::Entity* entity);
  /// Chooses between two layouts. The compact one is wide and low, with the glyph beside the name of the
  /// character.
  void setCompact(bool compact);
  /// Updates what can change: whether the character is a favourite, and which groups contain it.
  void refresh();

 Q_SIGNALS:
  void copyRequested(const glyph::CopyForm& form);
  void favouriteRequested();
  void addOrRemoveRequested();
  void collectRequested();
  /// The following signals are emitted when the user clicks another character or a group on the card.
  void characterChosen(const QString& hex);
  void groupChosen(const QString& group);

 private:
  struct FormRow {
    const glyph::CopyForm* form;
    QLabel* title;
    QLabel* value;
    QToolButton* button;
  };
  struct Section {
    QLabel* heading;
    QWidget* content;
  };

  // A heading and, below it, buttons that show characters.
  struct CharacterRow {
    Section section;
    FlowLayout* flow;
  };

  void makeHead();
  QBoxLayout* makeButtons();
  void makeForms();
  Section addSection(const QString& title, QWidget* content);
  static void showSection(const Section& section, bool shown);
  static QLabel* newText(bool isSelectable);
  static QGridLayout* newTable();
  static void fill(QGridLayout* table, const std::vector<std::pair<QString, QString>>& rows);
  void showForms();
  void showNote();
  void showGroups();
  CharacterRow addCharacterRow(const QString& title);
  CharacterButton* newCharacterButton();
  void fill(const CharacterRow& row, const std::vector<std::string>& texts);
  void showRelated();
  void showTyping();
  void showFacts();
  void showFont(const QString& family);

  Catalog& catalog_;
  std::optional<glyph::Entity> entity_;
  QWidget* content_;
  QVBoxLayout* layout_;
  QBoxLayout* head_;
  LargeGlyph* glyph_;
  QLabel* name_;
  QLabel* localName_;
  QLabel* unicodeName_;
  QLabel* code_;
  QLabel* font_;
  QPushButton* copy_;
  QToolButton* favourite_;
  QToolButton* add_;
  QToolButton* collect_;
  std::vector<FormRow> forms_;
  QLabel* note_;
  QLabel* groups_;
  QLabel* terms_;
  QGridLayout* typing_;
  QGridLayout* facts_;
  Section noteSection_, groupSection_, termSection_, typingSection_, factSection_;
  CharacterRow variants_, related_, lookAlikes_;
};

/// Returns the hex codes that a usage note mentions in the form "(2019)", in the order of the note.
std::vector<std::string> codesInNote(const QString& note);

}  // namespace browser
