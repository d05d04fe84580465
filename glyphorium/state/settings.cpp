// SPDX-License-Identifier: MIT
#include "glyphorium/state/settings.h"

#include <ctime>

#include "glyphorium/entity/records.h"
#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/settings/setting_json.h"
#include "glyphorium/state/user_defaults.h"

namespace glyph {
namespace {

void printSettingLine(const char* what, std::string_view key, const SettingValue* value) {
  const std::time_t now = std::time(nullptr);
  std::tm utc{};
  gmtime_r(&now, &utc);
  char date[32];
  std::strftime(date, sizeof date, "%Y-%m-%d %H:%M:%S +0000", &utc);
  std::string line = std::string(date) + "\tUserDefaults: " + what + " key '" + std::string(key);
  line += value ? "', object: '" + settingToJson(*value).value_or("") + "'" : "' without results.";
  printDiagnostic(line);
}

}  // namespace

std::optional<SettingValue> loadFromUserDefaults(std::string_view key, bool verbose) {
  std::optional<SettingValue> value = settingsStore()->object(key);
  if (verbose) printSettingLine("Loaded", key, value ? &*value : nullptr);
  return value;
}

void saveToUserDefaults(SettingValue value, std::string_view key, bool verbose) {
  const auto store = settingsStore();
  store->set(key, value);
  store->synchronize();
  if (verbose) printSettingLine("Saved", key, &value);
}

std::vector<std::string> storedDisplayedGroups() {
  return valueOr(loadFromUserDefaults(UserInfluencedEntityKey::displayedGroups.rawValue(), false),
                 std::vector<std::string>{std::string(customGroup)});
}

bool EntityUserData::useSpotlightExtension() {
  return valueOr(loadFromUserDefaults(EntityUserDataKey::useSpotlightExtension.rawValue(), false), true);
}

void EntityUserData::setUseSpotlightExtension(bool use) {
  saveToUserDefaults(use, EntityUserDataKey::useSpotlightExtension.rawValue(), false);
}

void EntityUserData::modifyUseSpotlightExtension(const std::function<void(bool&)>& change) {
  settingsStore()->update(EntityUserDataKey::useSpotlightExtension.rawValue(), [&](const auto& stored) {
    bool use = valueOr(stored, true);
    change(use);
    return SettingValue(use);
  });
}

}  // namespace glyph
