// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <string>
#include <vector>

class QLabel;
class QLineEdit;
class QPushButton;

namespace browser {

class Catalog;
class LargeGlyph;

/// The characters that the user has entered in the dialog.
struct NamedCharacters {
  std::vector<std::string> hexes;  ///< empty if the text names nothing that can be added
  QString message;                 ///< the name of the character, or why nothing can be added
};

/// Reads a text that the user has entered: codes, a name, an HTML reference or the characters themselves.
NamedCharacters namedCharacters(const Catalog& catalog, const QString& text);

/// Asks the user for characters to add, and shows a preview of them.
class AddDialog : public QDialog {
  Q_OBJECT

 public:
  AddDialog(Catalog& catalog, QWidget* parent);

  /// The hex codes of the characters that the user chose.
  const std::vector<std::string>& hexes() const { return hexes_; }

 private:
  void preview(const QString& text);

  Catalog& catalog_;
  QLineEdit* field_;
  LargeGlyph* glyph_;
  QLabel* message_;
  QPushButton* add_;
  std::vector<std::string> hexes_;
};

}  // namespace browser
