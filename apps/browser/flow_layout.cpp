// SPDX-License-Identifier: MIT
#include "flow_layout.h"

#include <QStyle>
#include <QWidget>
#include <algorithm>

namespace browser {

FlowLayout::~FlowLayout() {
  qDeleteAll(items_);
}

QLayoutItem* FlowLayout::takeAt(int index) {
  return index >= 0 && index < items_.size() ? items_.takeAt(index) : nullptr;
}

QSize FlowLayout::minimumSize() const {
  QSize size;
  for (const QLayoutItem* const item : items_) {
    if (!item->isEmpty()) size = size.expandedTo(item->minimumSize());
  }
  return size;
}

void FlowLayout::setGeometry(const QRect& area) {
  QLayout::setGeometry(area);
  place(area, true);
}

// Computes the lines for this area and returns their total height. Moves the widgets to their places if
// `move` is true.
int FlowLayout::place(const QRect& area, bool move) const {
  int x = area.x(), y = area.y(), lineHeight = 0;
  const Qt::LayoutDirection direction = parentWidget() ? parentWidget()->layoutDirection() : Qt::LeftToRight;
  for (QLayoutItem* const item : items_) {
    if (item->isEmpty()) continue;  // hidden
    const QSize size = item->sizeHint();
    if (x > area.x() && x + size.width() > area.right() + 1) {
      x = area.x();
      y += lineHeight + gap_;
      lineHeight = 0;
    }
    if (move) item->setGeometry(QStyle::visualRect(direction, area, QRect(QPoint(x, y), size)));
    x += size.width() + gap_;
    lineHeight = std::max(lineHeight, size.height());
  }
  return y + lineHeight - area.y();
}

}  // namespace browser
