// SPDX-License-Identifier: MIT
#include "font_coverage.h"

#include <fontconfig/fontconfig.h>

#include <algorithm>

namespace browser {
namespace {

// Returns true for joiners and variation selectors. A font needs no glyphs for them, because they only change
// or join other glyphs.
bool isModifier(char32_t codePoint) {
  return codePoint == 0x200D || codePoint == 0x200C || (codePoint >= 0xFE00 && codePoint <= 0xFE0F) ||
         (codePoint >= 0xE0000 && codePoint <= 0xE01EF);
}

const FcChar8* bytes(const char* text) {
  return reinterpret_cast<const FcChar8*>(text);
}

}  // namespace

struct FontCoverage::Fonts {
  FcFontSet* sorted = nullptr;

  explicit Fonts(FcFontSet* set) : sorted(set) {}
  ~Fonts() {
    if (sorted) FcFontSetDestroy(sorted);
  }
};

FontCoverage::FontCoverage(const QString& preferred, const QStringList& languages)
    : preferred_(preferred), languages_(languages) {}

FontCoverage::~FontCoverage() = default;

const FontCoverage::Fonts& FontCoverage::fonts(FontClass fontClass) const {
  std::unique_ptr<Fonts>& made = classes_[static_cast<int>(fontClass)];
  if (made) return *made;
  FcPattern* const pattern = FcPatternCreate();
  const auto add = [&](const char* object, const QByteArray& value) {
    FcPatternAddString(pattern, object, bytes(value.constData()));
  };
  if (!preferred_.isEmpty() && fontClass == FontClass::sans) add(FC_FAMILY, preferred_.toUtf8());
  const char* const generic[] = {"sans-serif", "serif", "emoji"};
  add(FC_FAMILY, generic[static_cast<int>(fontClass)]);
  for (const QString& language : languages_) add(FC_LANG, language.toUtf8());
  FcConfigSubstitute(nullptr, pattern, FcMatchPattern);
  FcDefaultSubstitute(pattern);
  FcResult result = FcResultMatch;
  // FcTrue leaves out a font if the fonts before it already have all its code points.
  made = std::make_unique<Fonts>(FcFontSort(nullptr, pattern, FcTrue, nullptr, &result));
  FcPatternDestroy(pattern);
  return *made;
}

QStringList FontCoverage::families(const std::u32string& codePoints, FontClass fontClass, int limit) const {
  QStringList fitting, coloured;
  const FcFontSet* const set = fonts(fontClass).sorted;
  for (int i = 0; set && i < set->nfont; ++i) {
    FcPattern* const font = set->fonts[i];
    FcCharSet* covered = nullptr;
    if (FcPatternGetCharSet(font, FC_CHARSET, 0, &covered) != FcResultMatch) continue;
    const bool covers = std::all_of(codePoints.begin(), codePoints.end(), [&](char32_t codePoint) {
      return isModifier(codePoint) || FcCharSetHasChar(covered, codePoint);
    });
    FcBool isScalable = FcTrue, isColoured = FcFalse;
    FcPatternGetBool(font, FC_SCALABLE, 0, &isScalable);
    FcPatternGetBool(font, FC_COLOR, 0, &isColoured);
    FcChar8* name = nullptr;
    if (!covers || (!isScalable && !isColoured) ||
        FcPatternGetString(font, FC_FAMILY, 0, &name) != FcResultMatch) {
      continue;
    }
    const QString family = QString::fromUtf8(reinterpret_cast<const char*>(name));
    QStringList& list = isColoured ? coloured : fitting;
    if (!list.contains(family)) list.append(family);
  }
  // Prefer coloured fonts for emoji only. Emoji fonts also have glyphs for digits, which should not be
  // coloured.
  const QStringList all = fontClass == FontClass::emoji ? coloured + fitting : fitting + coloured;
  return all.mid(0, limit);
}

QString emojiFamily() {
  FcPattern* const pattern = FcPatternCreate();
  FcPatternAddString(pattern, FC_FAMILY, bytes("emoji"));
  FcConfigSubstitute(nullptr, pattern, FcMatchPattern);
  FcDefaultSubstitute(pattern);
  FcResult result = FcResultMatch;
  FcPattern* const font = FcFontMatch(nullptr, pattern, &result);
  FcPatternDestroy(pattern);
  FcChar8* name = nullptr;
  FcBool isColoured = FcFalse;
  QString family;
  if (font && FcPatternGetBool(font, FC_COLOR, 0, &isColoured) == FcResultMatch && isColoured &&
      FcPatternGetString(font, FC_FAMILY, 0, &name) == FcResultMatch) {
    family = QString::fromUtf8(reinterpret_cast<const char*>(name));
  }
  if (font) FcPatternDestroy(font);
  return family;
}

QString fontPackage(char32_t codePoint) {
  const auto within = [codePoint](char32_t first, char32_t last) {
    return codePoint >= first && codePoint <= last;
  };
  if (within(0xE000, 0xF8FF) || codePoint >= 0xF0000) return {};
  if (within(0x1F000, 0x1FAFF)) return QStringLiteral("fonts-noto-color-emoji");
  if (within(0x2E80, 0xA4CF) || within(0xAC00, 0xD7FF) || within(0xF900, 0xFAFF) || within(0xFE30, 0xFE4F) ||
      within(0xFF00, 0xFFEF) || within(0x20000, 0x3FFFF)) {
    return QStringLiteral("fonts-noto-cjk");
  }
  return QStringLiteral("fonts-noto-core");
}

}  // namespace browser
