// SPDX-License-Identifier: MIT
#include "code_box.h"

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPen>
#include <algorithm>

namespace browser {

void paintCodeBox(QPainter& painter, const QRectF& area, const QString& text, BoxKind kind,
                  const QColor& colour) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  const double side = std::min(area.width(), area.height()) * 0.58;
  const QRectF box(area.center().x() - side / 2, area.center().y() - side / 2, side, side);
  QColor line = colour;
  line.setAlphaF(kind == BoxKind::invisible ? 0.75F : 0.5F);
  QPen pen(line, std::max(1.0, side / 32));
  if (kind == BoxKind::invisible) pen.setDashPattern({3, 2.5});
  painter.setPen(pen);
  painter.drawRoundedRect(box, side * 0.12, side * 0.12);

  const bool isSplit = text.size() > 3;
  const qsizetype half = (text.size() + 1) / 2;
  const QString lines = isSplit ? text.left(half) + QLatin1Char('\n') + text.mid(half) : text;
  QFont font = painter.font();
  font.setPixelSize(std::max(6, static_cast<int>(side * (isSplit ? 0.34 : 0.32))));
  font.setStyleHint(QFont::SansSerif);
  painter.setFont(font);
  QColor ink = colour;
  ink.setAlphaF(kind == BoxKind::invisible ? 0.9F : 0.65F);
  painter.setPen(ink);
  const int count = isSplit ? 2 : 1;
  const double height = font.pixelSize() * 1.02;
  for (int i = 0; i < count; ++i) {
    const QRectF place(box.left(), box.center().y() - count * height / 2 + i * height, box.width(), height);
    painter.drawText(place, Qt::AlignCenter, lines.section(QLatin1Char('\n'), i, i));
  }
  painter.restore();
}

}  // namespace browser
