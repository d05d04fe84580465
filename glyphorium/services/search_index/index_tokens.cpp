// SPDX-License-Identifier: MIT
#include "glyphorium/services/search_index/index_tokens.h"

#include <algorithm>
#include <vector>

#include "glyphorium/text/text_pieces.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

// A keyword of every item. Users type it to search only among the items of this application, often without a
// space after it.
constexpr std::string_view scope = "qv:";

// Whether the index's tokenizer treats the code point as a separator. These are the code points of the
// categories Cc and Z. A term of a query must not contain a separator: the tokenizer would make a phrase of
// it, and the index does not support phrases.
bool separates(char32_t c) {
  return c <= 0x20 || (c >= 0x7f && c <= 0xa0) || c == 0x1680 || c == 0x180e ||
         (c >= 0x2000 && c <= 0x200a) || c == 0x2028 || c == 0x2029 || c == 0x202f || c == 0x205f ||
         c == 0x3000;
}

bool isAsciiPunctuation(char c) {
  return (c >= '!' && c <= '/') || (c >= ':' && c <= '@') || (c >= '[' && c <= '`') || (c >= '{' && c <= '~');
}

// Splits the text at separators. Ill-formed bytes become U+FFFD, because the tokenizer would treat some of
// them as separators.
std::vector<std::string> pieces(std::string_view text) {
  std::vector<std::string> result;
  bool inside = false;
  for (const char32_t c : codePoints(text)) {
    if (separates(c)) {
      inside = false;
      continue;
    }
    if (!inside) result.emplace_back();
    inside = true;
    result.back() += utf8(c);
  }
  return result;
}

void appendTokens(std::vector<std::string>& tokens, std::string_view text) {
  for (std::string& piece : pieces(lowercased(text))) {
    for (auto from = piece.begin(); from != piece.end();) {
      from = std::find_if_not(from, piece.end(), isAsciiPunctuation);
      const auto to = std::find_if(from, piece.end(), isAsciiPunctuation);
      if (from != to && to - from != piece.end() - piece.begin()) tokens.emplace_back(from, to);
      from = to;
    }
    tokens.push_back(std::move(piece));
  }
}

}  // namespace

std::string indexTokens(const SearchableItem& item) {
  std::vector<std::string> tokens;
  for (const auto& text : {item.uniqueIdentifier, item.title, item.comment.value_or(""), item.genre}) {
    appendTokens(tokens, text);
  }
  for (const auto& keyword : item.keywords) appendTokens(tokens, keyword);
  std::sort(tokens.begin(), tokens.end());
  tokens.erase(std::unique(tokens.begin(), tokens.end()), tokens.end());
  return joined(tokens, " ");
}

IndexQuery indexQuery(std::string_view text) {
  auto terms = pieces(text);
  bool scoped = false;
  if (!terms.empty() && lowercased(terms.front()).starts_with(scope)) {
    scoped = true;
    terms.front().erase(0, scope.size());
    if (terms.front().empty()) terms.erase(terms.begin());
  }
  IndexQuery query;
  query.exact = joined(terms, " ");
  query.lowered = lowercased(query.exact);

  auto wanted = pieces(query.lowered);
  if (scoped) wanted.emplace_back(scope);
  std::sort(wanted.begin(), wanted.end());
  wanted.erase(std::unique(wanted.begin(), wanted.end()), wanted.end());
  for (const std::string& term : wanted) {
    if (!query.match.empty()) query.match += " AND ";
    query.match += '"';
    for (const char c : term) query.match.append(c == '"' ? 2 : 1, c);
    query.match += "\" *";
  }
  return query;
}

}  // namespace glyph
