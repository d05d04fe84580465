// SPDX-License-Identifier: MIT
#pragma once

#include <glyphorium/glyphorium.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QTest>

#include "catalog.h"
#include "character_grid.h"
#include "clipboard.h"
#include "tests/support/program.h"
#include "tests/support/sandbox.h"

namespace browser {

/// Gives each test the state of a new user: empty settings, and an empty index in memory.
struct BrowserTest : testing::Test {
  glyph::TemporaryDirectory home;
  glyph::ScopedVariable variables[2] = {{"XDG_CONFIG_HOME", home.path()}, {"XDG_DATA_HOME", home.path()}};

  BrowserTest() {
    glyph::setDiagnosticsSink([](std::string_view) {});
    glyph::setSettingsStore(nullptr);  // the default store, with its file in `home`
    glyph::setSearchableIndex(std::make_shared<glyph::MemorySearchableIndex>());
    glyph::setPasteboard(applicationPasteboard());
  }
  ~BrowserTest() override { glyph::setSettingsStore(std::make_shared<glyph::MemorySettingsStore>()); }

  /// Returns the list that is stored under this key, read as another process would read it. Empty if no list
  /// is stored.
  static std::vector<std::string> storedList(std::string_view key) {
    const auto value = glyph::SqliteSettingsStore().object(key);
    const auto* const list = value ? std::get_if<std::vector<std::string>>(&*value) : nullptr;
    return list ? *list : std::vector<std::string>();
  }

  static QString clipboardText() { return QGuiApplication::clipboard()->text(); }
};

}  // namespace browser
