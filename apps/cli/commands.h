// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "glyphorium/entity/records.h"
#include "output.h"

/// The commands. Each function prints to `output` and returns the exit code of the program.
namespace cli {

// Browsing the catalog.
int listGroups(Output& output, bool json);
int listEntities(Output& output, const std::vector<std::string>& groups, bool all, bool json);
int showCharacters(Output& output, const std::vector<std::string>& arguments, bool json);

// Searching.
struct SearchRequest {
  std::vector<std::string> words;
  std::vector<std::string> groups;  // search only in these groups; empty means all groups
  int limit = 20;
  bool displayed = false;  // search only in the displayed groups
  bool copy = false;       // copy the first result to the clipboard
};
int searchCatalog(Output& output, const SearchRequest& request, bool json);
int identifyText(Output& output, const std::vector<std::string>& texts, bool json);

// The user's choices.
enum class Choice { show, add, remove, set };
int displayGroups(Output& output, Choice choice, const std::vector<std::string>& groups, bool json);
int addCharacters(Output& output, const std::vector<std::string>& codes);
int removeCharacters(Output& output, const std::vector<std::string>& codes);
int listAdded(Output& output, bool json);

// The clipboard. `form` is an identifier from glyph::copyForms().
int copyCharacter(Output& output, const std::string& argument, const std::string& form, bool throughTerminal);
int copyEntities(Output& output, const std::vector<glyph::Entity>& entities, const std::string& form);

// The desktop's search index.
int showIndexStatus(Output& output, bool json);
int addToIndex(Output& output, const std::vector<std::string>& arguments, bool all);
int removeFromIndex(Output& output, const std::vector<std::string>& arguments, bool all);
int searchIndex(Output& output, const std::vector<std::string>& words, int limit, bool json);
int enableIndex(Output& output, bool enable);
int desktopSearchScope(Output& output, const std::string& scope);  // "all" or "mine"; empty prints it

// The embedded data, unchanged.
int listNames(Output& output, const std::vector<std::string>& hexCodes, bool json);
int printTable(Output& output, const std::string& constant, bool json);

}  // namespace cli
