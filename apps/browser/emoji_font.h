// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QString>

class QLineEdit;

namespace browser {

/// Returns the font with the desktop's emoji font added if the text contains emoji. Otherwise another font
/// that has outlines of some emoji may draw them without colours. Characters such as U+2194, which are emoji
/// only if U+FE0F follows, do not count.
QFont withEmojiFont(const QFont& font, const QString& text);

/// Gives the field such a font whenever its text changes. The field must have its own font and size already.
void keepEmojiColoured(QLineEdit& field);

}  // namespace browser
