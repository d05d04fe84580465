// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace browser {

/// The symbols of buttons and menus. They are drawn in the text colour of the palette, so they suit light and
/// dark windows, and do not depend on an icon theme.
enum class Symbol {
  add,
  back,
  check,
  clear,
  close,
  copy,
  grid,
  info,
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

}  // namespace browser
