// SPDX-License-Identifier: MIT
#include "glyphorium/search/matching.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <new>
#include <type_traits>
#include <utility>

#include "glyphorium/search/dictionary_words.h"
#include "glyphorium/search/score.h"

namespace glyph::search {
namespace {

constexpr std::uint32_t noCost = 0xFFFFFFFF;
constexpr std::uint32_t noText = 0xFFFFFFFF;
// A posting is one occurrence of a word in a text of a character. If a word has more than this number of
// postings for each character that already matches, a binary search for each of these characters costs less
// than reading all postings.
constexpr std::size_t postingsPerSearch = 16;
constexpr std::size_t mostDocsForLetter = 3000;  // a letter is not looked up as a prefix in more docs
constexpr std::size_t shortestGroupWord = 3;     // in bytes; shorter words do not match groups

// How a text matches the words of the query that were looked up so far.
struct PhraseState {
  Phrase phrase{};
  std::uint32_t text = 0;       // Occurrence::text
  std::uint32_t next = noText;  // the position in Scratch::phrases of another text of the doc
  // The gain of a matched word is its weight minus its loss (see score.h). This is the sum for all matched
  // words, in hundredths of a point.
  std::uint32_t gain = 0;
  std::uint8_t lastWord = 0;
  std::uint8_t words = 0;
  std::uint8_t stopWords = 0;
  std::uint8_t aligned = 0;
  std::int8_t shift = 0;  // of the first matched word: position in the text minus position in the query
  std::uint8_t variants = 0;
  std::uint8_t prefixes = 0;
  bool isLastAligned = false;
  bool head = false;
  bool allWhole = true;  // no matched word is incomplete or mistyped
};

struct DocState {
  std::uint32_t epoch = 0;
  std::uint32_t gain = 0;     // as in PhraseState, but without the word that matched last
  std::uint32_t current = 0;  // the gain of the word that matched last
  std::uint32_t matched = 0;  // bit i: word i of the query matches
  std::uint32_t matchedWeight = 0;
  std::uint32_t contentWords = 0;  // the number of matched words that are not stop words
  std::uint32_t asTyped = 0;       // bit i: word i of the query matches without a correction
  std::uint32_t best = noCost;
  std::uint32_t phrase = noText;  // the position in Scratch::phrases of the best text
  std::uint32_t phraseGain = 0;
  std::uint32_t nameGain = 0;
  std::uint32_t phrases = noText;  // the position in Scratch::phrases of the first text
  std::uint32_t letters = 0;       // bit i: word i is a letter that matches only as a prefix
};

// Working memory that is reused for the next query. Each query has a number, its epoch. A DocState with
// another epoch is left over from an earlier query and counts as empty. So the states need not be cleared for
// each query. calloc() gets zeroed pages from the system, which take no memory until they are written.
struct Scratch {
  std::vector<PhraseState> phrases;
  std::unique_ptr<DocState[], decltype(&std::free)> docs{nullptr, &std::free};
  std::size_t docCount = 0;
  std::vector<std::uint32_t> touchedDocs;
  std::vector<std::uint64_t> begun;  // bit i: an earlier word matches doc i
  std::uint32_t epoch = 0;

  void begin(const Index& index) {
    static_assert(std::is_trivially_copyable_v<DocState>);
    if (docCount < index.docCount() || ++epoch == 0) {
      docs.reset();
      docCount = 0;
      docs.reset(static_cast<DocState*>(std::calloc(index.docCount(), sizeof(DocState))));
      if (!docs) throw std::bad_alloc();
      docCount = index.docCount();
      epoch = 1;
    }
    phrases.clear();
    touchedDocs.clear();
    begun.assign(index.docCount() / 64 + 1, 0);
  }
};

class Matcher {
 public:
  Matcher(const Index& index, std::vector<QueryWord>& words, const MatchFilter& filter, Scratch& scratch)
      : index_(index),
        words_(words),
        filter_(filter),
        scratch_(scratch),
        epoch_(scratch.epoch),
        isShort_(words.size() == 1 && words[0].text.size() <= shortQuery) {}

