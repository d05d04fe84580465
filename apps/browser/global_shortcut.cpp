// SPDX-License-Identifier: MIT
#include "global_shortcut.h"

#include <QDBusArgument>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QList>

#include "preferences.h"

namespace browser {

// One shortcut as the portal sends and expects it.
struct PortalShortcut {
  QString identifier;
  QVariantMap properties;
};

QDBusArgument& operator<<(QDBusArgument& argument, const PortalShortcut& shortcut) {
  argument.beginStructure();
  argument << shortcut.identifier << shortcut.properties;
  argument.endStructure();
  return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, PortalShortcut& shortcut) {
  argument.beginStructure();
  argument >> shortcut.identifier >> shortcut.properties;
  argument.endStructure();
  return argument;
}

namespace {

const QString service = QStringLiteral("org.freedesktop.portal.Desktop");
const QString portalPath = QStringLiteral("/org/freedesktop/portal/desktop");
const QString portal = QStringLiteral("org.freedesktop.portal.GlobalShortcuts");
const QString identifier = QStringLiteral("pick");
const QString proposedKey = QStringLiteral("CTRL+ALT+period");  // the user can choose another

}  // namespace

GlobalShortcut::GlobalShortcut(const QDBusConnection& bus) : bus_(bus) {
  qDBusRegisterMetaType<PortalShortcut>();
  qDBusRegisterMetaType<QList<PortalShortcut>>();
}

void GlobalShortcut::findPortal() {
  if (state_ != State::unavailable) return;
  QDBusMessage question = QDBusMessage::createMethodCall(
      service, portalPath, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
  question << portal << QStringLiteral("version");
  auto* const answer = new QDBusPendingCallWatcher(bus_.asyncCall(question), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
    const QDBusPendingReply<QDBusVariant> reply = *answer;
    if (reply.isValid() && state_ == State::unavailable) setState(State::released);
    answer->deleteLater();
  });
}

// Calls a method of the portal. Its result arrives later, as a signal of an object whose path is known before
// the call.
void GlobalShortcut::call(const QString& method, QVariantList arguments, QVariantMap options,
                          const char* slot) {
  const QString token = QStringLiteral("glyphorium_") + method;
  const QString sender = bus_.baseService().mid(1).replace(QLatin1Char('.'), QLatin1Char('_'));
  const QString request = portalPath + QStringLiteral("/request/") + sender + QLatin1Char('/') + token;
  const QString interface = QStringLiteral("org.freedesktop.portal.Request");
  bus_.disconnect(service, request, interface, QStringLiteral("Response"), this, slot);
  bus_.connect(service, request, interface, QStringLiteral("Response"), this, slot);
  options.insert(QStringLiteral("handle_token"), token);
  QDBusMessage message = QDBusMessage::createMethodCall(service, portalPath, portal, method);
  message.setArguments(arguments << options);
  auto* const answer = new QDBusPendingCallWatcher(bus_.asyncCall(message), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
    if (answer->isError()) setState(State::unavailable);
    answer->deleteLater();
  });
}

void GlobalShortcut::bind() {
  preferences::setHasPickerKey(true);
  if (state_ == State::asking || state_ == State::bound) return;
  setState(State::asking);
  call(QStringLiteral("CreateSession"), {},
       {{QStringLiteral("session_handle_token"), QStringLiteral("glyphorium")}},
       SLOT(takeSession(uint, QVariantMap)));
}

void GlobalShortcut::takeSession(uint code, const QVariantMap& results) {
  if (state_ != State::asking) return;
  if (code != 0) return setState(State::released);
  // The portal sends the path as a text.
  session_ = QDBusObjectPath(results.value(QStringLiteral("session_handle")).toString());
  bus_.connect(service, portalPath, portal, QStringLiteral("Activated"), this,
               SLOT(takePress(QDBusObjectPath, QString, qulonglong, QVariantMap)));
  const QList<PortalShortcut> shortcuts{{identifier,
                                         {{QStringLiteral("description"), tr("Pick a character")},
                                          {QStringLiteral("preferred_trigger"), proposedKey}}}};
  call(QStringLiteral("BindShortcuts"),
       {QVariant::fromValue(session_), QVariant::fromValue(shortcuts), QString()}, {},
       SLOT(takeKey(uint, QVariantMap)));
}

void GlobalShortcut::takeKey(uint code, const QVariantMap& results) {
  if (state_ != State::asking) return;
  if (code != 0) return release();
  const auto shortcuts = qdbus_cast<QList<PortalShortcut>>(results.value(QStringLiteral("shortcuts")));
  for (const PortalShortcut& shortcut : shortcuts) {
    if (shortcut.identifier == identifier)
      return setState(State::bound,
                      shortcut.properties.value(QStringLiteral("trigger_description")).toString());
  }
  release();
}

void GlobalShortcut::release() {
  preferences::setHasPickerKey(false);
  if (!session_.path().isEmpty()) {
    bus_.send(QDBusMessage::createMethodCall(
        service, session_.path(), QStringLiteral("org.freedesktop.portal.Session"), QStringLiteral("Close")));
    session_ = QDBusObjectPath();
  }
  if (state_ != State::unavailable) setState(State::released);
}

void GlobalShortcut::takePress(const QDBusObjectPath& session, const QString& shortcut, qulonglong,
                               const QVariantMap& options) {
  if (session == session_ && shortcut == identifier)
    Q_EMIT activated(options.value(QStringLiteral("activation_token")).toString());
}

void GlobalShortcut::setState(State state, const QString& keyText) {
  state_ = state;
  keyText_ = keyText;
  Q_EMIT stateChanged();
}

}  // namespace browser
