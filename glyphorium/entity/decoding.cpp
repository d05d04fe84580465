// SPDX-License-Identifier: MIT
#include <simdjson.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <new>

#include "glyphorium/data/embedded_image.h"
#include "glyphorium/data/text_padding.h"
#include "glyphorium/entity/decoding.h"
#include "glyphorium/services/diagnostics/diagnostics.h"

namespace glyph {
namespace {

namespace dom = simdjson::dom;

static_assert(textPadding >= simdjson::SIMDJSON_PADDING);

// The exception for an error in a row. It is thrown and caught in this file only.
struct RowError {
  std::string message;
};

[[noreturn]] void wrongType(std::string_view key, std::string_view wanted) {
  throw RowError{"key '" + std::string(key) + "' must hold " + std::string(wanted)};
}

template <class Text>
void readText(dom::element value, std::string_view key, Text& field) {
  std::string_view text;
  if (value.get(text) != simdjson::SUCCESS) wrongType(key, "a string");
  field = text;
}
void read(dom::element value, std::string_view key, std::string& field) {
  readText(value, key, field);
}
void read(dom::element value, std::string_view key, RecordText& field) {
  readText(value, key, field);
}

void read(dom::element value, std::string_view key, std::int64_t& field) {
  if (value.get(field) != simdjson::SUCCESS) wrongType(key, "an integer");
}

void read(dom::element value, std::string_view key, bool& field) {
  if (value.get(field) != simdjson::SUCCESS) wrongType(key, "true or false");
}

template <class Record>
void readObject(dom::element value, Record& record);

template <class Element>
void read(dom::element value, std::string_view key, std::vector<Element>& field) {
  dom::array elements;
  if (value.get(elements) != simdjson::SUCCESS) wrongType(key, "an array");
  field.clear();
  field.reserve(elements.size());
  for (const dom::element element : elements) {
    if constexpr (std::is_same_v<Element, RecordText>) {
      read(element, key, field.emplace_back());
    } else {
      readObject(element, field.emplace_back());
    }
  }
}

template <class T>
void read(dom::element value, std::string_view key, std::optional<T>& field) {
  if (value.is_null()) {
    field.reset();
  } else {
    read(value, key, field.emplace());
  }
}

// A JSON key and the field of the record that it fills. For each type of record, the fields are listed
// below in the order of the keys in the embedded texts, so that decoding a row of an embedded text compares
// each key only once.
template <class Record, class T>
struct Field {
  std::string_view key;
  T Record::*member;
};
template <class Record, class T>
Field(std::string_view, T Record::*) -> Field<Record, T>;  // Clang before version 17 does not deduce T

template <class Record>
constexpr auto fieldsOf();

template <>
constexpr auto fieldsOf<ComputedEntity>() {
  using R = ComputedEntity;
  return std::tuple(Field{"symbol", &R::symbol}, Field{"hex", &R::hex}, Field{"isSFSymbol", &R::isSFSymbol},
                    Field{"htmlHex", &R::htmlHex}, Field{"fallbackName", &R::fallbackName},
                    Field{"htmlDecimal", &R::htmlDecimal}, Field{"decimal", &R::decimal},
                    Field{"group", &R::group});
}

template <>
constexpr auto fieldsOf<AdditionalData>() {
  using R = AdditionalData;
  return std::tuple(Field{"advice", &R::advice}, Field{"hex", &R::hex}, Field{"htmlNamed", &R::htmlNamed},
                    Field{"needsSerifs", &R::needsSerifs}, Field{"imageName", &R::imageName},
                    Field{"betterName", &R::betterName}, Field{"searchTerms", &R::searchTerms});
}

template <>
constexpr auto fieldsOf<AdditionalDataAdvice>() {
  using R = AdditionalDataAdvice;
  return std::tuple(Field{"lang", &R::lang}, Field{"text", &R::text});
}

template <>
constexpr auto fieldsOf<RawUnicodeEntity>() {
  using R = RawUnicodeEntity;
  return std::tuple(Field{"hex", &R::hex}, Field{"name", &R::name}, Field{"isSFSymbol", &R::isSFSymbol});
}

template <class T>
constexpr bool isOptional = false;
template <class T>
constexpr bool isOptional<std::optional<T>> = true;

template <class Record>
void readObject(dom::element value, Record& record) {
  dom::object object;
  if (value.get(object) != simdjson::SUCCESS) throw RowError{"is no object"};
  constexpr auto fields = fieldsOf<Record>();
  constexpr std::size_t count = std::tuple_size_v<decltype(fields)>;
  std::array<bool, count> isRead{};
  [&]<std::size_t... i>(std::index_sequence<i...>) {
    // In the embedded texts, the keys have the order of `fields`, and only optional keys may be missing. One
    // pass over the object then reads all fields. In other texts, the pass may miss some fields; these fields
    // are looked up by key afterwards.
    auto next = object.begin();
    const auto end = object.end();
    const auto readNext = [&](const auto& field, bool& done) {
      if (next == end || next.key() != field.key) return;
      read(next.value(), field.key, record.*field.member);
      ++next;
      done = true;
    };
    (readNext(std::get<i>(fields), isRead[i]), ...);

    const auto lookUp = [&](const auto& field, bool done) {
      dom::element found;
      if (done) return;
      if (next != end && object.at_key(field.key).get(found) == simdjson::SUCCESS) {
        read(found, field.key, record.*field.member);
      } else if constexpr (!isOptional<std::remove_cvref_t<decltype(record.*field.member)>>) {
        throw RowError{"required key '" + std::string(field.key) + "' is missing"};
      }
    };
    (lookUp(std::get<i>(fields), isRead[i]), ...);
  }
  (std::make_index_sequence<count>());
}

// Reads a row of a group table directly into the entity, without a copy of the record.
void readRow(dom::element value, Entity& entity) {
  readObject(value, entity.computed);
}
template <class Record>
void readRow(dom::element value, Record& record) {
  readObject(value, record);
}

// Returns whether the text is a number by the grammar of JSON.
bool isNumber(std::string_view text) {
  const auto digits = [&] {
    const std::size_t count = std::min(text.find_first_not_of("0123456789"), text.size());
    text.remove_prefix(count);
    return count;
  };
  const auto skip = [&](std::string_view characters) {
    const bool found = !text.empty() && characters.find(text.front()) != std::string_view::npos;
    text.remove_prefix(found);
    return found;
  };
  skip("-");
  if (!skip("0") && digits() == 0) return false;
  if (skip(".") && digits() == 0) return false;
  if (skip("eE")) {
    skip("+-");
    if (digits() == 0) return false;
  }
  return text.empty();
}

// Returns the JSON text with 0.5 in place of every number that is not a 64-bit integer. The parser rejects a
// text with a number outside its range, even under a key that is ignored. The replacement is safe because no
// field accepts a number that is not a 64-bit integer.
std::string withoutHugeNumbers(std::string_view json) {
  std::string result;
  while (!json.empty()) {
    std::size_t length = std::min(json.find_first_of("\"-0123456789"), json.size());
    result += json.substr(0, length);
    json.remove_prefix(length);
    if (json.empty()) break;
    if (json.front() == '"') {
      for (length = 1; length < json.size() && json[length] != '"'; ++length) {
        if (json[length] == '\\') ++length;
      }
      length = std::min(length + 1, json.size());
      result += json.substr(0, length);
    } else {
      length = std::min(json.find_first_not_of("+-.0123456789eE"), json.size());
      const std::string_view number = json.substr(0, length);
      std::int64_t value = 0;
      const auto end = std::from_chars(number.data(), number.data() + length, value);
      const bool small = end.ec == std::errc() && end.ptr == number.data() + length;
      result += small || !isNumber(number) ? number : "0.5";
    }
    json.remove_prefix(length);
  }
  return result;
}

bool isEmbedded(std::string_view text) {
  const char* const begin = embeddedImage.data();
  const char* const end = begin + embeddedImage.size() - textPadding;
  return std::less_equal<>()(begin, text.data()) && std::less_equal<>()(text.data() + text.size(), end);
}

}  // namespace

struct TableDecoder::Parser {
  dom::parser parser;
};

TableDecoder::TableDecoder() : parser_(std::make_unique<Parser>()) {}
TableDecoder::~TableDecoder() = default;

template <class Record>
std::string TableDecoder::append(std::string_view json, std::vector<Record>& records) {
  dom::array rows;
  const bool copy = !isEmbedded(json);
  auto error = parser_->parser.parse(json.data(), json.size(), copy).get(rows);
  if (error == simdjson::NUMBER_ERROR) error = parser_->parser.parse(withoutHugeNumbers(json)).get(rows);
  if (error == simdjson::MEMALLOC) throw std::bad_alloc();  // memory ran out; the text may be valid
  if (error == simdjson::INCORRECT_TYPE) return "is no JSON array";
  if (error != simdjson::SUCCESS) return std::string("is no valid JSON: ") + simdjson::error_message(error);
  const std::size_t before = records.size();
  std::size_t row = 0;
  try {
    for (const dom::element element : rows) {
      readRow(element, records.emplace_back());
      ++row;
    }
  } catch (const RowError& fault) {
    records.resize(before);
    return "row " + std::to_string(row) + ": " + fault.message;
  }
  return {};
}

template <class Record>
std::optional<std::vector<Record>> decodeOrReport(std::string_view json) {
  std::vector<Record> records;
  const std::string error = TableDecoder().append(json, records);
  if (error.empty()) return records;
  printDiagnostic("Table not decoded: " + error);
  return std::nullopt;
}

template std::string TableDecoder::append(std::string_view, std::vector<ComputedEntity>&);
template std::string TableDecoder::append(std::string_view, std::vector<Entity>&);
template std::string TableDecoder::append(std::string_view, std::vector<AdditionalData>&);
template std::string TableDecoder::append(std::string_view, std::vector<RawUnicodeEntity>&);
template std::optional<std::vector<ComputedEntity>> decodeOrReport(std::string_view);
template std::optional<std::vector<AdditionalData>> decodeOrReport(std::string_view);
template std::optional<std::vector<RawUnicodeEntity>> decodeOrReport(std::string_view);

}  // namespace glyph
