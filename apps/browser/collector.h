// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <string>
#include <vector>

class QLineEdit;

namespace browser {

/// A strip with characters that are to be copied together. It is hidden while it is empty. The text can be
/// edited.
class Collector : public QWidget {
  Q_OBJECT

 public:
  explicit Collector(QWidget* parent = nullptr);

  void collect(const QString& text);
  QString text() const;
  void clear();

 Q_SIGNALS:
  void copyRequested(const QString& text);
  /// The user is done here: Escape, or the strip was emptied.
  void left();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QLineEdit* field_;
};

}  // namespace browser
