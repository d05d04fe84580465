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
/// 2,553 sequences (flags, keycaps, families, skin tones). The functions identify an emoji by its index in
/// the order of Unicode's own lists, counted from 0 (`place`). All texts are constants of the library. Any
/// thread may call these functions.
namespace glyph {

struct Emoji {
  std::string_view text;      ///< UTF-8, with U+FE0F where the emoji needs it
  std::string_view kind;      ///< "single", "keycap", "flag", "tag", "modifier" (a skin tone) or "zwj"
  std::string_view version;   ///< the version of Unicode Emoji that introduced it: "0.6", "17.0"
  std::string_view group;     ///< "Smileys & Emotion"
  std::string_view subgroup;  ///< "face-smiling"
};

GLYPHORIUM_EXPORT std::size_t emojiCount() noexcept;

/// Returns the emoji at this index. If the index is out of range, returns an emoji whose texts are all empty.
GLYPHORIUM_EXPORT Emoji emojiAt(std::size_t place) noexcept;

/// Returns the index of the emoji that the UTF-8 text consists of. U+FE0F may be missing. Returns nullopt if
/// the text is not exactly one emoji.
GLYPHORIUM_EXPORT std::optional<std::size_t> emojiPlace(std::string_view text);

/// Returns the index of an emoji's base: the same emoji without skin tones. Returns `place` if the emoji has
/// no skin tones. The base of two hands with different tones is the handshake without tones.
GLYPHORIUM_EXPORT std::size_t emojiBase(std::size_t place) noexcept;

/// Returns the indexes of all variants of an emoji with skin tones. `place` may be the emoji without a tone
/// or one of its variants. Empty if there are no variants.
GLYPHORIUM_EXPORT std::vector<std::size_t> emojiVariants(std::size_t place);

/// Returns the variant of the emoji in which all people have this skin tone, or the emoji without a tone if
/// the tone is SkinTone::none. Returns the text unchanged if there is no such variant.
GLYPHORIUM_EXPORT std::string withSkinTone(std::string_view text, SkinTone tone);

}  // namespace glyph
