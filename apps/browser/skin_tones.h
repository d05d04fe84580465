// SPDX-License-Identifier: MIT
#pragma once

#include <glyphorium/glyphorium.h>

#include <functional>

class QMenu;

namespace browser {

/// Adds an entry for each skin tone that the emoji can have, and one for it without a tone. `choose` gets the
/// tone of the entry that the user takes. Returns false, and adds nothing, if the character has no tones.
bool addSkinTones(QMenu& menu, const glyph::Entity& entity,
                  const std::function<void(glyph::SkinTone)>& choose);

}  // namespace browser
