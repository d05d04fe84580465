// SPDX-License-Identifier: MIT
#include "clipboard.h"

#include <glyphorium/glyphorium.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QThread>

#include "character_texts.h"

namespace browser {
namespace {

class QtPasteboard final : public glyph::Pasteboard {
 public:
  bool setPlainText(std::string_view text) override {
    const auto set = [copy = fromUtf8(text)] { QGuiApplication::clipboard()->setText(copy); };
    // Only the GUI thread may use Qt's clipboard, so another thread must wait for it.
    const bool isHere = QThread::currentThread() == qApp->thread();
    QMetaObject::invokeMethod(qApp, set, isHere ? Qt::DirectConnection : Qt::QueuedConnection);
    return true;
  }
};

void handOver() {
  const QClipboard* const clipboard = QGuiApplication::clipboard();
  const QString platform = QGuiApplication::platformName();
  const bool hasDesktop = platform == "xcb" || platform.startsWith("wayland");
  if (!hasDesktop || !clipboard->ownsClipboard() || clipboard->text().isEmpty()) return;
  glyph::DesktopPasteboard().setPlainText(clipboard->text().toStdString());
}

}  // namespace

std::shared_ptr<glyph::Pasteboard> applicationPasteboard() {
  QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, handOver);
  return std::make_shared<QtPasteboard>();
}

}  // namespace browser
