// SPDX-License-Identifier: MIT
#include "character_grid.h"

#include <QAccessible>
#include <QApplication>
#include <QDrag>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QPainter>
#include <QPixmap>
#include <QScrollBar>
#include <QStyleHints>
#include <QToolTip>
#include <algorithm>

#include "character_texts.h"
#include "code_box.h"

namespace browser {
namespace {

QColor withAlpha(QColor colour, double alpha) {
  colour.setAlphaF(static_cast<float>(alpha));
  return colour;
}

}  // namespace

bool isPrivateUse(char32_t point) {
  return (point >= 0xE000 && point < 0xF900) || point >= 0xF0000;
}

bool isShownAsBox(const glyph::Entity& entity) {
  const std::u32string points = glyph::codePoints(entity.computed.symbol.view());
  return std::all_of(points.begin(), points.end(),
                     [](char32_t point) { return glyph::isInvisible(point) && !isPrivateUse(point); });
}

GlyphRequest cellRequest(const glyph::Entity& entity, int cellSize, double ratio) {
  GlyphRequest request;
  const std::u32string points = glyph::codePoints(entity.computed.symbol.view());
  const std::string_view category = points.empty() ? "" : glyph::characterCategory(points.front());
  const bool isMark = category == "Mn" || category == "Mc";
  // Draw a combining mark on a dotted circle. An enclosing mark is drawn alone, because few fonts centre it
  // on the circle. Draw all other characters unchanged, also private-use characters, because the user may
  // have a font for them.
  request.text = isMark ? shownText(entity) : fromUtf8(entity.computed.symbol);
  const bool isEmoji = entity.computed.group.empty() && glyph::emojiPlace(entity.computed.symbol).has_value();
  if (isEmoji || entity.computed.group.view() == "emoji") {
    request.fontClass = FontClass::emoji;
  } else if (entity.additional && entity.additional->needsSerifs.value_or(false)) {
    request.fontClass = FontClass::serif;
  }
  request.size = cellSize / 2;
  request.box = cellSize * 5 / 6;
  request.ratio = ratio;
  return request;
}

void paintCharacter(QPainter& painter, const QRect& area, const glyph::Entity& entity,
                    const GlyphRequest& request, const QColor& colour) {
  const QString code = fromUtf8(entity.computed.hex).toUpper();
  if (isShownAsBox(entity)) return paintCodeBox(painter, area, code, BoxKind::invisible, colour);
  const GlyphPicture* const picture = GlyphRenderer::shared().picture(request);
  if (!picture) return;
  if (picture->image.isNull()) return paintCodeBox(painter, area, code, BoxKind::missing, colour);
  const QPoint corner(area.x() + (area.width() - request.box) / 2,
                      area.y() + (area.height() - request.box) / 2);
  painter.drawImage(corner + picture->corner, picture->image);
}

CharacterGrid::CharacterGrid(QWidget* parent) : QAbstractScrollArea(parent) {
  GlyphRenderer::shared().setColour(palette().color(QPalette::Text));
  setFocusPolicy(Qt::StrongFocus);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
  viewport()->setMouseTracking(true);
  viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
  setAttribute(Qt::WA_InputMethodEnabled);
  setAccessibleName(tr("Characters"));
  holdTimer_.setSingleShot(true);
  holdTimer_.setInterval(QGuiApplication::styleHints()->mousePressAndHoldInterval());
  connect(&holdTimer_, &QTimer::timeout, this, [this] {
    const int held = indexAt(pressed_);
    if (held >= 0 && held == current_) Q_EMIT this->held(held, viewport()->mapToGlobal(pressed_));
  });
  static const std::vector<glyph::Entity> none;
  characters_ = &none;
  connect(&GlyphRenderer::shared(), &GlyphRenderer::picturesReady, viewport(), qOverload<>(&QWidget::update));
}

void CharacterGrid::setCharacters(const std::vector<glyph::Entity>& characters,
                                  std::vector<GridSection> sections, bool keepCurrent) {
  // Look for the current character in the new list only, because the old list may no longer exist.
  int wanted = characters.empty() ? -1 : 0;
  if (keepCurrent && current_ >= 0) {
    const auto same = std::find_if(characters.begin(), characters.end(), [&](const glyph::Entity& entity) {
      return entity.computed.hex.view() == currentHex_;
    });
    wanted = same != characters.end() ? static_cast<int>(same - characters.begin())
                                      : std::min(current_, static_cast<int>(characters.size()) - 1);
  }
  characters_ = &characters;
  if (sections.empty()) sections.push_back({{}, 0, static_cast<int>(characters.size())});
  layout_.setSections(std::move(sections));
  hovered_ = -1;
  current_ = -1;
  layOut();
  if (!keepCurrent) verticalScrollBar()->setValue(0);
  QAccessibleEvent changed(this, QAccessible::ObjectReorder);
  QAccessible::updateAccessibility(&changed);
  if (wanted >= 0) {
    setCurrent(wanted);
  } else {
    currentHex_.clear();
    Q_EMIT currentChanged(-1);
  }
  viewport()->update();
}

void CharacterGrid::setCurrent(int index) {
  if (index < 0 || index >= count()) return;
  const bool isNew = index != current_;
  if (isNew && current_ >= 0) viewport()->update(visibleRect(current_));
  current_ = index;
  currentHex_ = character(index).computed.hex;
  ensureVisible(index);
  if (!isNew) return;
  viewport()->update(visibleRect(index));
  if (hasFocus() && QAccessible::isActive()) {
    QAccessibleEvent focus(this, QAccessible::Focus);
    focus.setChild(index);
    QAccessible::updateAccessibility(&focus);
  }
  Q_EMIT currentChanged(index);
}

void CharacterGrid::setCellSize(int size) {
  size = std::clamp(size, smallestCell, largestCell);
  if (size == cellSize_) return;
  cellSize_ = size;
  layOut();
  if (current_ >= 0) ensureVisible(current_);
  viewport()->update();
  Q_EMIT cellSizeChanged(size);
}

void CharacterGrid::setRulerShown(bool shown) {
  if (shown == hasRuler_) return;
  hasRuler_ = shown;
  layOut();
  viewport()->update();
}

void CharacterGrid::setEmptyText(const QString& text, const QIcon& icon) {
  emptyText_ = text;
  emptyIcon_ = icon;
  if (count() == 0) viewport()->update();
}

QRect CharacterGrid::visibleRect(int index) const {
  return layout_.cellRect(index).translated(0, -verticalScrollBar()->value());
}

int CharacterGrid::indexAt(QPoint inViewport) const {
  return layout_.indexAt(inViewport + QPoint(0, verticalScrollBar()->value()));
}

int CharacterGrid::rulerWidth() const {
  return hasRuler_ && viewport()->width() >= 520 ? fontMetrics().horizontalAdvance("U+00000") + 14 : 8;
}

int CharacterGrid::headingHeight() const {
  return fontMetrics().height() + 22;
}

void CharacterGrid::layOut() {
  layout_.setGeometry(viewport()->width() - 4, cellSize_, rulerWidth(), headingHeight());
  QScrollBar* const bar = verticalScrollBar();
  bar->setRange(0, std::max(0, layout_.height() + 12 - viewport()->height()));
  bar->setPageStep(viewport()->height());
  bar->setSingleStep(cellSize_);
}

void CharacterGrid::ensureVisible(int index) {
  const QRect cell = layout_.cellRect(index);
  QScrollBar* const bar = verticalScrollBar();
  const bool isFirstLine = layout_.firstOfLine(index) == 0;
  if (isFirstLine) return bar->setValue(0);
  const int margin = headingHeight();  // so that the heading above the cell is visible too
  if (cell.top() - margin < bar->value()) bar->setValue(cell.top() - margin);
  if (cell.bottom() + 8 > bar->value() + viewport()->height())
    bar->setValue(cell.bottom() + 8 - viewport()->height());
}

void CharacterGrid::resizeEvent(QResizeEvent*) {
  // Keep the same character at the top of the grid.
  const int top = layout_.indexAt({rulerWidth() + 1, verticalScrollBar()->value() + cellSize_});
  layOut();
  if (top > 0) verticalScrollBar()->setValue(layout_.cellRect(top).top() - cellSize_ + 1);
}

void CharacterGrid::changeEvent(QEvent* event) {
  QAbstractScrollArea::changeEvent(event);
  if (event->type() == QEvent::PaletteChange)
    GlyphRenderer::shared().setColour(palette().color(QPalette::Text));
  if (event->type() == QEvent::FontChange) layOut();
}

void CharacterGrid::scrollContentsBy(int, int) {
  setHovered(-1);
  viewport()->update();
}

bool CharacterGrid::event(QEvent* event) {
  // Tab moves to the next widget. The arrow keys stay within the grid.
  if (event->type() == QEvent::ShortcutOverride) {
    auto* const key = static_cast<QKeyEvent*>(event);
    if (key->modifiers() == Qt::NoModifier && !key->text().isEmpty() && key->text().front().isPrint())
      event->accept();
  }
  return QAbstractScrollArea::event(event);
}

bool CharacterGrid::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* const help = static_cast<QHelpEvent*>(event);
    showHelp(help->pos(), help->globalPos());
    return true;
  }
  if (event->type() == QEvent::Leave) setHovered(-1);
  return QAbstractScrollArea::viewportEvent(event);
}

