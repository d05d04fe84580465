// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <cstring>

#include "glyphorium/data/search_facts_internal.h"
#include "glyphorium/search/index_internal.h"
#include "glyphorium/search/words_internal.h"

namespace glyph::search {
namespace {

constexpr std::uint32_t maxPhrases = 1u << 24;  // a posting has 24 bits for one
constexpr std::uint32_t lastPosition = 0xFF;

// Numbers words in the order of their appearance: an open hash table over one blob, because a node and a
// string for each of some 30,000 words would cost more than all the rest of building.
class WordNumbers {
 public:
  WordNumbers() : slots_(1u << 16, empty) { offsets_.push_back(0); }

  std::uint32_t number(std::string_view word) {
    const std::uint64_t hash = hashOf(word);
    for (std::size_t slot = hash & (slots_.size() - 1);; slot = (slot + 1) & (slots_.size() - 1)) {
      const std::uint32_t known = slots_[slot];
      if (known == empty) return add(word, hash, slot);
      if (hashes_[known] == static_cast<std::uint32_t>(hash >> 32) && this->word(known) == word) return known;
    }
  }

  std::uint32_t size() const { return static_cast<std::uint32_t>(hashes_.size()); }
  std::size_t blobSize() const { return blob_.size(); }
  std::string_view word(std::uint32_t number) const {
    return {blob_.data() + offsets_[number], offsets_[number + 1] - offsets_[number]};
  }

 private:
  static constexpr std::uint32_t empty = 0xFFFFFFFF;

  static std::uint64_t hashOf(std::string_view word) {
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const char c : word) hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001B3;
    return hash ^ hash >> 29;
  }

  std::uint32_t add(std::string_view word, std::uint64_t hash, std::size_t slot) {
    const std::uint32_t number = size();
    hashes_.push_back(static_cast<std::uint32_t>(hash >> 32));
    blob_ += word;
    offsets_.push_back(static_cast<std::uint32_t>(blob_.size()));
    slots_[slot] = number;
    if (hashes_.size() * 2 > slots_.size()) grow();
    return number;
  }

  void grow() {
    slots_.assign(slots_.size() * 2, empty);
    for (std::uint32_t number = 0; number < size(); ++number) {
      std::size_t slot = hashOf(word(number)) & (slots_.size() - 1);
      while (slots_[slot] != empty) slot = (slot + 1) & (slots_.size() - 1);
      slots_[slot] = number;
    }
  }

  std::vector<std::uint32_t> slots_;
  std::vector<std::uint32_t> hashes_;
  std::vector<std::uint32_t> offsets_;
  std::string blob_;
};

class Builder {
 public:
  explicit Builder(std::span<const Entity> entities) : entities_(entities), ranked_(rankDocs(entities)) {}

  Index build() && {
    index_.languages = {"", "en"};
    addDocs();
    addFacts();
    addGroups();
    addSynonyms();
    makeDictionary();
    std::sort(index_.signPhrases.begin(), index_.signPhrases.end());
    std::sort(index_.htmlNames.begin(), index_.htmlNames.end());
    return std::move(index_);
  }

 private:
  struct Token {
    std::uint32_t word;
    std::uint32_t posting;
  };

  void addPhrase(std::uint32_t doc, PhraseKind kind, std::uint8_t language, std::string_view text) {
    const auto number = static_cast<std::uint32_t>(index_.phrases.size());
    if (number >= maxPhrases) return;
    Phrase phrase{doc, kind, language, 0, 0};
    reader_.restart(text);
    while (reader_.next()) {
      const std::uint32_t position = std::min<std::uint32_t>(phrase.words, lastPosition);
      tokens_.push_back({words_.number(reader_.word()), number << 8 | position});
      if (phrase.words < lastPosition) ++phrase.words;
      if (phrase.coreWords < lastPosition && !isFiller(reader_.word())) ++phrase.coreWords;
    }
    if (phrase.coreWords == 0) phrase.coreWords = phrase.words;
    // Signs stand in what people type for a character; in names they only separate.
    if (kind == PhraseKind::searchTerm || kind == PhraseKind::everydayName || kind == PhraseKind::keyword ||
        kind == PhraseKind::spokenName) {
      std::string key = signKey(text);
      if (!key.empty()) index_.signPhrases.emplace_back(std::move(key), number);
    }
    index_.phrases.push_back(phrase);
  }

