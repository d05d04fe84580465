// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusConnection>
#include <QDBusObjectPath>
#include <QObject>
#include <QString>
#include <QVariantMap>

namespace browser {

/// A key that opens the picker over every window, through the desktop portal
/// org.freedesktop.portal.GlobalShortcuts. The desktop asks the user which key. It also remembers the key,
/// but the program must ask for it again after each start, and the key works only while the program runs. All
/// calls return at once.
class GlobalShortcut : public QObject {
  Q_OBJECT

 public:
  enum class State {
    unavailable,  ///< the desktop has no such portal, or the program has not looked for it yet
    released,     ///< no key opens the picker
    asking,       ///< the desktop asks the user
    bound,        ///< a key opens the picker
  };

  explicit GlobalShortcut(const QDBusConnection& bus = QDBusConnection::sessionBus());

  State state() const { return state_; }
  /// The desktop's name of the key. May be empty, also if a key is bound.
  const QString& keyText() const { return keyText_; }

  /// Looks whether the desktop has the portal.
  void findPortal();
  /// Asks for the key, and stores in the preferences that the user wants it. If the user or the desktop
  /// refuses, the state becomes `released`.
  void bind();
  /// Gives the key back, and stores that the user does not want it.
  void release();

 Q_SIGNALS:
  void stateChanged();
  /// The user pressed the key. The token lets a window come to the front; it may be empty.
  void activated(const QString& activationToken);

 private:
  Q_SLOT void takeSession(uint code, const QVariantMap& results);
  Q_SLOT void takeKey(uint code, const QVariantMap& results);
  Q_SLOT void takePress(const QDBusObjectPath& session, const QString& shortcut, qulonglong time,
                        const QVariantMap& options);
  void call(const QString& method, QVariantList arguments, QVariantMap options, const char* slot);
  void setState(State state, const QString& keyText = {});

  QDBusConnection bus_;
  State state_ = State::unavailable;
  QString keyText_;
  QDBusObjectPath session_;
};

}  // namespace browser
