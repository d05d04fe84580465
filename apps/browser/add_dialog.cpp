// SPDX-License-Identifier: MIT
#include "add_dialog.h"

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "catalog.h"
#include "character_card.h"
#include "character_texts.h"
#include "emoji_font.h"

namespace browser {
namespace {

// Returns the characters that a text names. If the text names no character, returns the characters of the
// text itself.
std::vector<glyph::Entity> charactersOf(const std::string& text) {
  if (glyph::emojiPlace(text)) return {glyph::supplementEntity(text)};
  std::vector<glyph::Entity> entities;
  const glyph::ResolvedText resolved = glyph::resolve(text);
  for (const glyph::Character& character : resolved.characters) {
    entities.push_back(glyph::withSupplementName(character.front()));
    if (resolved.alternatives) break;
  }
  if (!entities.empty()) return entities;
  for (const char32_t codePoint : glyph::codePoints(text)) {
    // A text with ASCII letters or digits is probably a misspelt name, so its characters are not meant.
    if (codePoint < 0x80 && glyph::isAlphanumeric(codePoint)) return {};
    if (codePoint != ' ') entities.push_back(glyph::supplementEntity(glyph::utf8(codePoint)));
  }
  return entities;
}

}  // namespace

NamedCharacters namedCharacters(const Catalog& catalog, const QString& text) {
  const QString trimmed = text.trimmed();
  if (text.isEmpty())
    return {{}, AddDialog::tr("For example 21D0, U+21D0, &lArr;, a name or the character itself")};
  const std::vector<glyph::Entity> entities =
      charactersOf((trimmed.isEmpty() ? text : trimmed).toStdString());
  if (entities.empty()) return {{}, AddDialog::tr("“%1” is no code, name or character.").arg(trimmed)};
  NamedCharacters named;
  for (const glyph::Entity& entity : entities) {
    if (!hasName(entity)) {
      return {{}, AddDialog::tr("%1 is not assigned to a character in Unicode 17.0.").arg(codeText(entity))};
    }
    const std::string hex = entity.computed.hex;
    if (catalog.isAdded(hex)) {
      return {{}, AddDialog::tr("You have already added %1 (%2).").arg(shownText(entity), nameText(entity))};
    }
    named.hexes.push_back(hex);
  }
  named.message = entities.size() == 1
                      ? nameText(entities.front()) + QLatin1Char('\n') + codeText(entities.front())
                      : AddDialog::tr("%Ln characters: %1", nullptr, static_cast<int>(entities.size()))
                            .arg(shownTexts(catalog, named.hexes));
  return named;
}

AddDialog::AddDialog(Catalog& catalog, QWidget* parent)
    : QDialog(parent),
      catalog_(catalog),
      field_(new QLineEdit),
      glyph_(new LargeGlyph),
      message_(new QLabel) {
  setWindowTitle(tr("Add a character"));
  auto* const column = new QVBoxLayout(this);
  auto* const title = new QLabel(tr("&Code, name or character:"));
  title->setBuddy(field_);
  message_->setWordWrap(true);
  message_->setMinimumHeight(3 * message_->fontMetrics().height());
  message_->setAlignment(Qt::AlignTop | Qt::AlignLeading);
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Cancel);
  add_ = buttons->addButton(tr("Add"), QDialogButtonBox::AcceptRole);
  add_->setDefault(true);
  for (QWidget* const widget :
       {static_cast<QWidget*>(title), static_cast<QWidget*>(field_), static_cast<QWidget*>(glyph_),
        static_cast<QWidget*>(message_), static_cast<QWidget*>(buttons)}) {
    column->addWidget(widget);
  }
  setMinimumWidth(360);
  keepEmojiColoured(*field_);
  connect(field_, &QLineEdit::textChanged, this, &AddDialog::preview);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  preview({});
}

void AddDialog::preview(const QString& text) {
  const NamedCharacters named = namedCharacters(catalog_, text);
  hexes_ = named.hexes;
  message_->setFont(withEmojiFont(font(), named.message));
  message_->setText(named.message);
  add_->setEnabled(!hexes_.empty());
  hexes_.empty() ? glyph_->clear() : glyph_->setCharacter(catalog_.entity(hexes_.front()));
}

}  // namespace browser
