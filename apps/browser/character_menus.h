// SPDX-License-Identifier: MIT
#pragma once

#include <glyphorium/glyphorium.h>

#include <QString>
#include <functional>

class QMenu;

namespace browser {

/// Adds a menu entry for each form of the character, except the character itself. `choose` is called with the
/// form that the user chooses. The forms are constants of the library.
void addForms(QMenu& menu, const glyph::Entity& entity,
              const std::function<void(const glyph::CopyForm&)>& choose);

/// Returns the emoji with this tone, and the name of the tone in the user's language. For no tone, returns
/// the emoji and its name. `plain` is the emoji without a tone, as UTF-8.
QString skinToneTitle(const std::string& plain, glyph::SkinTone tone);

/// Adds a menu entry for each skin tone that the emoji can have, and one for no tone. `choose` is called with
/// the tone of the entry that the user chooses. Returns false, and adds nothing, if the character has no
/// tones.
bool addSkinTones(QMenu& menu, const glyph::Entity& entity,
                  const std::function<void(glyph::SkinTone)>& choose);

/// Adds a submenu with these entries. Adds nothing if the character has no tones.
void addSkinToneMenu(QMenu& menu, const glyph::Entity& entity,
                     const std::function<void(glyph::SkinTone)>& choose);

}  // namespace browser
