// SPDX-License-Identifier: MIT
#include <algorithm>

#include "glyphorium/codes/code_formats.h"
#include "glyphorium/data/supplementary_notes.h"
#include "glyphorium/entity/records.h"
#include "glyphorium/text/preferred_languages.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

// Returns the languages of usage notes that the user can read, in the order in which they are tried. Empty if
// the list of preferred languages is empty.
std::vector<std::string> languagesOfNotes() {
  const std::vector<std::string> languages = preferredLanguages();
  if (languages.empty()) return {};
  return {lowercased(languages.front()), "en"};
}

// Returns the enrichment's usage note in this language, or nullptr if there is none.
const RecordText* noteIn(const AdditionalData& data, std::string_view language) {
  const auto note =
      std::find_if(data.advice.begin(), data.advice.end(), [&](auto& one) { return one.lang == language; });
  return note == data.advice.end() ? nullptr : &note->text;
}

}  // namespace

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
  for (const std::string& language : languagesOfNotes()) {
    if (const RecordText* const note = noteIn(*this, language)) return *note;
  }
  return std::nullopt;
}

std::optional<std::string> Entity::usageNote() const {
  for (const std::string& language : languagesOfNotes()) {
    const RecordText* const note = additional ? noteIn(*additional, language) : nullptr;
    if (note) return *note;
    const std::string_view supplementary = supplementaryNote(computed.hex, language);
    if (!supplementary.empty()) return std::string(supplementary);
  }
  return std::nullopt;
}

}  // namespace glyph
