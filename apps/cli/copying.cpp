// SPDX-License-Identifier: MIT
#include "card.h"
#include "commands.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/services/pasteboard/terminal_pasteboard.h"
#include "glyphorium/toolkit/copy_forms.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "lookup.h"

namespace cli {
namespace {

using glyph::Entity;

// Returns the end of an error message: why a character does not have this form.
std::string whyMissing(std::string_view form) {
  if (form == "html") return "it has no HTML name; '--as html-hex' always works";
  if (form == "swiftui") return "only SF Symbols have a SwiftUI snippet";
  if (form == "uikit") return "only SF Symbols have a UIKit snippet";
  return "it has no such form";
}

}  // namespace

int copyCharacters(Output& output, const std::vector<std::string>& arguments, const std::string& formName,
                   bool throughTerminal) {
  glyph::glyphorium().configure();
  if (throughTerminal) glyph::setPasteboard(std::make_shared<glyph::TerminalPasteboard>());
  std::vector<Entity> entities;
  for (const std::string& argument : arguments) {
    ResolvedText resolved = resolve(argument);
    if (resolved.characters.empty()) {
      complain(unknownCharacter(argument));
      return nothingFound;
    }
    if (resolved.alternatives) resolved.characters.resize(1);
    for (Character& character : resolved.characters) entities.push_back(std::move(character.front()));
  }
  return copyEntities(output, entities, formName);
}

int copyEntities(Output& output, const std::vector<Entity>& entities, const std::string& formName) {
  const glyph::CopyForm* const form = glyph::copyForm(formName);
  if (!form) return wrongUse;  // cannot happen: the parser accepts only known forms
  std::vector<std::string> texts, shown, names;
  for (const Entity& entity : entities) {
    const auto text = form->text(entity);
    if (!text) {
      complain(entity.name() + ": " + whyMissing(formName));
      return nothingFound;
    }
    texts.push_back(*text);
    shown.push_back(visibleSymbol(entity.computed.symbol));
    names.push_back(entity.name() + ", " + glyph::copyForm("code-point")->text(entity).value_or(""));
  }
  const std::string text = joined(texts, form->separator);
  if (!glyph::toolKit().writeToPasteboard(text)) {
    complainOfFailure("the clipboard did not accept the text");
    return notWritten;
  }
  output.printLine("Copied " + output.strong(formName == "character" ? joined(shown, "") : text) + " " +
                   output.faint("(" + joined(names, "; ") + ")"));
  return found;
}

}  // namespace cli
