// SPDX-License-Identifier: MIT
#include "grid_layout.h"

#include <gtest/gtest.h>

namespace browser {
namespace {

constexpr int heading = 20, cell = 50;

// Two sections with 7 and 3 cells, in 4 columns. The indexes of the cells are:
//   0 1 2 3
//   4 5 6
//   7 8 9
struct GridLayoutTest : testing::Test {
  GridLayoutTest() {
    layout.setGeometry(4 * cell + 33, cell, 30, heading);
    layout.setSections({{"a", 0, 7}, {"b", 7, 3}});
  }
  GridLayout layout;
};

TEST_F(GridLayoutTest, EveryCellIsFoundAtItsPosition) {
  EXPECT_EQ(layout.columns(), 4);
  EXPECT_EQ(layout.height(), 2 * heading + 3 * cell);
  for (int i = 0; i < layout.count(); ++i) {
    const QRect area = layout.cellRect(i);
    for (const QPoint corner : {area.topLeft(), area.center(), area.bottomRight()}) {
      EXPECT_EQ(layout.indexAt(corner), i);
    }
  }
  for (const QPoint outside :
       {QPoint(100, 5), QPoint(5, 50), QPoint(210, 100), QPoint(100, 900), QPoint(100, -1)}) {
    EXPECT_EQ(layout.indexAt(outside), -1) << outside.x() << " " << outside.y();
  }
}

TEST_F(GridLayoutTest, MovingKeepsTheColumnAndStaysInside) {
  struct Case {
    int from, lines, to;
  };
  for (const Case& one : {Case{1, 1, 5}, Case{3, 1, 6}, Case{5, 1, 8}, Case{6, 1, 9}, Case{8, -1, 5},
                          Case{2, -1, 2}, Case{8, 1, 8}, Case{0, 100, 7}, Case{9, -100, 2}}) {
    EXPECT_EQ(layout.moved(one.from, one.lines), one.to) << one.from << " by " << one.lines;
  }
  EXPECT_EQ(layout.firstOfLine(6), 4);
  EXPECT_EQ(layout.lastOfLine(4), 6);
}

TEST_F(GridLayoutTest, ANarrowGridHasOneColumn) {
  layout.setGeometry(10, cell, 30, heading);
  EXPECT_EQ(layout.columns(), 1);
  EXPECT_EQ(layout.height(), 2 * heading + 10 * cell);
}

}  // namespace
}  // namespace browser
