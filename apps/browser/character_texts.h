// SPDX-License-Identifier: MIT
#pragma once

#include <glyphorium/glyphorium.h>

#include <QString>
#include <string>
#include <string_view>
#include <vector>

/// Functions that return the texts that windows show for a character.
namespace browser {

class Catalog;

inline QString fromUtf8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

/// The code points, separated by spaces: "U+2192".
QString codeText(const glyph::Entity& entity);

/// The name of the character, or a text that says that the character has no name.
QString nameText(const glyph::Entity& entity);

/// Whether the character has a name, rather than only a label such as "<reserved-0378>".
bool hasName(const glyph::Entity& entity);

/// The name of the character in the user's language. Empty if no such name is known, or if it equals
/// nameText().
QString localNameText(const glyph::Entity& entity);

/// The character, or a visible substitute if it is invisible.
QString shownText(const glyph::Entity& entity);

/// The characters with these hex codes, shortened if there are many.
QString shownTexts(const Catalog& catalog, const std::vector<std::string>& hexes);

/// The title of a group of emoji (glyph::Emoji::group) in the user's language.
QString emojiGroupTitle(std::string_view group);

/// Returns the name of a general category, such as "Lu", in the user's language.
QString categoryTitle(std::string_view category);

/// The title of a way to type a character (glyph::WayToType) in the user's language.
QString typingTitle(const glyph::WayToType& way);

/// The title of a form in which a character can be copied, in the user's language: "HTML name".
QString formTitle(const glyph::CopyForm& form);

}  // namespace browser
