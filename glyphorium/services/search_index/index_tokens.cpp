// SPDX-License-Identifier: MIT
#include "glyphorium/services/search_index/index_tokens.h"

#include <algorithm>
#include <vector>

#include "glyphorium/text/text_pieces.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/text/utf8_decoding.h"

namespace glyph {
namespace {

// A keyword that every item has. Users type it, often without a space after it, to search only among the
// items of this application.
constexpr std::string_view scope = "qv:";

// Whether the index's tokenizer treats the code point as a separator, as it does with the general
// categories Cc and Z. A term of a query must not contain a separator: the tokenizer would make a phrase of
// such a term, and the index does not support phrases.
bool separates(char32_t c) {
  return c <= 0x20 || (c >= 0x7f && c <= 0xa0) || c == 0x1680 || c == 0x180e ||
         (c >= 0x2000 && c <= 0x200a) || c == 0x2028 || c == 0x2029 || c == 0x202f || c == 0x205f ||
         c == 0x3000;
}

bool isAsciiPunctuation(char c) {
  return (c >= '!' && c <= '/') || (c >= ':' && c <= '@') || (c >= '[' && c <= '`') || (c >= '{' && c <= '~');
}

// Replaces each ill-formed UTF-8 sequence with U+FFFD, because the tokenizer would treat some of these
// sequences as separators.
std::string wellFormed(std::string text) {
  if (isWellFormedUtf8(text)) return text;
  std::string result;
  for (const char32_t c : codePoints(text)) result += utf8(c);
  return result;
}

// Splits well-formed text at separators. The results are views of the text.
std::vector<std::string_view> pieces(std::string_view text) {
  std::vector<std::string_view> result;
  std::size_t begin = 0;
  const auto endPiece = [&](std::size_t end) {
    if (begin < end) result.push_back(text.substr(begin, end - begin));
  };
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t end = i;
    if (!separates(static_cast<char32_t>(nextCodePoint(text, i)))) continue;
    endPiece(end);
    begin = i;
  }
  endPiece(text.size());
  return result;
}

void appendTokens(std::vector<std::string_view>& tokens, std::string_view piece) {
  tokens.push_back(piece);
  for (auto from = piece.begin(); from != piece.end();) {
    from = std::find_if_not(from, piece.end(), isAsciiPunctuation);
    const auto to = std::find_if(from, piece.end(), isAsciiPunctuation);
    if (from != to && to - from != piece.end() - piece.begin()) tokens.emplace_back(from, to);
    from = to;
  }
}

}  // namespace

std::string indexTokens(const SearchableItem& item) {
  std::string text;
  const auto append = [&text](std::string_view field) {
    text += wellFormed(lowercased(field));
    text += ' ';
  };
  append(item.uniqueIdentifier);
  append(item.title);
  append(item.comment.value_or(""));
  append(item.genre);
  for (const std::string& keyword : item.keywords) append(keyword);

  std::vector<std::string_view> tokens;
  for (const std::string_view piece : pieces(text)) appendTokens(tokens, piece);
  std::sort(tokens.begin(), tokens.end());
  // Queries look for prefixes of tokens, so a token that is a prefix of the next token or equals it is not
  // needed.
  std::string result;
  for (std::size_t i = 0; i < tokens.size(); ++i) {
    if (i + 1 < tokens.size() && tokens[i + 1].starts_with(tokens[i])) continue;
    if (!result.empty()) result += ' ';
    result += tokens[i];
  }
  return result;
}

IndexQuery indexQuery(std::string_view text) {
  const std::string typed = wellFormed(std::string(text));
  auto terms = pieces(typed);
  bool scoped = false;
  if (!terms.empty() && lowercased(terms.front()).starts_with(scope)) {
    scoped = true;
    terms.front().remove_prefix(scope.size());
    if (terms.front().empty()) terms.erase(terms.begin());
  }
  IndexQuery query;
  query.exact = joined(terms, " ");
  query.lowered = lowercased(query.exact);

  auto wanted = pieces(query.lowered);
  if (scoped) wanted.push_back(scope);
  std::sort(wanted.begin(), wanted.end());
  wanted.erase(std::unique(wanted.begin(), wanted.end()), wanted.end());
  for (const std::string_view term : wanted) {
    if (!query.match.empty()) query.match += " AND ";
    query.match += '"';
    for (const char c : term) query.match.append(c == '"' ? 2 : 1, c);
    query.match += "\" *";
  }
  return query;
}

}  // namespace glyph
