// SPDX-License-Identifier: MIT
#include "glyphorium/search/language_rules.h"

#include <algorithm>

#include "glyphorium/search/text_parts.h"

namespace glyph::search {
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

bool announcesLetter(std::string_view word) {
  const auto announces = [](std::string_view one) {
    return one == "letter" || one == "capital" || one == "small" || one == "uppercase" || one == "lowercase";
  };
  if (announces(word)) return true;
  for (const SearchLanguage& language : searchLanguages) {
    for (std::string_view rest = synonymsOf(language, word); !rest.empty();) {
      if (announces(takePart(rest, '\t'))) return true;
    }
  }
  return false;
}

std::vector<std::string_view> synonymsOfLongerWords(const SearchLanguage& language, std::string_view text) {
  std::vector<std::string_view> synonyms;
  std::string_view rest = firstLineFrom(language.synonyms, text);
  while (rest.starts_with(text)) {
    std::string_view line = takePart(rest, '\n');
    if (takePart(line, '\t') == text) continue;
    while (!line.empty()) {
      const std::string_view synonym = takePart(line, '\t');
      if (std::find(synonyms.begin(), synonyms.end(), synonym) == synonyms.end()) synonyms.push_back(synonym);
    }
  }
  return synonyms;
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
