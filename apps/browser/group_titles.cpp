// SPDX-License-Identifier: MIT
#include "group_titles.h"

#include <QCoreApplication>

#include "character_texts.h"

namespace browser {
namespace {

struct GroupTitle {
  std::string_view group;
  const char* title;
};

constexpr GroupTitle titles[] = {
    {"SF Symbols", QT_TRANSLATE_NOOP("GroupTitle", "SF Symbols")},
    {"aegean numbers", QT_TRANSLATE_NOOP("GroupTitle", "Aegean Numbers")},
    {"alphabetic presentation forms", QT_TRANSLATE_NOOP("GroupTitle", "Alphabetic Presentation Forms")},
    {"arabic", QT_TRANSLATE_NOOP("GroupTitle", "Arabic")},
    {"arabic presentation forms a", QT_TRANSLATE_NOOP("GroupTitle", "Arabic Presentation Forms A")},
    {"arabic presentation forms b", QT_TRANSLATE_NOOP("GroupTitle", "Arabic Presentation Forms B")},
    {"armenian", QT_TRANSLATE_NOOP("GroupTitle", "Armenian")},
    {"arrows", QT_TRANSLATE_NOOP("GroupTitle", "Arrows")},
    {"bengali", QT_TRANSLATE_NOOP("GroupTitle", "Bengali")},
    {"block elements", QT_TRANSLATE_NOOP("GroupTitle", "Block Elements")},
    {"bopomofo", QT_TRANSLATE_NOOP("GroupTitle", "Bopomofo")},
    {"bopomofo extended", QT_TRANSLATE_NOOP("GroupTitle", "Bopomofo Extended")},
    {"box drawing", QT_TRANSLATE_NOOP("GroupTitle", "Box Drawing")},
    {"braille patterns", QT_TRANSLATE_NOOP("GroupTitle", "Braille Patterns")},
    {"buhid", QT_TRANSLATE_NOOP("GroupTitle", "Buhid")},
    {"cherokee", QT_TRANSLATE_NOOP("GroupTitle", "Cherokee")},
    {"cjk compatibility", QT_TRANSLATE_NOOP("GroupTitle", "CJK Compatibility")},
    {"cjk compatibility forms", QT_TRANSLATE_NOOP("GroupTitle", "CJK Compatibility Forms")},
    {"cjk compatibility ideographs", QT_TRANSLATE_NOOP("GroupTitle", "CJK Compatibility Ideographs")},
    {"cjk radicals supplement", QT_TRANSLATE_NOOP("GroupTitle", "CJK Radicals Supplement")},
    {"cjk symbols & punctuation", QT_TRANSLATE_NOOP("GroupTitle", "CJK Symbols and Punctuation")},
    {"combining diacritical marks", QT_TRANSLATE_NOOP("GroupTitle", "Combining Diacritical Marks")},
    {"combining diacritical marks for symbols",
     QT_TRANSLATE_NOOP("GroupTitle", "Combining Diacritical Marks for Symbols")},
    {"control pictures", QT_TRANSLATE_NOOP("GroupTitle", "Control Pictures")},
    {"currency symbols", QT_TRANSLATE_NOOP("GroupTitle", "Currency Symbols")},
    {"custom", QT_TRANSLATE_NOOP("GroupTitle", "Your own characters")},
    {"cypriot syllabary", QT_TRANSLATE_NOOP("GroupTitle", "Cypriot Syllabary")},
    {"cyrillic", QT_TRANSLATE_NOOP("GroupTitle", "Cyrillic")},
    {"cyrillic supplementary", QT_TRANSLATE_NOOP("GroupTitle", "Cyrillic Supplementary")},
    {"deseret", QT_TRANSLATE_NOOP("GroupTitle", "Deseret")},
    {"design inspiration", QT_TRANSLATE_NOOP("GroupTitle", "Design Inspiration")},
    {"devanagari", QT_TRANSLATE_NOOP("GroupTitle", "Devanagari")},
    {"digital typography (latin)", QT_TRANSLATE_NOOP("GroupTitle", "Digital Typography (Latin)")},
    {"dingbats", QT_TRANSLATE_NOOP("GroupTitle", "Dingbats")},
    {"emoji", QT_TRANSLATE_NOOP("GroupTitle", "Emoji")},
    {"enclosed alphanumerics", QT_TRANSLATE_NOOP("GroupTitle", "Enclosed Alphanumerics")},
    {"enclosed cjk letters & months", QT_TRANSLATE_NOOP("GroupTitle", "Enclosed CJK Letters and Months")},
    {"ethiopic", QT_TRANSLATE_NOOP("GroupTitle", "Ethiopic")},
    {"geometric shapes", QT_TRANSLATE_NOOP("GroupTitle", "Geometric Shapes")},
    {"georgian", QT_TRANSLATE_NOOP("GroupTitle", "Georgian")},
    {"gothic", QT_TRANSLATE_NOOP("GroupTitle", "Gothic")},
    {"greek & coptic", QT_TRANSLATE_NOOP("GroupTitle", "Greek and Coptic")},
    {"greek extended", QT_TRANSLATE_NOOP("GroupTitle", "Greek Extended")},
    {"gujarati", QT_TRANSLATE_NOOP("GroupTitle", "Gujarati")},
    {"gurmukhi", QT_TRANSLATE_NOOP("GroupTitle", "Gurmukhi")},
    {"halfwidth & fullwidth forms", QT_TRANSLATE_NOOP("GroupTitle", "Halfwidth and Fullwidth Forms")},
    {"hangul compatibility jamo", QT_TRANSLATE_NOOP("GroupTitle", "Hangul Compatibility Jamo")},
    {"hangul jamo", QT_TRANSLATE_NOOP("GroupTitle", "Hangul Jamo")},
    {"hanunoo", QT_TRANSLATE_NOOP("GroupTitle", "Hanunoo")},
    {"hebrew", QT_TRANSLATE_NOOP("GroupTitle", "Hebrew")},
    {"hiragana", QT_TRANSLATE_NOOP("GroupTitle", "Hiragana")},
    {"ideographic description characters",
     QT_TRANSLATE_NOOP("GroupTitle", "Ideographic Description Characters")},
    {"ipa extentions", QT_TRANSLATE_NOOP("GroupTitle", "IPA Extensions")},
    {"kanbun", QT_TRANSLATE_NOOP("GroupTitle", "Kanbun")},
    {"kangxi radicals", QT_TRANSLATE_NOOP("GroupTitle", "Kangxi Radicals")},
    {"kannada", QT_TRANSLATE_NOOP("GroupTitle", "Kannada")},
    {"katakana", QT_TRANSLATE_NOOP("GroupTitle", "Katakana")},
    {"katakana phonetic extensions", QT_TRANSLATE_NOOP("GroupTitle", "Katakana Phonetic Extensions")},
    {"khmer", QT_TRANSLATE_NOOP("GroupTitle", "Khmer")},
    {"khmer symbols", QT_TRANSLATE_NOOP("GroupTitle", "Khmer Symbols")},
    {"lao", QT_TRANSLATE_NOOP("GroupTitle", "Lao")},
    {"latin basic", QT_TRANSLATE_NOOP("GroupTitle", "Basic Latin")},
    {"latin extended a", QT_TRANSLATE_NOOP("GroupTitle", "Latin Extended A")},
    {"latin extended additional", QT_TRANSLATE_NOOP("GroupTitle", "Latin Extended Additional")},
    {"latin extended b", QT_TRANSLATE_NOOP("GroupTitle", "Latin Extended B")},
    {"latin supplement", QT_TRANSLATE_NOOP("GroupTitle", "Latin Supplement")},
    {"letterlike symbols", QT_TRANSLATE_NOOP("GroupTitle", "Letterlike Symbols")},
    {"limbu", QT_TRANSLATE_NOOP("GroupTitle", "Limbu")},
    {"linear b ideograms", QT_TRANSLATE_NOOP("GroupTitle", "Linear B Ideograms")},
    {"linear b syllabary", QT_TRANSLATE_NOOP("GroupTitle", "Linear B Syllabary")},
    {"malayalam", QT_TRANSLATE_NOOP("GroupTitle", "Malayalam")},
    {"math alphanumeric symbols", QT_TRANSLATE_NOOP("GroupTitle", "Mathematical Alphanumeric Symbols")},
    {"math operators", QT_TRANSLATE_NOOP("GroupTitle", "Mathematical Operators")},
    {"misc math symbols a", QT_TRANSLATE_NOOP("GroupTitle", "Miscellaneous Mathematical Symbols A")},
    {"misc math symbols b", QT_TRANSLATE_NOOP("GroupTitle", "Miscellaneous Mathematical Symbols B")},
    {"misc symbols", QT_TRANSLATE_NOOP("GroupTitle", "Miscellaneous Symbols")},
    {"misc symbols & arrows", QT_TRANSLATE_NOOP("GroupTitle", "Miscellaneous Symbols and Arrows")},
    {"misc technical", QT_TRANSLATE_NOOP("GroupTitle", "Miscellaneous Technical")},
    {"mongolian", QT_TRANSLATE_NOOP("GroupTitle", "Mongolian")},
    {"musical symbols", QT_TRANSLATE_NOOP("GroupTitle", "Musical Symbols")},
    {"myanmar", QT_TRANSLATE_NOOP("GroupTitle", "Myanmar")},
    {"number forms", QT_TRANSLATE_NOOP("GroupTitle", "Number Forms")},
    {"ogham", QT_TRANSLATE_NOOP("GroupTitle", "Ogham")},
    {"old italic", QT_TRANSLATE_NOOP("GroupTitle", "Old Italic")},
    {"optical character recognition", QT_TRANSLATE_NOOP("GroupTitle", "Optical Character Recognition")},
    {"oriya", QT_TRANSLATE_NOOP("GroupTitle", "Oriya")},
    {"osmanya", QT_TRANSLATE_NOOP("GroupTitle", "Osmanya")},
    {"phonetic extensions", QT_TRANSLATE_NOOP("GroupTitle", "Phonetic Extensions")},
    {"punctuation", QT_TRANSLATE_NOOP("GroupTitle", "Punctuation")},
    {"runic", QT_TRANSLATE_NOOP("GroupTitle", "Runic")},
    {"shavian", QT_TRANSLATE_NOOP("GroupTitle", "Shavian")},
    {"sinhala", QT_TRANSLATE_NOOP("GroupTitle", "Sinhala")},
    {"small form variants", QT_TRANSLATE_NOOP("GroupTitle", "Small Form Variants")},
    {"spacing modifier letters", QT_TRANSLATE_NOOP("GroupTitle", "Spacing Modifier Letters")},
    {"superscripts & subscripts", QT_TRANSLATE_NOOP("GroupTitle", "Superscripts and Subscripts")},
    {"supplemental arrows a", QT_TRANSLATE_NOOP("GroupTitle", "Supplemental Arrows A")},
    {"supplemental arrows b", QT_TRANSLATE_NOOP("GroupTitle", "Supplemental Arrows B")},
    {"supplemental math operators", QT_TRANSLATE_NOOP("GroupTitle", "Supplemental Mathematical Operators")},
    {"syriac", QT_TRANSLATE_NOOP("GroupTitle", "Syriac")},
    {"tagalog", QT_TRANSLATE_NOOP("GroupTitle", "Tagalog")},
    {"tagbanwa", QT_TRANSLATE_NOOP("GroupTitle", "Tagbanwa")},
    {"tai le", QT_TRANSLATE_NOOP("GroupTitle", "Tai Le")},
    {"tai xuan jing symbols", QT_TRANSLATE_NOOP("GroupTitle", "Tai Xuan Jing Symbols")},
    {"tamil", QT_TRANSLATE_NOOP("GroupTitle", "Tamil")},
    {"telugu", QT_TRANSLATE_NOOP("GroupTitle", "Telugu")},
    {"thaana", QT_TRANSLATE_NOOP("GroupTitle", "Thaana")},
    {"thai", QT_TRANSLATE_NOOP("GroupTitle", "Thai")},
    {"tibetan", QT_TRANSLATE_NOOP("GroupTitle", "Tibetan")},
    {"ugaritic", QT_TRANSLATE_NOOP("GroupTitle", "Ugaritic")},
    {"unified canadian aboriginal syllabics",
     QT_TRANSLATE_NOOP("GroupTitle", "Unified Canadian Aboriginal Syllabics")},
    {"yi radicals", QT_TRANSLATE_NOOP("GroupTitle", "Yi Radicals")},
    {"yi syllables", QT_TRANSLATE_NOOP("GroupTitle", "Yi Syllables")},
    {"yijing hexagram symbols", QT_TRANSLATE_NOOP("GroupTitle", "Yijing Hexagram Symbols")},
};

}  // namespace

QString groupTitle(std::string_view group) {
  for (const GroupTitle& one : titles) {
    if (one.group == group) return QCoreApplication::translate("GroupTitle", one.title);
  }
  return fromUtf8(glyph::capitalizedName(group));
}

QString blockTitle(const std::string& block) {
  // Many blocks are also groups, whose titles are translated. Most of them have no hyphens in their titles.
  const QString name = fromUtf8(block);
  const QString title = QCoreApplication::translate("GroupTitle", block.c_str());
  if (title != name) return title;
  const QByteArray spaced = name.toUtf8().replace('-', ' ');
  const QString spacedTitle = QCoreApplication::translate("GroupTitle", spaced.constData());
  return spacedTitle == QString::fromUtf8(spaced) ? name : spacedTitle;
}

}  // namespace browser
