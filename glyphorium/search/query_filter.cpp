// SPDX-License-Identifier: MIT
#include "glyphorium/search/query_filter.h"

#include <algorithm>

#include "glyphorium/search/words.h"

namespace glyph::search {
namespace {

// Removes the documents that are not in a wanted group. `docs` is indexed by document number.
template <typename Predicate>
void keepOnly(const Index& index, std::vector<char>& docs, Predicate isWanted) {
  std::vector<char> members(docs.size(), 0);
  for (std::uint32_t i = 0; i < index.groupCount(); ++i) {
    const Group group = index.group(i);
    if (!isWanted(group)) continue;
    for (const std::uint32_t doc : group.docs) members[doc] = 1;
  }
  for (std::size_t doc = 0; doc < docs.size(); ++doc) {
    if (!members[doc]) docs[doc] = 0;
  }
}

}  // namespace

std::uint32_t languageBits(const Index& index, const std::vector<std::string>& wanted) {
  std::uint32_t bits = 1u | 1u << 1;  // the empty language, and English
  for (const std::string& tag : wanted) {
    for (std::uint32_t i = 1; i < index.languages.size(); ++i) {
      const std::string_view language = index.languages[i];
      const bool regional = tag.starts_with(language) && tag.substr(language.size(), 1) == "-";
      if (tag == language || regional) bits |= 1u << i;
    }
  }
  return bits;
}

std::vector<char> docsInGroups(const Index& index, const std::vector<std::string>& names,
                               const std::vector<std::string>& typedNames) {
  std::vector<char> docs(index.docCount(), 1);
  if (!names.empty()) {
    keepOnly(index, docs, [&](const Group& group) {
      return std::find(names.begin(), names.end(), group.name) != names.end();
    });
  }
  for (const std::string& typed : typedNames) {
    const std::string name = wordsOf(typed);
    bool isName = false;
    for (std::uint32_t i = 0; i < index.groupCount(); ++i) isName = isName || index.groupWords[i] == name;
    keepOnly(index, docs, [&](const Group& group) {
      if (isName) return group.words == name;
      bool all = !name.empty();
      for (WordReader reader(name); reader.next();) all = all && group.hasWordWithPrefix(reader.word());
      return all;
    });
  }
  return docs;
}

}  // namespace glyph::search