void CharacterGrid::showHelp(QPoint inViewport, QPoint globalPosition) {
  const int index = indexAt(inViewport);
  if (index < 0) return QToolTip::hideText();
  const glyph::Entity& entity = character(index);
  QToolTip::showText(globalPosition, nameText(entity) + QLatin1Char('\n') + codeText(entity), viewport(),
                     visibleRect(index));
}

void CharacterGrid::paintEvent(QPaintEvent* event) {
  QPainter painter(viewport());
  painter.fillRect(event->rect(), palette().base());
  if (count() == 0) return paintEmpty(painter);
  const int top = verticalScrollBar()->value();
  for (const GridLayout::Line& line :
       layout_.linesBetween(top + event->rect().top(), top + event->rect().bottom())) {
    const int y = line.y - top;
    if (line.count == 0) {
      paintHeading(painter, line, y);
      continue;
    }
    if (rulerWidth() > 8) {
      painter.setPen(palette().color(QPalette::PlaceholderText));
      QFont small = font();
      small.setPointSizeF(small.pointSizeF() * 0.82);
      painter.setFont(small);
      const std::string_view hex = character(line.first).computed.hex;
      painter.drawText(QRect(0, y, rulerWidth() - 10, line.height), Qt::AlignRight | Qt::AlignVCenter,
                       fromUtf8(hex.substr(0, hex.find(','))).toUpper());
      painter.setFont(font());
    }
    for (int index = line.first; index < line.first + line.count; ++index) {
      const QRect area = visibleRect(index);
      if (area.intersects(event->rect())) paintCell(painter, index, area);
    }
  }
}

