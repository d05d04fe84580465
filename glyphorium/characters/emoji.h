// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/export.h"
#include "glyphorium/state/skin_tone.h"

/// The 3,953 emoji that Unicode Emoji 17.0 recommends for general interchange: 1,400 single characters and
/// 2,553 sequences (flags, keycaps, families, skin tones). Each has a place in the order of Unicode's own
/// lists, which starts at 0. All texts are constants of the library. Any thread may call these functions.
namespace glyph {

struct Emoji {
  std::string_view text;      ///< UTF-8, with U+FE0F where the emoji needs it
  std::string_view kind;      ///< "single", "keycap", "flag", "tag", "modifier" (a skin tone) or "zwj"
  std::string_view version;   ///< of Unicode Emoji, in which it came: "0.6", "17.0"
  std::string_view group;     ///< "Smileys & Emotion"
  std::string_view subgroup;  ///< "face-smiling"
};

GLYPHORIUM_EXPORT std::size_t emojiCount() noexcept;

/// Returns the emoji at this place. All its texts are empty if the place is too large.
GLYPHORIUM_EXPORT Emoji emojiAt(std::size_t place) noexcept;

/// Returns the place of the emoji that the UTF-8 text consists of, with U+FE0F or without. Returns nullopt if
/// the text is no emoji or more than one.
GLYPHORIUM_EXPORT std::optional<std::size_t> emojiPlace(std::string_view text);

/// Returns the place of the emoji without skin tones that this one is a variant of; the place itself if it is
/// none. The handshake without tones stands for the two hands with different tones.
GLYPHORIUM_EXPORT std::size_t emojiBase(std::size_t place) noexcept;

/// Returns the places of the emoji's variants with skin tones, which are those of its base. Empty if there
/// are none.
GLYPHORIUM_EXPORT std::vector<std::size_t> emojiVariants(std::size_t place);

/// Returns the emoji with this tone for all its people, or without tones. A text that has no such variant is
/// returned unchanged.
GLYPHORIUM_EXPORT std::string withSkinTone(std::string_view text, SkinTone tone);

}  // namespace glyph
