// SPDX-License-Identifier: MIT
#include "toast.h"

#include <QAccessible>
#include <QEvent>
#include <QPainter>

#include "emoji_font.h"

namespace browser {

Toast::Toast(QWidget* parent) : QLabel(parent) {
  setContentsMargins(18, 9, 18, 9);
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignCenter);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  timer_.setSingleShot(true);
  connect(&timer_, &QTimer::timeout, this, &QWidget::hide);
  parent->installEventFilter(this);
  hide();
}

void Toast::showMessage(const QString& text, int milliseconds) {
  setFont(withEmojiFont(parentWidget()->font(), text));
  const int widest = parentWidget()->width() - 80;
  setText(fontMetrics().elidedText(text.simplified(), Qt::ElideMiddle, widest));
  setAccessibleName(text);
  place();
  show();
  raise();
  QAccessibleEvent alert(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&alert);
  timer_.start(milliseconds);
}

void Toast::place() {
  adjustSize();
  move((parentWidget()->width() - width()) / 2, parentWidget()->height() - height() - 18);
}

bool Toast::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Resize && isVisible()) place();
  return QLabel::eventFilter(watched, event);
}

void Toast::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  // Exchange the window's colours for text and background, so that the message stands out in light and dark
  // windows.
  QColor ground = palette().color(QPalette::Text);
  ground.setAlphaF(0.93F);
  painter.setBrush(ground);
  painter.drawRoundedRect(rect(), height() / 2.0, height() / 2.0);
  painter.setPen(palette().color(QPalette::Base));
  painter.drawText(rect(), Qt::AlignCenter, text());
}

}  // namespace browser
