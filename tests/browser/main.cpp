// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <QApplication>

#include "grid_accessibility.h"

// Uses Qt's platform "offscreen", so that the windows of these tests need no display.
int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("LC_ALL", "en_US.UTF-8");
  const QApplication application(argc, argv);
  browser::installGridAccessibility();
  return RUN_ALL_TESTS();
}
