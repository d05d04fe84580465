// SPDX-License-Identifier: MIT
#include "glyphorium/search/matching.h"

#include <algorithm>

#include "glyphorium/search/dictionary_words.h"
#include "glyphorium/search/match_costs.h"

namespace glyph::search {
namespace {

struct PhraseState {
  std::uint32_t epoch = 0;
  std::uint8_t count = 0;      // the phrase matches the first `count` needed words
  std::uint8_t stopWords = 0;  // the phrase matches the first `stopWords` stop words of the query
  std::uint8_t aligned = 0;  // number of matched words with the same position in the phrase and in the query
  std::uint8_t worst = 0;    // the worst WordMatch of the matched needed words
};

struct DocState {
  std::uint32_t epoch = 0;
  std::uint32_t phrase = noPhrase;
  std::uint32_t best = 0;        // the lowest cost of a phrase that matches all needed words
  std::uint8_t count = 0;        // the doc matches the first `count` needed words
  std::uint8_t worst = 0;        // the worst WordMatch of the words before the last matched word
  std::uint8_t current = 0;      // the best WordMatch of the last matched word
  std::uint8_t stopWords = 0;    // the doc matches the first `stopWords` stop words of the query
  std::uint8_t bestWorst = 0;    // the worst WordMatch in the phrase with the lowest cost
  std::uint8_t nameWorst = 255;  // the worst WordMatch in the name; 255 if the name lacks a needed word
};

constexpr std::uint32_t noCost = 0xFFFFFFFF;

// Working memory that is reused for the next query. Each query has a number, its epoch. A state with another
// epoch is left over from an earlier query and counts as empty. So the states need not be cleared for each
// query.
struct Scratch {
  std::vector<PhraseState> phrases;
  std::vector<DocState> docs;
  std::vector<std::uint32_t> touched;  // the docs that match the first needed word
  std::uint32_t epoch = 0;

  void begin(const Index& index) {
    if (phrases.size() < index.phrases.size()) phrases.resize(index.phrases.size());
    if (docs.size() < index.docCount()) docs.resize(index.docCount());
    touched.clear();
    if (++epoch == 0) {
      std::fill(phrases.begin(), phrases.end(), PhraseState{});
      std::fill(docs.begin(), docs.end(), DocState{});
      epoch = 1;
    }
  }
};

class Matcher {
 public:
  Matcher(const Index& index, const MatchFilter& filter, Scratch& scratch)
      : index_(index), filter_(filter), scratch_(scratch), epoch_(scratch.epoch) {}

  std::vector<Match> match(const std::vector<QueryWord>& words) {
    std::vector<std::uint8_t> needed;
    std::vector<std::uint8_t> stopWords;
    for (std::uint8_t place = 0; place < words.size(); ++place)
      (words[place].isStopWord ? stopWords : needed).push_back(place);
    if (needed.empty()) needed.swap(stopWords);  // the query has only stop words, such as "sign"
    // The rarest word is matched first. After that, only the few characters that match it are candidates for
    // the other words.
    std::stable_sort(needed.begin(), needed.end(), [&](std::uint8_t a, std::uint8_t b) {
      return postingCount(index_, words[a]) < postingCount(index_, words[b]);
    });
    needed_ = static_cast<std::uint8_t>(needed.size());
    stopWords_ = static_cast<std::uint8_t>(stopWords.size());
    for (std::uint8_t i = 0; i < needed_; ++i) matchNeeded(words[needed[i]], i, needed[i]);
    for (std::uint8_t i = 0; i < stopWords_; ++i) matchStopWord(words[stopWords[i]], i, stopWords[i]);
    return result();
  }

 private:
  // Returns true if the phrase passes the filter.
  bool counts(const Phrase& phrase) const {
    return (filter_.languages >> phrase.language & 1) != 0 && (!filter_.docs || (*filter_.docs)[phrase.doc]);
  }

  // Matches needed word number `i`, starting at 0. `place` is the position of the word in the query.
  void matchNeeded(const QueryWord& word, std::uint8_t i, std::uint8_t place) {
    for (const Alternative& alternative : word.alternatives) {
      for (const std::uint32_t posting : index_.postingsOf(alternative.words)) {
        const std::uint32_t number = posting >> 8;
        const Phrase& phrase = index_.phrases[number];
        if (i > 0 && (scratch_.docs[phrase.doc].epoch != epoch_ || scratch_.docs[phrase.doc].count < i))
          continue;
        if (!counts(phrase)) continue;
        const auto match = phrase.kind == PhraseKind::note ? std::max(alternative.match, WordMatch::note)
                                                           : alternative.match;
        noteDoc(phrase.doc, i, match, number);
        notePhrase(number, phrase, i, match, static_cast<std::uint8_t>(posting) == place);
      }
    }
    if (word.text.size() >= 3) matchGroups(word, i);
  }

