// SPDX-License-Identifier: MIT
// The decoding of tables beside a second reading of the same text, by another JSON library and a plain
// repair.
#include <algorithm>
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
class Differences : public nlohmann::json_sax<json> {
 public:
  bool found = false;

  bool null() override { return true; }
  bool boolean(bool) override { return true; }
  bool number_integer(std::int64_t) override { return true; }
  bool number_unsigned(std::uint64_t) override { return true; }
  bool number_float(double, const std::string& digits) override {
    found |= digits.find_first_of(".eE") == std::string::npos;
    return true;
  }
  bool string(std::string&) override { return true; }
  bool binary(json::binary_t&) override { return true; }
  bool key(std::string&) override { return true; }
  bool start_object(std::size_t) override { return enter(); }
  bool end_object() override { return leave(); }
  bool start_array(std::size_t) override { return enter(); }
  bool end_array() override { return leave(); }
  bool parse_error(std::size_t, const std::string&, const nlohmann::detail::exception&) override {
    return false;
  }

 private:
  bool enter() {
    found |= ++depth_ > 1000;
    return true;
  }
  bool leave() {
    --depth_;
    return true;
  }
  int depth_ = 0;
};

bool differsByDesign(std::string_view text) {
  Differences differences;
  json::sax_parse(text, &differences);
  return differences.found || text.starts_with("\xEF\xBB\xBF");
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

void read(const json& value, std::string& field) {
  if (!value.is_string()) throw WrongRow();
  field = value.get<std::string>();
}
void read(const json& value, bool& field) {
  if (!value.is_boolean()) throw WrongRow();
  field = value.get<bool>();
}
void read(const json& value, std::int64_t& field) {
  if (!value.is_number_integer()) throw WrongRow();
  if (value.is_number_unsigned() && value.get<std::uint64_t>() > INT64_MAX) throw WrongRow();
  field = value.get<std::int64_t>();
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
bool same(const ComputedEntity& a, const ComputedEntity& b) {
  const auto all = [](const ComputedEntity& r) {
    return std::tie(r.hex, r.decimal, r.htmlHex, r.htmlDecimal, r.symbol, r.fallbackName, r.group,
                    r.isSFSymbol);
  };
  return all(a) == all(b);
}
bool same(const AdditionalData& a, const AdditionalData& b) {
  const auto all = [](const AdditionalData& r) {
    return std::tie(r.hex, r.betterName, r.htmlNamed, r.imageName, r.searchTerms, r.needsSerifs);
  };
  return all(a) == all(b) && std::equal(a.advice.begin(), a.advice.end(), b.advice.begin(), b.advice.end(),
                                        [](const AdditionalDataAdvice& x, const AdditionalDataAdvice& y) {
                                          return x.lang == y.lang && x.text == y.text;
                                        });
}
template <class Record>
bool same(const std::optional<std::vector<Record>>& a, const std::optional<std::vector<Record>>& b) {
  if (!a || !b) return a.has_value() == b.has_value();
  return std::equal(a->begin(), a->end(), b->begin(), b->end(),
                    [](const Record& x, const Record& y) { return same(x, y); });
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
