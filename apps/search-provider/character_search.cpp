// SPDX-License-Identifier: MIT
#include "character_search.h"

#include <algorithm>
#include <climits>
#include <unordered_set>

#include "character_text.h"
#include "glyphorium/platform/unicode_text.h"

namespace provider {
namespace {

using glyph::SearchableItem;
using std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr std::string_view scope = "qv:";
constexpr std::string_view blanks = " \t\n\v\f\r";

// Nobody types more. The index would split and sort every word of it while others wait.
constexpr std::size_t longestQuery = 1000;

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isWord(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
  });
}

// The identifier of the character whose code is written with a mark of one; empty for other texts.
std::string markedCode(std::string_view lowered) {
  std::string_view digits;
  for (const std::string_view mark : {"u+", "0x", "\\u", "\\x"}) {
    if (lowered.starts_with(mark)) digits = lowered.substr(mark.size());
  }
  if (digits.starts_with('{') && digits.ends_with('}')) digits = digits.substr(1, digits.size() - 2);
  digits.remove_prefix(std::min(digits.find_first_not_of('0'), digits.size()));
  if (digits.empty() || digits.size() > 6) return {};
  if (digits.find_first_not_of("0123456789abcdef") != std::string_view::npos) return {};
  return std::string(digits.size() < 4 ? 4 - digits.size() : 0, '0') + std::string(digits);
}

// The text without the selectors that ask for a character's emoji or text form: pickers append them, the
// catalog's symbols have none.
std::string withoutVariation(std::string_view text) {
  std::string result;
  for (const char32_t c : glyph::codePoints(text)) {
    if (c != 0xFE0E && c != 0xFE0F) result += glyph::utf8(c);
  }
  return result;
}

}  // namespace

bool isScoped(std::string_view query) {
  return glyph::lowercased(trimmed(query).substr(0, scope.size())) == scope;
}

// An index that another program holds locked costs the reader's whole patience. Those who asked meanwhile
// are not made to wait as long again, one after the other: desktops ask at every key.
template <class Answer, class Question>
Answer CharacterSearch::ask(Question question) {
  const auto begin = steady_clock::now();
  if (begin < closedUntil_) return {};
  Answer answer = question();
  const auto end = steady_clock::now();
  if (answer == Answer{} && end - begin > 400ms) closedUntil_ = end + 1s;
  return answer;
}

std::optional<SearchableItem> CharacterSearch::item(std::string_view identifier) {
  return ask<std::optional<SearchableItem>>([&] { return reader_.item(identifier); });
}

std::vector<Found> CharacterSearch::find(std::string_view query, std::size_t limit) {
  if (query.size() > longestQuery) return {};
  std::string_view wanted = trimmed(query);
  if (isScoped(wanted)) wanted = trimmed(wanted.substr(scope.size()));
  const std::string lowered = glyph::lowercased(wanted);

  std::vector<Found> found;
  std::unordered_set<std::string> seen;
  const auto add = [&](SearchableItem item, Exactness exactness) {
    if (seen.insert(item.uniqueIdentifier).second) found.push_back({std::move(item), exactness});
  };
  const auto search = [&](std::string_view text, std::size_t most) {
    const int number = static_cast<int>(std::min<std::size_t>(most, INT_MAX));
    return ask<std::vector<SearchableItem>>([&] { return reader_.search(text, number); });
  };

  if (const std::string code = markedCode(lowered); !code.empty()) {
    if (auto one = item(code)) add(*std::move(one), Exactness::code);
  }
  // The index keeps names in HTML in lower case, so that "&rarr;" stands for several.
  if (isWord(lowered)) {
    const std::string reference = "&" + lowered + ";";
    for (SearchableItem& one : search(reference, 10)) {
      const bool named = std::count(one.keywords.begin(), one.keywords.end(), reference) > 0;
      if (named && symbolOf(one) != wanted && one.uniqueIdentifier != lowered) {
        add(std::move(one), Exactness::name);
      }
    }
  }
  for (SearchableItem& one : search(query, limit)) {
    const bool asked = !wanted.empty();  // for more than all there is
    const bool code = asked && (symbolOf(one) == wanted || one.uniqueIdentifier == lowered);
    const bool name = asked && glyph::lowercased(nameOf(one)) == lowered;
    add(std::move(one), code ? Exactness::code : name ? Exactness::name : Exactness::part);
  }
  if (found.empty()) {
    const std::string plain = withoutVariation(query);
    if (plain.size() < query.size()) return find(plain, limit);
  }
  std::stable_sort(found.begin(), found.end(),
                   [](const Found& a, const Found& b) { return a.exactness < b.exactness; });
  if (found.size() > limit) found.resize(limit);
  return found;
}

}  // namespace provider
