// SPDX-License-Identifier: MIT
#include "icons.h"

#include <QAction>
#include <QGuiApplication>
#include <QIconEngine>
#include <QLineEdit>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>
#include <QToolButton>

namespace browser {
namespace {

// Returns the shape as SVG elements in a square of 16 by 16. Lines are drawn in the current colour.
const char* shape(Symbol symbol) {
  switch (symbol) {
    case Symbol::add:
      return "<path d='M8 3v10M3 8h10'/>";
    case Symbol::back:
      return "<path d='M10 3L5 8l5 5'/>";
    case Symbol::check:
      return "<path d='M3 8.5l3.5 3.5L13 4.5'/>";
    case Symbol::close:
      return "<path d='M4 4l8 8M12 4l-8 8'/>";
    case Symbol::copy:
      return "<rect x='5.5' y='5.5' width='8' height='8' rx='1.5'/>"
             "<path d='M3.5 10.5h-.5a.5.5 0 0 1-.5-.5V3a.5.5 0 0 1 .5-.5h7a.5.5 0 0 1 .5.5v.5'/>";
    case Symbol::grid:
      return "<rect x='2.5' y='2.5' width='4.5' height='4.5' rx='1'/><rect x='9' y='2.5' width='4.5' "
             "height='4.5' rx='1'/><rect x='2.5' y='9' width='4.5' height='4.5' rx='1'/><rect x='9' y='9' "
             "width='4.5' height='4.5' rx='1'/>";
    case Symbol::menu:
      return "<path d='M2.5 4.5h11M2.5 8h11M2.5 11.5h11'/>";
    case Symbol::recent:
      return "<circle cx='8' cy='8' r='5.8'/><path d='M8 4.5V8l2.5 1.5'/>";
    case Symbol::remove:
      return "<path d='M3 8h10'/>";
    case Symbol::search:
      return "<circle cx='7' cy='7' r='4.3'/><path d='M10.3 10.3L14 14'/>";
    case Symbol::sidebar:
      return "<rect x='2' y='3' width='12' height='10' rx='1.5'/><path d='M6.5 3v10'/>";
    case Symbol::star:
    case Symbol::starFilled:
      return "<path d='M8 2l1.85 3.8 4.15.6-3 2.9.7 4.15L8 11.5l-3.7 1.95.7-4.15-3-2.9 4.15-.6z'/>";
    case Symbol::collect:
      return "<path d='M2.5 9.5v3a1 1 0 0 0 1 1h9a1 1 0 0 0 1-1v-3M8 2.5v7M5 6.8l3 3 3-3'/>";
  }
  return "";
}

class SymbolEngine : public QIconEngine {
 public:
  explicit SymbolEngine(Symbol symbol) : symbol_(symbol) {}

  void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State) override {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
    const bool isFilled = symbol_ == Symbol::starFilled;
    const QString colour =
        isFilled ? QStringLiteral("#e5a50a") : QGuiApplication::palette().color(group, role).name();
    const QString image =
        QStringLiteral(
            "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 16 16'><g fill='%1' stroke='%2' "
            "stroke-width='1.3' "
            "stroke-linecap='round' stroke-linejoin='round'>%3</g></svg>")
            .arg(isFilled ? colour : QStringLiteral("none"), colour, QLatin1String(shape(symbol_)));
    QSvgRenderer(image.toUtf8()).render(painter, area);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, picture.rect(), mode, state);
    return picture;
  }
  QIconEngine* clone() const override { return new SymbolEngine(symbol_); }

 private:
  Symbol symbol_;
};

}  // namespace

QIcon symbolIcon(Symbol symbol) {
  return QIcon(new SymbolEngine(symbol));
}

QToolButton* newIconButton(Symbol symbol, const QString& name) {
  auto* const button = new QToolButton;
  button->setIcon(symbolIcon(symbol));
  button->setAutoRaise(true);
  button->setToolTip(name);
  button->setAccessibleName(name);
  return button;
}

void addSearchIcon(QLineEdit& field, const QString& searchName, const QString& clearName) {
  field.setClearButtonEnabled(true);
  field.addAction(symbolIcon(Symbol::search), QLineEdit::LeadingPosition)->setText(searchName);
  // Qt's button for clearing the field has no name for assistive technology. Give it one.
  for (QAction* const action : field.findChildren<QAction*>()) {
    if (action->text().isEmpty()) action->setText(clearName);
  }
}

}  // namespace browser
