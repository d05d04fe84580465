// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "glyphorium/services/settings/settings_store.h"

namespace glyph {

/// Converts a value to JSON text. Ill-formed UTF-8 becomes U+FFFD. A number that JSON cannot express, such as
/// infinity, becomes null. Returns nullopt for a RawJson whose text is not valid JSON.
std::optional<std::string> settingToJson(const SettingValue& value);

/// Converts JSON text to a value. A text that is not valid JSON, perhaps because it is damaged, becomes
/// RawJson. Such a text can then be passed on like every other value of an unknown type.
SettingValue settingFromJson(std::string_view text);

}  // namespace glyph
