// SPDX-License-Identifier: MIT
#include "main_window.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QToolButton>
#include <QTranslator>
#include <cmath>

#include "appearance.h"
#include "browser_fixture.h"
#include "character_card.h"
#include "global_shortcut.h"
#include "glyph_renderer.h"
#include "picker.h"
#include "settings_watch.h"
#include "sidebar.h"

namespace browser {
namespace {

using testing::Contains;
using testing::ElementsAre;

struct MainWindowTest : BrowserTest {
  MainWindowTest() {
    window.resize(1'100, 700);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
  }

  std::string current() const { return grid.currentCharacter() ? grid.currentCharacter()->computed.hex : ""; }
  void type(const QString& text) {
    field.clear();
    // QTest can press keys only for ASCII characters. Other text is inserted at once, as by an input method.
    text.toLatin1() == text.toUtf8() ? QTest::keyClicks(&field, text) : field.insert(text);
  }
  void choose(const Scope& scope) {
    sidebar.setCurrentIndex(static_cast<ScopeModel*>(sidebar.model())->indexOf(scope));
  }
  void check(const std::string& group) {
    const QModelIndex row = static_cast<ScopeModel*>(sidebar.model())->indexOf({Scope::Kind::group, group});
    sidebar.scrollTo(row);
    const QRect area = sidebar.visualRect(row);
    QTest::mouseClick(sidebar.viewport(), Qt::LeftButton, {}, {area.left() + 20, area.center().y()});
  }

  Catalog catalog;
  Appearance appearance{Appearance::Theme::light};
  GlobalShortcut shortcut;
  MainWindow window{catalog, appearance, shortcut};
  QLineEdit& field = *window.findChild<QLineEdit*>();
  CharacterGrid& grid = *window.findChild<CharacterGrid*>();
  Sidebar& sidebar = *window.findChild<Sidebar*>();
};

TEST_F(MainWindowTest, FindsMovesThroughResultsAndCopies) {
  QTest::keyClick(&grid, 'a');  // typing in the grid searches, too
  QTest::keyClicks(&field, "rrow");
  EXPECT_EQ(field.text(), "arrow");
  EXPECT_EQ(current(), "2192");
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_EQ(clipboardText(), "→");
  QTest::keyClick(&field, Qt::Key_Down);
  QTest::keyClick(&grid, Qt::Key_Right);
  const std::string second = current();
  EXPECT_NE(second, "2192");
  QTest::keyClick(&grid, Qt::Key_Return);
  EXPECT_EQ(clipboardText().toStdString(), grid.currentCharacter()->computed.symbol);
  type("&rarr;");
  QTest::keyClick(&field, Qt::Key_Return, Qt::AltModifier);
  EXPECT_EQ(clipboardText(), "&rarr;");
  EXPECT_THAT(storedList("recentlyCopiedCharacters"), ElementsAre("2192", second));
  choose({Scope::Kind::recentlyCopied});
  EXPECT_EQ(grid.count(), 1) << "the words still restrict the list";
  QTest::keyClick(&field, Qt::Key_Escape);
  EXPECT_EQ(grid.count(), 2);
}

TEST_F(MainWindowTest, SearchStaysInItsScopeAndOffersResultsOutsideIt) {
  choose({Scope::Kind::group, "math operators"});
  type("arrow");
  for (int i = 0; i < grid.count(); ++i) EXPECT_EQ(grid.character(i).computed.group, "math operators");
  const int inScope = grid.count();
  EXPECT_EQ(glyph::filteredEntities()->size(), static_cast<std::size_t>(inScope));
  type("euro sign");
  ASSERT_EQ(grid.count(), 0);
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_EQ(current(), "20ac") << "Enter goes on where there is something";
  type("arrow");
  EXPECT_GT(grid.count(), inScope + 300);
  for (const auto& [words, hex] :
       {std::pair{"U+4E00", "4e00"}, {"melting face", "1fae0"}, {"🇩🇪", "1f1e9,1f1ea"}}) {
    type(words);
    EXPECT_EQ(current(), hex) << "beyond the catalog: " << words;
  }
  type("U+1D6A5");
  EXPECT_EQ(current(), "1d6a5");
  type("zzzzqqqq");
  EXPECT_EQ(grid.count(), 0);
  EXPECT_EQ(grid.current(), -1);
}

TEST_F(MainWindowTest, CheckedGroupsAreDisplayedAndStored) {
  choose({Scope::Kind::displayed});
  EXPECT_EQ(grid.count(), 0);
  check("arrows");
  check("box drawing");
  QTRY_COMPARE(grid.count(), 112 + 128);
  EXPECT_THAT(storedList("displayedGroups"), ElementsAre("custom", "arrows", "box drawing"));
  check("arrows");
  QTRY_COMPARE(grid.count(), 128);
}

TEST_F(MainWindowTest, OwnCharactersAndFavouritesCanBeUndone) {
  catalog.add({"21d0", "1d6a5"});
  EXPECT_THAT(storedList("customAddedEntities"), ElementsAre("21d0", "1d6a5"));
  choose({Scope::Kind::group, "custom"});
  EXPECT_EQ(grid.count(), 2);
  grid.setCurrent(0);
  QTest::keyClick(&grid, Qt::Key_D, Qt::ControlModifier);
  EXPECT_THAT(storedList("favouriteCharacters"), ElementsAre("21d0"));
  QTest::keyClick(&grid, Qt::Key_Delete);
  EXPECT_THAT(storedList("customAddedEntities"), ElementsAre("1d6a5"));
  EXPECT_EQ(grid.count(), 1);
  for (int i = 0; i < 2; ++i) QTest::keyClick(&grid, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_THAT(storedList("customAddedEntities"), Contains("21d0"));
  EXPECT_TRUE(storedList("favouriteCharacters").empty());
}

TEST_F(MainWindowTest, ShowsChangesThatTheCommandLineMakes) {
  SettingsWatch watch;
  QObject::connect(&watch, &SettingsWatch::changed, &catalog, &Catalog::readSettings);
  choose({Scope::Kind::displayed});
  const std::string cli = PROGRAM;
  ASSERT_EQ(glyph::runProgram(cli + " display add arrows >&2").exitCode, 0);
  QTRY_COMPARE(grid.count(), 112);
  ASSERT_EQ(glyph::runProgram(cli + " add 1d6a5 >&2").exitCode, 0);
  QTRY_COMPARE(grid.count(), 113);
  EXPECT_TRUE(catalog.isAdded("1d6a5"));
}

TEST_F(MainWindowTest, CanBeReadByAssistiveTechnology) {
  type("leftwards double arrow");
  QAccessibleInterface* const list = QAccessible::queryAccessibleInterface(&grid);
  ASSERT_EQ(list->childCount(), grid.count());
  QAccessibleInterface* const cell = list->child(0);
  EXPECT_EQ(cell->text(QAccessible::Name), "Leftwards Double Arrow");
  EXPECT_EQ(cell->text(QAccessible::Description), "U+21D0");
  EXPECT_TRUE(cell->state().selected);
  EXPECT_EQ(list->indexOfChild(cell), 0);
  EXPECT_EQ(QAccessible::queryAccessibleInterface(&window)->role(), QAccessible::Window);
  cell->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  EXPECT_EQ(clipboardText(), "⇐");
  for (const QWidget* const widget : window.findChildren<QWidget*>()) {
    const bool isButton = qobject_cast<const QToolButton*>(widget);  // also in text fields
    const bool isControl = (isButton || widget->focusPolicy() & Qt::TabFocus) && widget->isVisible();
    const QAccessibleInterface* const interface =
        QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
    const bool isText = qobject_cast<const QLabel*>(widget);
    if (!isControl || isText || widget->objectName().startsWith("qt_")) continue;
    EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty()) << widget->metaObject()->className();
  }
}

TEST_F(MainWindowTest, RestoresTheStateInWhichItWasClosed) {
  choose({Scope::Kind::group, "arrows"});
  grid.setCellSize(80);
  window.close();
  MainWindow next(catalog, appearance, shortcut);
  EXPECT_EQ(next.findChild<CharacterGrid*>()->count(), 112);
  EXPECT_EQ(next.findChild<CharacterGrid*>()->cellSize(), 80);
}

TEST_F(MainWindowTest, DrawsEachCharacterOrABoxForIt) {
  GlyphRenderer& renderer = GlyphRenderer::shared();
  const auto drawn = [&](const glyph::Entity& entity) {
    const GlyphRequest request = cellRequest(entity, 64, 1);
    const GlyphPicture* picture = nullptr;
    EXPECT_TRUE(QTest::qWaitFor([&] { return (picture = renderer.picture(request)) != nullptr; }));
    return *picture;
  };
  const GlyphPicture letter = drawn(catalog.entity("0041"));
  EXPECT_FALSE(letter.image.isNull());
  EXPECT_TRUE(QRectF(0, 0, 64, 64).contains(QRectF(letter.corner, letter.image.size())));
  EXPECT_TRUE(drawn(glyph::entityOf(0x10F000)).image.isNull());
  for (const char* const invisible : {"0020", "200d", "000a", "feff"}) {
    EXPECT_TRUE(isShownAsBox(catalog.entity(invisible))) << invisible;
  }
  EXPECT_FALSE(isShownAsBox(catalog.entity("1f8c0"))) << "newer than the tables of ICU";
  EXPECT_EQ(cellRequest(catalog.entity("0301"), 64, 1).text, QString::fromUtf8("◌\u0301"));
  EXPECT_EQ(cellRequest(catalog.entity("20dd"), 64, 1).text, QString::fromUtf8("\u20DD"));
}

TEST_F(MainWindowTest, ALongPressSetsThePreferredSkinTone) {
  type("thumbs up");
  ASSERT_EQ(current(), "1f44d");
  QTimer menu;
  QObject::connect(&menu, &QTimer::timeout, [&] {
    auto* const popup = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!popup) return;
    menu.stop();
    QTest::keyClick(popup, Qt::Key_Up);  // selects the last entry of the menu
    QTest::keyClick(popup, Qt::Key_Return);
  });
  menu.start(20);
  const QPoint place = grid.visibleRect(0).center();
  QTest::mousePress(grid.viewport(), Qt::LeftButton, {}, place);
  QTRY_COMPARE(clipboardText(), "👍🏿");
  QTest::mouseRelease(grid.viewport(), Qt::LeftButton, {}, place);
  type("waving hand");
  EXPECT_EQ(current(), "1f44b,1f3ff");
  choose({Scope::Kind::emoji, "People & Body"});
  EXPECT_EQ(current(), "1f44b,1f3ff") << "the words find it among the emoji, too";
}

TEST_F(MainWindowTest, GoesBackFromALinkOnTheCard) {
  choose({Scope::Kind::group, "math operators"});
  type("element of");
  const std::string first = current();
  Q_EMIT window.findChild<CharacterCard*>()->characterChosen("1d6a5");
  EXPECT_EQ(current(), "1d6a5");
  QTest::keyClick(&window, Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(field.text(), "element of");
  EXPECT_EQ(current(), first);
}

TEST_F(MainWindowTest, PickerCopiesAndCloses) {
  window.hide();  // so that the shortcuts of this window do not react
  catalog.toggleFavourite("21d0");
  Picker picker(catalog);
  QString picked;
  QObject::connect(&picker, &Picker::closed, [&](const QString& text) { picked = text; });
  auto& pickerField = *picker.findChildren<QLineEdit*>().front();
  auto& pickerGrid = *picker.findChild<CharacterGrid*>();
  picker.open();
  EXPECT_EQ(pickerGrid.currentCharacter()->computed.hex, "21d0") << "favourites come first";
  QTest::keyClicks(&pickerField, "euro");
  QTest::keyClick(&pickerField, Qt::Key_Return);
  EXPECT_EQ(picked, "€");
  EXPECT_FALSE(picker.isVisible());
  picker.open();
  QTest::keyClick(&pickerField, Qt::Key_Return, Qt::ControlModifier);
  QTest::keyClicks(&pickerField, "->");
  QTest::keyClick(&pickerField, Qt::Key_Return, Qt::ControlModifier);
  QTest::keyClick(&pickerField, Qt::Key_Return);
  EXPECT_EQ(picked, "⇐→");
  EXPECT_EQ(clipboardText(), "⇐→");
  EXPECT_THAT(storedList("recentlyCopiedCharacters"), ElementsAre("2192", "21d0", "20ac"));
}

// WCAG 2 requires a contrast ratio of at least 4.5:1 for texts.
TEST_F(BrowserTest, TextsAreLegibleInBothThemes) {
  const auto luminance = [](const QColor& colour) {
    const auto linear = [](float part) {
      return part <= 0.04045F ? part / 12.92F : std::pow((part + 0.055F) / 1.055F, 2.4F);
    };
    return 0.2126F * linear(colour.redF()) + 0.7152F * linear(colour.greenF()) +
           0.0722F * linear(colour.blueF());
  };
  for (const auto theme : {Appearance::Theme::light, Appearance::Theme::dark}) {
    const Appearance appearance(theme);
    const QPalette colours = QApplication::palette();
    for (const auto& [text, ground] : {std::pair{QPalette::Text, QPalette::Base},
                                       {QPalette::WindowText, QPalette::Window},
                                       {QPalette::PlaceholderText, QPalette::Base},
                                       {QPalette::PlaceholderText, QPalette::Window},
                                       {QPalette::Link, QPalette::Window},
                                       {QPalette::HighlightedText, QPalette::Highlight}}) {
      const float one = luminance(colours.color(text)), other = luminance(colours.color(ground));
      EXPECT_GE((std::max(one, other) + 0.05F) / (std::min(one, other) + 0.05F), 4.5F)
          << Appearance::nameOf(theme) << ' ' << text << " on " << ground;
    }
  }
}

// In each of the five languages, all texts are translated and the window still fits on a narrow screen.
TEST_F(BrowserTest, IsTranslatedIntoFiveLanguages) {
  for (const char* const language : {"en", "de", "fr", "it", "es"}) {
    QTranslator translator;
    const bool isSource = std::string_view(language) == "en";
    ASSERT_TRUE(isSource || translator.load(QString("glyphorium_") + language, ":/translations")) << language;
    QApplication::installTranslator(&translator);
    Catalog catalog;
    Appearance appearance(Appearance::Theme::light);
    GlobalShortcut shortcut;
    MainWindow window(catalog, appearance, shortcut);
    window.resize(480, 700);
    window.show();
    EXPECT_EQ(window.width(), 480) << language;
    EXPECT_EQ(window.findChild<QLineEdit*>()->placeholderText().startsWith("Search by"), isSource)
        << language;
    Picker picker(catalog);
    for (const QLabel* const label : picker.findChildren<QLabel*>()) {
      EXPECT_LE(label->minimumSizeHint().width(), picker.width() - 24)
          << language << ": " << label->text().toStdString();
    }
    QApplication::removeTranslator(&translator);
  }
}

}  // namespace
}  // namespace browser
