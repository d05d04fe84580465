// SPDX-License-Identifier: MIT
#include "collector.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>

#include "emoji_font.h"
#include "icons.h"

namespace browser {

Collector::Collector(QWidget* parent) : QWidget(parent), field_(new QLineEdit) {
  auto* const row = new QHBoxLayout(this);
  row->setContentsMargins(10, 6, 10, 8);
  auto* const title = new QLabel(tr("Collected:"));
  title->setBuddy(field_);
  field_->setAccessibleName(tr("Collected characters"));
  QFont font = field_->font();
  font.setPointSizeF(font.pointSizeF() * 1.3);
  field_->setFont(font);
  keepEmojiColoured(*field_);
  auto* const copy = new QPushButton(symbolIcon(Symbol::copy), tr("Copy all"));
  QToolButton* const close = newIconButton(Symbol::close, tr("Empty the collection"));
  row->addWidget(title);
  row->addWidget(field_, 1);
  row->addWidget(copy);
  row->addWidget(close);
  const auto askForCopy = [this] {
    if (!text().isEmpty()) Q_EMIT copyRequested(text());
  };
  connect(copy, &QPushButton::clicked, this, askForCopy);
  connect(field_, &QLineEdit::returnPressed, this, askForCopy);
  connect(close, &QToolButton::clicked, this, &Collector::clear);
  hide();
}

void Collector::collect(const QString& text) {
  field_->insert(text);
  show();
}

QString Collector::text() const {
  return field_->text();
}

void Collector::clear() {
  field_->clear();
  hide();
  Q_EMIT left();
}

void Collector::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return QWidget::keyPressEvent(event);
  Q_EMIT left();
}

}  // namespace browser
