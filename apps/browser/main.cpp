// SPDX-License-Identifier: MIT
#include <glyphorium/glyphorium.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>

#include "browser_application.h"
#include "clipboard.h"
#include "grid_accessibility.h"
#include "translations.h"

namespace {

struct Options {
  browser::Request request;
  QString theme;
};

// Ends the program if the user asks for help or the version, or if an option is not known.
Options readOptions() {
  QCommandLineParser parser;
  parser.setApplicationDescription(QCoreApplication::translate(
      "main", "Browse, search and copy Unicode characters, HTML entities and symbols."));
  parser.addHelpOption();
  parser.addVersionOption();
  const QCommandLineOption search(
      QStringLiteral("search"),
      QCoreApplication::translate("main", "Open the window and search for these words."),
      QCoreApplication::translate("main", "words"));
  const QCommandLineOption pick(
      QStringLiteral("pick"),
      QCoreApplication::translate("main", "Open a small window to pick a character for another program."));
  const QCommandLineOption background(
      QStringLiteral("background"),
      QCoreApplication::translate("main", "Open no window yet, so that later ones open at once."));
  const QCommandLineOption theme(
      QStringLiteral("theme"), QCoreApplication::translate("main", "Use this theme: system, light or dark."),
      QCoreApplication::translate("main", "name"));
  parser.addOptions({search, pick, background, theme});
  parser.process(*QCoreApplication::instance());
  using Kind = browser::Request::Kind;
  const Kind kind = parser.isSet(pick)         ? Kind::pick
                    : parser.isSet(background) ? Kind::background
                                               : Kind::window;
  return {{kind, parser.value(search), QString::fromLocal8Bit(qgetenv("XDG_ACTIVATION_TOKEN"))},
          parser.value(theme)};
}

// Drops one kind of Qt's messages: that a font has a character but lacks the OpenType rules for the
// character's script. The program then tries the next font, so the user need not know.
QtMessageHandler standardHandler = nullptr;
void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (!message.startsWith(QLatin1String("  OpenType support missing")))
    standardHandler(type, context, message);
}

void nameApplication() {
  QCoreApplication::setApplicationName(QStringLiteral("Glyphorium"));
  QCoreApplication::setApplicationVersion(QString::fromUtf8(GlyphoriumVersionString));
}

}  // namespace

int main(int argc, char** argv) {
  // The library's diagnostic lines mostly report changes of the catalog, so they are dropped. The program
  // itself reports problems on standard error.
  glyph::setDiagnosticsSink([](std::string_view) {});
  standardHandler = qInstallMessageHandler(handleMessage);
  Options options;
  {
    // Look for a running instance of the program before connecting to the display, because the connection
    // takes most of the start time.
    const QCoreApplication messenger(argc, argv);
    nameApplication();
    browser::Translations translations;
    options = readOptions();
    if (browser::sendToRunning(options.request)) return 0;
  }
  QApplication application(argc, argv);
  nameApplication();
  QGuiApplication::setDesktopFileName(QString::fromStdString(glyph::applicationIdentifier()));
  QGuiApplication::setWindowIcon(QIcon::fromTheme(QGuiApplication::desktopFileName()));
  browser::Translations translations;
  glyph::setPasteboard(browser::applicationPasteboard());
  browser::installGridAccessibility();
  const auto theme = options.theme.isEmpty() ? browser::Appearance::chosen()
                                             : browser::Appearance::themeNamed(options.theme.toStdString());
  int result = 0;
  {
    browser::BrowserApplication windows(theme);
    windows.serve(options.request);
    result = QApplication::exec();
  }
  glyph::setPasteboard(nullptr);
  return result;
}
