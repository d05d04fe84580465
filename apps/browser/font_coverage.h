// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <memory>
#include <string>
#include <vector>

namespace browser {

/// The kind of font in which a character is shown.
enum class FontClass { sans, serif, emoji };

/// Finds the installed fonts that have glyphs for a text, with the help of fontconfig's tables. Without it,
/// Qt would open one font after another until a font has the glyphs. This takes seconds if many fonts are
/// installed. Not thread-safe.
class FontCoverage {
 public:
  /// `preferred` is the family that is tried before all others; it may be empty. `languages` are BCP 47 tags.
  /// They decide between the national forms of Han characters.
  FontCoverage(const QString& preferred, const QStringList& languages);
  ~FontCoverage();
  FontCoverage(const FontCoverage&) = delete;
  FontCoverage& operator=(const FontCoverage&) = delete;

  /// Returns at most `limit` families that have a glyph for each code point except joiners and variation
  /// selectors. The best family comes first. Empty if there is no such family.
  QStringList families(const std::u32string& codePoints, FontClass fontClass, int limit = 4) const;

 private:
  struct Fonts;
  const Fonts& fonts(FontClass fontClass) const;

  QString preferred_;
  QStringList languages_;
  mutable std::unique_ptr<Fonts> classes_[3];  // made on first use
};

/// Returns the family that the desktop uses for coloured emoji, or an empty text if there is none.
QString emojiFamily();

/// Returns the name of the Debian package whose fonts have a glyph for the code point. Empty for a
/// private-use code point, because there is no common font for it.
QString fontPackage(char32_t codePoint);

}  // namespace browser
