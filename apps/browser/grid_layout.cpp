// SPDX-License-Identifier: MIT
#include "grid_layout.h"

#include <algorithm>

namespace browser {

void GridLayout::setSections(std::vector<GridSection> sections) {
  sections_ = std::move(sections);
  layOut();
}

void GridLayout::setGeometry(int width, int cell, int ruler, int heading) {
  if (width == width_ && cell == cell_ && ruler == ruler_ && heading == heading_) return;
  width_ = std::max(width, 1);
  cell_ = std::max(cell, 1);
  ruler_ = ruler;
  heading_ = heading;
  layOut();
}

void GridLayout::layOut() {
  columns_ = std::max(1, (width_ - ruler_) / cell_);
  lines_.clear();
  int y = 0;
  count_ = 0;
  for (int section = 0; section < static_cast<int>(sections_.size()); ++section) {
    const GridSection& one = sections_[static_cast<std::size_t>(section)];
    if (!one.title.isEmpty()) {
      lines_.push_back({y, heading_, section, one.first, 0});
      y += heading_;
    }
    for (int first = 0; first < one.count; first += columns_) {
      lines_.push_back({y, cell_, section, one.first + first, std::min(columns_, one.count - first)});
      y += cell_;
    }
    count_ += one.count;
  }
  height_ = y;
}

std::size_t GridLayout::lineOf(int index) const {
  const auto after = std::partition_point(lines_.begin(), lines_.end(),
                                          [&](const Line& line) { return line.first + line.count <= index; });
  return static_cast<std::size_t>(after - lines_.begin());
}

QRect GridLayout::cellRect(int index) const {
  const std::size_t place = lineOf(index);
  if (index < 0 || place >= lines_.size()) return {};
  const Line& line = lines_[place];
  const int column = index - line.first;
  // The columns share the remaining pixels, so that the cells fill the whole width.
  const auto left = [&](int of) { return ruler_ + (width_ - ruler_) * of / columns_; };
  return {left(column), line.y, left(column + 1) - left(column), line.height};
}

int GridLayout::indexAt(QPoint point) const {
  for (const Line& line : linesBetween(point.y(), point.y())) {
    const int column = ((point.x() - ruler_ + 1) * columns_ - 1) / std::max(1, width_ - ruler_);
    if (point.x() >= ruler_ && column < line.count) return line.first + column;
  }
  return -1;
}

int GridLayout::moved(int index, int lines) const {
  std::size_t place = lineOf(index);
  if (place >= lines_.size()) return index;
  const int column = index - lines_[place].first;
  const int step = lines < 0 ? -1 : 1;
  std::size_t best = place;
  for (int left = std::abs(lines); left > 0;) {
    place += static_cast<std::size_t>(step);  // a result below 0 becomes a large number, out of range too
    if (place >= lines_.size()) break;
    if (lines_[place].count == 0) continue;
    best = place;
    --left;
  }
  const Line& line = lines_[best];
  return line.first + std::min(column, line.count - 1);
}

int GridLayout::lastOfLine(int index) const {
  const Line& line = lines_[lineOf(index)];
  return line.first + line.count - 1;
}

std::vector<GridLayout::Line> GridLayout::linesBetween(int top, int bottom) const {
  const auto first = std::partition_point(lines_.begin(), lines_.end(),
                                          [&](const Line& line) { return line.y + line.height <= top; });
  const auto last =
      std::partition_point(first, lines_.end(), [&](const Line& line) { return line.y <= bottom; });
  return {first, last};
}

int GridLayout::sectionAt(int y) const {
  const auto lines = linesBetween(y, y);
  return lines.empty() ? -1 : lines.front().section;
}

}  // namespace browser
