// SPDX-License-Identifier: MIT
// Settings as JSON: what the store holds as a value, and values as what it stores.
#include <cmath>
#include <cstring>
#include <nlohmann/json.hpp>
#include <string>

#include "fuzz/fuzzing.h"
#include "glyphorium/platform/setting_json_internal.h"
#include "glyphorium/platform/unicode_text.h"

namespace {

using fuzzing::require;
using glyph::RawJson;
using glyph::SettingValue;

void tryStoredText(std::string_view text) {
  const SettingValue value = glyph::settingFromJson(text);
  const auto written = glyph::settingToJson(value);
  // The other library takes a NUL byte for the end of the text, wherever it stands.
  const bool isJson = text.find('\0') == std::string_view::npos && nlohmann::json::accept(text);
  require(written.has_value() == isJson, "what can be written again is exactly what is JSON");
  if (const auto* const raw = std::get_if<RawJson>(&value)) {
    require(raw->text == text, "what has no type of its own is carried unchanged");
    require(!written || *written == text, "and written so");
  } else {
    require(glyph::settingFromJson(*written) == value, "a value survives");
  }
}

void tryValue(const SettingValue& value, bool wellFormed) {
  const auto written = glyph::settingToJson(value);
  require(written && glyph::isWellFormedUtf8(*written), "every value can be written");
  const SettingValue again = glyph::settingFromJson(*written);
  require(again.index() == value.index(), "a value keeps its type");
  if (wellFormed) require(again == value, "and its content");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = fuzzing::input(data, size);
  tryStoredText(text);

  const bool wellFormed = glyph::isWellFormedUtf8(text);
  tryValue(std::string(text), wellFormed);
  std::vector<std::string> list(1);
  for (const char c : text) {
    if (c == ',') {
      list.emplace_back();
    } else {
      list.back() += c;
    }
  }
  tryValue(list, wellFormed);

  if (size >= 8) {
    std::int64_t integer = 0;
    double real = 0;
    std::memcpy(&integer, data, sizeof integer);
    std::memcpy(&real, data, sizeof real);
    tryValue(integer, true);
    if (std::isfinite(real)) tryValue(real, true);
  }
  return 0;
}
