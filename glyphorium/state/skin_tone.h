// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// A skin tone of emoji, by the Fitzpatrick scale. With `none`, an emoji has its default yellow colour.
enum class SkinTone : std::uint8_t { none, light, mediumLight, medium, mediumDark, dark };

inline constexpr std::array allSkinTones{SkinTone::none,   SkinTone::light,      SkinTone::mediumLight,
                                         SkinTone::medium, SkinTone::mediumDark, SkinTone::dark};

/// Returns "none", "light", "medium-light", "medium", "medium-dark" or "dark".
GLYPHORIUM_EXPORT std::string_view skinToneName(SkinTone tone) noexcept;

/// Returns the tone with exactly this name, or nullopt if there is none.
GLYPHORIUM_EXPORT std::optional<SkinTone> skinToneNamed(std::string_view name) noexcept;

/// The key in settingsStore() for the preferred skin tone. The value is a text that skinToneName() returns.
inline constexpr std::string_view preferredSkinToneKey = "preferredSkinTone";

/// Returns the skin tone in which emoji of people and hands are shown and copied, unless the user chooses
/// another tone for one emoji. The default is `none`. Every call reads settingsStore().
GLYPHORIUM_EXPORT SkinTone preferredSkinTone();

/// Stores the choice. Returns false if the choice could not be stored.
GLYPHORIUM_EXPORT bool setPreferredSkinTone(SkinTone tone);

}  // namespace glyph
