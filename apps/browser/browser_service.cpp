// SPDX-License-Identifier: MIT
#include "browser_service.h"

#include <glyphorium/services/application/application.h>

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QScopeGuard>

namespace browser {
namespace {

const QString interfaceName = QStringLiteral("org.glyphorium.Browser");

QString serviceName() {
  return QString::fromStdString(glyph::applicationIdentifier()) + QStringLiteral(".Browser");
}

QString objectPath() {
  return QStringLiteral("/") + serviceName()
                                   .replace(QLatin1Char('.'), QLatin1Char('/'))
                                   .replace(QLatin1Char('-'), QLatin1Char('_'));
}

}  // namespace

bool sendToRunning(const Request& request) {
  // Use a separate connection: that of QDBusConnection::sessionBus() would stop working when the current
  // QCoreApplication ends.
  const QString connectionName = QStringLiteral("messenger");
  const QDBusConnection bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, connectionName);
  const auto disconnect = qScopeGuard([&] { QDBusConnection::disconnectFromBus(connectionName); });
  if (!bus.isConnected()) return false;
  const bool isPick = request.kind == Request::Kind::pick;
  QDBusMessage call = QDBusMessage::createMethodCall(
      serviceName(), objectPath(), interfaceName, isPick ? QStringLiteral("Pick") : QStringLiteral("Search"));
  call.setAutoStartService(false);
  if (!isPick) call << request.words;
  call << request.activationToken;
  // A request to run in the background needs no action, because the program is already running.
  if (request.kind == Request::Kind::background)
    return bus.interface()->isServiceRegistered(serviceName()).value();
  return bus.call(call, QDBus::Block, 3'000).type() == QDBusMessage::ReplyMessage;
}

BrowserService::BrowserService() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  bus.registerObject(objectPath(), this, QDBusConnection::ExportScriptableSlots);
  isRegistered_ = bus.registerService(serviceName());
}

void BrowserService::Search(const QString& words, const QString& activationToken) {
  Q_EMIT requested({Request::Kind::window, words, activationToken});
}

void BrowserService::Pick(const QString& activationToken) {
  Q_EMIT requested({Request::Kind::pick, {}, activationToken});
}

}  // namespace browser
