// SPDX-License-Identifier: MIT
#include <nlohmann/json.hpp>

#include "glyphorium/catalog/entity/codec.h"

namespace glyph {
namespace {

using Json = nlohmann::ordered_json;

template <class T>
void put(Json& object, const char* key, const std::optional<T>& field) {
  if (field) object[key] = *field;
}

Json object(const AdditionalDataAdvice& note) {
  return {{"lang", note.lang}, {"text", note.text}};
}

std::string text(const Json& json) {
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

}  // namespace

std::string encode(const ComputedEntity& record) {
  Json json = {{"hex", record.hex},         {"decimal", record.decimal},
               {"htmlHex", record.htmlHex}, {"htmlDecimal", record.htmlDecimal},
               {"symbol", record.symbol},   {"fallbackName", record.fallbackName},
               {"group", record.group}};
  put(json, "isSFSymbol", record.isSFSymbol);
  return text(json);
}

std::string encode(const AdditionalData& record) {
  Json json = {{"hex", record.hex}};
  put(json, "betterName", record.betterName);
  put(json, "htmlNamed", record.htmlNamed);
  put(json, "imageName", record.imageName);
  put(json, "searchTerms", record.searchTerms);
  put(json, "needsSerifs", record.needsSerifs);
  Json& advice = json["advice"] = Json::array();
  for (const AdditionalDataAdvice& note : record.advice) advice.push_back(object(note));
  return text(json);
}

std::string encode(const AdditionalDataAdvice& record) {
  return text(object(record));
}

std::string encode(const RawUnicodeEntity& record) {
  return text({{"hex", record.hex}, {"name", record.name}, {"isSFSymbol", record.isSFSymbol}});
}

}  // namespace glyph
