// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusVariant>
#include <QObject>
#include <string_view>

namespace browser {

/// The colours of the windows. If the desktop has its own style for Qt, as KDE does, the windows use that
/// style unchanged. Otherwise they have the program's own light or dark look, which follows the desktop's
/// preference.
class Appearance : public QObject {
  Q_OBJECT

 public:
  enum class Theme { system, light, dark };

  /// Convert a theme from and to the text with which it is stored and chosen: "system", "light", "dark". Any
  /// other text gives Theme::system.
  static Theme themeNamed(std::string_view name);
  static std::string_view nameOf(Theme theme);
  /// The theme that the user has chosen in the settings.
  static Theme chosen();
  static void choose(Theme theme);

  /// Create exactly one object of this class, before the first window.
  explicit Appearance(Theme theme);

  void setTheme(Theme theme);

 private:
  Q_SLOT void changeSetting(const QString& space, const QString& key, const QDBusVariant& value);
  void askDesktop();
  void setDesktopDark(bool dark);
  void apply();

  Theme theme_;
  bool hasOwnLook_;
  bool desktopIsDark_ = false;
};

}  // namespace browser
