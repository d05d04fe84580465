// SPDX-License-Identifier: MIT
#include "appearance.h"

#include <glyphorium/glyphorium.h>

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QPalette>
#include <QStyle>
#include <QStyleFactory>
#include <QToolTip>

#include <cmath>

namespace browser {
namespace {

constexpr std::string_view themeKey = "browserTheme";
// The settings key for the desktop's preference (light or dark) at the last start of the program. With it,
// the first window need not wait for the desktop's answer.
constexpr std::string_view desktopIsDarkKey = "browserDesktopIsDark";

constexpr std::string_view themeNames[] = {"system", "light", "dark"};

const QString portalService = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString portalSettings = QStringLiteral("org.freedesktop.portal.Settings");
const QString appearanceSpace = QStringLiteral("org.freedesktop.appearance");
const QString colourScheme = QStringLiteral("color-scheme");

// The colours of a theme. Texts need a contrast ratio of at least 4.5:1 to their background, icons and
// borders at least 3:1. The texts and their backgrounds are: `text` and `faint` on `window` and `base`, white
// on `button`, `highlightedText` on `accent`, `link` on `window`.
struct Colours {
  QColor window, base, text, faint, accent, highlightedText, button, link;
};

Colours coloursOf(bool dark) {
  if (dark) {
    return {QColor(0x25, 0x26, 0x2b), QColor(0x1b, 0x1c, 0x20), QColor(0xec, 0xec, 0xf0),
            QColor(0x9a, 0x9c, 0xa6), QColor(0x6d, 0x90, 0xf5), QColor(0x12, 0x13, 0x18),
            QColor(0x48, 0x6d, 0xdb), QColor(0x93, 0xad, 0xff)};
  }
  return {QColor(0xf5, 0xf5, 0xf7), QColor(0xff, 0xff, 0xff), QColor(0x1e, 0x1f, 0x24),
          QColor(0x6b, 0x6d, 0x78), QColor(0x3f, 0x66, 0xd6), QColor(0xff, 0xff, 0xff),
          QColor(0x3f, 0x66, 0xd6), QColor(0x2f, 0x55, 0xc4)};
}

QPalette paletteOf(const Colours& colours) {
  QPalette palette(colours.text, colours.window, colours.window.lighter(110), colours.window.darker(150),
                   colours.window.darker(120), colours.text, colours.base);
  palette.setColor(QPalette::AlternateBase, colours.window);
  palette.setColor(QPalette::Button, colours.window);
  palette.setColor(QPalette::Highlight, colours.accent);
  palette.setColor(QPalette::HighlightedText, colours.highlightedText);
  palette.setColor(QPalette::PlaceholderText, colours.faint);
  palette.setColor(QPalette::Link, colours.link);
  palette.setColor(QPalette::LinkVisited, colours.link);
  palette.setColor(QPalette::ToolTipBase, colours.base);
  palette.setColor(QPalette::ToolTipText, colours.text);
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    QColor disabled = colours.text;
    disabled.setAlphaF(0.4F);
    palette.setColor(QPalette::Disabled, role, disabled);
  }
  return palette;
}

// Qt draws a rounded border in parts that overlap, so translucent borders would have dots where they meet.
QString mixed(const QColor& ground, const QColor& ink, double share) {
  const auto part = [share](int from, int to) {
    return static_cast<int>(std::lround(from + (to - from) * share));
  };
  return QColor(part(ground.red(), ink.red()), part(ground.green(), ink.green()),
                part(ground.blue(), ink.blue()))
      .name();
}

// The style sheet of the program's own look. %1 to %10 are placeholders for the arguments below, of which %7
// is the name of the theme and the others are colours.
constexpr const char* sheet = R"(
QScrollBar:vertical { background: transparent; width: 12px; margin: 0; }
QScrollBar::handle:vertical { background: rgba(%1, 60); border-radius: 3px; min-height: 40px; margin: 3px; }
QScrollBar::handle:vertical:hover { background: rgba(%1, 110); }
QScrollBar::add-line, QScrollBar::sub-line { height: 0; width: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QPushButton, QToolButton, QTabBar, QComboBox, QCheckBox, QAbstractItemView { outline: none; }
QLineEdit, QComboBox { border: 1px solid %9; border-radius: 8px; padding: 5px 8px; background: %2; }
QLineEdit:focus, QComboBox:focus { border: 2px solid %3; padding: 4px 7px; }
QCheckBox { spacing: 8px; }
QCheckBox::indicator { width: 14px; height: 14px; border: 1px solid %10; border-radius: 4px; }
QCheckBox::indicator:checked { border-color: %3; background: %3; image: url(:/pictures/check-%7.svg); }
QCheckBox::indicator:hover { border-color: %3; }
QCheckBox::indicator:focus { border: 2px solid %4; width: 12px; height: 12px; }
QCheckBox::indicator:checked:focus { border-color: rgb(%1); }
browser--CharacterCard { border: 2px solid transparent; }
browser--CharacterCard:focus { border-color: %3; }
QComboBox::drop-down { border: none; width: 26px; }
QComboBox::down-arrow { image: url(:/pictures/down-%7.svg); width: 12px; height: 12px; }
QComboBox QAbstractItemView { border: 1px solid rgba(%1, 50); background: %2; padding: 4px; }
QPushButton { border: 2px solid transparent; border-radius: 8px; padding: 5px 14px; background: rgba(%1, 22); }
QPushButton:hover { background: rgba(%1, 34); }
QPushButton:pressed { background: rgba(%1, 52); }
QPushButton:focus { border-color: %3; }
QPushButton:default { background: %6; color: white; }
QPushButton:default:hover { background: rgba(%8, 225); }
QPushButton:default:focus { border-color: rgb(%1); }
QPushButton:default:disabled { background: rgba(%1, 22); color: rgba(%1, 110); }
QPushButton:flat { background: transparent; color: %4; padding: 2px 8px; }
QPushButton:flat:hover { background: rgba(%1, 22); }
QToolButton { border: 2px solid transparent; border-radius: 8px; padding: 4px; }
QToolButton:hover { background: rgba(%1, 22); }
QToolButton:pressed, QToolButton:checked { background: rgba(%1, 44); }
QToolButton:focus { border-color: %3; }
QToolButton::menu-indicator { image: none; }
QMenu { background: %2; border: 1px solid rgba(%1, 50); padding: 5px; }
QMenu::item { padding: 6px 28px 6px 16px; border-radius: 6px; }
QMenu::icon { padding-left: 12px; }
QMenu::item:selected { background: rgba(%5, 50); }
QMenu::item:disabled { color: rgba(%1, 110); }
QMenu::separator { height: 1px; background: rgba(%1, 30); margin: 5px 8px; }
QDialogButtonBox { dialogbuttonbox-buttons-have-icons: 0; }
QTabWidget::pane { border: none; border-top: 1px solid rgba(%1, 30); top: -1px; }
QTabBar::tab { background: transparent; padding: 8px 16px; border: none; border-bottom: 2px solid transparent; }
QTabBar::tab:selected { border-bottom-color: %3; }
QTabBar::tab:focus { color: %4; }
QSplitter::handle { background: rgba(%1, 28); }
QToolTip { background: %2; color: rgb(%1); border: 1px solid rgba(%1, 60); padding: 4px 6px; }
)";

QString sheetOf(const Colours& colours, bool isDark) {
  const auto numbers = [](const QColor& colour) {
    return QStringLiteral("%1, %2, %3").arg(colour.red()).arg(colour.green()).arg(colour.blue());
  };
  return QString::fromLatin1(sheet).arg(numbers(colours.text), colours.base.name(), colours.accent.name(),
                                        colours.link.name(), numbers(colours.accent), colours.button.name(),
                                        QLatin1String(isDark ? "dark" : "light"), numbers(colours.button),
                                        mixed(colours.base, colours.text, 0.18),
                                        mixed(colours.window, colours.text, 0.55));
}

bool flag(std::string_view key) {
  const auto value = glyph::settingsStore()->object(key);
  const bool* const stored = value ? std::get_if<bool>(&*value) : nullptr;
  return stored && *stored;
}

}  // namespace

