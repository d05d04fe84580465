// SPDX-License-Identifier: MIT
#include "glyphorium/platform/setting_json_internal.h"

#include <algorithm>
#include <limits>
#include <nlohmann/json.hpp>

namespace glyph {

using nlohmann::json;

namespace {

// A NUL byte is nowhere in JSON, but the parser would take it for the end of the text.
bool holdsNul(std::string_view text) {
  return text.find('\0') != std::string_view::npos;
}

}  // namespace

std::optional<std::string> settingToJson(const SettingValue& value) {
  if (const auto* const raw = std::get_if<RawJson>(&value)) {
    return !holdsNul(raw->text) && json::accept(raw->text) ? std::optional(raw->text) : std::nullopt;
  }
  return std::visit(
      [](const auto& plain) -> std::string {
        if constexpr (std::is_same_v<std::decay_t<decltype(plain)>, RawJson>) {
          return {};  // returned above
        } else {
          return json(plain).dump(-1, ' ', false, json::error_handler_t::replace);
        }
      },
      value);
}

SettingValue settingFromJson(std::string_view text) {
  if (holdsNul(text)) return RawJson{std::string(text)};
  const json value = json::parse(text, nullptr, /*allow_exceptions=*/false);
  switch (value.type()) {
    case json::value_t::boolean:
      return value.get<bool>();
    case json::value_t::number_integer:
      return value.get<std::int64_t>();
    case json::value_t::number_unsigned:
      if (value.get<std::uint64_t>() > std::numeric_limits<std::int64_t>::max()) break;
      return value.get<std::int64_t>();
    case json::value_t::number_float:
      return value.get<double>();
    case json::value_t::string:
      return value.get<std::string>();
    case json::value_t::array:
      if (!std::all_of(value.begin(), value.end(), [](const json& item) { return item.is_string(); })) break;
      return value.get<std::vector<std::string>>();
    default:
      break;
  }
  return RawJson{std::string(text)};
}

}  // namespace glyph
