// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <string>
#include <vector>

class QLineEdit;

namespace browser {

/// A strip with a text field in which the user collects characters, to copy them together. It is hidden while
/// it is empty.
class Collector : public QWidget {
  Q_OBJECT

 public:
  explicit Collector(QWidget* parent = nullptr);

  void collect(const QString& text);
  QString text() const;
  void clear();

 Q_SIGNALS:
  void copyRequested(const QString& text);
  /// Emitted when the user has left the strip, with Escape or by deleting the text.
  void left();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QLineEdit* field_;
};

}  // namespace browser