  Matches match() {
    weigh();
    // The words are matched from the rarest to the most frequent. A character that lacks too many rare words
    // need not be examined when a frequent word matches it.
    std::vector<std::pair<std::size_t, std::uint8_t>> order;
    for (std::uint8_t place = 0; std::size_t{place} < words_.size(); ++place) {
      const std::size_t last = words_[place].isStopWord ? index_.postings.size() : 0;
      order.emplace_back(last + postingCount(index_, words_[place]), place);
    }
    std::sort(order.begin(), order.end());
    std::uint32_t passed = 0;
    for (const auto& [count, place] : order) {
      const QueryWord& word = words_[place];
      if (!scratch_.touchedDocs.empty()) matchWord(word, place, Docs::begun);
      // A character that no earlier word matches lacks all earlier words. Their weight is `passed`. If
      // `passed` is larger than `most`, result() would leave out the character, so it is not examined here.
      const std::uint32_t most =
          std::min(contentWeight_ * mostMissing / 100,
                   contentWeight_ - bestWeight_ + contentWeight_ * mostMissingBeyondBest / 100);
      if (!word.isStopWord && passed <= most) matchWord(word, place, Docs::others);
      if (count > 0) passed += word.weight;
    }
    for (std::uint8_t place = 0; std::size_t{place} < words_.size(); ++place)
      matchLetterOfWord(words_[place], place);
    for (std::uint32_t number = 0; number < scratch_.phrases.size(); ++number) offer(number);
    return result();
  }

 private:
  void weigh() {
    if (std::all_of(words_.begin(), words_.end(), [](const QueryWord& word) { return word.isStopWord; })) {
      for (QueryWord& word : words_) word.isStopWord = false;  // the query is "sign", for example
    }
    for (std::size_t i = 0; i < words_.size(); ++i) {
      QueryWord& word = words_[i];
      if (word.weight == 0)
        word.weight = word.isStopWord ? stopWordWeight : wordWeight(word.text, textCount(word));
      allWeight_ += word.weight;
      if (word.isStopWord) continue;
      contentWeight_ += word.weight;
      ++contentWords_;
      contentBits_ |= 1u << i;
    }
  }

  std::size_t textCount(const QueryWord& word) const {
    std::size_t count = postingCount(index_, word);
    if (const Index* const other = index_.weighedWith) {
      TextRange range = other->words.withPrefix(word.text);
      if (!range.empty() && other->words[range.first] == word.text) range.last = range.first + 1;
      count += other->postingsOf(range).size();
    }
    return count;
  }

  // Returns true if the phrase passes the filter.
  bool counts(const Phrase& phrase) const {
    return (filter_.languages >> phrase.language & 1) != 0 && (!filter_.docs || (*filter_.docs)[phrase.doc]);
  }

  // Which characters a pass over the postings examines: those that an earlier word of the query has matched,
  // or those that none has matched.
  enum class Docs { begun, others };

  bool isBegun(std::uint32_t doc) const { return scratch_.begun[doc / 64] >> doc % 64 & 1; }

  // `place` is the position of the word in the query.
  void matchWord(const QueryWord& word, std::uint8_t place, Docs docs) {
    const std::size_t begunDocs = scratch_.touchedDocs.size();
    for (const Alternative& alternative : word.alternatives) {
      if (word.isStopWord && alternative.match != WordMatch::whole) continue;
      if (isLetterOfWord(word, alternative)) continue;
      const std::span<const std::uint32_t> postings = index_.postingsOf(alternative.words);
      const bool isOneWord = alternative.words.last - alternative.words.first == 1;
      if (docs == Docs::begun && isOneWord && begunDocs * postingsPerSearch < postings.size()) {
        for (std::size_t i = 0; i < begunDocs; ++i) {
          const std::uint32_t doc = scratch_.touchedDocs[i];
          auto posting = std::lower_bound(postings.begin(), postings.end(), index_.firstPosting(doc));
          for (; posting != postings.end() && *posting < index_.firstPosting(doc + 1); ++posting)
            notePosting(word, place, alternative.match, *posting);
        }
        continue;
      }
      for (const std::uint32_t posting : postings) {
        if (isBegun(index_.docOfPosting(posting)) == (docs == Docs::begun))
          notePosting(word, place, alternative.match, posting);
      }
    }
    if (word.text.size() >= shortestGroupWord && !word.isStopWord) matchGroups(word, place, docs);
    // The bits of the characters that this word matched first are set only now. If they were set earlier, the
    // loops above would miss other texts of these characters.
    for (std::size_t i = begunDocs; i < scratch_.touchedDocs.size(); ++i) {
      const std::uint32_t doc = scratch_.touchedDocs[i];
      scratch_.begun[doc / 64] |= std::uint64_t{1} << doc % 64;
    }
  }

  // Looks up a single letter as a prefix. Examines only characters that match other words of the query and do
  // not match the letter as a whole word.
  void matchLetterOfWord(const QueryWord& word, std::uint8_t place) {
    if (scratch_.touchedDocs.size() > mostDocsForLetter) return;
    for (const Alternative& alternative : word.alternatives) {
      if (!isLetterOfWord(word, alternative)) continue;
      for (const std::uint32_t posting : index_.postingsOf(alternative.words)) {
        const std::uint32_t doc = index_.docOfPosting(posting);
        if (!isBegun(doc)) continue;
        DocState& state = scratch_.docs[doc];
        if ((state.matched >> place & 1) == 0) state.letters |= 1u << place;
        if ((state.letters >> place & 1) != 0) notePosting(word, place, alternative.match, posting);
      }
    }
  }

