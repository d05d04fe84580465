// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

namespace browser {

/// A label of one line. If the text is too wide, it ends with an ellipsis.
class ElidedLabel : public QLabel {
 public:
  using QLabel::QLabel;
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace browser
