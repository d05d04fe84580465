// SPDX-License-Identifier: MIT
#include "glyphorium/services/search_index/index_tokens.h"

#include <algorithm>
#include <cstring>

#include "glyphorium/text/text_pieces.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/text/utf8_decoding.h"

namespace glyph {
namespace {

// A keyword that every item has. Users type it, often without a space after it, to search only among the
// items of this application.
constexpr std::string_view scope = "qv:";

// Whether the code point separates tokens: the general categories Cc and Z.
bool separates(char32_t c) {
  return c <= 0x20 || (c >= 0x7f && c <= 0xa0) || c == 0x1680 || c == 0x180e ||
         (c >= 0x2000 && c <= 0x200a) || c == 0x2028 || c == 0x2029 || c == 0x202f || c == 0x205f ||
         c == 0x3000;
}

bool isAsciiPunctuation(char c) {
  return (c >= '!' && c <= '/') || (c >= ':' && c <= '@') || (c >= '[' && c <= '`') || (c >= '{' && c <= '~');
}

// Replaces each ill-formed UTF-8 sequence with U+FFFD.
std::string wellFormed(std::string text) {
  if (isWellFormedUtf8(text)) return text;
  std::string result;
  for (const char32_t c : codePoints(text)) result += utf8(c);
  return result;
}

// Splits well-formed text at separators. The results are views of the text.
std::vector<std::string_view> pieces(std::string_view text) {
  std::vector<std::string_view> result;
  result.reserve(text.size() / 4);
  std::size_t begin = 0;
  const auto endPiece = [&](std::size_t end) {
    if (begin < end) result.push_back(text.substr(begin, end - begin));
  };
  for (std::size_t i = 0; i < text.size();) {
    const std::size_t end = i;
    if (text[i] > ' ' && text[i] < '\x7f') {
      ++i;  // the usual case, quickly
      continue;
    }
    if (!separates(static_cast<char32_t>(nextCodePoint(text, i)))) continue;
    endPiece(end);
    begin = i;
  }
  endPiece(text.size());
  return result;
}

// Like std::string_view::find(), which is slow if the first byte is frequent. Here it is the space.
const char* find(std::string_view text, std::string_view part) {
  return static_cast<const char*>(memmem(text.data(), text.size(), part.data(), part.size()));
}

bool contains(std::string_view text, std::string_view part) {
  return find(text, part) != nullptr;
}

void appendTokens(std::vector<std::string_view>& tokens, std::string_view piece) {
  tokens.push_back(piece);
  if (std::none_of(piece.begin(), piece.end(), isAsciiPunctuation)) return;
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
  tokens.reserve(text.size() / 4);
  for (const std::string_view piece : pieces(text)) appendTokens(tokens, piece);
  std::sort(tokens.begin(), tokens.end());
  // Queries look for prefixes of tokens, so a token that is a prefix of the next token or equals it is not
  // needed.
  std::string result;
  result.reserve(text.size());
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
  query.terms.assign(wanted.begin(), wanted.end());
  return query;
}

void TokenTexts::add(std::int64_t id, std::string_view tokens) {
  begins_.emplace_back(text_.size(), id);
  text_ += ' ';
  text_ += tokens;
}

void TokenTexts::clear(std::size_t bytes) {
  text_.clear();
  text_.reserve(bytes);  // the system gives memory only for what is written
  begins_.clear();
}

std::vector<std::int64_t> TokenTexts::find(const std::vector<std::string>& terms) const {
  std::vector<std::string> begun;  // each term after a space: the beginning of a token
  for (const std::string& term : terms) begun.push_back(' ' + term);
  std::sort(begun.begin(), begun.end(),
            [](const std::string& a, const std::string& b) { return a.size() > b.size(); });
  std::vector<std::int64_t> found;
  const std::string_view text = text_;
  for (std::size_t at = 0; !begun.empty() && at < text.size();) {
    const char* const hit = glyph::find(text.substr(at), begun.front());
    if (!hit) break;
    const std::pair place(static_cast<std::size_t>(hit - text.data()), INT64_MAX);
    const auto next = std::upper_bound(begins_.begin(), begins_.end(), place);
    const auto [begin, id] = *std::prev(next);
    at = next == begins_.end() ? text.size() : next->first;
    const std::string_view tokens = text.substr(begin, at - begin);
    if (std::all_of(begun.begin() + 1, begun.end(), [&](auto& term) { return contains(tokens, term); }))
      found.push_back(id);
  }
  return found;
}

}  // namespace glyph
