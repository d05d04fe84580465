// SPDX-License-Identifier: MIT
#pragma once

#include <glyphorium/glyphorium.h>

#include <functional>

class QMenu;

namespace browser {

/// Adds a menu entry for each skin tone that the emoji can have, and one for no tone. `choose` is called with
/// the tone of the entry that the user chooses. Returns false, and adds nothing, if the character has no
/// tones.
bool addSkinTones(QMenu& menu, const glyph::Entity& entity,
                  const std::function<void(glyph::SkinTone)>& choose);

}  // namespace browser
