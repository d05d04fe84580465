// SPDX-License-Identifier: MIT
#include "listing.h"

#include <algorithm>
#include <charconv>

#include "card.h"
#include "glyphorium/characters/characters.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/copy_forms.h"

namespace cli {
namespace {

using glyph::Entity;

constexpr std::string_view ownFields[] = {"char",   "name",     "group",   "block",
                                          "script", "category", "version", "numeric"};
constexpr std::string_view tsvFields[] = {"char",  "hex",      "name",   "html",   "group",
                                          "block", "category", "script", "version"};
constexpr int widestPadding = 999;

struct Field {
  std::string_view name;
  char side = ' ';  // 'l' or 'r': the alignment of the text; ' ' for no padding
  int width = 0;
};

bool isField(std::string_view name) {
  return std::find(std::begin(ownFields), std::end(ownFields), name) != std::end(ownFields) ||
         glyph::copyForm(name);
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

std::string valueOf(std::string_view name, const Entity& entity) {
  if (name == "char") return entity.computed.symbol;
  if (name == "name") return entity.name();
  if (name == "group") return entity.computed.group;
  if (const glyph::CopyForm* const form = glyph::copyForm(name)) return form->text(entity).value_or("");
  if (glyph::codePoints(entity.computed.symbol).size() > 1) return {};
  const glyph::CharacterFacts facts = glyph::characterFacts(static_cast<char32_t>(entity.computed.decimal));
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
      if (!onField(field)) return "there is no field '%(" + std::string(field) + ")'";
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
  if (listing.tsv) output.printLine(joined(tsvFields, "\t"));
  for (const Entity* const entity : entities) {
    if (!listing.tsv) {
      output.printLine(formatted(listing.format, *entity));
      continue;
    }
    std::vector<std::string> values;
    for (const std::string_view field : tsvFields) {
      std::string value = valueOf(field, *entity);
      // Replace a control character such as a tab or a line feed, because it would break the table.
      if (field == "char" && value.size() == 1 && static_cast<unsigned char>(value.front()) < 0x20)
        value = visibleSymbol(value);
      values.push_back(std::move(value));
    }
    output.printLine(joined(values, "\t"));
  }
}

}  // namespace cli
