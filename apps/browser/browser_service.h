// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QString>
#include <optional>

namespace browser {

/// The action that a start of the program asks for.
struct Request {
  enum class Kind { window, pick, background };
  Kind kind = Kind::window;
  QString words{};            ///< for Kind::window: the words to search for
  QString activationToken{};  ///< lets a window come to the front; may be empty
};

/// Sends the request to a running instance of the program. Returns false if no instance is running. Needs a
/// QCoreApplication.
bool sendToRunning(const Request& request);

/// The service on the session bus through which a second instance of the program finds the first. Its name is
/// the application identifier with ".Browser" appended.
class BrowserService : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.glyphorium.Browser")

 public:
  BrowserService();
  /// False if another process has registered the name, or if there is no bus.
  bool isRegistered() const { return isRegistered_; }

  Q_SLOT Q_SCRIPTABLE void Search(const QString& words, const QString& activationToken);
  Q_SLOT Q_SCRIPTABLE void Pick(const QString& activationToken);

 Q_SIGNALS:
  void requested(const browser::Request& request);

 private:
  bool isRegistered_ = false;
};

}  // namespace browser
