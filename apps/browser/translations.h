// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

namespace browser {

/// Translates the texts of the program and of Qt's own dialogs and menus, into the first of the user's
/// languages that the program supports. The destructor ends the translation. Needs a QCoreApplication.
class Translations {
 public:
  Translations();

 private:
  QTranslator program_;
  QTranslator qt_;
};

}  // namespace browser
