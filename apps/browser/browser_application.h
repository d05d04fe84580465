// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QTimer>
#include <memory>

#include "appearance.h"
#include "browser_service.h"
#include "catalog.h"
#include "settings_watch.h"

namespace browser {

class MainWindow;
class Picker;

/// The windows of the program, and how long it runs: until the main window is closed; if it was started for
/// the picker, some minutes longer, so that the next pick is quick; if it was started in the background,
/// until the session ends.
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
  std::unique_ptr<MainWindow> window_;
  std::unique_ptr<Picker> picker_;
  QString focusedBefore_;  // the window that the picker types into
  QTimer lingering_;
  bool staysInBackground_ = false;
};

}  // namespace browser