  void addDocs() {
    index_.nameOffset.push_back(0);
    for (const RankedDoc& ranked : ranked_.docs) {
      const Entity& entity = entities_[ranked.entity];
      const auto doc = static_cast<std::uint32_t>(index_.docEntity.size());
      index_.docEntity.push_back(ranked.entity);
      index_.docCodePoint.push_back(ranked.codePoint);
      index_.docPrior.push_back(ranked.prior);
      if (ranked.codePoint != Index::noCodePoint) index_.byCodePoint.emplace_back(ranked.codePoint, doc);
      const std::string name = entity.name();
      index_.names += name;
      index_.nameOffset.push_back(static_cast<std::uint32_t>(index_.names.size()));
      addPhrase(doc, PhraseKind::name, 0, name);
      if (entity.additional) addEnrichment(doc, entity);
    }
    std::sort(index_.byCodePoint.begin(), index_.byCodePoint.end());
  }

  void addEnrichment(std::uint32_t doc, const Entity& entity) {
    const AdditionalData& data = *entity.additional;
    if (data.betterName && !data.betterName->empty())
      addPhrase(doc, PhraseKind::replacedName, 0, entity.computed.fallbackName);
    if (data.htmlNamed) addPhrase(doc, PhraseKind::htmlName, 0, *data.htmlNamed);
    if (data.searchTerms) {
      for (const std::string& term : *data.searchTerms) addPhrase(doc, PhraseKind::searchTerm, 0, term);
    }
    for (const AdditionalDataAdvice& advice : data.advice)
      addPhrase(doc, PhraseKind::note, language(advice.lang), advice.text);
  }

  // The number of a language; 0, which is always looked at, when there are too many of them.
  std::uint8_t language(std::string_view name) {
    const auto found = std::find(index_.languages.begin(), index_.languages.end(), name);
    if (found != index_.languages.end()) return static_cast<std::uint8_t>(found - index_.languages.begin());
    if (index_.languages.size() == 32) return 0;
    index_.languages.emplace_back(name);
    return static_cast<std::uint8_t>(index_.languages.size() - 1);
  }

  void addFacts() {
    for (std::size_t list = 0; list < searchFactCount; ++list) {
      const SearchFacts& facts = searchFactList[list];
      if (facts.kind == SearchFactKind::mostWanted) continue;
      const std::uint8_t itsLanguage = facts.language.empty() ? std::uint8_t{0} : language(facts.language);
      // Both ascend by code point.
      auto place = index_.byCodePoint.begin();
      for (std::size_t i = 0; i < facts.size() && place != index_.byCodePoint.end(); ++i) {
        const SearchFacts::Entry entry = facts[i];
        while (place != index_.byCodePoint.end() && place->first < entry.codePoint) ++place;
        if (place == index_.byCodePoint.end() || place->first != entry.codePoint) continue;
        addTexts(place->second, facts.kind, itsLanguage, entry.texts);
      }
    }
  }

  void addTexts(std::uint32_t doc, SearchFactKind kind, std::uint8_t itsLanguage, std::string_view texts) {
    for (bool first = true;; first = false) {
      const std::size_t end = texts.find('\n');
      const std::string_view text = texts.substr(0, end);
      if (kind == SearchFactKind::htmlName) index_.htmlNames.emplace_back(text, doc);
      if (!text.empty()) addPhrase(doc, phraseKind(kind, first), itsLanguage, text);
      if (end == std::string_view::npos) return;
      texts.remove_prefix(end + 1);
    }
  }

