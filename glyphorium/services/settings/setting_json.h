// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "glyphorium/services/settings/settings_store.h"

namespace glyph {

/// The value as JSON text. Ill-formed UTF-8 becomes U+FFFD, and a number that JSON does not know (infinity)
/// becomes null. nullopt for RawJson whose text is no JSON.
std::optional<std::string> settingToJson(const SettingValue& value);

/// The value of a JSON text. A text that is no JSON, perhaps damaged, becomes RawJson too, so that it can be
/// carried like any other value of an unknown type.
SettingValue settingFromJson(std::string_view text);

}  // namespace glyph
