// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <memory>

#include "appearance.h"
#include "browser_service.h"
#include "catalog.h"
#include "global_shortcut.h"
#include "settings_watch.h"

namespace browser {

class MainWindow;
class Picker;

/// Owns the windows of the program, and decides when it ends. It ends when the main window is closed. If the
/// program was started to open the picker, it stays ready for some minutes, so that the picker opens quickly
/// the next time. If it was started in the background, it runs until the session ends.
class BrowserApplication : public QObject {
  Q_OBJECT

 public:
  explicit BrowserApplication(Appearance::Theme theme);
  ~BrowserApplication() override;

  void serve(const Request& request);

 private:
  void showWindow(const QString& words);
  void pick();
  void finishPick(const QString& text);
  void explainTyping();
  void quitUnlessNeeded();

  Catalog catalog_;
  Appearance appearance_;
  SettingsWatch watch_;
  BrowserService service_;
  GlobalShortcut shortcut_;
  std::unique_ptr<MainWindow> window_;
  std::unique_ptr<Picker> picker_;
  QString focusedBefore_;  // the window that the picker types into
  QTimer lingering_;
  bool staysInBackground_ = false;
};

}  // namespace browser