  void noteDoc(std::uint32_t doc, std::uint8_t i, WordMatch match, std::uint32_t phrase) {
    DocState& state = scratch_.docs[doc];
    const auto quality = static_cast<std::uint8_t>(match);
    if (state.epoch != epoch_) {
      if (i > 0) return;
      state = {};
      state.epoch = epoch_;
      state.phrase = phrase;
      state.best = noCost;
      state.count = 1;
      state.current = quality;
      scratch_.touched.push_back(doc);
    } else if (state.count == i) {
      state.worst = std::max(state.worst, state.current);
      state.current = quality;
      state.count = static_cast<std::uint8_t>(i + 1);
    } else if (state.count == i + 1 && quality < state.current) {
      state.current = quality;
    }
  }

  void notePhrase(std::uint32_t number, const Phrase& phrase, std::uint8_t i, WordMatch match,
                  bool isAligned) {
    PhraseState& state = scratch_.phrases[number];
    if (state.epoch != epoch_) {
      state = {};
      state.epoch = epoch_;
    }
    // A word may be in the phrase several times. The first posting counts as the match, but the posting with
    // the position of the query's word may be a later one.
    const bool isNew = state.count == i;
    const bool alignsNow = isAligned && (match == WordMatch::whole || match == WordMatch::prefix) &&
                           (isNew || state.count == i + 1);
    // Otherwise the phrase lacks an earlier word, or already has a match for this word.
    if (!isNew && !alignsNow) return;
    if (isNew) {
      state.count = static_cast<std::uint8_t>(i + 1);
      state.worst = std::max(state.worst, static_cast<std::uint8_t>(match));
    }
    if (alignsNow) ++state.aligned;
    if (state.count == needed_) offer(number, phrase, state);
  }

  void matchGroups(const QueryWord& word, std::uint8_t i) {
    for (std::uint32_t number = 0; number < index_.groupCount(); ++number) {
      const Group group = index_.group(number);
      if (!group.hasWordWithPrefix(word.text)) continue;
      for (const std::uint32_t doc : group.docs) {
        if (!filter_.docs || (*filter_.docs)[doc]) noteDoc(doc, i, WordMatch::group, noPhrase);
      }
    }
  }

  void matchStopWord(const QueryWord& word, std::uint8_t i, std::uint8_t place) {
    for (const Alternative& alternative : word.alternatives) {
      if (alternative.match != WordMatch::whole) continue;
      for (const std::uint32_t posting : index_.postingsOf(alternative.words)) {
        const std::uint32_t number = posting >> 8;
        const Phrase& phrase = index_.phrases[number];
        DocState& doc = scratch_.docs[phrase.doc];
        if (doc.epoch != epoch_ || doc.count != needed_ || !counts(phrase)) continue;
        if (doc.stopWords == i) ++doc.stopWords;
        PhraseState& state = scratch_.phrases[number];
        if (state.epoch != epoch_ || state.count != needed_) continue;
        const bool isAligned = static_cast<std::uint8_t>(posting) == place;
        if (state.stopWords == i)
          ++state.stopWords;
        else if (state.stopWords != i + 1 || !isAligned)
          continue;
        if (isAligned) ++state.aligned;
        offer(number, phrase, state);
      }
    }
  }

  // Makes the phrase the best phrase of its doc if it has the lowest cost so far. The phrase must match all
  // needed words.
  void offer(std::uint32_t number, const Phrase& phrase, const PhraseState& state) {
    const std::uint32_t cost = phraseCost(phrase, {static_cast<WordMatch>(state.worst), state.count,
                                                   state.stopWords, state.aligned, needed_, stopWords_});
    DocState& doc = scratch_.docs[phrase.doc];
    if (phrase.kind == PhraseKind::name || phrase.kind == PhraseKind::replacedName)
      doc.nameWorst = std::min(doc.nameWorst, state.worst);
    if (cost >= doc.best) return;
    doc.best = cost;
    doc.bestWorst = state.worst;
    doc.phrase = number;
  }

  std::vector<Match> result() const {
    std::vector<Match> matches;
    for (const std::uint32_t doc : scratch_.touched) {
      const DocState& state = scratch_.docs[doc];
      if (state.count != needed_) continue;
      const auto worst = static_cast<WordMatch>(std::max(state.worst, state.current));
      const std::uint32_t spread = spreadCost(worst, missingStopWords(state.stopWords, stopWords_));
      const bool together = state.best < spread;
      const bool named = state.nameWorst <= state.bestWorst;
      const bool byHtmlName =
          together && state.phrase != noPhrase && index_.phrases[state.phrase].kind == PhraseKind::htmlName;
      const std::uint32_t cost = withName(together ? state.best : spread, named, byHtmlName);
      matches.push_back({cost + priorCost(cost, index_.docPrior[doc]), doc,
                         together || needed_ == 1 ? state.phrase : noPhrase});
    }
    return matches;
  }

  const Index& index_;
  const MatchFilter& filter_;
  Scratch& scratch_;
  const std::uint32_t epoch_;
  std::uint8_t needed_ = 0;
  std::uint8_t stopWords_ = 0;
};

}  // namespace

std::vector<Match> matchWords(const Index& index, const std::vector<QueryWord>& words,
                              const MatchFilter& filter) {
  thread_local Scratch scratch;
  scratch.begin(index);
  return Matcher(index, filter, scratch).match(words);
}

}  // namespace glyph::search
