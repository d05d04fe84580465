// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "glyphorium/services/settings/settings_store.h"

namespace glyph {

/// The value as JSON text. Ill-formed UTF-8 becomes U+FFFD, and a number that JSON does not know (infinity)
/// null; nullopt for raw JSON that is no JSON.
std::optional<std::string> settingToJson(const SettingValue& value);

/// The value of the text, of whatever type it is. What is no JSON is raw JSON nevertheless, so that a value
/// that somebody else has damaged is carried like any other of an unknown type.
SettingValue settingFromJson(std::string_view text);

}  // namespace glyph
