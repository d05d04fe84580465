// SPDX-License-Identifier: MIT
// Compares the decoding of tables with a second decoder, which uses another JSON library and a simple repair
// of the text.
#include <algorithm>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "fuzz/require.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/entity/codec.h"
#include "glyphorium/entity/decoding.h"
#include "glyphorium/services/diagnostics/diagnostics.h"

namespace {

using fuzzing::require;
using nlohmann::json;
using Type = json::value_t;

// Whether the text has a feature that the other library accepts and our decoder may reject: at least 1,000
// levels of nesting, or a byte order mark.
bool differsByDesign(std::string_view text) {
  bool found = text.starts_with("\xEF\xBB\xBF");
  const auto look = [&](int depth, json::parse_event_t event, json&) {
    using Event = json::parse_event_t;
    if (event == Event::object_start || event == Event::array_start) found |= depth >= 1000;
    return true;
  };
  static_cast<void>(json::parse(text, look, /*allow_exceptions=*/false));
  return found;
}

// Whether the other library rejects the text because a number exceeds the range of floating point. Our
// decoder ignores such a number if its key is unknown.
bool holdsHugeNumber(std::string_view text) {
  try {
    static_cast<void>(json::parse(text));
    return false;
  } catch (const json::out_of_range&) {
    return true;
  } catch (const json::exception&) {
    return false;
  }
}

// Parses the text with the other library, but by the rules of our decoder. If a key occurs twice in an
// object, our decoder uses the first value and the other library the last, so later values are skipped here.
// The other library treats a NUL byte as the end of the text, but our decoder rejects it as invalid JSON.
json strictlyRead(std::string_view text) {
  if (text.find('\0') != std::string_view::npos) return json(Type::discarded);
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
  return json::parse(text, firstKeysOnly, /*allow_exceptions=*/false);
}

struct Field {
  const char* name;
  Type type;
  bool required = false;
  std::vector<Field> ofItems = {};  // the fields of an array's objects; empty if its items are texts
};
const std::vector<Field> computedFields = {
    {"hex", Type::string, true},     {"decimal", Type::number_integer, true},
    {"htmlHex", Type::string, true}, {"htmlDecimal", Type::string, true},
    {"symbol", Type::string, true},  {"fallbackName", Type::string, true},
    {"group", Type::string, true},   {"isSFSymbol", Type::boolean}};
const std::vector<Field> additionalFields = {
    {"hex", Type::string, true},
    {"advice", Type::array, true, {{"lang", Type::string, true}, {"text", Type::string, true}}},
    {"betterName", Type::string},
    {"htmlNamed", Type::string},
    {"imageName", Type::string},
    {"searchTerms", Type::array},
    {"needsSerifs", Type::boolean}};

struct WrongRow {};

// Returns the table with only the known fields. Throws WrongRow if a row does not have the form of `fields`.
json rowsOf(const json& table, const std::vector<Field>& fields) {
  if (!table.is_array()) throw WrongRow();
  json rows = json::array();
  for (const json& row : table) {
    json& kept = rows.emplace_back(json::object());
    for (const auto& [name, type, required, ofItems] : fields) {
      const auto found = row.find(name);
      if (!required && (found == row.end() || found->is_null())) continue;
      if (!row.is_object() || found == row.end()) throw WrongRow();
      const bool whole = found->is_number_integer() && (!found->is_number_unsigned() || *found <= INT64_MAX);
      const auto isText = [](const json& item) { return item.is_string(); };
      if (type == Type::number_integer ? !whole : found->type() != type) throw WrongRow();
      if (type == Type::array && ofItems.empty() && !std::all_of(found->begin(), found->end(), isText)) {
        throw WrongRow();
      }
      kept[name] = ofItems.empty() ? *found : rowsOf(*found, ofItems);
    }
  }
  return rows;
}

template <class Record>
void compare(const std::optional<std::vector<Record>>& ours, std::string_view text,
             const std::vector<Field>& fields) {
  json expected(Type::discarded);
  try {
    expected = rowsOf(strictlyRead(text), fields);
  } catch (const WrongRow&) {
  }
  if (!ours) {
    return require(expected.is_discarded() || differsByDesign(text), "only a faulty table is rejected");
  }
  const auto encoded = [](const std::vector<Record>& records) {
    std::string array = "[";
    for (const Record& record : records) array += (array.size() > 1 ? "," : "") + glyph::encode(record);
    return array + "]";
  };
  require(json::parse(encoded(*ours)) == expected || holdsHugeNumber(text),
          "both decoders give the same table");
  const auto again = glyph::decodeOrReport<Record>(encoded(*ours));
  require(again && encoded(*again) == encoded(*ours), "a decoded table can be encoded and decoded again");
}

void replaceAll(std::string& text, std::string_view what, std::string_view with) {
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += with.size()) {
    text.replace(at, what.size(), with);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  static const glyph::Glyphorium catalog;
  // Most inputs are faulty. Without this sink, the decoder would print a line for each of them.
  glyph::setDiagnosticsSink([](std::string_view) {});

  std::string repaired(text);
  replaceAll(repaired, R"("\")", R"("\\")");
  replaceAll(repaired, R"(""")", R"("\"")");
  compare(catalog.getComputedEntitiesFrom(text), repaired, computedFields);
  compare(catalog.getAdditionalDataFrom(text), text, additionalFields);
  return 0;
}
