// SPDX-License-Identifier: MIT
#pragma once

#include <QTimer>
#include <QWidget>

#include "character_filter.h"

class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;
class QSplitter;
class QToolButton;

namespace browser {

class Appearance;
class Catalog;
class CharacterCard;
class CharacterGrid;
class Collector;
class GlobalShortcut;
class Sidebar;
class Toast;

/// The main window: groups, characters with a search field, and a card of the current character. In a narrow
/// window, the card is below the characters, and the user can show the groups in place of the characters.
class MainWindow : public QWidget {
  Q_OBJECT

 public:
  MainWindow(Catalog& catalog, Appearance& appearance, GlobalShortcut& shortcut);
  ~MainWindow() override;

  /// Searches all characters for the text. An empty text only moves the focus to the search field.
  void search(const QString& text);

 Q_SIGNALS:
  void closed();

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  QWidget* makeMiddle();
  QWidget* makeHeader();
  QWidget* makeHitBar();
  void makeActions();
  void makeUndoActions();
  QAction* addAction(QMenu& menu, const QString& text, const QKeySequence& keys, void (MainWindow::*slot)());
  void connectCatalog();

  void showCharacters(bool isSameView);
  void showHits();
  void chooseScope(const Scope& scope);
  void chooseCharacter(const QString& hex);
  void rememberPlace();
  void goBack();
  void copyCharacter(int index, Qt::KeyboardModifiers modifiers);
  void copyAs(const glyph::CopyForm& form);
  void collect(int index);
  void showMenu(int index, QPoint globalPosition);
  void identify(const QString& text);

  void focusSearch();
  void escape();
  void addCharacter();
  void removeCharacter();
  void toggleFavourite();
  void paste();
  void copyCurrent();
  void copyOther();
  void collectCurrent();
  void zoomIn();
  void zoomOut();
  void zoomBack();
  void toggleSidebar();
  void showShortcuts();
  void showPreferences();
  void showAbout();

  void arrange();
  void restore();
  void save() const;

  // What the window showed before the user followed a link.
  struct Place {
    Scope scope;
    QString words;
    QString hex;
  };

  Catalog& catalog_;
  Appearance& appearance_;
  GlobalShortcut& shortcut_;
  CharacterFilter filter_;
  QSplitter* columns_;
  QSplitter* characterAndCard_;
  Sidebar* sidebar_;
  CharacterGrid* grid_;
  CharacterCard* card_;
  Collector* collector_;
  Toast* toast_;
  QLineEdit* searchField_;
  QToolButton* sidebarButton_;
  QMenu* menu_;
  QMenu* copyMenu_;
  QWidget* hitBar_;
  QLabel* hits_;
  QPushButton* elsewhere_;
  QPushButton* back_;
  std::vector<Place> places_;
  QAction* removeAction_;
  QTimer cardTimer_;
  std::vector<std::string> collected_;  // hex codes, for the list of recently copied characters
  bool isNarrow_ = false;
  bool isSidebarWanted_ = true;
};

}  // namespace browser
