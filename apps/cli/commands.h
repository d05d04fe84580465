// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

#include "glyphorium/entity/records.h"
#include "glyphorium/state/settings_keys.h"
#include "listing.h"
#include "output.h"

/// The commands. Each function prints to `output` and returns the exit code of the program.
namespace cli {

// Browsing the catalog.
int listGroups(Output& output, bool json);
struct ListRequest {
  std::vector<std::string>
      groups;  // groups, and sets as in charactersOfSet(); empty means the displayed groups
  bool all = false;
  std::string regex;  // only characters whose names contain a match; empty means all
  std::string tone;   // the skin tone in which emoji are shown, see skinToneNamed(); empty means unchanged
};
int listEntities(Output& output, const ListRequest& request, const Listing& listing);
// If `encoding` is not empty, the arguments are bytes in this encoding, see bytesOfHex().
int showCharacters(Output& output, const std::vector<std::string>& arguments, const std::string& encoding,
                   const Listing& listing);
int printAscii(Output& output, bool json);
int listValues(Output& output, const std::string& property,
               bool json);  // "block", "form", "encoding" and others

// Searching.
struct SearchRequest {
  std::vector<std::string> words;
  std::vector<std::string> groups;  // search only in these groups; empty means all groups
  int limit = 20;                   // 0 means no limit
  bool displayed = false;           // search only in the displayed groups
  bool copy = false;                // copy the first result to the clipboard
};
int searchCatalog(Output& output, const SearchRequest& request, const Listing& listing);
struct PickRequest {
  std::vector<std::string> words;  // the text in the search field at the start
  bool multi = false;
  bool copy = false;  // copy instead of print
  std::string form = "character";
};
int pickCharacters(Output& output, const PickRequest& request);
// The texts are in the encoding, or in UTF-8 if it is empty.
int identifyText(Output& output, const std::vector<std::string>& texts, const std::string& encoding,
                 const Listing& listing);

// The user's choices.
enum class Choice { show, add, remove, set };
int displayGroups(Output& output, Choice choice, const std::vector<std::string>& groups, bool json);
int addCharacters(Output& output, const std::vector<std::string>& codes);
int removeCharacters(Output& output, const std::vector<std::string>& codes);
int listAdded(Output& output, const Listing& listing);
int skinTone(Output& output, const std::string& name);  // an empty name prints the current tone
/// Returns whether the catalog could read the list that is stored under the key. If not, prints the reason.
/// Without the message, the user would think that the default list is the stored one. Call this function
/// after configure().
bool isReadable(glyph::UserInfluencedEntityKey key);

// The clipboard. `form` is an identifier from glyph::copyForms().
int copyCharacters(Output& output, const std::vector<std::string>& arguments, const std::string& form,
                   bool throughTerminal);
int copyEntities(Output& output, const std::vector<glyph::Entity>& entities, const std::string& form);

// The desktop's search index.
int showIndexStatus(Output& output, bool json);
int addToIndex(Output& output, const std::vector<std::string>& arguments, bool all);
int removeFromIndex(Output& output, const std::vector<std::string>& arguments, bool all);
int searchIndex(Output& output, const std::vector<std::string>& words, int limit, bool json);
int enableIndex(Output& output, bool enable);
int desktopSearchScope(Output& output, const std::string& scope);  // "all" or "mine"; empty prints the scope

// The embedded data, unchanged.
int listNames(Output& output, const std::vector<std::string>& hexCodes, bool json);
int printTable(Output& output, const std::string& constant, bool json);

}  // namespace cli
