// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>

/// The user's choices about the windows, kept in glyph::settingsStore().
namespace browser::preferences {

/// The form that Alt+Enter copies: an identifier of glyph::copyForms(). The default is "html".
std::string otherForm();
void setOtherForm(const std::string& identifier);

/// The font family in which characters are shown if it has glyphs for them. If the text is empty, the program
/// chooses the family.
QString glyphFamily();
void setGlyphFamily(const QString& family);

/// Whether the picker also types the copied text into the window that had the focus before. True by default.
bool pickerTypes();
void setPickerTypes(bool types);

/// Whether the desktop opens the picker with a key: see GlobalShortcut. False by default.
bool hasPickerKey();
void setHasPickerKey(bool has);

/// Whether the program has already told the user that the picker cannot type on this desktop.
bool wasTypingExplained();
void setTypingExplained();

/// Whether the program starts with the desktop, in the background. Stored as an entry in the user's autostart
/// folder.
bool startsWithDesktop();
/// Creates or removes the autostart entry. Returns false if this fails.
bool setStartsWithDesktop(bool starts);

}  // namespace browser::preferences