// Paints what an empty grid shows: a large icon with a text below it, in the middle.
void CharacterGrid::paintEmpty(QPainter& painter) {
  constexpr int side = 56, gap = 14;
  const int width = std::min(viewport()->width() - 48, 420);
  const int flags = Qt::AlignHCenter | Qt::AlignTop | Qt::TextWordWrap;
  const int height =
      fontMetrics().boundingRect(QRect(0, 0, width, viewport()->height()), flags, emptyText_).height();
  const int left = (viewport()->width() - width) / 2;
  const int top = std::max(8, (viewport()->height() - side - gap - height) / 2);
  painter.setOpacity(0.35);
  emptyIcon_.paint(&painter, QRect((viewport()->width() - side) / 2, top, side, side));
  painter.setOpacity(1);
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(QRect(left, top + side + gap, width, viewport()->height()), flags, emptyText_);
}

void CharacterGrid::paintHeading(QPainter& painter, const GridLayout::Line& line, int y) {
  const GridSection& section = layout_.sections()[static_cast<std::size_t>(line.section)];
  const QRect area(rulerWidth() + 6, y + 8, viewport()->width() - rulerWidth() - 16, line.height - 8);
  QFont strong = font();
  strong.setWeight(QFont::DemiBold);
  painter.setFont(strong);
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(area, Qt::AlignLeft | Qt::AlignVCenter, section.title);
  const int after = area.left() + QFontMetrics(strong).horizontalAdvance(section.title) + 10;
  painter.setFont(font());
  painter.setPen(palette().color(QPalette::PlaceholderText));
  painter.drawText(QRect(after, area.top(), 200, area.height()), Qt::AlignLeft | Qt::AlignVCenter,
                   locale().toString(section.count));
}

