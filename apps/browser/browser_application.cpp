// SPDX-License-Identifier: MIT
#include "browser_application.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>

#include "glyph_renderer.h"
#include "main_window.h"
#include "picker.h"
#include "preferences.h"
#include "typing.h"

namespace browser {
namespace {

constexpr int lingeringMilliseconds = 10 * 60 * 1'000;

// After the picker has closed, the program waits this long before it types the text, so that the desktop can
// first give the focus back to the user's window.
constexpr int focusMilliseconds = 180;

}  // namespace

BrowserApplication::BrowserApplication(Appearance::Theme theme) : appearance_(theme) {
  QApplication::setQuitOnLastWindowClosed(false);
  lingering_.setSingleShot(true);
  lingering_.setInterval(lingeringMilliseconds);
  connect(&lingering_, &QTimer::timeout, this, &BrowserApplication::quitUnlessNeeded);
  connect(&watch_, &SettingsWatch::changed, &catalog_, &Catalog::readSettings);
  connect(&service_, &BrowserService::requested, this, &BrowserApplication::serve);
  connect(&shortcut_, &GlobalShortcut::activated, this, [this](const QString& token) {
    serve({Request::Kind::pick, {}, token});
  });
  if (preferences::hasPickerKey()) shortcut_.bind();
  GlyphRenderer::shared().setFamily(preferences::glyphFamily());
}

BrowserApplication::~BrowserApplication() = default;

void BrowserApplication::serve(const Request& request) {
  if (!request.activationToken.isEmpty()) qputenv("XDG_ACTIVATION_TOKEN", request.activationToken.toUtf8());
  switch (request.kind) {
    case Request::Kind::window:
      return showWindow(request.words);
    case Request::Kind::pick:
      return pick();
    case Request::Kind::background:
      staysInBackground_ = true;
      return;
  }
}

void BrowserApplication::showWindow(const QString& words) {
  if (!window_) {
    window_ = std::make_unique<MainWindow>(catalog_, appearance_, shortcut_);
    connect(window_.get(), &MainWindow::closed, this, [this] {
      // Delete the window later, because it is still handling an event.
      window_.release()->deleteLater();
      if (!lingering_.isActive()) quitUnlessNeeded();
    });
  }
  window_->search(words);
  window_->show();
  window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
  window_->raise();
  window_->activateWindow();
}

void BrowserApplication::pick() {
  if (!picker_) {
    picker_ = std::make_unique<Picker>(catalog_);
    connect(picker_.get(), &Picker::closed, this, &BrowserApplication::finishPick);
  }
  lingering_.stop();
  if (!picker_->isVisible()) focusedBefore_ = focusedWindow();
  picker_->open();
}

void BrowserApplication::finishPick(const QString& text) {
  lingering_.start();
  if (text.isEmpty() || !preferences::pickerTypes()) return;
  QTimer::singleShot(focusMilliseconds, this, [this, text] {
    typeText(text, focusedBefore_, [this](bool typed) {
      if (!typed) explainTyping();
    });
  });
}

// Tells the user once that the text must be pasted, because the program cannot type on this desktop. Uses a
// desktop notification, because the picker is closed already.
void BrowserApplication::explainTyping() {
  if (preferences::wasTypingExplained()) return;
  preferences::setTypingExplained();
  const QString name = QStringLiteral("org.freedesktop.Notifications");
  QDBusMessage call = QDBusMessage::createMethodCall(name, QStringLiteral("/org/freedesktop/Notifications"),
                                                     name, QStringLiteral("Notify"));
  call << QApplication::applicationName() << 0U << QApplication::desktopFileName()
       << tr("The character was copied")
       << tr("This desktop does not let programs type into other windows, or the tool for it is not "
             "installed. "
             "Ctrl+V pastes the character.")
       << QStringList() << QVariantMap() << -1;
  QDBusConnection::sessionBus().send(call);
}

void BrowserApplication::quitUnlessNeeded() {
  const bool isVisible = window_ || (picker_ && picker_->isVisible());
  if (!isVisible && !staysInBackground_) QCoreApplication::quit();
}

}  // namespace browser
