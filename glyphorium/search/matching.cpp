// SPDX-License-Identifier: MIT
#include <algorithm>

#include "glyphorium/search/match_costs.h"
#include "glyphorium/search/matching.h"

namespace glyph::search {
namespace {

struct PhraseState {
  std::uint32_t epoch = 0;
  std::uint8_t count = 0;    // of the query's words, from the first on, that it matches
  std::uint8_t fillers = 0;  // likewise of the fillers
  std::uint8_t aligned = 0;  // words that stand at the same place in the query
  std::uint8_t worst = 0;    // WordMatch
};

struct DocState {
  std::uint32_t epoch = 0;
  std::uint32_t phrase = noPhrase;
  std::uint32_t best = 0;  // cost of its best phrase that matches all words
  std::uint8_t count = 0;
  std::uint8_t worst = 0;
  std::uint8_t current = 0;  // the best WordMatch of the word at hand
  std::uint8_t fillers = 0;
  std::uint8_t bestWorst = 0;    // the worst WordMatch of its best phrase
  std::uint8_t nameWorst = 255;  // likewise of its name, if all words are in it
};

constexpr std::uint32_t noCost = 0xFFFFFFFF;

// Working memory, kept for the next query. States of earlier queries are told by their epoch, so that nothing
// needs clearing.
struct Scratch {
  std::vector<PhraseState> phrases;
  std::vector<DocState> docs;
  std::vector<std::uint32_t> touched;  // docs that match the first word
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
    std::vector<std::uint8_t> fillers;
    for (std::uint8_t place = 0; place < words.size(); ++place)
      (words[place].filler ? fillers : needed).push_back(place);
    if (needed.empty()) needed.swap(fillers);  // "sign" alone is what is looked for
    // The rarest first: of all later ones only what stands with it matters.
    std::stable_sort(needed.begin(), needed.end(), [&](std::uint8_t a, std::uint8_t b) {
      return postingCount(index_, words[a]) < postingCount(index_, words[b]);
    });
    needed_ = static_cast<std::uint8_t>(needed.size());
    fillers_ = static_cast<std::uint8_t>(fillers.size());
    for (std::uint8_t i = 0; i < needed_; ++i) matchNeeded(words[needed[i]], i, needed[i]);
    for (std::uint8_t i = 0; i < fillers_; ++i) matchFiller(words[fillers[i]], i, fillers[i]);
    return result();
  }

 private:
  // The language and the group of a phrase are the ones asked for.
  bool counts(const Phrase& phrase) const {
    return (filter_.languages >> phrase.language & 1) != 0 && (!filter_.docs || (*filter_.docs)[phrase.doc]);
  }

  // The i-th of the words that must match, which stands at that place of the query.
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
    // A word may stand in the phrase several times: its first posting counts, the aligned one may come later.
    const bool isNew = state.count == i;
    const bool alignsNow = isAligned && (match == WordMatch::whole || match == WordMatch::prefix) &&
                           (isNew || state.count == i + 1);
    if (!isNew && !alignsNow) return;  // lacks a word, or has this one already, by a better match
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

  void matchFiller(const QueryWord& word, std::uint8_t i, std::uint8_t place) {
    for (const Alternative& alternative : word.alternatives) {
      if (alternative.match != WordMatch::whole) continue;
      for (const std::uint32_t posting : index_.postingsOf(alternative.words)) {
        const std::uint32_t number = posting >> 8;
        const Phrase& phrase = index_.phrases[number];
        DocState& doc = scratch_.docs[phrase.doc];
        if (doc.epoch != epoch_ || doc.count != needed_ || !counts(phrase)) continue;
        if (doc.fillers == i) ++doc.fillers;
        PhraseState& state = scratch_.phrases[number];
        if (state.epoch != epoch_ || state.count != needed_) continue;
        const bool isAligned = static_cast<std::uint8_t>(posting) == place;
        if (state.fillers == i)
          ++state.fillers;
        else if (state.fillers != i + 1 || !isAligned)
          continue;
        if (isAligned) ++state.aligned;
        offer(number, phrase, state);
      }
    }
  }

  // A phrase that matches all words: it counts for its doc if it is the best one.
  void offer(std::uint32_t number, const Phrase& phrase, const PhraseState& state) {
    const std::uint32_t cost = phraseCost(phrase, {static_cast<WordMatch>(state.worst), state.count,
                                                   state.fillers, state.aligned, needed_, fillers_});
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
      const std::uint32_t spread = spreadCost(worst, missingFillers(state.fillers, fillers_));
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
  std::uint8_t fillers_ = 0;
};

}  // namespace

std::vector<Match> matchWords(const Index& index, const std::vector<QueryWord>& words,
                              const MatchFilter& filter) {
  thread_local Scratch scratch;
  scratch.begin(index);
  return Matcher(index, filter, scratch).match(words);
}

}  // namespace glyph::search
