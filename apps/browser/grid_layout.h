// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QString>
#include <vector>

namespace browser {

/// A run of cells under one heading.
struct GridSection {
  QString title;  ///< empty for a section without a heading
  int first = 0;  ///< index of the first cell of the section
  int count = 0;
};

/// The positions of the cells and headings of a grid. Coordinates are relative to the whole content, in
/// logical pixels.
class GridLayout {
 public:
  struct Line {
    int y;
    int height;
    int section;
    int first;
    int count;  ///< number of cells in the line; 0 if the line is a heading
  };

  /// Sets the sections. Each section must begin where the previous one ends.
  void setSections(std::vector<GridSection> sections);
  const std::vector<GridSection>& sections() const { return sections_; }

  /// `cell` is the minimum width of a cell, and its height. `ruler` is the width of the space before the
  /// first column.
  void setGeometry(int width, int cell, int ruler, int heading);

  int count() const { return count_; }
  int columns() const { return columns_; }
  int cell() const { return cell_; }
  int height() const { return height_; }

  QRect cellRect(int index) const;
  /// Returns the index of the cell at this point, or -1.
  int indexAt(QPoint point) const;
  /// Returns the index of the cell that is `lines` lines of cells below (or above, if negative), in the same
  /// column as far as possible. Stays within the grid.
  int moved(int index, int lines) const;
  int firstOfLine(int index) const { return lines_[lineOf(index)].first; }
  int lastOfLine(int index) const;

  /// Returns the lines that overlap this range of y coordinates.
  std::vector<Line> linesBetween(int top, int bottom) const;
  /// Returns the number of the section at this y coordinate.
  int sectionAt(int y) const;

 private:
  void layOut();
  std::size_t lineOf(int index) const;

  std::vector<GridSection> sections_;
  std::vector<Line> lines_;
  int width_ = 1;
  int cell_ = 1;
  int ruler_ = 0;
  int heading_ = 0;
  int columns_ = 1;
  int count_ = 0;
  int height_ = 0;
};

}  // namespace browser
