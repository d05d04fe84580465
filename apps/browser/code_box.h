// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class QPainter;
class QRectF;
class QColor;

namespace browser {

/// Why a character is shown as a box.
enum class BoxKind {
  invisible,  ///< fonts have no glyph for such characters: dashed outline
  missing,    ///< no installed font has the character: plain outline
};

/// Paints a box with a short text, such as the hexadecimal code of a character, in place of its glyph. A text
/// of more than three characters is set in two lines.
void paintCodeBox(QPainter& painter, const QRectF& area, const QString& text, BoxKind kind,
                  const QColor& colour);

}  // namespace browser
