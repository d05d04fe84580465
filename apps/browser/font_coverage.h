// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <memory>
#include <string>
#include <vector>

namespace browser {

/// The class of fonts that suits a character.
enum class FontClass { sans, serif, emoji };

/// Finds installed fonts that draw a text, by the coverage tables of fontconfig. Qt would open one font after
/// another until one draws the text, which takes seconds where many fonts are installed. Not thread-safe.
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

/// Returns the Debian package whose fonts draw the code point, or an empty text for private-use code points,
/// which have no common font.
QString fontPackage(char32_t codePoint);

}  // namespace browser
