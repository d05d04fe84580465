// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QTimer>

namespace browser {

/// A short message that floats over the lower end of a widget and disappears by itself.
class Toast : public QLabel {
  Q_OBJECT

 public:
  explicit Toast(QWidget* parent);
  void showMessage(const QString& text, int milliseconds = 1'800);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void place();
  QTimer timer_;
};

}  // namespace browser
