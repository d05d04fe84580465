// SPDX-License-Identifier: MIT
#include "glyphorium/search/language_rules.h"

#include <algorithm>

#include "glyphorium/search/text_parts.h"

namespace glyph::search {
namespace {

// Returns the rest of the line that begins with the word, without the tab after the word. Returns nullopt if
// there is no such line. The lines must be in ascending order.
std::optional<std::string_view> findLine(std::string_view lines, std::string_view word) {
  while (!lines.empty()) {
    // Look at the line in the middle. In the first line, rfind() returns npos, and npos + 1 is 0.
    const std::size_t begin = lines.rfind('\n', lines.size() / 2) + 1;
    const std::string_view line = lines.substr(begin, lines.find('\n', begin) - begin);
    std::string_view rest = line;
    const std::string_view head = takePart(rest, '\t');
    if (head == word) return rest;
    lines =
        word < head ? lines.substr(0, begin) : lines.substr(std::min(begin + line.size() + 1, lines.size()));
  }
  return std::nullopt;
}

}  // namespace

bool isStopWord(std::string_view word) {
  return findLine(searchStopWords, word).has_value();
}

Languages languagesOf(const Index& index, std::uint32_t languages) {
  Languages result;
  for (const SearchLanguage& language : searchLanguages) {
    if (index.hasLanguage(language.code, languages)) result.push_back(&language);
  }
  return result;
}

bool isFunctionWord(const Languages& languages, std::string_view word) {
  return std::any_of(languages.begin(), languages.end(), [&](const SearchLanguage* language) {
    return findLine(language->functionWords, word).has_value();
  });
}

std::string_view synonymsOf(const SearchLanguage& language, std::string_view word) {
  return findLine(language.synonyms, word).value_or("");
}

std::vector<std::string> singularsOf(const SearchLanguage& language, std::string_view word) {
  std::vector<std::string> singulars;
  for (std::string_view rules = language.plurals; !rules.empty();) {
    std::string_view rule = takePart(rules, '\n');
    const std::string_view ending = takePart(rule, '\t');
    if (!word.ends_with(ending)) continue;
    if (rule == ending) break;
    const std::string stem(word.substr(0, word.size() - ending.size()));
    do {
      singulars.push_back(stem);
      singulars.back() += takePart(rule, '\t');
    } while (!rule.empty());
  }
  return singulars;
}

std::string withoutTypedSpellings(std::string_view word) {
  std::string result;
  while (!word.empty()) {
    std::size_t typed = 0;
    for (const SearchLanguage& language : searchLanguages) {
      for (std::string_view rules = language.spellings; !rules.empty() && typed == 0;) {
        std::string_view rule = takePart(rules, '\n');
        const std::string_view letters = takePart(rule, '\t');
        if (!word.starts_with(letters)) continue;
        typed = letters.size();
        result += rule;
      }
    }
    if (typed == 0) {
      result += word.front();
      typed = 1;
    }
    word.remove_prefix(typed);
  }
  return result;
}

}  // namespace glyph::search
