// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>

/// The user's choices about the windows, kept in glyph::settingsStore().
namespace browser::preferences {

/// The form that Alt+Enter copies: an identifier of glyph::copyForms(), at first "html".
std::string otherForm();
void setOtherForm(const std::string& identifier);

/// The font family that is tried first for glyphs. If it is empty, the program chooses.
QString glyphFamily();
void setGlyphFamily(const QString& family);

/// Whether the picker also types the copied text into the window that had the focus before. True by default.
bool pickerTypes();
void setPickerTypes(bool types);

/// Whether the user was told that the picker cannot type on this desktop.
bool wasTypingExplained();
void setTypingExplained();

/// Whether the program starts with the desktop, in the background. Stored as an entry in the user's autostart
/// folder.
bool startsWithDesktop();
/// Returns false if the entry could not be written.
bool setStartsWithDesktop(bool starts);

}  // namespace browser::preferences
