// SPDX-License-Identifier: MIT
#include "skin_tones.h"

#include <QMenu>

#include "character_texts.h"

namespace browser {

bool addSkinTones(QMenu& menu, const glyph::Entity& entity,
                  const std::function<void(glyph::SkinTone)>& choose) {
  const auto place = glyph::emojiPlace(entity.computed.symbol);
  if (!place || glyph::emojiVariants(*place).empty()) return false;
  const std::vector<std::string> languages = glyph::preferredLanguages();
  const std::string language = languages.empty() ? "en" : languages.front();
  // The titles of the entries are the names of these characters in CLDR, in the user's language: "medium skin
  // tone".
  constexpr std::string_view modifiers[] = {"", "🏻", "🏼", "🏽", "🏾", "🏿"};
  const std::string plain(glyph::emojiAt(glyph::emojiBase(*place)).text);
  for (const glyph::SkinTone tone : glyph::allSkinTones) {
    const std::string text = glyph::withSkinTone(plain, tone);
    const bool isPlain = tone == glyph::SkinTone::none;
    const std::string named(isPlain ? plain : modifiers[static_cast<std::size_t>(tone)]);
    menu.addAction(fromUtf8(text) + QStringLiteral("  ") +
                       fromUtf8(glyph::annotationOf(named, language).name).replace('&', QLatin1String("&&")),
                   &menu, [choose, tone] { choose(tone); });
  }
  return true;
}

}  // namespace browser