void CharacterGrid::paintCell(QPainter& painter, int index, const QRect& area) {
  const bool isCurrent = index == current_;
  if (isCurrent || index == hovered_) {
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(area).adjusted(2.5, 2.5, -2.5, -2.5);
    const QColor accent = palette().color(QPalette::Highlight);
    const bool isStrong = isCurrent && hasFocus();
    painter.setPen(isCurrent ? QPen(withAlpha(accent, isStrong ? 1.0 : 0.55), isStrong ? 2 : 1.4)
                             : QPen(Qt::NoPen));
    painter.setBrush(isCurrent ? withAlpha(accent, 0.16) : withAlpha(palette().color(QPalette::Text), 0.07));
    painter.drawRoundedRect(frame, 8, 8);
    painter.setRenderHint(QPainter::Antialiasing, false);
  }
  const glyph::Entity& entity = character(index);
  paintCharacter(painter, area, entity, cellRequest(entity, cellSize_, devicePixelRatioF()),
                 palette().color(QPalette::Text));
  if (isFavourite_ && isFavourite_(entity)) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0xe5, 0xa5, 0x0a));
    painter.drawEllipse(QPointF(area.right() - 9, area.top() + 10), 3, 3);
    painter.setRenderHint(QPainter::Antialiasing, false);
  }
}

void CharacterGrid::keyPressEvent(QKeyEvent* event) {
  const Qt::KeyboardModifiers modifiers = event->modifiers() & ~Qt::KeypadModifier;
  const bool isPlain = modifiers == Qt::NoModifier;
  const int perPage = std::max(1, viewport()->height() / cellSize_ - 1);
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (current_ >= 0 && isEnter) return Q_EMIT activated(current_, modifiers);
  if (current_ >= 0 && isPlain) {
    const int forward = isRightToLeft() ? -1 : 1;
    switch (event->key()) {
      case Qt::Key_Left:
        return setCurrent(current_ - forward);
      case Qt::Key_Right:
        return setCurrent(current_ + forward);
      case Qt::Key_Up:
        return setCurrent(layout_.moved(current_, -1));
      case Qt::Key_Down:
        return setCurrent(layout_.moved(current_, 1));
      case Qt::Key_PageUp:
        return setCurrent(layout_.moved(current_, -perPage));
      case Qt::Key_PageDown:
        return setCurrent(layout_.moved(current_, perPage));
      case Qt::Key_Home:
        return setCurrent(layout_.firstOfLine(current_));
      case Qt::Key_End:
        return setCurrent(layout_.lastOfLine(current_));
      case Qt::Key_Space:
        return Q_EMIT collected(current_);
      default:
        break;
    }
  }
  if (current_ >= 0 && modifiers == Qt::ControlModifier) {
    if (event->key() == Qt::Key_Home) return setCurrent(0);
    if (event->key() == Qt::Key_End) return setCurrent(count() - 1);
  }
  if (event->key() == Qt::Key_Backspace && isPlain) return Q_EMIT backspacePressed();
  const bool isText = !event->text().isEmpty() && event->text().front().isPrint();
  if (isText && (isPlain || modifiers == Qt::ShiftModifier)) return Q_EMIT typed(event->text());
  event->ignore();
}