  static PhraseKind phraseKind(SearchFactKind kind, bool first) {
    switch (kind) {
      case SearchFactKind::alias:
        return PhraseKind::alias;
      case SearchFactKind::htmlName:
        return PhraseKind::htmlName;
      case SearchFactKind::everydayName:
        return PhraseKind::everydayName;
      case SearchFactKind::annotation:
      case SearchFactKind::mostWanted:
        break;
    }
    return first ? PhraseKind::spokenName : PhraseKind::keyword;
  }

  void addGroups() {
    std::vector<std::uint32_t> docOfEntity(entities_.size());
    for (std::uint32_t doc = 0; doc < index_.docCount(); ++doc) docOfEntity[index_.docEntity[doc]] = doc;
    for (const GroupMembers& members : ranked_.groups) {
      Group group{std::string(members.name), {}, {}};
      reader_.restart(members.name);
      while (reader_.next()) group.words.emplace_back(reader_.word());
      group.docs.reserve(members.entities.size());
      for (const std::uint32_t entity : members.entities) group.docs.push_back(docOfEntity[entity]);
      index_.groups.push_back(std::move(group));
    }
  }

  void addSynonyms() {
    for (std::string_view rest = searchSynonyms; !rest.empty();) {
      const std::string_view line = rest.substr(0, rest.find('\n'));
      const std::size_t tab = line.find('\t');
      index_.synonyms.emplace_back(line.substr(0, tab), line.substr(tab + 1));
      rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    }
  }

  void makeDictionary() {
    // Sorted by the first eight bytes as one number; only words that agree in them are compared as texts.
    std::vector<std::pair<std::uint64_t, std::uint32_t>> order(words_.size());
    for (std::uint32_t number = 0; number < words_.size(); ++number) {
      std::array<unsigned char, 8> head{};
      const std::string_view word = words_.word(number);
      std::memcpy(head.data(), word.data(), std::min(word.size(), head.size()));
      std::uint64_t key = 0;
      for (const unsigned char byte : head) key = key << 8 | byte;
      order[number] = {key, number};
    }
    std::sort(order.begin(), order.end(), [&](const auto& a, const auto& b) {
      return a.first != b.first ? a.first < b.first : words_.word(a.second) < words_.word(b.second);
    });

    std::vector<std::uint32_t> sortedPlace(words_.size());
    index_.words.reserve(words_.blobSize());
    index_.wordOffset.reserve(words_.size() + 1);
    for (std::uint32_t i = 0; i < order.size(); ++i) {
      sortedPlace[order[i].second] = i;
      index_.wordOffset.push_back(static_cast<std::uint32_t>(index_.words.size()));
      index_.words += words_.word(order[i].second);
    }
    index_.wordOffset.push_back(static_cast<std::uint32_t>(index_.words.size()));

    // A counting sort; it is stable, so that the postings of a word ascend.
    std::vector<std::uint32_t>& start = index_.postingStart;
    start.assign(words_.size() + 1, 0);
    for (Token& token : tokens_) {
      token.word = sortedPlace[token.word];
      ++start[token.word + 1];
    }
    for (std::size_t i = 1; i < start.size(); ++i) start[i] += start[i - 1];
    std::vector<std::uint32_t> next(start.begin(), start.end() - 1);
    index_.postings.resize(tokens_.size());
    for (const Token& token : tokens_) index_.postings[next[token.word]++] = token.posting;
    index_.phrases.shrink_to_fit();
    index_.names.shrink_to_fit();
  }

  std::span<const Entity> entities_;
  RankedDocs ranked_;
  Index index_;
  WordNumbers words_;
  WordReader reader_{{}};
  std::vector<Token> tokens_;
};

}  // namespace

Index buildIndex(std::span<const Entity> entities) {
  return Builder(entities).build();
}

}  // namespace glyph::search
