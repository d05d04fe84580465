// SPDX-License-Identifier: MIT
#include "picker.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPainter>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "catalog.h"
#include "character_grid.h"
#include "character_menus.h"
#include "character_texts.h"
#include "collector.h"
#include "emoji_font.h"
#include "icons.h"
#include "preferences.h"

namespace browser {
namespace {

constexpr QSize pickerSize(440, 420);
constexpr int pickerCell = 46;
constexpr int leavingMilliseconds = 250;

}  // namespace

// The window has a fixed size, so that tiling window managers let it float instead of tiling it.
Picker::Picker(Catalog& catalog)
    : QWidget(nullptr, Qt::Dialog | Qt::WindowStaysOnTopHint | Qt::FramelessWindowHint),
      catalog_(catalog),
      filter_(catalog, list_),
      field_(new QLineEdit),
      grid_(new CharacterGrid),
      name_(new QLabel),
      keys_(new QLabel),
      collector_(new Collector) {
  setWindowTitle(tr("Pick a character"));
  setFixedSize(pickerSize);
  auto* const column = new QVBoxLayout(this);
  column->setContentsMargins(1, 10, 1, 8);
  column->setSpacing(6);
  field_->setPlaceholderText(tr("Search by name, meaning, code or character"));
  field_->setAccessibleName(tr("Search"));
  addSearchIcon(*field_, tr("Search"), tr("Empty the search field"));
  field_->setMinimumHeight(field_->fontMetrics().height() + 16);
  field_->installEventFilter(this);
  grid_->setRulerShown(false);
  grid_->setCellSize(pickerCell);
  grid_->setEmptyText(tr("Nothing found."), symbolIcon(Symbol::search));
  grid_->setFavouriteTest(
      [this](const glyph::Entity& entity) { return catalog_.isFavourite(entity.computed.hex); });
  name_->setTextFormat(Qt::PlainText);
  name_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  keys_->setForegroundRole(QPalette::PlaceholderText);
  keys_->setText(tr("Enter: copy · Ctrl+Enter: collect · Alt+Enter: other form"));
  QFont small = keys_->font();
  small.setPointSizeF(small.pointSizeF() * 0.86);
  keys_->setFont(small);
  const auto inset = [&](QWidget* widget) {
    auto* const row = new QHBoxLayout;
    row->setContentsMargins(12, 0, 12, 0);
    row->addWidget(widget);
    column->addLayout(row);
  };
  inset(field_);
  column->addWidget(grid_, 1);
  column->addWidget(collector_);
  inset(name_);
  inset(keys_);
  connect(field_, &QLineEdit::textChanged, &filter_, &CharacterFilter::setQuery);
  keepEmojiColoured(*field_);
  connect(&filter_, &CharacterFilter::changed, this, &Picker::showCharacters);
  connect(grid_, &CharacterGrid::currentChanged, this, &Picker::showCurrent);
  connect(grid_, &CharacterGrid::activated, this, &Picker::pick);
  connect(grid_, &CharacterGrid::clicked, this, [this](int index) { pick(index, Qt::NoModifier); });
  connect(grid_, &CharacterGrid::held, this, &Picker::offerSkinTones);
  connect(grid_, &CharacterGrid::menuRequested, this, &Picker::showMenu);
  connect(grid_, &CharacterGrid::collected, this, &Picker::collect);
  connect(grid_, &CharacterGrid::typed, this, [this](const QString& text) {
    field_->setFocus();
    field_->insert(text);
  });
  connect(grid_, &CharacterGrid::backspacePressed, this, [this] {
    field_->setFocus();
    field_->backspace();
  });
  connect(collector_, &Collector::copyRequested, this, [this](const QString& text) {
    catalog_.copyText(text, collected_);
    finish(text);
  });
  connect(collector_, &Collector::left, field_, qOverload<>(&QWidget::setFocus));
}

void Picker::open() {
  collected_.clear();
  collector_->clear();
  field_->clear();
  filter_.setScope({Scope::Kind::picker});
  const QPoint pointer = QCursor::pos();
  const QScreen* const screen = QGuiApplication::screenAt(pointer);
  const QRect area = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
  move(std::clamp(pointer.x() - 40, area.left(), std::max(area.left(), area.right() - width())),
       std::clamp(pointer.y() + 12, area.top(), std::max(area.top(), area.bottom() - height())));
  show();
  raise();
  activateWindow();
  field_->setFocus();
}

void Picker::showCharacters() {
  grid_->setCharacters(filter_.characters(), filter_.sections(), false);
  showCurrent();
}

void Picker::showCurrent() {
  const glyph::Entity* const entity = grid_->currentCharacter();
  const QString text = entity ? nameText(*entity) + QStringLiteral("  ") + codeText(*entity) : QString();
  name_->setText(name_->fontMetrics().elidedText(text, Qt::ElideMiddle, width() - 30));
}

void Picker::pick(int index, Qt::KeyboardModifiers modifiers) {
  if (modifiers & Qt::ControlModifier) return collect(index);
  // If the user has collected characters, Enter copies these instead.
  if (!collector_->text().isEmpty() && !(modifiers & Qt::AltModifier)) {
    Q_EMIT collector_->copyRequested(collector_->text());
    return;
  }
  const glyph::Entity entity = grid_->character(index);
  pickAs(entity, modifiers & Qt::AltModifier ? catalog_.otherForm(entity) : *glyph::copyForm("character"));
}

void Picker::pickAs(const glyph::Entity& entity, const glyph::CopyForm& form) {
  const auto text = form.text(entity);
  if (!text) return;
  catalog_.copy(entity, form);
  finish(fromUtf8(*text));
}

void Picker::pickWithTone(const glyph::Entity& emoji, glyph::SkinTone tone) {
  catalog_.copyWithTone(emoji, tone);
  finish(QString::fromStdString(glyph::withSkinTone(emoji.computed.symbol, tone)));
}

void Picker::offerSkinTones(int index, QPoint globalPosition) {
  const glyph::Entity entity = grid_->character(index);
  QMenu menu(this);
  if (addSkinTones(menu, entity, [&](glyph::SkinTone tone) { pickWithTone(entity, tone); }))
    menu.exec(globalPosition);
}

void Picker::showMenu(int index, QPoint globalPosition) {
  const glyph::Entity entity = grid_->character(index);
  QMenu menu(this);
  addForms(menu, entity, [&](const glyph::CopyForm& form) { pickAs(entity, form); });
  menu.addSeparator();
  addSkinToneMenu(menu, entity, [&](glyph::SkinTone tone) { pickWithTone(entity, tone); });
  menu.exec(globalPosition);
}

void Picker::collect(int index) {
  const glyph::Entity& entity = grid_->character(index);
  collected_.push_back(entity.computed.hex);
  collector_->collect(fromUtf8(entity.computed.symbol));
}

void Picker::finish(const QString& text) {
  hide();
  Q_EMIT closed(text);
}

bool Picker::eventFilter(QObject* watched, QEvent* event) {
  if (watched != field_ || event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  auto* const key = static_cast<QKeyEvent*>(event);
  switch (key->key()) {
    case Qt::Key_Down:
    case Qt::Key_PageDown:
    case Qt::Key_Tab:
      grid_->setFocus();
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (grid_->current() >= 0) pick(grid_->current(), key->modifiers());
      return true;
    default:
      return false;
  }
}

void Picker::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) return finish({});
  const glyph::Entity* const entity = grid_->currentCharacter();
  if (entity && event->key() == Qt::Key_D && event->modifiers() == Qt::ControlModifier) {
    return catalog_.toggleFavourite(entity->computed.hex);
  }
  QWidget::keyPressEvent(event);
}

void Picker::closeEvent(QCloseEvent* event) {
  QWidget::closeEvent(event);
  Q_EMIT closed({});
}

void Picker::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() != QEvent::ActivationChange) return;
  // A click outside the window closes it, unless the user has collected characters. On Wayland, the window
  // also loses the focus for a moment when a keyboard or an input method is added or removed.
  const auto isLeft = [this] {
    return isVisible() && !isActiveWindow() && !QGuiApplication::focusWindow() &&
           collector_->text().isEmpty();
  };
  if (!isLeft()) return;
  QTimer::singleShot(leavingMilliseconds, this, [this, isLeft] {
    if (isLeft()) finish({});
  });
}

void Picker::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().window());
  QColor line = palette().color(QPalette::Text);
  line.setAlphaF(0.25F);
  painter.setPen(line);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace browser
