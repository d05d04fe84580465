// SPDX-License-Identifier: MIT
// Tests that every text can be read as the stored form of a setting, and that every stored value is read back
// unchanged.
#include <cmath>
#include <cstdint>
#include <cstring>
#include <nlohmann/json.hpp>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "fuzz/require.h"
#include "glyphorium/services/settings/setting_json.h"
#include "glyphorium/text/unicode_text.h"

namespace {

using fuzzing::require;
using glyph::SettingValue;

void store(const SettingValue& value) {
  const auto json = glyph::settingToJson(value);
  require(json.has_value(), "a plain value can be stored");
  require(nlohmann::json::accept(*json), "the stored text is JSON");
  require(glyph::isWellFormedUtf8(*json), "the stored text is well-formed UTF-8");
  require(glyph::settingFromJson(*json) == value, "a stored value is read back unchanged");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  const SettingValue read = glyph::settingFromJson(text);
  if (const auto* const raw = std::get_if<glyph::RawJson>(&read)) {
    require(raw->text == text, "RawJson contains the original text");
  } else {
    require(nlohmann::json::accept(text), "a text that is not JSON is read as RawJson");
    store(read);
  }

  std::int64_t number = 0;
  std::memcpy(&number, data, std::min(size, sizeof number));
  double real = 0;
  std::memcpy(&real, &number, sizeof real);
  store(number);
  if (std::isfinite(real)) store(real);
  if (!glyph::isWellFormedUtf8(text)) return 0;
  store(text);
  std::vector<std::string> list;
  for (std::size_t begin = 0; begin <= text.size();) {
    const std::size_t end = std::min(text.find(',', begin), text.size());
    list.push_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  store(list);
  return 0;
}