  void notePosting(const QueryWord& word, std::uint8_t place, WordMatch match, std::uint32_t posting) {
    const Occurrence occurrence = index_.occurrence(posting);
    if (!counts(occurrence.phrase)) return;
    const std::uint32_t loss = std::max(lossPercent(match), lossPercent(occurrence.phrase.kind));
    const std::uint32_t gain = word.weight * (100 - loss);
    DocState& doc = noteDoc(occurrence.phrase.doc, word, place, gain, match <= WordMatch::prefix);
    notePhrase(doc, occurrence, word, place, gain, match);
  }

  DocState& noteDoc(std::uint32_t doc, const QueryWord& word, std::uint8_t place, std::uint32_t gain,
                    bool isTyped) {
    DocState& state = scratch_.docs[doc];
    if (state.epoch != epoch_) {
      state = DocState();
      state.epoch = epoch_;
      scratch_.touchedDocs.push_back(doc);
    }
    if (isTyped) state.asTyped |= 1u << place;
    if ((state.matched >> place & 1) == 0) {
      state.matched |= 1u << place;
      state.gain += state.current;
      state.current = gain;
      if (word.isStopWord) return state;
      ++state.contentWords;
      state.matchedWeight += word.weight;
      bestWeight_ = std::max(bestWeight_, state.matchedWeight);
    } else {
      state.current = std::max(state.current, gain);
    }
    return state;
  }

  PhraseState& stateOf(DocState& doc, const Occurrence& occurrence) {
    for (std::uint32_t number = doc.phrases; number != noText; number = scratch_.phrases[number].next) {
      if (scratch_.phrases[number].text == occurrence.text) return scratch_.phrases[number];
    }
    PhraseState& state = scratch_.phrases.emplace_back();
    state.phrase = occurrence.phrase;
    state.text = occurrence.text;
    state.next = doc.phrases;
    doc.phrases = static_cast<std::uint32_t>(scratch_.phrases.size() - 1);
    return state;
  }

  void notePhrase(DocState& doc, const Occurrence& occurrence, const QueryWord& word, std::uint8_t place,
                  std::uint32_t gain, WordMatch match) {
    PhraseState& state = stateOf(doc, occurrence);
    const std::uint8_t position = occurrence.position;
    if (state.lastWord == 0) state.shift = static_cast<std::int8_t>(position - place);
    const bool isAligned = state.shift == static_cast<std::int8_t>(position - place);
    if (state.lastWord == place + 1) {
      // The word is in the text several times. This position may fit the positions of the other words better
      // than the earlier position.
      if (isAligned && !state.isLastAligned) {
        ++state.aligned;
        state.isLastAligned = true;
      }
    } else {
      state.lastWord = static_cast<std::uint8_t>(place + 1);
      state.gain += gain;
      state.aligned = static_cast<std::uint8_t>(state.aligned + isAligned);
      state.isLastAligned = isAligned;
      state.allWhole = state.allWhole && match <= WordMatch::variant;
      if (match == WordMatch::variant) ++state.variants;
      if (match == WordMatch::prefix) ++state.prefixes;
      ++(word.isStopWord ? state.stopWords : state.words);
    }
    state.head = state.head || position == state.phrase.head;
  }

  void matchGroups(const QueryWord& word, std::uint8_t place, Docs docs) {
    const std::uint32_t gain = word.weight * (100 - lossPercent(WordMatch::group));
    for (std::uint32_t number = 0; number < index_.groupCount(); ++number) {
      const Group group = index_.group(number);
      const bool matches =
          group.hasWordWithPrefix(word.text) ||
          std::any_of(word.alternatives.begin(), word.alternatives.end(), [&](auto& one) {
            return one.match == WordMatch::variant && group.hasWordWithPrefix(index_.words[one.words.first]);
          });
      if (!matches) continue;
      for (const std::uint32_t doc : group.docs) {
        if (isBegun(doc) == (docs == Docs::begun) && (!filter_.docs || (*filter_.docs)[doc]))
          noteDoc(doc, word, place, gain, true);
      }
    }
  }

  static TextMatch textMatch(const PhraseState& state) {
    return {state.words, state.stopWords, state.aligned, state.variants, state.prefixes, state.head};
  }

  // Returns what the words of the query lose in total. `gain` is the gain of the matched words. `matched` is
  // their number, without stop words.
  std::uint32_t loss(std::uint32_t gain, std::size_t matched) const {
    return allWeight_ - gain / 100 + missingWordCost * static_cast<std::uint32_t>(contentWords_ - matched);
  }

