// SPDX-License-Identifier: MIT
#include "glyphorium/state/settings.h"

#include <ctime>

#include "glyphorium/entity/records.h"
#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/settings/setting_json.h"
#include "glyphorium/state/user_defaults.h"

namespace glyph {
namespace {

void printSettingLine(const char* event, std::string_view key, const SettingValue* value) {
  const std::time_t now = std::time(nullptr);
  std::tm utc{};
  gmtime_r(&now, &utc);
  char date[32];
  std::strftime(date, sizeof date, "%Y-%m-%d %H:%M:%S +0000", &utc);
  std::string line = std::string(date) + "\tUserDefaults: " + event + " key '" + std::string(key);
  line += value ? "', object: '" + settingToJson(*value).value_or("") + "'" : "' without results.";
  printDiagnostic(line);
}

}  // namespace

std::optional<SettingValue> loadFromUserDefaults(std::string_view key, bool verbose) {
  std::optional<SettingValue> value = settingsStore()->object(key);
  if (verbose) printSettingLine("Loaded", key, value ? &*value : nullptr);
  return value;
}

void saveToUserDefaults(const SettingValue& value, std::string_view key, bool verbose) {
  const auto store = settingsStore();
  store->set(key, value);
  store->synchronize();
  if (verbose) printSettingLine("Saved", key, &value);
}

std::string keepUnderAnotherKey(SettingsStore& store, std::string_view key, const SettingValue& value) {
  std::string name = std::string(key) + ".damaged";
  for (int number = 2; store.object(name); ++number) {
    name = std::string(key) + ".damaged" + std::to_string(number);
  }
  // A store rejects a RawJson whose text is not valid JSON. Such a text is stored as a string instead.
  const auto* const raw = std::get_if<RawJson>(&value);
  store.set(name, raw && !settingToJson(value) ? SettingValue(raw->text) : value);
  return name;
}

void printKeptValue(std::string_view key, const std::string& keptAs) {
  printProblem("The setting '" + std::string(key) +
               "' had a value of an unexpected type, which is kept as '" + keptAs + "'");
}

std::vector<std::string> storedDisplayedGroups() {
  return valueOr(loadFromUserDefaults(UserInfluencedEntityKey::displayedGroups.rawValue(), false),
                 std::vector<std::string>{std::string(customGroup)});
}

std::vector<std::string> storedCustomCodes() {
  return valueOr(loadFromUserDefaults(UserInfluencedEntityKey::customAddedEntities.rawValue(), false),
                 std::vector<std::string>());
}

bool EntityUserData::useSpotlightExtension() {
  return valueOr(loadFromUserDefaults(EntityUserDataKey::useSpotlightExtension.rawValue(), false), true);
}

void EntityUserData::setUseSpotlightExtension(bool use) {
  saveToUserDefaults(use, EntityUserDataKey::useSpotlightExtension.rawValue(), false);
}

void EntityUserData::modifyUseSpotlightExtension(const std::function<void(bool&)>& change) {
  changeUserDefaults(EntityUserDataKey::useSpotlightExtension.rawValue(), true, [&](bool& use) {
    change(use);
    return true;
  });
}

}  // namespace glyph
