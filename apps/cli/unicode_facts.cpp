// SPDX-License-Identifier: MIT
#include "unicode_facts.h"

#include <algorithm>

#include "card.h"
#include "glyphorium/characters/annotations.h"
#include "glyphorium/characters/characters.h"
#include "glyphorium/characters/emoji.h"
#include "glyphorium/characters/names.h"
#include "glyphorium/characters/property_names.h"
#include "glyphorium/characters/related.h"
#include "glyphorium/characters/supplement.h"
#include "glyphorium/characters/typing.h"
#include "glyphorium/text/preferred_languages.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/copy_forms.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace cli {
namespace {

using glyph::CharacterFacts;
using glyph::Entity;
using Json = nlohmann::ordered_json;
using Lines = std::vector<CardLine>;

// The maximum number of characters in a list on a card. The JSON object has all of them.
constexpr std::size_t mostListed = 24;

struct EscapeForm {
  std::string_view label;
  std::string_view form;  // an identifier of copyForms()
};
constexpr EscapeForm escapeForms[] = {
    {"C", "c"},           {"JavaScript", "javascript"},    {"JSON, Java", "java"},
    {"Python", "python"}, {"Rust, Swift", "rust"},         {"CSS", "css"},
    {"URL", "url"},       {"Octal escape", "octal-escape"}};

std::string copyFormOf(const Entity& entity, std::string_view form) {
  return glyph::copyForm(form)->text(entity).value_or("");
}

// Returns the characters, separated by spaces. If there are only a few, each is followed by its code.
std::string listed(const std::u32string& characters) {
  std::vector<std::string> texts;
  const bool areFew = characters.size() <= 4;
  for (const char32_t one : characters.substr(0, mostListed)) {
    std::string text = visibleSymbol(glyph::utf8(one));
    if (areFew) text += " " + glyph::toolKit().getHex(one);
    texts.push_back(std::move(text));
  }
  const std::size_t more = characters.size() - texts.size();
  return joined(texts, areFew ? ", " : " ") + (more > 0 ? " and " + std::to_string(more) + " more" : "");
}

std::string withLongName(std::string_view brief, std::string_view name) {
  return brief.empty() ? std::string() : std::string(name) + " (" + std::string(brief) + ")";
}

std::string propertiesOf(const CharacterFacts& facts) {
  std::vector<std::string> parts{withLongName(facts.category, glyph::categoryName(facts.category))};
  const std::string direction =
      withLongName(facts.bidirectionalClass, glyph::bidirectionalClassName(facts.bidirectionalClass));
  if (!direction.empty()) parts.push_back(direction);
  if (!facts.eastAsianWidth.empty())
    parts.push_back("East Asian " + std::string(glyph::eastAsianWidthName(facts.eastAsianWidth)));
  if (facts.combiningClass.value_or(0) != 0)
    parts.push_back("combining class " + std::to_string(*facts.combiningClass));
  return joined(parts, ", ");
}

std::string readingsOf(const CharacterFacts& facts) {
  std::vector<std::string> parts;
  const std::pair<std::string_view, std::string_view> readings[] = {{"Mandarin", facts.mandarin},
                                                                    {"Japanese on", facts.japaneseOn},
                                                                    {"kun", facts.japaneseKun},
                                                                    {"Korean", facts.korean}};
  for (const auto& [language, reading] : readings) {
    if (!reading.empty()) parts.push_back(std::string(language) + " " + std::string(reading));
  }
  return joined(parts, ", ");
}

std::string placeOf(const CharacterFacts& facts) {
  std::vector<std::string> parts;
  if (!facts.version.empty()) parts.push_back("since " + std::string(facts.version));
  if (!facts.block.empty()) parts.push_back("block " + std::string(facts.block));
  if (!facts.script.empty() && facts.script != "Unknown")
    parts.push_back("script " + std::string(facts.script));
  return joined(parts, ", ");
}

void addCodePoint(Lines& lines, char32_t codePoint) {
  const CharacterFacts facts = glyph::characterFacts(codePoint);
  lines.emplace_back("Unicode", placeOf(facts));
  lines.emplace_back("Properties", propertiesOf(facts));
  lines.emplace_back("Meaning", facts.hanDefinition);
  lines.emplace_back("Readings", readingsOf(facts));
  std::vector<std::string> names = facts.formalAliases;
  names.insert(names.end(), facts.otherNames.begin(), facts.otherNames.end());
  lines.emplace_back("Also called", joined(names, ", "));
  lines.emplace_back("Remarks", joined(facts.comments, "; "));
  lines.emplace_back("Number", std::string(facts.numericValue));
  if (!facts.decomposition.empty())
    lines.emplace_back("Decomposition",
                       std::string(facts.decompositionKind) + ": " + listed(facts.decomposition));
}

void addEmoji(Lines& lines, std::size_t place, const Entity& entity) {
  const glyph::Emoji emoji = glyph::emojiAt(place);
  lines.emplace_back("Emoji", "since Emoji " + std::string(emoji.version) + ", " + std::string(emoji.group) +
                                  ", " + std::string(emoji.subgroup));
  const std::vector<std::string> languages = glyph::preferredLanguages();
  const std::string language = languages.empty() ? "en" : languages.front();
  const glyph::CharacterAnnotation annotation = glyph::annotationOf(emoji.text, language);
  if (language != "en") lines.emplace_back("Name (" + language + ")", std::string(annotation.name));
  lines.emplace_back("Keywords", joined(annotation.keywords, ", "));
  if (emoji.kind != "single") {
    std::vector<std::string> parts;
    for (const char32_t point : glyph::codePoints(entity.computed.symbol))
      parts.push_back(glyph::toolKit().getHex(point) + " " + glyph::shownCharacterName(glyph::utf8(point)));
    lines.emplace_back("Made of", joined(parts, ", "));
  }
  std::vector<std::string> variants;
  for (const std::size_t variant : glyph::emojiVariants(place)) {
    if (variant != place) variants.emplace_back(glyph::emojiAt(variant).text);
  }
  lines.emplace_back("Variants", joined(variants, " "));
}

void addTyping(Lines& lines, const Entity& entity) {
  constexpr std::pair<std::string_view, std::string_view> methods[] = {
      {"compose", "Compose key"}, {"latex", "LaTeX"},       {"digraph", "Digraph"},
      {"shortcode", "Shortcode"}, {"alt-code", "Alt code"}, {"ctrl-shift-u", "Ctrl+Shift+U"},
      {"keysym", "Keysym"}};
  const std::vector<glyph::WayToType> ways = glyph::waysToType(entity.computed.symbol);
  for (const auto& [method, label] : methods) {
    std::vector<std::string> texts;
    for (const glyph::WayToType& way : ways) {
      if (way.method != method) continue;
      texts.push_back(way.where.empty() ? way.text : way.text + " (" + std::string(way.where) + ")");
    }
    if (texts.size() > 6) texts.resize(6);
    lines.emplace_back(label, joined(texts, method == "compose" ? "   " : ", "));
  }
}

void addEscapes(Lines& lines, const Entity& entity) {
  lines.emplace_back("UTF-8, 16, 32", copyFormOf(entity, "utf-8") + ", " + copyFormOf(entity, "utf-16") +
                                          ", " + copyFormOf(entity, "utf-32"));
  for (const EscapeForm& escape : escapeForms)
    lines.emplace_back(escape.label, copyFormOf(entity, escape.form));
}

}  // namespace