void CharacterGrid::wheelEvent(QWheelEvent* event) {
  if (!(event->modifiers() & Qt::ControlModifier)) return QAbstractScrollArea::wheelEvent(event);
  wheelRest_ += event->angleDelta().y();
  const int steps = wheelRest_ / 120;
  wheelRest_ %= 120;
  if (steps != 0) setCellSize(cellSize_ + steps * 8);
  event->accept();
}

void CharacterGrid::mousePressEvent(QMouseEvent* event) {
  const int index = indexAt(event->position().toPoint());
  pressed_ = event->position().toPoint();
  if (index < 0) return;
  setCurrent(index);
  if (event->button() != Qt::LeftButton) return;
  if (event->modifiers() == Qt::ControlModifier) return Q_EMIT collected(index);
  holdTimer_.start();
}

void CharacterGrid::mouseMoveEvent(QMouseEvent* event) {
  const QPoint point = event->position().toPoint();
  if (!(event->buttons() & Qt::LeftButton)) return setHovered(indexAt(point));
  const bool isFar =
      (point - pressed_).manhattanLength() >= QGuiApplication::styleHints()->startDragDistance();
  if (isFar) holdTimer_.stop();
  if (isFar && indexAt(pressed_) >= 0 && indexAt(pressed_) == current_) startDrag();
}

void CharacterGrid::mouseReleaseEvent(QMouseEvent* event) {
  holdTimer_.stop();
  const int index = indexAt(event->position().toPoint());
  const bool isClick = index >= 0 && index == indexAt(pressed_) && event->button() == Qt::LeftButton;
  if (isClick && event->modifiers() == Qt::NoModifier) Q_EMIT clicked(index);
}

void CharacterGrid::startDrag() {
  const glyph::Entity& entity = character(current_);
  auto* const mime = new QMimeData;
  mime->setText(fromUtf8(entity.computed.symbol));
  auto* const drag = new QDrag(this);
  drag->setMimeData(mime);
  QPixmap picture(QSize(cellSize_, cellSize_) * devicePixelRatioF());
  picture.setDevicePixelRatio(devicePixelRatioF());
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  paintCharacter(painter, QRect(0, 0, cellSize_, cellSize_), entity,
                 cellRequest(entity, cellSize_, devicePixelRatioF()), palette().color(QPalette::Text));
  painter.end();
  drag->setPixmap(picture);
  drag->setHotSpot({cellSize_ / 2, cellSize_ / 2});
  drag->exec(Qt::CopyAction);
}

void CharacterGrid::mouseDoubleClickEvent(QMouseEvent* event) {
  const int index = indexAt(event->position().toPoint());
  if (index >= 0 && event->button() == Qt::LeftButton) Q_EMIT activated(index, event->modifiers());
}

void CharacterGrid::leaveEvent(QEvent*) {
  setHovered(-1);
}

void CharacterGrid::setHovered(int index) {
  if (index == hovered_) return;
  if (hovered_ >= 0) viewport()->update(visibleRect(hovered_));
  hovered_ = index;
  if (hovered_ >= 0) viewport()->update(visibleRect(hovered_));
}

void CharacterGrid::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  viewport()->update();
}

void CharacterGrid::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  viewport()->update();
}

void CharacterGrid::contextMenuEvent(QContextMenuEvent* event) {
  const bool isKey = event->reason() == QContextMenuEvent::Keyboard;
  const int index = isKey ? current_ : indexAt(viewport()->mapFromGlobal(event->globalPos()));
  if (index < 0) return;
  setCurrent(index);
  Q_EMIT menuRequested(index,
                       isKey ? viewport()->mapToGlobal(visibleRect(index).center()) : event->globalPos());
}

}  // namespace browser
