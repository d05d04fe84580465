// SPDX-License-Identifier: MIT
#include "glyphorium/entity/codec.h"
#include "glyphorium/text/json_text.h"

namespace glyph {
namespace {

std::string valueText(std::string_view text) {
  return jsonText(text);
}
std::string valueText(const std::vector<RecordText>& list) {
  return jsonText(list);
}
std::string valueText(std::int64_t number) {
  return std::to_string(number);
}
std::string valueText(bool value) {
  return value ? "true" : "false";
}
std::string valueText(const std::vector<AdditionalDataAdvice>& notes) {
  std::string text = "[";
  for (const AdditionalDataAdvice& note : notes) text += (text.size() > 1 ? "," : "") + encode(note);
  return text + "]";
}

class Object {
 public:
  template <class T>
  Object& put(const char* key, const T& field) {
    text_ += text_.empty() ? "{\"" : ",\"";
    text_ += key;
    text_ += "\":";
    text_ += valueText(field);
    return *this;
  }
  template <class T>
  Object& put(const char* key, const std::optional<T>& field) {
    return field ? put(key, *field) : *this;
  }
  std::string text() const { return text_ + "}"; }

 private:
  std::string text_;
};

}  // namespace

std::string encode(const ComputedEntity& record) {
  return Object()
      .put("hex", record.hex)
      .put("decimal", record.decimal)
      .put("htmlHex", record.htmlHex)
      .put("htmlDecimal", record.htmlDecimal)
      .put("symbol", record.symbol)
      .put("fallbackName", record.fallbackName)
      .put("group", record.group)
      .put("isSFSymbol", record.isSFSymbol)
      .text();
}

std::string encode(const AdditionalData& record) {
  return Object()
      .put("hex", record.hex)
      .put("betterName", record.betterName)
      .put("htmlNamed", record.htmlNamed)
      .put("imageName", record.imageName)
      .put("searchTerms", record.searchTerms)
      .put("needsSerifs", record.needsSerifs)
      .put("advice", record.advice)
      .text();
}

std::string encode(const AdditionalDataAdvice& record) {
  return Object().put("lang", record.lang).put("text", record.text).text();
}

std::string encode(const RawUnicodeEntity& record) {
  return Object().put("hex", record.hex).put("name", record.name).put("isSFSymbol", record.isSFSymbol).text();
}

}  // namespace glyph
