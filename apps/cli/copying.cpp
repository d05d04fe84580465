// SPDX-License-Identifier: MIT
#include "card.h"
#include "commands.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/name_table.h"
#include "glyphorium/platform/terminal_pasteboard.h"
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
  const char* missing;  // what to say where a character has no such form
};

const Form forms[] = {
    {"character", [](const Entity& e) { return e.computed.symbol; }, ""},
    {"hex", [](const Entity& e) { return e.computed.hex; }, ""},
    {"decimal", [](const Entity& e) { return std::to_string(e.computed.decimal); }, ""},
    {"html",
     [](const Entity& e) { return e.additional ? e.additional->htmlNamed.value_or("") : std::string(); },
     "it has no HTML name; '--as html-hex' always works"},
    {"html-hex", [](const Entity& e) { return e.computed.htmlHex; }, ""},
    {"html-decimal", [](const Entity& e) { return e.computed.htmlDecimal; }, ""},
    {"swift", [](const Entity& e) { return e.swiftDecimal(); }, ""},
    {"swiftui", [](const Entity& e) { return snippet(e, &glyph::CodeFormats::getSFSymbolSwiftUICode); },
     "only SF Symbols have a SwiftUI snippet"},
    {"uikit", [](const Entity& e) { return snippet(e, &glyph::CodeFormats::getSFSymbolUIKitCode); },
     "only SF Symbols have a UIKit snippet"},
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
  const std::vector<Entity> entities = resolve(argument);
  if (entities.empty()) {
    complain(unknownCharacter(argument));
    return nothingFound;
  }
  const Entity& entity = entities.front();
  for (const Form& form : forms) {
    if (formName != form.name) continue;
    const std::string text = form.make(entity);
    if (text.empty()) {
      complain(entity.name() + ": " + form.missing);
      return nothingFound;
    }
    if (!glyph::toolKit().writeToPasteboard(text)) {
      complainOfFailure("the clipboard did not take the text");
      return notWritten;
    }
    const bool isSymbol = formName == "character";
    output.printLine("Copied " + output.strong(isSymbol ? visibleSymbol(entity.computed) : text) + " " +
                     output.faint("(" + entity.name() + ", U+" + entity.computed.hex + ")"));
    return found;
  }
  return wrongUse;  // the grammar lets no other form through
}

}  // namespace cli
