// SPDX-License-Identifier: MIT
#include "glyphorium/search/index_building.h"

#include <algorithm>
#include <numeric>
#include <string>
#include <utility>

#include "glyphorium/data/search_facts.h"
#include "glyphorium/search/language_rules.h"
#include "glyphorium/search/letter_description.h"
#include "glyphorium/search/static_rank.h"
#include "glyphorium/search/text_parts.h"
#include "glyphorium/search/word_numbers.h"
#include "glyphorium/search/words.h"

namespace glyph::search {
namespace {

constexpr std::uint32_t maxPhrases = 1u << 24;  // a posting has 24 bits for the number of a phrase
constexpr std::uint32_t lastPosition = 0xFF;    // a posting has 8 bits for the position of a word

// Stores the texts of a TextList.
struct Texts {
  std::string bytes;
  std::vector<std::uint32_t> begins{0};

  void add(std::string_view text) {
    bytes += text;
    begins.push_back(static_cast<std::uint32_t>(bytes.size()));
  }
  TextList list() const { return {bytes, begins}; }
};

// Texts in ascending order, and for each text the number that belongs to it.
template <class Text>
struct NumberedTexts {
  explicit NumberedTexts(std::vector<std::pair<Text, std::uint32_t>> pairs) {
    std::sort(pairs.begin(), pairs.end());
    for (const auto& [text, number] : pairs) {
      texts.add(text);
      numbers.push_back(number);
    }
  }
  Texts texts;
  std::vector<std::uint32_t> numbers;
};

class Builder {
 public:
  explicit Builder(std::span<const Entity> entities) : entities_(entities), ranked_(rankDocs(entities)) {
    for (const SearchLanguage& known : searchLanguages) {
      const std::uint8_t number = language(known.code);
      if (known.headFirst) headFirst_ |= 1u << number;
    }
  }

  IndexImage build() && {
    addDocs();
    addGroups();
    makeDictionary();
    const NumberedTexts signs(std::move(signPhrases_));
    const NumberedTexts htmlNames(std::move(htmlNames_));
    Texts languages;
    for (const std::string_view language : languages_) languages.add(language);
    return packed({
        .docEntity = docEntity_,
        .docCodePoint = docCodePoint_,
        .docPrior = docPrior_,
        .names = names_.list(),
        .byCodePoint = byCodePoint_,
        .phrases = phrases_,
        .phraseStart = phraseStart_,
        .words = dictionary_.list(),
        .postingStart = postingStart_,
        .postings = postings_,
        .signs = signs.texts.list(),
        .signPhrases = signs.numbers,
        .htmlNames = htmlNames.texts.list(),
        .htmlDocs = htmlNames.numbers,
        .groupNames = groupNames_.list(),
        .groupWords = groupWords_.list(),
        .groupDocStart = groupDocStart_,
        .groupDocs = groupDocs_,
        .languages = languages.list(),
    });
  }

 private:
  struct Token {
    std::uint32_t word;
    std::uint32_t posting;
  };

  void addPhrase(std::uint32_t doc, PhraseKind kind, std::uint8_t language, std::string_view text) {
    const auto number = static_cast<std::uint32_t>(phrases_.size());
    if (number >= maxPhrases) return;
    Phrase phrase{doc & 0xFFFFFF, kind, language, 0, 0, 0};
    const bool headFirst = headFirst_ >> language & 1;
    bool headFound = false;
    reader_.restart(text);
    while (reader_.next()) {
      const std::uint32_t position = std::min<std::uint32_t>(phrase.words, lastPosition);
      const std::uint32_t word = words_.number(reader_.word());
      if (word == joiningIn_.size()) joiningIn_.push_back(languagesJoinedBy(reader_.word()));
      tokens_.push_back({word, number << 8 | position});
      if (phrase.words < lastPosition) ++phrase.words;
      if ((joiningIn_[word] & 1) == 0) {
        if (phrase.coreWords < lastPosition) ++phrase.coreWords;
        if ((joiningIn_[word] >> std::max<unsigned>(language, 1) & 1) != 0) {
          headFound = phrase.coreWords > 1;
        } else if (!headFound) {
          phrase.head = static_cast<std::uint8_t>(position);
          headFound = headFirst;
        }
      }
    }
    if (phrase.coreWords == 0) phrase.coreWords = phrase.words;
    // Texts of these kinds contain the signs that people type to find a character, such as "->". In the other
    // texts, signs only separate words.
    if (kind == PhraseKind::searchTerm || kind == PhraseKind::everydayName || kind == PhraseKind::keyword ||
        kind == PhraseKind::textToSpeechName) {
      std::string key = signKey(text);
      if (!key.empty()) signPhrases_.emplace_back(std::move(key), number);
    }
    phrases_.push_back(phrase);
  }

