// SPDX-License-Identifier: MIT
#include "translations.h"

#include <glyphorium/text/preferred_languages.h>

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>

namespace browser {

Translations::Translations() {
  for (const std::string& language : glyph::preferredLanguages()) {
    const QString name = QString::fromStdString(language);
    if (!program_.load(QStringLiteral("glyphorium_") + name, QStringLiteral(":/translations"))) {
      continue;
    }
    QCoreApplication::installTranslator(&program_);
    if (qt_.load(QStringLiteral("qtbase_") + name, QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
      QCoreApplication::installTranslator(&qt_);
    }
    return;
  }
}

}  // namespace browser
