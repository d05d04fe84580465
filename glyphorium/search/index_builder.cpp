// SPDX-License-Identifier: MIT
#include "glyphorium/search/index_builder.h"

#include <algorithm>
#include <bit>
#include <numeric>

#include "glyphorium/data/search_facts.h"
#include "glyphorium/search/language_rules.h"

namespace glyph::search {
namespace {

constexpr std::uint32_t maxPhrases = 1u << 24;  // a posting has 24 bits for the number of a phrase
constexpr std::uint32_t maxDocs = 1u << 20;     // a phrase has 20 bits for the doc
constexpr std::uint32_t maxShapesOfPhrases = 1u << 12;
constexpr std::uint32_t maxShapesOfPostings = 1u << 16;
constexpr std::uint32_t lastPosition = 0xFF;  // a posting has 8 bits for the position of a word

// Texts in ascending order, each with a number.
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

}  // namespace

IndexBuilder::IndexBuilder(Form form) : form_(form) {
  for (const SearchLanguage& known : searchLanguages) {
    const std::uint8_t number = numberOfLanguage(known.code);
    if (known.headFirst) headFirst_ |= 1u << number;
  }
}

IndexImage IndexBuilder::image() && {
  makeDictionary();
  if (form_ == Form::phrases) phraseStart_.push_back(static_cast<std::uint32_t>(phrases_.size()));
  std::vector<std::uint32_t> byCodePoint;
  if (form_ == Form::shapes) docEntity_.clear();
  for (std::uint32_t doc = 0; form_ == Form::phrases && doc < docCodePoint_.size(); ++doc) {
    if (docCodePoint_[doc] != Index::noCodePoint) byCodePoint.push_back(doc);
  }
  std::sort(byCodePoint.begin(), byCodePoint.end(), [&](std::uint32_t a, std::uint32_t b) {
    return std::pair(docCodePoint_[a], a) < std::pair(docCodePoint_[b], b);
  });
  const NumberedTexts signs(std::move(signPostings_));
  const NumberedTexts htmlNames(std::move(htmlNames_));
  Texts languages;
  for (const std::string& language : languages_) languages.add(language);
  Index index;
  index.docEntity = docEntity_;
  index.docCodePoint = docCodePoint_;
  index.docPrior = docPrior_;
  index.names = names_.list();
  index.byCodePoint = byCodePoint;
  index.phrases = phrases_;
  index.phraseStart = phraseStart_;
  index.shapes = shapes_;
  index.words = dictionary_.list();
  index.postingStart = postingStart_;
  index.postings = postings_;
  index.signs = signs.texts.list();
  index.signPostings = signs.numbers;
  index.htmlNames = htmlNames.texts.list();
  index.htmlDocs = htmlNames.numbers;
  index.groupNames = groupNames_.list();
  index.groupWords = groupWords_.list();
  index.groupDocStart = groupDocStart_;
  index.groupDocs = groupDocs_;
  index.languages = languages.list();
  return packed(index);
}

std::uint32_t IndexBuilder::addDoc(std::uint32_t entity, std::uint32_t codePoint, std::uint8_t prior) {
  docEntity_.push_back(entity);
  docCodePoint_.push_back(codePoint);
  docPrior_.push_back(prior);
  if (form_ == Form::phrases) phraseStart_.push_back(static_cast<std::uint32_t>(phrases_.size()));
  textOfDoc_ = 0;
  return lastDoc();
}

void IndexBuilder::addText(PhraseKind kind, std::string_view languageCode, std::string_view text) {
  const auto number = static_cast<std::uint32_t>(phrases_.size());
  if (number >= maxPhrases || lastDoc() >= maxDocs) return;
  const std::uint8_t language = numberOfLanguage(languageCode);
  Phrase phrase{0, kind, language, 0, 0, 0};
  const bool headFirst = headFirst_ >> language & 1;
  bool headFound = false;
  const std::size_t firstToken = tokens_.size();
  reader_.restart(text);
  while (reader_.next()) {
    const std::uint32_t position = std::min<std::uint32_t>(phrase.words, lastPosition);
    const std::uint32_t word = words_.number(reader_.word());
    if (word == joiningIn_.size()) joiningIn_.push_back(languagesJoinedBy(reader_.word()));
    tokens_.push_back({word, position});
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
  const auto posting = [&](std::uint32_t position) {
    if (form_ == Form::phrases) return number << 8 | position;
    Shape shape = phrase;
    shape.doc = (textOfDoc_ << 8 | position) & 0xFFFFFF;
    return lastDoc() << 16 | numberOfShape(shape);
  };
  for (std::size_t i = firstToken; i < tokens_.size(); ++i) tokens_[i].posting = posting(tokens_[i].posting);
  // Texts of these kinds contain the signs that people type to find a character, such as "->". In the other
  // texts, signs only separate words.
  if (kind == PhraseKind::searchTerm || kind == PhraseKind::everydayName || kind == PhraseKind::keyword ||
      kind == PhraseKind::textToSpeechName) {
    std::string key = signKey(text);
    if (!key.empty()) signPostings_.emplace_back(std::move(key), posting(0));
  }
  if (form_ == Form::phrases) phrases_.push_back(lastDoc() << 12 | numberOfShape(phrase));
  ++textOfDoc_;
}

// Returns the position of the shape in shapes_, and adds the shape if it is new. If shapes_ is full, returns
// the position of its last shape.
std::uint32_t IndexBuilder::numberOfShape(const Shape& shape) {
  const std::size_t most = form_ == Form::phrases ? maxShapesOfPhrases : maxShapesOfPostings;
  const auto next = static_cast<std::uint32_t>(std::min(shapes_.size(), most - 1));
  const auto [known, isNew] = shapeNumbers_.emplace(std::bit_cast<std::uint64_t>(shape), next);
  if (isNew && shapes_.size() < most) shapes_.push_back(shape);
  return known->second;
}

// Returns a bit mask. Bit 0: the word is a stop word. Bit i: the word is a function word of languages_[i].
std::uint32_t IndexBuilder::languagesJoinedBy(std::string_view word) const {
  std::uint32_t bits = isStopWord(word) ? 1 : 0;
  for (const SearchLanguage& known : searchLanguages) {
    const auto place = std::find(languages_.begin(), languages_.end(), known.code);
    if (place != languages_.end() && isFunctionWord({&known}, word))
      bits |= 1u << (place - languages_.begin());
  }
  return bits;
}

// Returns the position of the language in languages_, and adds the language if it is new. There can be only
// 32 languages, because a set of languages is a bit mask. If languages_ is full, returns 0: texts with
// language 0 are always searched.
std::uint8_t IndexBuilder::numberOfLanguage(std::string_view language) {
  const auto found = std::find(languages_.begin(), languages_.end(), language);
  if (found != languages_.end()) return static_cast<std::uint8_t>(found - languages_.begin());
  if (languages_.size() == 32) return 0;
  languages_.emplace_back(language);
  return static_cast<std::uint8_t>(languages_.size() - 1);
}

void IndexBuilder::addGroup(std::string_view name, const std::vector<std::uint32_t>& docs) {
  groupNames_.add(name);
  groupWords_.add(wordsOf(name));
  groupDocs_.insert(groupDocs_.end(), docs.begin(), docs.end());
  groupDocStart_.push_back(static_cast<std::uint32_t>(groupDocs_.size()));
}

void IndexBuilder::makeDictionary() {
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

}  // namespace glyph::search