  // Makes a text the best one of its doc if no earlier text has a lower cost. `number` is the position of the
  // text in Scratch::phrases.
  void offer(std::uint32_t number) {
    const PhraseState& state = scratch_.phrases[number];
    const Phrase& phrase = state.phrase;
    DocState& doc = scratch_.docs[phrase.doc];
    if (phrase.kind <= PhraseKind::replacedName) doc.nameGain = std::max(doc.nameGain, state.gain);
    const std::uint32_t cost = loss(state.gain, state.words) + textCost(phrase, textMatch(state));
    if (cost >= doc.best) return;
    doc.best = cost;
    doc.phrase = number;
    doc.phraseGain = state.gain;
  }

  std::uint32_t missing(const DocState& doc) const { return contentWeight_ - doc.matchedWeight; }

  Match matchOf(std::uint32_t doc) const {
    const DocState& state = scratch_.docs[doc];
    const bool asTyped = state.asTyped == state.matched;
    const bool isHan =
        state.phrase != noText && scratch_.phrases[state.phrase].phrase.kind >= PhraseKind::meaning;
    const std::uint32_t spread =
        loss(state.gain + state.current, state.contentWords) + spreadCost + (isHan ? hanMeaningCost : 0);
    if (spread < state.best) {
      const bool named = state.nameGain >= state.gain + state.current;
      const std::uint32_t cost = spread + (named ? 0 : unnamedCost);
      const bool inText = words_.size() == 1 && state.phrase != noText;
      return {cost + priorCost(index_.docPrior[doc], isShort_, 0), doc,
              inText ? scratch_.phrases[state.phrase].phrase.kind : PhraseKind::name, false, asTyped};
    }
    const PhraseState& text = scratch_.phrases[state.phrase];
    const Phrase& phrase = text.phrase;
    const bool whole = text.allWhole && text.words == contentWords_ && coversText(phrase, textMatch(text));
    const bool named = state.nameGain >= state.phraseGain;
    std::uint32_t cost = state.best + (named ? 0 : unnamedCost);
    // If the words of an HTML name (such as "sigma") are also in the Unicode name, they are real words, not
    // abbreviations.
    if (named && phrase.kind == PhraseKind::htmlName) cost -= htmlNameCost - htmlNameInNameCost;
    const bool isExactName =
        whole && phrase.kind <= PhraseKind::replacedName && text.aligned == words_.size();
    const unsigned wholeName = isExactName ? phrase.words : 0u;
    return {cost + priorCost(index_.docPrior[doc], isShort_, wholeName), doc, phrase.kind, whole, asTyped};
  }

  Matches result() const {
    Matches matches;
    matches.best.cost = noCost;
    matches.all.reserve(scratch_.touchedDocs.size());
    for (const std::uint32_t doc : scratch_.touchedDocs) {
      const Match match = matchOf(doc);
      matches.all.push_back(match);
      const auto order = [](const Match& one) { return std::uint64_t{one.cost} << 32 | one.doc; };
      if (order(match) < order(matches.best)) matches.best = match;
    }
    if (matches.all.empty()) return matches;
    const DocState& best = scratch_.docs[matches.best.doc];
    const std::uint32_t lacking = missing(best);
    if (lacking * 100 > contentWeight_ * mostMissing) return {};
    const std::uint32_t most = lacking + contentWeight_ * mostMissingBeyondBest / 100;
    const std::uint32_t least = best.gain + best.current;
    std::erase_if(matches.all, [&](const Match& one) {
      const DocState& doc = scratch_.docs[one.doc];
      return missing(doc) > most || doc.gain + doc.current + contentWeight_ * mostLossBeyondBest < least;
    });
    matches.unmatched = contentBits_ & ~best.matched;
    return matches;
  }

  const Index& index_;
  std::vector<QueryWord>& words_;
  const MatchFilter& filter_;
  Scratch& scratch_;
  const std::uint32_t epoch_;
  std::uint32_t allWeight_ = 0;
  std::uint32_t contentWeight_ = 0;  // the weight of all words that are not stop words
  std::uint32_t bestWeight_ = 0;     // the largest matchedWeight of a character
  std::size_t contentWords_ = 0;
  std::uint32_t contentBits_ = 0;  // bit i: word i is not a stop word
  const bool isShort_;
};

}  // namespace

Matches matchWords(const Index& index, std::vector<QueryWord>& words, const MatchFilter& filter) {
  thread_local Scratch scratch;
  scratch.begin(index);
  return Matcher(index, words, filter, scratch).match();
}

}  // namespace glyph::search
