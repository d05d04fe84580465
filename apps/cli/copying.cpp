// SPDX-License-Identifier: MIT
#include <algorithm>
#include <iterator>

#include "card.h"
#include "commands.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/name_table.h"
#include "glyphorium/services/pasteboard/terminal_pasteboard.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "lookup.h"

namespace cli {
namespace {

using glyph::Entity;

std::string snippet(const Entity& entity, std::string (glyph::CodeFormats::*format)(std::string_view) const) {
  const auto entry = glyph::findName(entity.computed.hex);
  if (!entry || !entry->isSFSymbol) return {};
  return (glyph::toolKit().*format)(entry->name);
}

struct Form {
  const char* name;
  std::string (*make)(const Entity&);
  const char* missing;         // what to say where a character has no such form
  const char* separator = "";  // between the forms of several characters
};

const Form forms[] = {
    {"character", [](const Entity& e) { return e.computed.symbol; }, ""},
    {"hex", [](const Entity& e) { return e.computed.hex; }, "", " "},
    {"decimal", [](const Entity& e) { return std::to_string(e.computed.decimal); }, "", " "},
    {"html",
     [](const Entity& e) { return e.additional ? e.additional->htmlNamed.value_or("") : std::string(); },
     "it has no HTML name; '--as html-hex' always works"},
    {"html-hex", [](const Entity& e) { return e.computed.htmlHex; }, ""},
    {"html-decimal", [](const Entity& e) { return e.computed.htmlDecimal; }, ""},
    {"swift", [](const Entity& e) { return e.swiftDecimal(); }, ""},
    {"swiftui", [](const Entity& e) { return snippet(e, &glyph::CodeFormats::getSFSymbolSwiftUICode); },
     "only SF Symbols have a SwiftUI snippet", "\n"},
    {"uikit", [](const Entity& e) { return snippet(e, &glyph::CodeFormats::getSFSymbolUIKitCode); },
     "only SF Symbols have a UIKit snippet", "\n"},
};

}  // namespace

const std::vector<std::string>& copyForms() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> all;
    for (const Form& form : forms) all.emplace_back(form.name);
    return all;
  }();
  return names;
}

int copyCharacter(Output& output, const std::string& argument, const std::string& formName,
                  bool throughTerminal) {
  glyph::glyphorium().configure();
  if (throughTerminal) glyph::setPasteboard(std::make_shared<glyph::TerminalPasteboard>());
  Resolved resolved = resolve(argument);
  if (resolved.characters.empty()) {
    complain(unknownCharacter(argument));
    return nothingFound;
  }
  if (resolved.alternatives) resolved.characters.resize(1);
  std::vector<Entity> entities;
  for (Character& character : resolved.characters) entities.push_back(std::move(character.front()));
  return copyEntities(output, entities, formName);
}

int copyEntities(Output& output, const std::vector<Entity>& entities, const std::string& formName) {
  const auto form =
      std::find_if(std::begin(forms), std::end(forms), [&](const Form& one) { return formName == one.name; });
  if (form == std::end(forms)) return wrongUse;  // the grammar lets none through
  std::vector<std::string> texts, shown, names;
  for (const Entity& entity : entities) {
    texts.push_back(form->make(entity));
    if (texts.back().empty()) {
      complain(entity.name() + ": " + form->missing);
      return nothingFound;
    }
    shown.push_back(visibleSymbol(entity.computed));
    names.push_back(entity.name() + ", U+" + entity.computed.hex);
  }
  const std::string text = joined(texts, form->separator);
  if (!glyph::toolKit().writeToPasteboard(text)) {
    complainOfFailure("the clipboard did not take the text");
    return notWritten;
  }
  output.printLine("Copied " + output.strong(formName == "character" ? joined(shown, "") : text) + " " +
                   output.faint("(" + joined(names, "; ") + ")"));
  return found;
}

}  // namespace cli
