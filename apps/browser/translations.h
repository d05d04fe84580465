// SPDX-License-Identifier: MIT
#pragma once

#include <QTranslator>

namespace browser {

/// Translates the texts of the program, and those of Qt's own dialogs and menus, into the first of the user's
/// languages that the program has. Ends when it is destroyed. Needs a QCoreApplication.
class Translations {
 public:
  Translations();

 private:
  QTranslator program_;
  QTranslator qt_;
};

}  // namespace browser
