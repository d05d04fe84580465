// SPDX-License-Identifier: MIT
#include "window_settings.h"

#include <glyphorium/services/settings/settings_store.h>

#include <QJsonDocument>
#include <QJsonObject>

namespace browser {
namespace {

constexpr std::string_view key = "browserWindow";

QByteArray bytes(const QJsonValue& value) {
  return QByteArray::fromBase64(value.toString().toLatin1());
}

QString text(const QByteArray& bytes) {
  return QString::fromLatin1(bytes.toBase64());
}

}  // namespace

WindowSettings readWindowSettings() {
  const auto value = glyph::settingsStore()->object(key);
  const auto* const json = value ? std::get_if<glyph::RawJson>(&*value) : nullptr;
  if (!json) return {};
  const QJsonObject object = QJsonDocument::fromJson(QByteArray::fromStdString(json->text)).object();
  WindowSettings settings;
  settings.geometry = bytes(object["geometry"]);
  settings.columns = bytes(object["columns"]);
  settings.card = bytes(object["card"]);
  settings.hasSidebar = object["sidebar"].toBool(true);
  settings.cellSize = object["cellSize"].toInt();
  settings.scope = object["scope"].toString().toStdString();
  return settings;
}

void writeWindowSettings(const WindowSettings& settings) {
  const QJsonObject object{
      {"geometry", text(settings.geometry)}, {"columns", text(settings.columns)},
      {"card", text(settings.card)},         {"sidebar", settings.hasSidebar},
      {"cellSize", settings.cellSize},       {"scope", QString::fromStdString(settings.scope)}};
  glyph::settingsStore()->set(
      key, glyph::RawJson{QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString()});
}

}  // namespace browser