  // Bit 0: the word is a stop word. Bit i: it is a function word of language i.
  std::uint32_t languagesJoinedBy(std::string_view word) const {
    std::uint32_t bits = isStopWord(word) ? 1 : 0;
    for (const SearchLanguage& known : searchLanguages) {
      const auto place = std::find(languages_.begin(), languages_.end(), known.code);
      if (place != languages_.end() && isFunctionWord({&known}, word))
        bits |= 1u << (place - languages_.begin());
    }
    return bits;
  }

  void addDocs() {
    for (const RankedDoc& ranked : ranked_.docs) {
      const Entity& entity = entities_[ranked.entity];
      const auto doc = static_cast<std::uint32_t>(docEntity_.size());
      docEntity_.push_back(ranked.entity);
      docCodePoint_.push_back(ranked.codePoint);
      docPrior_.push_back(ranked.prior);
      if (ranked.codePoint != Index::noCodePoint) byCodePoint_.push_back({ranked.codePoint, doc});
      const std::string name = entity.name();
      names_.add(name);
      addPhrase(doc, PhraseKind::name, 0, name);
      if (name.find(" Small Letter ") != std::string::npos)
        addPhrase(doc, PhraseKind::informalName, 0, letterWords(name));
      if (const std::string look = letterLook(name); !look.empty())
        addPhrase(doc, PhraseKind::informalName, 0, look);
      if (entity.additional) addEnrichment(doc, entity);
      if (ranked.codePoint != Index::noCodePoint) addFacts(doc, ranked.codePoint);
      phraseStart_.push_back(static_cast<std::uint32_t>(phrases_.size()));
    }
    std::sort(byCodePoint_.begin(), byCodePoint_.end(), [](const CodePointDoc& a, const CodePointDoc& b) {
      return std::pair(a.codePoint, a.doc) < std::pair(b.codePoint, b.doc);
    });
  }

  void addEnrichment(std::uint32_t doc, const Entity& entity) {
    const AdditionalData& data = *entity.additional;
    if (data.betterName && !data.betterName->empty())
      addPhrase(doc, PhraseKind::replacedName, 0, entity.computed.fallbackName);
    if (data.htmlNamed) addPhrase(doc, PhraseKind::htmlName, 0, *data.htmlNamed);
    if (data.searchTerms) {
      for (const RecordText& term : *data.searchTerms) addPhrase(doc, PhraseKind::searchTerm, 0, term);
    }
    for (const AdditionalDataAdvice& advice : data.advice)
      addPhrase(doc, PhraseKind::note, language(advice.lang), advice.text);
  }

  // Returns the number of a language, and adds the language if it is new. A bit mask of languages has 32
  // bits. If all are used, returns 0, because texts with language number 0 are always searched.
  std::uint8_t language(std::string_view name) {
    const auto found = std::find(languages_.begin(), languages_.end(), name);
    if (found != languages_.end()) return static_cast<std::uint8_t>(found - languages_.begin());
    if (languages_.size() == 32) return 0;
    languages_.push_back(name);
    return static_cast<std::uint8_t>(languages_.size() - 1);
  }

  void addFacts(std::uint32_t doc, std::uint32_t codePoint) {
    for (std::size_t list = 0; list < searchFactCount; ++list) {
      const SearchFacts& facts = searchFactList[list];
      if (facts.kind == SearchFactKind::mostWanted) continue;
      addTexts(doc, facts.kind, facts.language.empty() ? std::uint8_t{0} : language(facts.language),
               facts.textsOf(codePoint));
    }
  }

