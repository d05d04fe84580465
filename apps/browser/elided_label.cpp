// SPDX-License-Identifier: MIT
#include "elided_label.h"

#include <QPainter>

namespace browser {

QSize ElidedLabel::minimumSizeHint() const {
  return {40, QLabel::minimumSizeHint().height()};
}

void ElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  painter.drawText(rect(), static_cast<int>(Qt::AlignVCenter | Qt::AlignLeading),
                   fontMetrics().elidedText(text(), Qt::ElideRight, width()));
}

}  // namespace browser
