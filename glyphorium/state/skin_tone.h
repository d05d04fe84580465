// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// A skin tone of emoji, by the Fitzpatrick scale. `none` means the yellow of emoji without a tone.
enum class SkinTone : std::uint8_t { none, light, mediumLight, medium, mediumDark, dark };

inline constexpr std::array allSkinTones{SkinTone::none,   SkinTone::light,      SkinTone::mediumLight,
                                         SkinTone::medium, SkinTone::mediumDark, SkinTone::dark};

/// Returns "none", "light", "medium-light", "medium", "medium-dark" or "dark".
GLYPHORIUM_EXPORT std::string_view skinToneName(SkinTone tone) noexcept;

/// Returns the tone with exactly this name, or nullopt if there is none.
GLYPHORIUM_EXPORT std::optional<SkinTone> skinToneNamed(std::string_view name) noexcept;

/// The key of this setting in settingsStore(). The value is a result of skinToneName().
inline constexpr std::string_view preferredSkinToneKey = "preferredSkinTone";

/// Returns the skin tone for emoji of people and hands, which is used unless the user chooses another tone.
/// The default is `none`. Every call reads settingsStore().
GLYPHORIUM_EXPORT SkinTone preferredSkinTone();

/// Stores the choice. Returns false if the choice could not be stored.
GLYPHORIUM_EXPORT bool setPreferredSkinTone(SkinTone tone);

}  // namespace glyph