Appearance::Theme Appearance::themeNamed(std::string_view name) {
  for (const Theme theme : {Theme::light, Theme::dark}) {
    if (nameOf(theme) == name) return theme;
  }
  return Theme::system;
}

std::string_view Appearance::nameOf(Theme theme) {
  return themeNames[static_cast<int>(theme)];
}

Appearance::Theme Appearance::chosen() {
  const auto value = glyph::settingsStore()->object(themeKey);
  const std::string* const name = value ? std::get_if<std::string>(&*value) : nullptr;
  return name ? themeNamed(*name) : Theme::system;
}

void Appearance::choose(Theme theme) {
  glyph::settingsStore()->set(themeKey, std::string(nameOf(theme)));
}

Appearance::Appearance(Theme theme)
    : theme_(theme),
      hasOwnLook_(QApplication::style()->name().compare(QLatin1String("fusion"), Qt::CaseInsensitive) == 0) {
  desktopIsDark_ = flag(desktopIsDarkKey);
  apply();
  if (hasOwnLook_) askDesktop();
}

void Appearance::setTheme(Theme theme) {
  theme_ = theme;
  apply();
}

void Appearance::askDesktop() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  bus.connect(portalService, portalPath, portalSettings, QStringLiteral("SettingChanged"), this,
              SLOT(changeSetting(QString, QString, QDBusVariant)));
  QDBusMessage call =
      QDBusMessage::createMethodCall(portalService, portalPath, portalSettings, QStringLiteral("Read"));
  call << appearanceSpace << colourScheme;
  auto* const answer = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
    const QDBusPendingReply<QDBusVariant> reply = *answer;
    if (reply.isValid()) changeSetting(appearanceSpace, colourScheme, reply.value());
    answer->deleteLater();
  });
}

void Appearance::changeSetting(const QString& space, const QString& key, const QDBusVariant& value) {
  if (space != appearanceSpace || key != colourScheme) return;
  QVariant inner = value.variant();
  if (inner.canConvert<QDBusVariant>())
    inner = inner.value<QDBusVariant>().variant();  // some portals wrap the value twice
  setDesktopDark(inner.toUInt() == 1);
}

void Appearance::setDesktopDark(bool dark) {
  if (dark == desktopIsDark_) return;
  desktopIsDark_ = dark;
  glyph::settingsStore()->set(desktopIsDarkKey, dark);
  apply();
}

void Appearance::apply() {
  if (!hasOwnLook_ && theme_ == Theme::system) return;
  const bool isDark = theme_ == Theme::dark || (theme_ == Theme::system && desktopIsDark_);
  const Colours colours = coloursOf(isDark);
  const QPalette palette = paletteOf(colours);
  QApplication::setPalette(palette);
  QToolTip::setPalette(palette);
  if (hasOwnLook_) qApp->setStyleSheet(sheetOf(colours, isDark));
  glyph::NotificationCenter::defaultCenter().post({glyph::notificationName::appAppearanceChanged});
}

}  // namespace browser
