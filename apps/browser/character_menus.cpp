// SPDX-License-Identifier: MIT
#include "character_menus.h"

#include <QCoreApplication>
#include <QMenu>

#include "character_texts.h"

namespace browser {

void addForms(QMenu& menu, const glyph::Entity& entity,
              const std::function<void(const glyph::CopyForm&)>& choose) {
  for (const glyph::CopyForm& form : glyph::copyForms()) {
    const auto text = form.text(entity);
    if (!text || form.identifier == "character") continue;
    const QString shown = fromUtf8(*text).left(28).replace(QLatin1Char('&'), QLatin1String("&&"));
    menu.addAction(formTitle(form) + QLatin1Char('\t') + shown, &menu, [choose, &form] { choose(form); });
  }
}

QString skinToneTitle(const std::string& plain, glyph::SkinTone tone) {
  const std::vector<std::string> languages = glyph::preferredLanguages();
  const std::string language = languages.empty() ? "en" : languages.front();
  // The titles are the names of these characters in CLDR, in the language of the user: "medium skin tone".
  constexpr std::string_view modifiers[] = {"", "🏻", "🏼", "🏽", "🏾", "🏿"};
  const bool isPlain = tone == glyph::SkinTone::none;
  const std::string named(isPlain ? plain : modifiers[static_cast<std::size_t>(tone)]);
  return fromUtf8(glyph::withSkinTone(plain, tone)) + QStringLiteral("  ") +
         fromUtf8(glyph::annotationOf(named, language).name);
}

bool addSkinTones(QMenu& menu, const glyph::Entity& entity,
                  const std::function<void(glyph::SkinTone)>& choose) {
  const auto place = glyph::emojiPlace(entity.computed.symbol);
  if (!place || glyph::emojiVariants(*place).empty()) return false;
  const std::string plain(glyph::emojiAt(glyph::emojiBase(*place)).text);
  for (const glyph::SkinTone tone : glyph::allSkinTones) {
    menu.addAction(skinToneTitle(plain, tone).replace('&', QLatin1String("&&")), &menu,
                   [choose, tone] { choose(tone); });
  }
  return true;
}

void addSkinToneMenu(QMenu& menu, const glyph::Entity& entity,
                     const std::function<void(glyph::SkinTone)>& choose) {
  auto* const tones = new QMenu(QCoreApplication::translate("CharacterMenu", "Skin tone"), &menu);
  if (addSkinTones(*tones, entity, choose)) {
    menu.addMenu(tones);
  } else {
    delete tones;
  }
}

}  // namespace browser
