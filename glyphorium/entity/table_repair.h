// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace glyph {

/// Returns the table with the unescaped symbols of U+0022 and U+005C escaped: first every `"\"` becomes
/// `"\\"`, then every `"""` becomes `"\""`. Returns nullopt if the table contains neither sequence, so that
/// the caller can parse the original table in place.
std::optional<std::string> repairedTable(std::string_view json);

}  // namespace glyph
