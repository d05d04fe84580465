// SPDX-License-Identifier: MIT
#include "glyphorium/text/json_text.h"

#include <nlohmann/json.hpp>

namespace glyph {

using nlohmann::json;

std::string jsonText(std::string_view text) {
  return json(text).dump(-1, ' ', false, json::error_handler_t::replace);
}

std::string jsonText(const std::vector<std::string>& list) {
  std::string text = "[";
  for (const std::string& item : list) {
    if (text.size() > 1) text += ',';
    text += jsonText(item);
  }
  return text += ']';
}

}  // namespace glyph
