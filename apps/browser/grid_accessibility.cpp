// SPDX-License-Identifier: MIT
#include "grid_accessibility.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <map>

#include "character_grid.h"
#include "character_texts.h"

namespace browser {
namespace {

CharacterGrid* gridOf(QObject* object) {
  return qobject_cast<CharacterGrid*>(object);
}

class Cell : public QAccessibleInterface, public QAccessibleActionInterface {
 public:
  Cell(CharacterGrid* grid, int index) : grid_(grid), index_(index) {}

  bool isValid() const override { return grid_ && index_ < grid_->count(); }
  QObject* object() const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  QAccessibleInterface* parent() const override { return QAccessible::queryAccessibleInterface(grid_); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QAccessible::Role role() const override { return QAccessible::ListItem; }

  QString text(QAccessible::Text kind) const override {
    if (!isValid()) return {};
    const glyph::Entity& entity = grid_->character(index_);
    if (kind == QAccessible::Name) return nameText(entity);
    if (kind == QAccessible::Description) return codeText(entity);
    if (kind == QAccessible::Value) return shownText(entity);
    return {};
  }
  void setText(QAccessible::Text, const QString&) override {}

  QRect rect() const override {
    if (!isValid()) return {};
    const QRect area = grid_->visibleRect(index_);
    return {grid_->viewport()->mapToGlobal(area.topLeft()), area.size()};
  }

  QAccessible::State state() const override {
    QAccessible::State state;
    if (!isValid()) {
      state.invalid = true;
      return state;
    }
    state.selectable = state.focusable = true;
    state.selected = state.active = grid_->current() == index_;
    state.focused = state.selected && grid_->hasFocus();
    state.offscreen = !grid_->viewport()->rect().intersects(grid_->visibleRect(index_));
    return state;
  }

  void* interface_cast(QAccessible::InterfaceType type) override {
    return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
  }
  QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
  void doAction(const QString& name) override {
    if (!isValid()) return;
    grid_->setCurrent(index_);
    if (name == pressAction()) Q_EMIT grid_->activated(index_, Qt::NoModifier);
    if (name == setFocusAction()) grid_->setFocus();
  }
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  QPointer<CharacterGrid> grid_;
  int index_;
};

class Grid : public QAccessibleWidget {
 public:
  explicit Grid(CharacterGrid* grid) : QAccessibleWidget(grid, QAccessible::List), grid_(grid) {}
  ~Grid() override {
    for (const auto& [index, id] : cells_) QAccessible::deleteAccessibleInterface(id);
  }

  int childCount() const override { return grid_->count(); }
  QAccessibleInterface* child(int index) const override {
    if (index < 0 || index >= grid_->count()) return nullptr;
    const auto known = cells_.find(index);
    if (known != cells_.end()) return QAccessible::accessibleInterface(known->second);
    auto* const cell = new Cell(grid_, index);
    cells_[index] = QAccessible::registerAccessibleInterface(cell);
    return cell;
  }
  int indexOfChild(const QAccessibleInterface* child) const override {
    for (const auto& [index, id] : cells_) {
      if (QAccessible::accessibleInterface(id) == child) return index;
    }
    return -1;
  }
  QAccessibleInterface* childAt(int x, int y) const override {
    return child(grid_->indexAt(grid_->viewport()->mapFromGlobal(QPoint(x, y))));
  }
  QAccessibleInterface* focusChild() const override {
    return grid_->hasFocus() ? child(grid_->current()) : nullptr;
  }

 private:
  CharacterGrid* grid_;
  mutable std::map<int, QAccessible::Id> cells_;  // only for cells that a screen reader has asked for
};

// Gives the program's windows the role of a window, so that screen readers announce them. Qt gives this role
// only to windows of Qt's own classes.
QAccessibleInterface* makeInterface(const QString& className, QObject* object) {
  if (CharacterGrid* const grid = gridOf(object)) return new Grid(grid);
  if (className == QLatin1String("browser::MainWindow"))
    return new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Window);
  if (className == QLatin1String("browser::Picker"))
    return new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Dialog);
  if (className == QLatin1String("browser::LargeGlyph"))
    return new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Graphic);
  if (className == QLatin1String("browser::CharacterCard"))
    return new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Grouping);
  return nullptr;
}

}  // namespace

void installGridAccessibility() {
  QAccessible::installFactory(makeInterface);
}

}  // namespace browser