  void addTexts(std::uint32_t doc, SearchFactKind kind, std::uint8_t itsLanguage, std::string_view texts) {
    for (bool first = true; !texts.empty(); first = false) {
      const std::string_view text = takePart(texts, '\n');
      if (kind == SearchFactKind::htmlName) htmlNames_.emplace_back(text, doc);
      if (!text.empty()) addPhrase(doc, phraseKind(kind, first), itsLanguage, text);
    }
  }

  static PhraseKind phraseKind(SearchFactKind kind, bool first) {
    switch (kind) {
      case SearchFactKind::alias:
        return PhraseKind::alias;
      case SearchFactKind::htmlName:
        return PhraseKind::htmlName;
      case SearchFactKind::comment:
        return PhraseKind::comment;
      case SearchFactKind::informalName:
        return PhraseKind::informalName;
      case SearchFactKind::everydayName:
        return PhraseKind::everydayName;
      case SearchFactKind::annotation:
      case SearchFactKind::mostWanted:
        break;
    }
    return first ? PhraseKind::textToSpeechName : PhraseKind::keyword;
  }

  void addGroups() {
    std::vector<std::uint32_t> docOfEntity(entities_.size());
    for (std::uint32_t doc = 0; doc < docEntity_.size(); ++doc) docOfEntity[docEntity_[doc]] = doc;
    for (const GroupMembers& members : ranked_.groups) {
      groupNames_.add(members.name);
      groupWords_.add(wordsOf(members.name));
      for (const std::uint32_t entity : members.entities) groupDocs_.push_back(docOfEntity[entity]);
      groupDocStart_.push_back(static_cast<std::uint32_t>(groupDocs_.size()));
    }
  }

  void makeDictionary() {
    std::vector<std::uint32_t> order(words_.size());
    std::iota(order.begin(), order.end(), 0u);
    std::sort(order.begin(), order.end(),
              [&](std::uint32_t a, std::uint32_t b) { return words_.word(a) < words_.word(b); });

    std::vector<std::uint32_t> sortedPlace(words_.size());
    dictionary_.bytes.reserve(words_.blobSize());
    dictionary_.begins.reserve(words_.size() + 1);
    for (std::uint32_t i = 0; i < order.size(); ++i) {
      sortedPlace[order[i]] = i;
      dictionary_.add(words_.word(order[i]));
    }

    // A counting sort by word. It is stable, so the postings of a word stay in ascending order.
    postingStart_.assign(words_.size() + 1, 0);
    for (Token& token : tokens_) {
      token.word = sortedPlace[token.word];
      ++postingStart_[token.word + 1];
    }
    for (std::size_t i = 1; i < postingStart_.size(); ++i) postingStart_[i] += postingStart_[i - 1];
    std::vector<std::uint32_t> next(postingStart_.begin(), postingStart_.end() - 1);
    postings_.resize(tokens_.size());
    for (const Token& token : tokens_) postings_[next[token.word]++] = token.posting;
  }

  std::span<const Entity> entities_;
  RankedDocs ranked_;
  WordNumbers words_;
  std::vector<std::uint32_t> joiningIn_;  // languagesJoinedBy(), indexed by word number
  std::uint32_t headFirst_ = 0;           // bit i: nouns come first in language i
  WordReader reader_{{}};
  std::vector<Token> tokens_;

  // The parts of the index.
  std::vector<std::uint32_t> docEntity_;
  std::vector<std::uint32_t> docCodePoint_;
  std::vector<std::uint8_t> docPrior_;
  Texts names_;
  std::vector<CodePointDoc> byCodePoint_;
  std::vector<Phrase> phrases_;
  std::vector<std::uint32_t> phraseStart_{0};
  Texts dictionary_;
  std::vector<std::uint32_t> postingStart_;
  std::vector<std::uint32_t> postings_;
  std::vector<std::pair<std::string, std::uint32_t>> signPhrases_;
  std::vector<std::pair<std::string_view, std::uint32_t>> htmlNames_;
  Texts groupNames_;
  Texts groupWords_;
  std::vector<std::uint32_t> groupDocStart_{0};
  std::vector<std::uint32_t> groupDocs_;
  std::vector<std::string_view> languages_{"", "en"};
};

}  // namespace

IndexImage buildIndex(std::span<const Entity> entities) {
  return Builder(entities).build();
}

}  // namespace glyph::search