Lines unicodeLines(const Entity& entity) {
  Lines lines;
  const std::u32string points = glyph::codePoints(entity.computed.symbol);
  const auto codePoint = static_cast<char32_t>(entity.computed.decimal);
  const auto place = glyph::emojiPlace(entity.computed.symbol);
  if (points.size() <= 1) addCodePoint(lines, codePoint);
  if (place) addEmoji(lines, *place, entity);
  if (!points.empty()) {
    addTyping(lines, entity);
    addEscapes(lines, entity);
  }
  if (points.size() <= 1) {
    for (const glyph::RelatedCharacters& related : glyph::relatedCharacters(codePoint)) {
      std::string label(glyph::relationName(related.relation));
      label.front() = static_cast<char>(label.front() - ('a' - 'A'));
      lines.emplace_back(label, listed(related.characters));
    }
    const glyph::LookAlikes alike = glyph::lookAlikes(codePoint);
    std::string text = listed(alike.characters);
    if (!alike.text.empty()) text += (text.empty() ? "" : ", ") + alike.text;
    lines.emplace_back("Looks like", text);
  }
  std::erase_if(lines, [](const CardLine& line) { return line.second.empty(); });
  return lines;
}

Json unicodeJson(const Entity& entity) {
  Json json = Json::object();
  const std::u32string points = glyph::codePoints(entity.computed.symbol);
  const auto codePoint = static_cast<char32_t>(entity.computed.decimal);
  const auto add = [&](const char* key, const auto& value) {
    if (!value.empty()) json[key] = value;
  };
  const auto utf8Of = [](const std::u32string& characters) {
    std::string text;
    for (const char32_t one : characters) text += glyph::utf8(one);
    return text;
  };
  if (points.size() <= 1) {
    const CharacterFacts facts = glyph::characterFacts(codePoint);
    json["label"] = facts.label;
    add("version", facts.version);
    json["category"] = facts.category;
    add("block", facts.block);
    add("script", facts.script);
    add("bidirectionalClass", facts.bidirectionalClass);
    add("eastAsianWidth", facts.eastAsianWidth);
    if (facts.combiningClass) json["combiningClass"] = *facts.combiningClass;
    add("decompositionKind", facts.decompositionKind);
    add("decomposition", utf8Of(facts.decomposition));
    add("upperCase", utf8Of(facts.upperCase));
    add("lowerCase", utf8Of(facts.lowerCase));
    add("titleCase", utf8Of(facts.titleCase));
    add("numericValue", facts.numericValue);
    add("formalAliases", facts.formalAliases);
    add("otherNames", facts.otherNames);
    add("comments", facts.comments);
    add("meaning", facts.hanDefinition);
    add("mandarin", facts.mandarin);
    add("japaneseOn", facts.japaneseOn);
    add("japaneseKun", facts.japaneseKun);
    add("korean", facts.korean);
  }
  if (const auto place = glyph::emojiPlace(entity.computed.symbol)) {
    const glyph::Emoji emoji = glyph::emojiAt(*place);
    json["emoji"] = {{"kind", emoji.kind},
                     {"version", emoji.version},
                     {"group", emoji.group},
                     {"subgroup", emoji.subgroup}};
    std::vector<std::string_view> variants;
    for (const std::size_t variant : glyph::emojiVariants(*place))
      variants.push_back(glyph::emojiAt(variant).text);
    if (!variants.empty()) json["emoji"]["variants"] = variants;
  }
  for (const char* const language : {"en", "de", "fr", "it", "es"}) {
    const glyph::CharacterAnnotation annotation = glyph::annotationOf(entity.computed.symbol, language);
    if (annotation.name.empty()) continue;
    json["annotations"][language] = {{"name", annotation.name}, {"keywords", annotation.keywords}};
  }
  for (const glyph::WayToType& way : glyph::waysToType(entity.computed.symbol)) {
    Json object{{"method", way.method}, {"text", way.text}};
    if (!way.where.empty()) object["where"] = way.where;
    json["typing"].push_back(std::move(object));
  }
  for (const glyph::CopyForm& form : glyph::copyForms()) {
    if (const auto text = form.text(entity)) json["forms"][std::string(form.identifier)] = *text;
  }
  if (points.size() <= 1) {
    for (const glyph::RelatedCharacters& related : glyph::relatedCharacters(codePoint))
      json["related"][std::string(glyph::relationName(related.relation))] = utf8Of(related.characters);
    const glyph::LookAlikes alike = glyph::lookAlikes(codePoint);
    add("lookAlikes", utf8Of(alike.characters));
    add("looksLikeText", alike.text);
  }
  return json;
}

}  // namespace cli
