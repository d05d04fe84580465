// SPDX-License-Identifier: MIT
#include "main_window.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

#include "add_dialog.h"
#include "catalog.h"
#include "character_card.h"
#include "character_grid.h"
#include "character_menus.h"
#include "character_texts.h"
#include "collector.h"
#include "elided_label.h"
#include "emoji_font.h"
#include "icons.h"
#include "preferences_dialog.h"
#include "sidebar.h"
#include "toast.h"
#include "window_settings.h"

namespace browser {
namespace {

// In a window that is narrower than this (in logical pixels), the card and the groups are not shown beside
// the characters.
constexpr int narrowWidth = 860;

}  // namespace

MainWindow::MainWindow(Catalog& catalog, Appearance& appearance, GlobalShortcut& shortcut)
    : catalog_(catalog),
      appearance_(appearance),
      shortcut_(shortcut),
      filter_(catalog, glyph::filteredEntities()),
      columns_(new QSplitter),
      characterAndCard_(new QSplitter),
      sidebar_(new Sidebar(catalog)),
      card_(new CharacterCard(catalog)) {
  setWindowTitle(QStringLiteral("Glyphorium"));
  setAcceptDrops(true);
  auto* const whole = new QHBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  // Let the window become narrower than its present contents. They are then arranged differently.
  whole->setSizeConstraint(QLayout::SetNoConstraint);
  setMinimumSize(400, 360);
  whole->addWidget(columns_);
  for (QSplitter* const splitter : {columns_, characterAndCard_}) {
    splitter->setChildrenCollapsible(false);
    splitter->setHandleWidth(1);
  }
  characterAndCard_->addWidget(makeMiddle());
  characterAndCard_->addWidget(card_);
  characterAndCard_->setStretchFactor(0, 1);
  columns_->addWidget(sidebar_);
  columns_->addWidget(characterAndCard_);
  columns_->setStretchFactor(1, 1);
  makeActions();
  connectCatalog();
  restore();
}

MainWindow::~MainWindow() = default;

QWidget* MainWindow::makeHeader() {
  auto* const header = new QWidget;
  auto* const row = new QHBoxLayout(header);
  row->setContentsMargins(8, 8, 8, 8);
  sidebarButton_ = newIconButton(Symbol::sidebar, tr("Groups (F9)"));
  searchField_ = new QLineEdit;
  searchField_->setPlaceholderText(tr("Search by name, meaning, code or character"));
  addSearchIcon(*searchField_, tr("Search"), tr("Empty the search field"));
  searchField_->setAccessibleName(tr("Search"));
  searchField_->setMinimumHeight(searchField_->fontMetrics().height() + 16);
  searchField_->installEventFilter(this);
  auto* const add = newIconButton(Symbol::add, tr("Add a character (Ctrl+N)"));
  auto* const menuButton = newIconButton(Symbol::menu, tr("Menu (F10)"));
  menuButton->setPopupMode(QToolButton::InstantPopup);
  menu_ = new QMenu(this);
  menuButton->setMenu(menu_);
  for (QWidget* const widget : {static_cast<QWidget*>(sidebarButton_), static_cast<QWidget*>(searchField_),
                                static_cast<QWidget*>(add), static_cast<QWidget*>(menuButton)}) {
    row->addWidget(widget, widget == searchField_ ? 1 : 0);
  }
  auto* const openMenu = new QAction(this);
  openMenu->setShortcut(Qt::Key_F10);
  connect(openMenu, &QAction::triggered, menuButton, &QToolButton::showMenu);
  QWidget::addAction(openMenu);
  connect(sidebarButton_, &QToolButton::clicked, this, &MainWindow::toggleSidebar);
  connect(add, &QToolButton::clicked, this, &MainWindow::addCharacter);
  connect(searchField_, &QLineEdit::textChanged, this, [this](const QString& text) {
    // The list of groups has no entry for the characters of a text, so a search there would find too little.
    if (!text.isEmpty() && filter_.scope().kind == Scope::Kind::text) chooseScope({Scope::Kind::all});
    filter_.setQuery(text);
  });
  keepEmojiColoured(*searchField_);
  return header;
}

QWidget* MainWindow::makeHitBar() {
  hitBar_ = new QWidget;
  auto* const row = new QHBoxLayout(hitBar_);
  row->setContentsMargins(14, 0, 10, 6);
  back_ = new QPushButton(symbolIcon(Symbol::back), tr("Back"));
  back_->setFlat(true);
  back_->setToolTip(tr("Back to where you were before (Alt+Left)"));
  back_->hide();
  row->addWidget(back_);
  connect(back_, &QPushButton::clicked, this, &MainWindow::goBack);
  hits_ = new ElidedLabel;
  hits_->setForegroundRole(QPalette::PlaceholderText);
  hits_->setTextFormat(Qt::PlainText);
  hits_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  elsewhere_ = new QPushButton;
  elsewhere_->setFlat(true);
  // Keep the height of the bar the same with and without the button.
  hitBar_->setMinimumHeight(elsewhere_->sizeHint().height() + 6);
  row->addWidget(hits_, 1);
  row->addWidget(elsewhere_);
  connect(elsewhere_, &QPushButton::clicked, this, [this] {
    chooseScope({Scope::Kind::all});
    grid_->setFocus();
  });
  return hitBar_;
}

QWidget* MainWindow::makeMiddle() {
  auto* const middle = new QWidget;
  auto* const column = new QVBoxLayout(middle);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  grid_ = new CharacterGrid;
  collector_ = new Collector;
  toast_ = new Toast(grid_);
  column->addWidget(makeHeader());
  column->addWidget(makeHitBar());
  column->addWidget(grid_, 1);
  column->addWidget(collector_);
  grid_->setFavouriteTest(
      [this](const glyph::Entity& entity) { return catalog_.isFavourite(entity.computed.hex); });
  // Update the card only when the user pauses: filling it would slow down typing and moving the selection.
  cardTimer_.setSingleShot(true);
  cardTimer_.setInterval(30);
  connect(&cardTimer_, &QTimer::timeout, this, [this] { card_->setCharacter(grid_->currentCharacter()); });
  connect(grid_, &CharacterGrid::currentChanged, &cardTimer_, qOverload<>(&QTimer::start));
  connect(grid_, &CharacterGrid::activated, this, &MainWindow::copyCharacter);
  connect(grid_, &CharacterGrid::collected, this, &MainWindow::collect);
  connect(grid_, &CharacterGrid::menuRequested, this, &MainWindow::showMenu);
  connect(grid_, &CharacterGrid::held, this, [this](int index, QPoint globalPosition) {
    const glyph::Entity entity = grid_->character(index);
    QMenu menu(this);
    const auto copy = [&](glyph::SkinTone tone) { catalog_.copyWithTone(entity, tone); };
    if (addSkinTones(menu, entity, copy)) menu.exec(globalPosition);
  });
  connect(grid_, &CharacterGrid::typed, this, [this](const QString& text) {
    searchField_->setFocus();
    searchField_->setText(text);
  });
  connect(grid_, &CharacterGrid::backspacePressed, this, [this] {
    searchField_->setFocus();
    searchField_->backspace();
  });
  connect(collector_, &Collector::copyRequested, this,
          [this](const QString& text) { catalog_.copyText(text, collected_); });
  connect(collector_, &Collector::left, this, [this] {
    if (collector_->text().isEmpty()) collected_.clear();
    grid_->setFocus();
  });
  return middle;
}

QAction* MainWindow::addAction(QMenu& menu, const QString& text, const QKeySequence& keys,
                               void (MainWindow::*slot)()) {
  QAction* const action = menu.addAction(text);
  action->setShortcut(keys);
  connect(action, &QAction::triggered, this, slot);
  QWidget::addAction(action);  // the shortcut works while the menu is closed
  return action;
}

void MainWindow::makeActions() {
  QMenu& menu = *menu_;
  addAction(menu, tr("&Search"), QKeySequence::Find, &MainWindow::focusSearch);
  addAction(menu, tr("&Copy"), QKeySequence::Copy, &MainWindow::copyCurrent);
  copyMenu_ = menu.addMenu(tr("Copy &as"));
  int number = 1;
  for (const glyph::CopyForm& form : glyph::copyForms()) {
    QAction* const action = copyMenu_->addAction(formTitle(form), this, [this, &form] { copyAs(form); });
    if (number <= 9) action->setShortcut(QKeySequence(QStringLiteral("Ctrl+%1").arg(number)));
    ++number;
    QWidget::addAction(action);
    action->setData(fromUtf8(form.identifier));
  }
  addAction(menu, tr("Co&llect"), Qt::CTRL | Qt::Key_Return, &MainWindow::collectCurrent);
  addAction(menu, tr("&Favourite"), Qt::CTRL | Qt::Key_D, &MainWindow::toggleFavourite);
  menu.addSeparator();
  addAction(menu, tr("&Add a character …"), QKeySequence::New, &MainWindow::addCharacter);
  removeAction_ = addAction(menu, tr("&Remove from your own"), Qt::Key_Delete, &MainWindow::removeCharacter);
  addAction(menu, tr("&Identify the clipboard’s text"), QKeySequence::Paste, &MainWindow::paste);
  makeUndoActions();
  menu.addSeparator();
  QMenu& view = *menu.addMenu(tr("&View"));
  addAction(view, tr("&Back"), QKeySequence::Back, &MainWindow::goBack);
  addAction(view, tr("&Groups"), Qt::Key_F9, &MainWindow::toggleSidebar);
  addAction(view, tr("&Larger"), QKeySequence::ZoomIn, &MainWindow::zoomIn);
  addAction(view, tr("&Smaller"), QKeySequence::ZoomOut, &MainWindow::zoomOut);
  addAction(view, tr("&Usual size"), Qt::CTRL | Qt::Key_0, &MainWindow::zoomBack);
  QAction* const forget = view.addAction(tr("Forget the &recently copied characters"));
  connect(forget, &QAction::triggered, &catalog_, &Catalog::forgetRecentlyCopied);
  menu.addSeparator();
  addAction(menu, tr("&Preferences …"), Qt::CTRL | Qt::Key_Comma, &MainWindow::showPreferences);
  addAction(menu, tr("&Keys and mouse"), Qt::Key_F1, &MainWindow::showShortcuts);
  addAction(menu, tr("A&bout"), {}, &MainWindow::showAbout);
  QAction* const quit = menu.addAction(tr("&Quit"), QKeySequence::Quit, this, &QWidget::close);
  QWidget::addAction(quit);
  connect(&menu, &QMenu::aboutToShow, this, [this] {
    const glyph::Entity* const entity = grid_->currentCharacter();
    removeAction_->setEnabled(entity && catalog_.isAdded(entity->computed.hex));
  });
  connect(copyMenu_, &QMenu::aboutToShow, this, [this] {
    const glyph::Entity* const entity = grid_->currentCharacter();
    for (QAction* const action : copyMenu_->actions()) {
      const glyph::CopyForm* const form = glyph::copyForm(action->data().toString().toStdString());
      action->setVisible(entity && form && form->text(*entity));
    }
  });
}

void MainWindow::makeUndoActions() {
  QUndoStack& stack = catalog_.undoStack();
  QAction* const undo = menu_->addAction(tr("Undo"), &stack, &QUndoStack::undo);
  QAction* const redo = menu_->addAction(tr("Redo"), &stack, &QUndoStack::redo);
  undo->setShortcut(QKeySequence::Undo);
  redo->setShortcut(QKeySequence::Redo);
  const auto refresh = [=, this, &stack] {
    undo->setEnabled(stack.canUndo());
    redo->setEnabled(stack.canRedo());
    undo->setText(stack.canUndo() ? tr("Undo: %1").arg(stack.undoText()) : tr("Undo"));
    redo->setText(stack.canRedo() ? tr("Redo: %1").arg(stack.redoText()) : tr("Redo"));
    for (QAction* const action : {undo, redo}) action->setFont(withEmojiFont(menu_->font(), action->text()));
  };
  connect(&stack, &QUndoStack::indexChanged, undo, refresh);
  refresh();
  for (QAction* const action : {undo, redo}) QWidget::addAction(action);
}

void MainWindow::connectCatalog() {
  connect(&filter_, &CharacterFilter::changed, this, &MainWindow::showCharacters);
  connect(sidebar_, &Sidebar::scopeChosen, this, &MainWindow::chooseScope);
  connect(card_, &CharacterCard::copyRequested, this, &MainWindow::copyAs);
  connect(card_, &CharacterCard::favouriteRequested, this, &MainWindow::toggleFavourite);
  connect(card_, &CharacterCard::collectRequested, this, &MainWindow::collectCurrent);
  connect(card_, &CharacterCard::characterChosen, this, [this](const QString& hex) {
    rememberPlace();
    chooseCharacter(hex);
  });
  connect(card_, &CharacterCard::groupChosen, this, [this](const QString& group) {
    rememberPlace();
    const QString hex =
        fromUtf8(grid_->currentCharacter() ? grid_->currentCharacter()->computed.hex.view() : "");
    chooseScope({Scope::Kind::group, group.toStdString()});
    chooseCharacter(hex);
  });
  connect(card_, &CharacterCard::addOrRemoveRequested, this, [this] {
    const glyph::Entity* const entity = grid_->currentCharacter();
    if (!entity) return;
    const std::string hex = entity->computed.hex;
    catalog_.isAdded(hex) ? catalog_.remove({hex}) : catalog_.add({hex});
  });
  const auto refresh = [this] {
    card_->refresh();
    grid_->viewport()->update();
  };
  connect(&catalog_, &Catalog::groupsChanged, this, refresh);
  connect(&catalog_, &Catalog::favouritesChanged, this, refresh);
  connect(&catalog_, &Catalog::copied, this,
          [this](const QString& text) { toast_->showMessage(tr("Copied: %1").arg(text)); });
  connect(&catalog_, &Catalog::settingsFailed, this,
          [this](const QString& reason) { toast_->showMessage(reason, 6'000); });
}

void MainWindow::showCharacters(bool isSameView) {
  grid_->setRulerShown(filter_.query().trimmed().isEmpty());
  grid_->setCharacters(filter_.characters(), filter_.sections(), isSameView);
  showHits();
}

void MainWindow::showHits() {
  const int count = grid_->count();
  const bool isSearch = !filter_.query().trimmed().isEmpty();
  QString text = tr("%Ln characters", nullptr, count);
  if (isSearch && filter_.isApproximate() && count > 0)
    text = tr("Nothing matches exactly. %Ln similar characters:", nullptr, count);
  const bool isPart = filter_.scope().kind != Scope::Kind::all;
  hits_->setText(isPart ? filter_.scope().title() + QStringLiteral(" · ") + text : text);
  elsewhere_->setVisible(isSearch && filter_.elsewhere() > 0);
  elsewhere_->setText(tr("%Ln more in all characters", nullptr, static_cast<int>(filter_.elsewhere())));
  QString empty;
  if (isSearch) {
    empty = tr("Nothing found for “%1”.").arg(filter_.query().trimmed().left(60));
    if (filter_.elsewhere() > 0) empty += QLatin1Char('\n') + tr("Enter searches all characters.");
  } else if (filter_.scope().kind == Scope::Kind::displayed) {
    empty =
        tr("No checked group has characters. Check groups in the list of groups to see their characters "
           "together here.");
  } else if (filter_.scope().kind == Scope::Kind::favourites) {
    empty = tr("No favourites yet. Ctrl+D makes the current character a favourite.");
  } else if (filter_.scope().kind == Scope::Kind::recentlyCopied) {
    empty = tr("What you copy appears here.");
  } else {
    empty = tr("No characters yet. Ctrl+N adds a character by its code, its name or by pasting it.");
  }
  const Symbol symbol = isSearch                                              ? Symbol::search
                        : filter_.scope().kind == Scope::Kind::favourites     ? Symbol::star
                        : filter_.scope().kind == Scope::Kind::recentlyCopied ? Symbol::recent
                        : filter_.scope().kind == Scope::Kind::displayed      ? Symbol::check
                                                                              : Symbol::add;
  grid_->setEmptyText(empty, symbolIcon(symbol));
}

void MainWindow::chooseScope(const Scope& scope) {
  sidebar_->setScope(scope);
  filter_.setScope(scope);
  if (isNarrow_ && sidebar_->isVisible()) {
    sidebar_->hide();
    characterAndCard_->show();
  }
}

// Remembers the scope, the query and the character, so that the user can go back after following a link on
// the card.
void MainWindow::rememberPlace() {
  const glyph::Entity* const entity = grid_->currentCharacter();
  if (!entity) return;
  constexpr std::size_t most = 50;
  if (places_.size() == most) places_.erase(places_.begin());
  places_.push_back({filter_.scope(), searchField_->text(), fromUtf8(entity->computed.hex)});
  back_->show();
}

void MainWindow::goBack() {
  if (places_.empty()) return;
  const Place place = std::move(places_.back());
  places_.pop_back();
  back_->setVisible(!places_.empty());
  searchField_->setText(place.words);
  chooseScope(place.scope);
  chooseCharacter(place.hex);
  grid_->setFocus();
}

// Selects the character in the grid. If the grid does not contain it, shows it alone.
void MainWindow::chooseCharacter(const QString& hex) {
  const std::string code = hex.toStdString();
  const auto isShown = [&] {
    for (int i = 0; i < grid_->count(); ++i) {
      if (grid_->character(i).computed.hex == code) {
        grid_->setCurrent(i);
        return true;
      }
    }
    return false;
  };
  if (isShown()) return;
  searchField_->clear();
  if (isShown()) return;
  chooseScope({Scope::Kind::all});
  if (!isShown()) identify(fromUtf8(catalog_.entity(code).computed.symbol));
}

void MainWindow::copyCharacter(int index, Qt::KeyboardModifiers modifiers) {
  if (modifiers & Qt::ControlModifier) return collect(index);
  grid_->setCurrent(index);
  modifiers& Qt::AltModifier ? copyOther() : copyCurrent();
}

void MainWindow::copyCurrent() {
  copyAs(*glyph::copyForm("character"));
}

void MainWindow::copyOther() {
  if (const glyph::Entity* const entity = grid_->currentCharacter()) copyAs(catalog_.otherForm(*entity));
}

void MainWindow::copyAs(const glyph::CopyForm& form) {
  if (const glyph::Entity* const entity = grid_->currentCharacter())
    catalog_.copy(glyph::Entity(*entity), form);
}

void MainWindow::collect(int index) {
  const glyph::Entity& entity = grid_->character(index);
  collected_.push_back(entity.computed.hex);
  collector_->collect(fromUtf8(entity.computed.symbol));
}

void MainWindow::collectCurrent() {
  if (grid_->current() >= 0) collect(grid_->current());
}

void MainWindow::toggleFavourite() {
  if (const glyph::Entity* const entity = grid_->currentCharacter())
    catalog_.toggleFavourite(entity->computed.hex);
}

void MainWindow::addCharacter() {
  AddDialog dialog(catalog_, this);
  if (dialog.exec() != QDialog::Accepted) return;
  catalog_.add(dialog.hexes());
  searchField_->clear();
  chooseScope({Scope::Kind::group, std::string(glyph::customGroup)});
  if (!dialog.hexes().empty()) chooseCharacter(QString::fromStdString(dialog.hexes().back()));
  grid_->setFocus();
}

void MainWindow::removeCharacter() {
  const glyph::Entity* const entity = grid_->currentCharacter();
  if (entity && catalog_.isAdded(entity->computed.hex)) catalog_.remove({entity->computed.hex});
}

void MainWindow::paste() {
  identify(QGuiApplication::clipboard()->text());
}

void MainWindow::identify(const QString& text) {
  if (text.isEmpty()) return;
  searchField_->clear();
  chooseScope({Scope::Kind::text, text.toStdString()});
  grid_->setFocus();
}

void MainWindow::showMenu(int, QPoint globalPosition) {
  QMenu menu(this);
  const glyph::Entity entity = *grid_->currentCharacter();
  QAction* const copy = menu.addAction(symbolIcon(Symbol::copy), tr("Copy"), this, &MainWindow::copyCurrent);
  copy->setShortcut(QKeySequence::Copy);
  QMenu& forms = *menu.addMenu(tr("Copy as"));
  addForms(forms, entity, [this](const glyph::CopyForm& form) { copyAs(form); });
  addSkinToneMenu(menu, entity,
                  [this, entity](glyph::SkinTone tone) { catalog_.copyWithTone(entity, tone); });
  menu.addSeparator();
  menu.addAction(symbolIcon(Symbol::collect), tr("Collect"), this, &MainWindow::collectCurrent);
  const bool isFavourite = catalog_.isFavourite(entity.computed.hex);
  menu.addAction(symbolIcon(isFavourite ? Symbol::starFilled : Symbol::star),
                 isFavourite ? tr("Remove from the favourites") : tr("Add to the favourites"), this,
                 &MainWindow::toggleFavourite);
  const std::string hex = entity.computed.hex;
  if (catalog_.isAdded(hex)) {
    menu.addAction(symbolIcon(Symbol::remove), tr("Remove from your own characters"), this,
                   &MainWindow::removeCharacter);
  } else {
    menu.addAction(symbolIcon(Symbol::add), tr("Add to your own characters"), this,
                   [this, hex] { catalog_.add({hex}); });
  }
  menu.exec(globalPosition);
}

void MainWindow::search(const QString& text) {
  if (!text.isEmpty()) {
    chooseScope({Scope::Kind::all});
    searchField_->setText(text);
  }
  focusSearch();
}

void MainWindow::focusSearch() {
  searchField_->setFocus();
  searchField_->selectAll();
}

void MainWindow::escape() {
  if (!searchField_->text().isEmpty()) return searchField_->clear();
  grid_->setFocus();
}

bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched != searchField_ || event->type() != QEvent::KeyPress)
    return QWidget::eventFilter(watched, event);
  auto* const key = static_cast<QKeyEvent*>(event);
  switch (key->key()) {
    case Qt::Key_Escape:
      escape();
      return true;
    case Qt::Key_Down:
    case Qt::Key_PageDown:
      grid_->setFocus();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (grid_->current() >= 0) {
        copyCharacter(grid_->current(), key->modifiers());
      } else if (filter_.elsewhere() > 0) {
        chooseScope({Scope::Kind::all});  // pressing Enter again then copies the first result
      }
      return true;
    default:
      return false;
  }
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasText() && !event->source()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  identify(event->mimeData()->text());
}

void MainWindow::zoomIn() {
  grid_->setCellSize(grid_->cellSize() + 8);
}

void MainWindow::zoomOut() {
  grid_->setCellSize(grid_->cellSize() - 8);
}

void MainWindow::zoomBack() {
  grid_->setCellSize(CharacterGrid::commonCell);
}

void MainWindow::toggleSidebar() {
  const bool show = !sidebar_->isVisible();
  if (isNarrow_) {
    characterAndCard_->setVisible(!show);
  } else {
    isSidebarWanted_ = show;
  }
  sidebar_->setVisible(show);
  show ? sidebar_->setFocus() : grid_->setFocus();
}

void MainWindow::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  arrange();
}

void MainWindow::arrange() {
  const bool narrow = width() < narrowWidth;
  if (narrow == isNarrow_) return;
  isNarrow_ = narrow;
  characterAndCard_->setOrientation(narrow ? Qt::Vertical : Qt::Horizontal);
  characterAndCard_->setSizes(narrow ? QList<int>{height() * 3 / 5, height() * 2 / 5}
                                     : QList<int>{width() - 320, 320});
  card_->setCompact(narrow);
  sidebar_->setVisible(!narrow && isSidebarWanted_);
  characterAndCard_->show();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  save();
  QWidget::closeEvent(event);
  Q_EMIT closed();
}

void MainWindow::restore() {
  const WindowSettings settings = readWindowSettings();
  resize(1'120, 740);
  if (!settings.geometry.isEmpty()) restoreGeometry(settings.geometry);
  columns_->setSizes({250, 870});
  characterAndCard_->setSizes({590, 310});
  if (!settings.columns.isEmpty()) columns_->restoreState(settings.columns);
  if (!settings.card.isEmpty()) characterAndCard_->restoreState(settings.card);
  isSidebarWanted_ = settings.hasSidebar;
  sidebar_->setVisible(isSidebarWanted_);
  if (settings.cellSize > 0) grid_->setCellSize(settings.cellSize);
  chooseScope(Scope::fromText(settings.scope));
  grid_->setFocus();
}

void MainWindow::save() const {
  WindowSettings settings;
  settings.geometry = saveGeometry();
  if (!isNarrow_) {
    settings.columns = columns_->saveState();
    settings.card = characterAndCard_->saveState();
  }
  settings.hasSidebar = isSidebarWanted_;
  settings.cellSize = grid_->cellSize();
  settings.scope = filter_.scope().text();
  writeWindowSettings(settings);
}

void MainWindow::showShortcuts() {
  struct Row {
    QString keys, effect;
  };
  const Row rows[] = {
      {tr("Letters"), tr("search")},
      {tr("Enter, double click"), tr("copy the character")},
      {tr("Alt+Enter"), tr("copy the form chosen in the preferences")},
      {tr("Ctrl+1 … Ctrl+9"), tr("copy another form")},
      {tr("Space, Ctrl+Enter, Ctrl+click"), tr("collect, to copy several characters together")},
      {tr("Long press on an emoji"), tr("choose its skin tone")},
      {tr("Ctrl+D"), tr("favourite")},
      {tr("Ctrl+N"), tr("add a character of your own")},
      {tr("Delete"), tr("remove a character of your own")},
      {tr("Ctrl+V, drop a text"), tr("show the characters of a text")},
      {tr("Ctrl+Z, Ctrl+Shift+Z"), tr("undo, redo")},
      {tr("Ctrl++, Ctrl+-, Ctrl+wheel"), tr("zoom")},
      {tr("Ctrl+F, Escape"), tr("into the search field, empty it")},
      {tr("F9"), tr("show or hide the groups")},
      {tr("Alt+Left"), tr("back from a link on the card")},
  };
  QString table = QStringLiteral("<table cellspacing=\"6\">");
  for (const Row& row : rows) {
    table += QStringLiteral("<tr><td><b>%1</b>&nbsp;&nbsp;</td><td>%2</td></tr>").arg(row.keys, row.effect);
  }
  // Use a dialog of our own: a QMessageBox would be too narrow, and too high for small screens.
  QDialog dialog(this);
  dialog.setWindowTitle(tr("Keys and mouse"));
  auto* const column = new QVBoxLayout(&dialog);
  auto* const text = new QLabel(table + QStringLiteral("</table>"));
  text->setWordWrap(true);
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  column->addWidget(text);
  column->addWidget(buttons);
  connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
  const int width = std::min(560, screen()->availableGeometry().width() - 20);
  dialog.resize(width, dialog.heightForWidth(width));
  dialog.exec();
}

void MainWindow::showPreferences() {
  PreferencesDialog(catalog_, appearance_, shortcut_, this).exec();
}

void MainWindow::showAbout() {
  QMessageBox::about(
      this, tr("About Glyphorium"),
      QStringLiteral("<h3>Glyphorium %1</h3><p>%2</p><p>%3</p>")
          .arg(fromUtf8(GlyphoriumVersionString),
               tr("A character catalog: Unicode characters, HTML character entities and symbols."),
               tr("Under the MIT licence. Data of the Unicode Character Database and of CLDR stands "
                  "under the Unicode licence.")));
}

}  // namespace browser
