// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

class QLineEdit;
class QToolButton;

namespace browser {

/// The symbols of buttons and menus. They are drawn in the text colour of the palette, so they suit light and
/// dark windows. No icon theme is needed.
enum class Symbol {
  add,
  back,
  check,
  close,
  copy,
  grid,
  menu,
  recent,
  remove,
  search,
  sidebar,
  star,
  starFilled,
  collect
};

QIcon symbolIcon(Symbol symbol);

/// Returns a new flat button with this symbol. `name` is the tooltip of the button and its name for assistive
/// technology.
QToolButton* newIconButton(Symbol symbol, const QString& name);

/// Adds a magnifying glass and a button that clears the text to a search field. The names are for assistive
/// technology.
void addSearchIcon(QLineEdit& field, const QString& searchName, const QString& clearName);

}  // namespace browser
