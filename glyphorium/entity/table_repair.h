// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace glyph {

/// The table with the bare symbols of U+0022 and U+005C escaped: every `"\"` becomes `"\\"`, then every `"""`
/// becomes `"\""`. nullopt if the table has neither, so that the caller can parse it in place.
std::optional<std::string> repairedTable(std::string_view json);

}  // namespace glyph
