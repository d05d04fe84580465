// SPDX-License-Identifier: MIT
#include <algorithm>

#include "glyphorium/codes/code_formats.h"
#include "glyphorium/entity/records.h"
#include "glyphorium/text/preferred_languages.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {

Entity ComputedEntity::generateEntity() const {
  return {*this, std::nullopt};
}

ComputedEntity Unicode::computedEntity() const {
  constexpr CodeFormats formats;
  ComputedEntity record;
  record.hex = hex;
  record.decimal = formats.getDecimal(hex);
  record.htmlHex = formats.getHtmlHex(hex);
  record.htmlDecimal = formats.getHtmlDecimal(record.decimal);
  record.symbol = formats.getAdvancedSymbol(hex);
  return record;
}

std::string Entity::name() const {
  const bool hasBetterName = additional && additional->betterName && !additional->betterName->empty();
  return hasBetterName ? *additional->betterName : computed.fallbackName;
}

std::string Entity::swiftDecimal() const {
  return "\\u{" + computed.hex + "}";
}

std::string Entity::searchString() const {
  std::string text;
  const auto append = [&text](std::string_view piece) {
    text += piece;
    text += ' ';
  };
  append(name());
  append(computed.hex);
  append(std::to_string(computed.decimal));
  append(computed.htmlHex);
  append(computed.htmlDecimal);
  append(computed.group);
  append(computed.symbol);
  if (additional) {
    if (additional->searchTerms) {
      for (const RecordText& term : *additional->searchTerms) append(term);
    }
    if (additional->htmlNamed) append(*additional->htmlNamed);
  }
  return lowercased(text);
}

std::optional<std::string> AdditionalData::localizedAdvice() const {
  if (advice.empty()) return std::nullopt;
  const std::vector<std::string> languages = preferredLanguages();
  if (languages.empty()) return std::nullopt;
  for (const std::string& language : {lowercased(languages.front()), std::string("en")}) {
    const auto note =
        std::find_if(advice.begin(), advice.end(), [&](auto& one) { return one.lang == language; });
    if (note != advice.end()) return note->text;
  }
  return std::nullopt;
}

}  // namespace glyph
