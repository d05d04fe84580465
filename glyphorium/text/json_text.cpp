// SPDX-License-Identifier: MIT
#include "glyphorium/text/json_text.h"

#include <nlohmann/json.hpp>

namespace glyph {

using nlohmann::json;

std::string jsonText(std::string_view text) {
  return json(text).dump(-1, ' ', false, json::error_handler_t::replace);
}

}  // namespace glyph
