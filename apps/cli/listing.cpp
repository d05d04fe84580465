// SPDX-License-Identifier: MIT
#include "listing.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

#include "card.h"
#include "encoding.h"
#include "glyphorium/characters/characters.h"
#include "glyphorium/characters/typing.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/copy_forms.h"

namespace cli {
namespace {

using glyph::Entity;

// Fields that are neither forms of copyForms() nor ways to type.
constexpr std::string_view ownFields[] = {"char",     "name",    "group",   "block",  "script",
                                          "category", "version", "numeric", "octal",  "binary",
                                          "plane",    "width",   "bidi",    "aliases"};
// Methods of waysToType().
constexpr std::string_view typingFields[] = {"compose",   "latex",    "digraph",     "keysym",
                                             "shortcode", "alt-code", "ctrl-shift-u"};
constexpr std::string_view bytesPrefix = "bytes:";
constexpr std::string_view tsvFields[] = {"char",  "hex",      "name",   "html",   "group",
                                          "block", "category", "script", "version"};
constexpr int widestPadding = 999;

struct Field {
  std::string_view name;
  char side = ' ';  // 'l' or 'r': the alignment of the text; ' ' for no padding
  int width = 0;
};

bool isField(std::string_view name) {
  const auto contains = [&](const auto& names) {
    return std::find(std::begin(names), std::end(names), name) != std::end(names);
  };
  if (name.starts_with(bytesPrefix)) return isEncoding(std::string(name.substr(bytesPrefix.size())));
  return contains(ownFields) || contains(typingFields) || glyph::copyForm(name);
}

// Reads the text between the parentheses of a field.
std::optional<Field> readField(std::string_view text) {
  const std::size_t blank = text.find(' ');
  Field field{text.substr(0, blank)};
  if (!isField(field.name)) return std::nullopt;
  if (blank == std::string_view::npos) return field;
  const std::string_view padding = text.substr(blank + 1);
  if (padding.size() < 3 || padding[1] != ':' || (padding[0] != 'l' && padding[0] != 'r'))
    return std::nullopt;
  field.side = padding[0];
  const char* const end = padding.data() + padding.size();
  const auto [stop, error] = std::from_chars(padding.data() + 2, end, field.width);
  if (error != std::errc() || stop != end || field.width < 0 || field.width > widestPadding)
    return std::nullopt;
  return field;
}

// Returns the codes of the characters of the text in the base, separated by spaces.
std::string codesInBase(std::u32string_view text, int base) {
  std::vector<std::string> codes;
  for (const char32_t point : text) {
    char digits[32];
    char* const end = std::to_chars(digits, std::end(digits), static_cast<std::uint32_t>(point), base).ptr;
    codes.emplace_back(digits, end);
  }
  return joined(codes, " ");
}

// Returns the first way to type the text by the method. Empty if there is none.
std::string wayToType(std::string_view method, std::string_view text) {
  for (const glyph::WayToType& way : glyph::waysToType(text)) {
    if (way.method == method) return way.text;
  }
  return {};
}

std::string valueOf(std::string_view name, const Entity& entity) {
  if (name == "char") return entity.computed.symbol;
  if (name == "name") return entity.name();
  if (name == "group") return entity.computed.group;
  if (const glyph::CopyForm* const form = glyph::copyForm(name)) return form->text(entity).value_or("");
  if (name.starts_with(bytesPrefix))
    return bytesInEncoding(std::string(name.substr(bytesPrefix.size())), entity.computed.symbol).value_or("");
  if (std::find(std::begin(typingFields), std::end(typingFields), name) != std::end(typingFields))
    return wayToType(name, entity.computed.symbol);
  const std::u32string points = glyph::codePoints(entity.computed.symbol);
  if (name == "octal") return codesInBase(points, 8);
  if (name == "binary") return codesInBase(points, 2);
  if (name == "width") return std::to_string(glyph::displayWidth(entity.computed.symbol));
  if (points.size() > 1) return {};
  const auto codePoint = static_cast<char32_t>(entity.computed.decimal);
  const glyph::CharacterFacts facts = glyph::characterFacts(codePoint);
  if (facts.status == glyph::CharacterStatus::none) return {};
  if (name == "plane") return std::to_string(codePoint >> 16);
  if (name == "bidi") return std::string(facts.bidirectionalClass);
  if (name == "aliases") {
    std::vector<std::string> names = facts.formalAliases;
    names.insert(names.end(), facts.otherNames.begin(), facts.otherNames.end());
    return joined(names, ", ");
  }
  if (name == "block") return std::string(facts.block);
  if (name == "script") return std::string(facts.script);
  if (name == "category") return std::string(facts.category);
  return std::string(name == "version" ? facts.version : facts.numericValue);
}

// Calls onText() for the fixed parts of a template, and onField() for each of its fields. Returns an error
// message if the template has a fault.
template <class OnText, class OnField>
std::optional<std::string> read(std::string_view format, OnText onText, OnField onField) {
  for (std::size_t i = 0; i < format.size(); ++i) {
    const std::string_view rest = format.substr(i);
    if (rest.starts_with("\\t") || rest.starts_with("\\n")) {
      onText(rest[1] == 't' ? "\t" : "\n");
      ++i;
    } else if (rest.starts_with("%%")) {
      onText("%");
      ++i;
    } else if (rest.front() == '%') {
      const std::size_t end = rest.find(')');
      if (!rest.starts_with("%(") || end == std::string_view::npos)
        return "'%' begins a field such as %(name); %% is a percent sign";
      const std::string_view field = rest.substr(2, end - 2);
      if (!onField(field))
        return "there is no field '%(" + std::string(field) + ")'; 'glyphorium values field' lists them";
      i += end;
    } else {
      onText(rest.substr(0, 1));
    }
  }
  return std::nullopt;
}

}  // namespace

std::string formatted(std::string_view format, const Entity& entity) {
  std::string result;
  read(
      format, [&](std::string_view text) { result += text; },
      [&](std::string_view text) {
        const auto field = readField(text);
        if (!field) return false;
        const std::string value = valueOf(field->name, entity);
        const int missing = std::max(field->width - glyph::displayWidth(value), 0);
        const std::string padding(static_cast<std::size_t>(missing), ' ');
        result += field->side == 'r' ? padding + value : value + padding;
        return true;
      });
  return result;
}

std::vector<std::string_view> fieldsOfFormats() {
  std::vector<std::string_view> names(std::begin(ownFields), std::end(ownFields));
  names.insert(names.end(), std::begin(typingFields), std::end(typingFields));
  for (const glyph::CopyForm& form : glyph::copyForms()) {
    if (form.identifier != "character") names.push_back(form.identifier);  // the same as "char"
  }
  return names;
}

std::optional<std::string> faultOfFormat(std::string_view format) {
  return read(
      format, [](std::string_view) {}, [](std::string_view field) { return readField(field).has_value(); });
}

void printListing(Output& output, const std::vector<const Entity*>& entities, const Listing& listing) {
  if (listing.json) {
    JsonArray array(output);
    for (const Entity* const entity : entities) array.add(entityJson(*entity));
    array.end();
    return;
  }
  printHeading(output, listing);
  for (const Entity* const entity : entities) printRow(output, *entity, listing);
}

void printHeading(Output& output, const Listing& listing) {
  if (listing.tsv) output.printLine(joined(tsvFields, "\t"));
}

void printRow(Output& output, const Entity& entity, const Listing& listing) {
  if (!listing.tsv) {
    output.printLine(formatted(listing.format, entity));
    return;
  }
  std::vector<std::string> values;
  for (const std::string_view field : tsvFields) {
    std::string value = valueOf(field, entity);
    // Replace a control character such as a tab or a line feed, because it would break the table.
    if (field == "char" && value.size() == 1 && static_cast<unsigned char>(value.front()) < 0x20)
      value = visibleSymbol(value);
    values.push_back(std::move(value));
  }
  output.printLine(joined(values, "\t"));
}

}  // namespace cli
