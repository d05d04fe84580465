// SPDX-License-Identifier: MIT
#pragma once

#include <QLayout>
#include <QList>

namespace browser {

/// A layout that places widgets side by side and begins a new line when a line is full, like the words of a
/// text.
class FlowLayout : public QLayout {
 public:
  explicit FlowLayout(int gap) : gap_(gap) {}
  ~FlowLayout() override;

  void addItem(QLayoutItem* item) override { items_.append(item); }
  int count() const override { return static_cast<int>(items_.size()); }
  QLayoutItem* itemAt(int index) const override { return items_.value(index); }
  QLayoutItem* takeAt(int index) override;
  Qt::Orientations expandingDirections() const override { return {}; }
  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override { return place(QRect(0, 0, width, 0), false); }
  QSize minimumSize() const override;
  QSize sizeHint() const override { return minimumSize(); }
  void setGeometry(const QRect& area) override;

 private:
  int place(const QRect& area, bool move) const;

  QList<QLayoutItem*> items_;
  int gap_;
};

}  // namespace browser
