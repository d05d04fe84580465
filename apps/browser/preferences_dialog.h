// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>

class QFormLayout;

namespace browser {

class Appearance;
class Catalog;
class GlobalShortcut;

/// A dialog for the user's choices about windows, the picker and the desktop's search. A choice takes effect
/// at once.
class PreferencesDialog : public QDialog {
  Q_OBJECT

 public:
  PreferencesDialog(Catalog& catalog, Appearance& appearance, GlobalShortcut& shortcut, QWidget* parent);

 private:
  QWidget* makeGeneralPage(Catalog& catalog, Appearance& appearance);
  QWidget* makePickerPage(GlobalShortcut& shortcut);
  QWidget* makeSearchPage();
};

}  // namespace browser
