// SPDX-License-Identifier: MIT
#include "preferences.h"

#include <glyphorium/glyphorium.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSaveFile>
#include <QStandardPaths>

#include "character_texts.h"

namespace browser::preferences {
namespace {

template <class T>
T stored(std::string_view key, T otherwise) {
  const auto value = glyph::settingsStore()->object(key);
  const T* const found = value ? std::get_if<T>(&*value) : nullptr;
  return found ? *found : otherwise;
}

constexpr std::string_view otherFormKey = "browserOtherForm";
constexpr std::string_view glyphFamilyKey = "browserGlyphFamily";
constexpr std::string_view pickerTypesKey = "browserPickerTypes";
constexpr std::string_view pickerKeyKey = "browserPickerKey";
constexpr std::string_view typingExplainedKey = "browserTypingExplained";

QString autostartFile() {
  const QString folder =
      QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + "/autostart/";
  return folder + QString::fromStdString(glyph::applicationIdentifier()) + ".Browser.desktop";
}

}  // namespace

std::string otherForm() {
  const std::string identifier = stored<std::string>(otherFormKey, "html");
  return glyph::copyForm(identifier) ? identifier : "html";
}

void setOtherForm(const std::string& identifier) {
  glyph::settingsStore()->set(otherFormKey, identifier);
}

QString glyphFamily() {
  return QString::fromStdString(stored<std::string>(glyphFamilyKey, {}));
}

void setGlyphFamily(const QString& family) {
  glyph::settingsStore()->set(glyphFamilyKey, family.toStdString());
}

bool pickerTypes() {
  return stored(pickerTypesKey, true);
}

void setPickerTypes(bool types) {
  glyph::settingsStore()->set(pickerTypesKey, types);
}

bool hasPickerKey() {
  return stored(pickerKeyKey, false);
}

void setHasPickerKey(bool has) {
  glyph::settingsStore()->set(pickerKeyKey, has);
}

bool wasTypingExplained() {
  return stored(typingExplainedKey, false);
}

void setTypingExplained() {
  glyph::settingsStore()->set(typingExplainedKey, true);
}

bool startsWithDesktop() {
  return QFile::exists(autostartFile());
}

bool setStartsWithDesktop(bool starts) {
  const QString file = autostartFile();
  if (!starts) return !QFile::exists(file) || QFile::remove(file);
  // Write the path as a quoted argument of a desktop entry. The characters in this list need a backslash, and
  // each backslash must be doubled, because the argument is part of a string value. A percent sign must be
  // doubled too.
  QString program = QCoreApplication::applicationFilePath();
  program.replace('\\', "\\\\\\\\")
      .replace('"', "\\\\\"")
      .replace('`', "\\\\`")
      .replace('$', "\\\\$")
      .replace('%', "%%");
  QDir().mkpath(QFileInfo(file).path());
  QSaveFile entry(file);
  if (!entry.open(QIODevice::WriteOnly)) return false;
  const QString text =
      QStringLiteral(
          "[Desktop Entry]\nType=Application\nName=Glyphorium\nExec=\"%1\" --background\nIcon=%2\n"
          "NoDisplay=true\n")
          .arg(program, QString::fromStdString(glyph::applicationIdentifier()));
  entry.write(text.toUtf8());
  return entry.commit();
}

}  // namespace browser::preferences
