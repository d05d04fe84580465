// SPDX-License-Identifier: MIT
#include "emoji_font.h"

#include <glyphorium/glyphorium.h>

#include <QFontInfo>
#include <QLineEdit>
#include <algorithm>

#include "font_coverage.h"

namespace browser {
namespace {

bool containsEmoji(const std::string& text) {
  const std::vector<std::string_view> clusters = glyph::graphemeClusters(text);
  return std::any_of(clusters.begin(), clusters.end(), [](std::string_view cluster) {
    const auto place = glyph::emojiPlace(cluster);
    return place && glyph::emojiAt(*place).text == cluster;
  });
}

}  // namespace

QFont withEmojiFont(const QFont& font, const QString& text) {
  constexpr qsizetype longest = 500;  // longer texts are searched only at their start
  if (!containsEmoji(text.left(longest).toStdString())) return font;
  static const QString emoji = emojiFamily();
  if (emoji.isEmpty()) return font;
  QFont extended = font;
  // With a generic family such as "Sans Serif", Qt would take the spaces from the emoji font.
  extended.setFamilies({QFontInfo(font).family(), emoji});
  return extended;
}

void keepEmojiColoured(QLineEdit& field) {
  const QFont plain = field.font();
  QObject::connect(&field, &QLineEdit::textChanged, &field, [&field, plain](const QString& text) {
    const QFont font = withEmojiFont(plain, text);
    if (font.families() != field.font().families()) field.setFont(font);
  });
}

}  // namespace browser
