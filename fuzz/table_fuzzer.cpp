// SPDX-License-Identifier: MIT
// The decoding of tables beside a second reading of the same text, by another JSON library and a plain
// repair.
#include <algorithm>
#include <cmath>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <tuple>
#include <vector>

#include "fuzz/fuzzing.h"
#include "glyphorium/catalog/entity/codec.h"
#include "glyphorium/catalog/entity/decoding_internal.h"
#include "glyphorium/catalog/glyphorium.h"

namespace {

using fuzzing::require;
using glyph::AdditionalData;
using glyph::AdditionalDataAdvice;
using glyph::ComputedEntity;
using nlohmann::json;

// What the two libraries take differently by design, and ours is free to refuse: whole numbers beyond 64 bits
// (the other rounds them), more than 1,000 levels of nesting, and a byte order mark (the other skips it).
bool differsByDesign(std::string_view text) {
  bool found = text.starts_with("\xEF\xBB\xBF");
  const auto look = [&](int depth, json::parse_event_t event, json& value) {
    using Event = json::parse_event_t;
    if (event == Event::object_start || event == Event::array_start) found |= depth >= 1000;
    if (event == Event::value && value.is_number_float()) found |= std::abs(value.get<double>()) >= 0x1p63;
    return true;
  };
  static_cast<void>(json::parse(text, look, /*allow_exceptions=*/false));
  return found;
}

// The text's value. Ours takes the first of duplicate keys, the other the last: here the later ones are left
// out. The other also takes a NUL byte for the end, where ours sees a byte that JSON does not know.
std::optional<json> strictlyRead(std::string_view text) {
  if (text.find('\0') != std::string_view::npos) return std::nullopt;
  std::vector<std::vector<std::string>> keysOfLevel;
  const auto firstKeysOnly = [&](int depth, json::parse_event_t event, json& value) {
    const auto level = static_cast<std::size_t>(depth);
    if (event == json::parse_event_t::object_start) {
      keysOfLevel.resize(level + 2);
      keysOfLevel[level + 1].clear();
    } else if (event == json::parse_event_t::key) {
      auto& keys = keysOfLevel.at(level);
      const auto& key = value.get_ref<const std::string&>();
      if (std::find(keys.begin(), keys.end(), key) != keys.end()) return false;
      keys.push_back(key);
    }
    return true;
  };
  json value = json::parse(text, firstKeysOnly, /*allow_exceptions=*/false);
  if (value.is_discarded()) return std::nullopt;
  return value;
}

struct WrongRow {};

template <class T>
void read(const json& value, T& field) {
  bool typed = false;
  if constexpr (std::is_same_v<T, std::string>) typed = value.is_string();
  if constexpr (std::is_same_v<T, bool>) typed = value.is_boolean();
  if constexpr (std::is_same_v<T, std::int64_t>) {
    typed = value.is_number_integer() && (!value.is_number_unsigned() || value <= INT64_MAX);
  }
  if (!typed) throw WrongRow();
  value.get_to(field);
}
void read(const json& row, AdditionalDataAdvice& note);
void read(const json& row, ComputedEntity& record);
void read(const json& row, AdditionalData& record);
template <class T>
void read(const json& value, std::vector<T>& field) {
  if (!value.is_array()) throw WrongRow();
  for (const json& one : value) read(one, field.emplace_back());
}
template <class T>
void required(const json& row, const char* key, T& field) {
  if (!row.is_object() || !row.contains(key)) throw WrongRow();
  read(row.at(key), field);
}
template <class T>
void optional(const json& row, const char* key, std::optional<T>& field) {
  if (row.contains(key) && !row.at(key).is_null()) read(row.at(key), field.emplace());
}

void read(const json& row, AdditionalDataAdvice& note) {
  required(row, "lang", note.lang);
  required(row, "text", note.text);
}
void read(const json& row, ComputedEntity& record) {
  required(row, "hex", record.hex);
  required(row, "decimal", record.decimal);
  required(row, "htmlHex", record.htmlHex);
  required(row, "htmlDecimal", record.htmlDecimal);
  required(row, "symbol", record.symbol);
  required(row, "fallbackName", record.fallbackName);
  required(row, "group", record.group);
  optional(row, "isSFSymbol", record.isSFSymbol);
}
void read(const json& row, AdditionalData& record) {
  required(row, "hex", record.hex);
  required(row, "advice", record.advice);
  optional(row, "betterName", record.betterName);
  optional(row, "htmlNamed", record.htmlNamed);
  optional(row, "imageName", record.imageName);
  optional(row, "searchTerms", record.searchTerms);
  optional(row, "needsSerifs", record.needsSerifs);
}

template <class Record>
std::optional<std::vector<Record>> strictlyDecoded(std::string_view text) {
  const std::optional<json> value = strictlyRead(text);
  if (!value) return std::nullopt;
  std::vector<Record> records;
  try {
    read(*value, records);
  } catch (const WrongRow&) {
    return std::nullopt;
  }
  return records;
}

// Records compare by their hex codes alone; here all counts.
auto all(const AdditionalDataAdvice& r) {
  return std::tie(r.lang, r.text);
}
auto all(const ComputedEntity& r) {
  return std::tie(r.hex, r.decimal, r.htmlHex, r.htmlDecimal, r.symbol, r.fallbackName, r.group,
                  r.isSFSymbol);
}
auto all(const AdditionalData& r) {
  return std::tie(r.hex, r.betterName, r.htmlNamed, r.imageName, r.searchTerms, r.needsSerifs);
}
template <class Record>
bool same(const std::vector<Record>& a, const std::vector<Record>& b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](const Record& x, const Record& y) {
    if constexpr (std::is_same_v<Record, AdditionalData>) {
      if (!same(x.advice, y.advice)) return false;
    }
    return all(x) == all(y);
  });
}
template <class Record>
bool same(const std::optional<std::vector<Record>>& a, const std::optional<std::vector<Record>>& b) {
  return a && b ? same(*a, *b) : a.has_value() == b.has_value();
}

template <class Record>
void compare(const std::optional<std::vector<Record>>& ours, std::string_view text) {
  if (ours || !differsByDesign(text)) {
    require(same(ours, strictlyDecoded<Record>(text)), "the table reads as by the other library");
  }
  if (!ours) return;
  std::string encoded = "[";
  for (const Record& record : *ours) encoded += (encoded.size() > 1 ? "," : "") + glyph::encode(record);
  encoded += "]";
  require(same(ours, glyph::decodeOrReport<Record>(encoded)), "what was decoded can be encoded and decoded");
}

void replaceAll(std::string& text, std::string_view what, std::string_view with) {
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size()) {
    text.replace(at, what.size(), with);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = fuzzing::input(data, size);
  static const glyph::Glyphorium catalog;

  std::string repaired(text);
  replaceAll(repaired, R"("\")", R"("\\")");
  replaceAll(repaired, R"(""")", R"("\"")");
  const auto records = catalog.getComputedEntitiesFrom(text);
  compare(records, repaired);

  const auto enrichment = catalog.getAdditionalDataFrom(text);
  compare(enrichment, text);
  return 0;
}
