// SPDX-License-Identifier: MIT
#include "glyphorium/search/query_parsing.h"

#include <algorithm>
#include <cstdio>
#include <span>

#include "glyphorium/data/name_table.h"
#include "glyphorium/search/language_rules.h"
#include "glyphorium/search/letter_description.h"
#include "glyphorium/search/words.h"
#include "glyphorium/text/ascii.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph::search {
namespace {

// These limits are larger than any typed query needs. They limit the search time if a user pastes a file.
constexpr std::size_t longestText = 1000;
constexpr std::size_t longestWord = 64;
constexpr std::size_t mostWords = 32;

// Only ASCII characters count as blanks, because the user may search for another space, such as U+00A0.
bool isBlank(char c) {
  return c == ' ' || (c >= '\t' && c <= '\r');
}

// Returns the text, truncated to at most longestText bytes without cutting a UTF-8 sequence.
std::string_view shortened(std::string_view text) {
  if (text.size() <= longestText) return text;
  std::size_t size = longestText;
  while (size > 0 && (static_cast<unsigned char>(text[size]) & 0xC0) == 0x80) --size;
  return text.substr(0, size);
}

// Returns the text without every group:NAME and group:"NAME WITH BLANKS", and adds the names to `groups`.
std::string withoutGroups(std::string_view text, std::vector<std::string>& groups) {
  constexpr std::string_view label = "group:";
  std::string rest;
  for (std::size_t i = 0; i < text.size();) {
    const bool begins = (i == 0 || isBlank(text[i - 1])) && lowercased(text.substr(i, label.size())) == label;
    if (!begins) {
      rest += text[i++];
      continue;
    }
    i += label.size();
    const bool quoted = i < text.size() && text[i] == '"';
    if (quoted) ++i;
    std::size_t end = i;
    while (end < text.size() && (quoted ? text[end] != '"' : !isBlank(text[end]))) ++end;
    groups.emplace_back(text.substr(i, end - i));
    i = std::min(end + (quoted ? 1 : 0), text.size());
  }
  return rest;
}

std::vector<std::string_view> splitAtBlanks(std::string_view text) {
  std::vector<std::string_view> parts;
  for (std::size_t i = 0; i < text.size();) {
    std::size_t end = i;
    while (end < text.size() && !isBlank(text[end])) ++end;
    if (end > i) parts.push_back(text.substr(i, end - i));
    i = end + 1;
  }
  return parts;
}

// Reads numbers without a prefix, as hexadecimal dumps contain them. They may be code points, UTF-16 code
// units or bytes of UTF-8.
void addBareNumbers(std::span<const std::string_view> numbers, ParsedQuery& query) {
  // "U 2014", which is how people read "U+2014" aloud.
  if (numbers.front() == "U" || numbers.front() == "u") {
    numbers = numbers.subspan(1);
    if (numbers.size() == 1 && numbers[0].size() >= 4 && numbers[0].size() <= 6) {
      if (const auto number = ascii::number(numbers[0], 16)) query.likelyNumbers.push_back(*number);
      return;
    }
  }
  std::string marked;
  bool bytes = true, codePoints = true;
  for (const std::string_view number : numbers) {
    if (!std::all_of(number.begin(), number.end(), ascii::isHexDigit)) return;
    bytes = bytes && number.size() == 2;
    codePoints =
        codePoints && number.size() >= 4 && std::any_of(number.begin(), number.end(), ascii::isDigit);
  }
  if (!bytes && !codePoints) return;
  for (const std::string_view number : numbers) marked.append(bytes ? "\\x" : "\\u").append(number);
  const std::vector<ParsedCode> codes = parseCodes(marked);
  // If there are as many codes as bytes, each character consists of a single byte. Then the text is probably
  // not a dump of UTF-8, but consists of words or of numbers with two digits.
  if (bytes && codes.size() == numbers.size()) return;
  for (const ParsedCode& code : codes) query.likelyNumbers.push_back(code.codePoint);
}

// Returns the bytes of a text such as "0xE2 0x80 0x94" in the form "\\xE2\\x80\\x94". Empty for other texts.
std::string markedBytes(const std::vector<std::string_view>& parts) {
  std::string marked;
  for (std::string_view part : parts) {
    if (part.ends_with(',')) part.remove_suffix(1);
    const bool isByte = part.size() == 4 && (part.starts_with("0x") || part.starts_with("0X")) &&
                        ascii::number(part.substr(2), 16);
    if (!isByte) return {};
    marked.append("\\x").append(part.substr(2));
  }
  return parts.size() > 1 ? marked : std::string();
}

void addBareNumber(std::string_view text, ParsedQuery& query) {
  const auto all = [&](auto is) { return std::all_of(text.begin(), text.end(), is); };
  if (text.size() < 2 || text.size() > 8 || !all(ascii::isHexDigit)) return;
  // People type code points with four digits or more. A shorter number is more likely decimal.
  const bool likely = text.size() >= 4 && std::any_of(text.begin(), text.end(), ascii::isDigit);
  std::vector<std::uint32_t>& numbers = likely ? query.likelyNumbers : query.otherNumbers;
  numbers.push_back(*ascii::number(text, 16));
  if (!all(ascii::isDigit)) return;
  numbers.insert(likely ? numbers.end() : numbers.begin(), *ascii::number(text, 10));
}

// Returns the code at the beginning of a line of UnicodeData.txt: "U+00A7" of "00A7;SECTION SIGN;Po;0;".
// Returns any other text unchanged.
std::string codeOfDataLine(std::string_view text) {
  const std::size_t end = text.find(';');
  const bool isLine =
      end != std::string_view::npos && end >= 4 && end <= 6 && text.find(';', end + 1) != text.npos &&
      std::all_of(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(end), ascii::isHexDigit);
  return isLine ? "U+" + std::string(text.substr(0, end)) : std::string(text);
}

// Returns the escape sequence in a declaration of a style sheet: "\\201C" of 'content:"\\201C";'. Returns any
// other text unchanged.
std::string_view withoutDeclaration(std::string_view text) {
  const std::size_t begin = std::min(text.find("\"\\"), text.find("'\\"));
  if (begin == std::string_view::npos) return text;
  const std::string_view escape = text.substr(begin + 1);
  return escape.substr(0, escape.find(text[begin]));
}

// Moves the codes that begin with "U+" or another prefix from a text with words to `query`, and returns the
// rest of the text. Users paste such texts from the output of programs: "U+2192 RIGHTWARDS ARROW".
std::string takeMarkedCodes(std::string_view text, ParsedQuery& query) {
  std::string words;
  for (std::string_view part : splitAtBlanks(text)) {
    part = withoutDeclaration(part);
    const bool marked = part.starts_with("U+") || part.starts_with("u+") || part.starts_with("0x") ||
                        part.starts_with('\\') || (part.starts_with('&') && part.ends_with(';'));
    const std::vector<ParsedCode> codes = marked ? parseCodes(part) : std::vector<ParsedCode>();
    query.codes.insert(query.codes.end(), codes.begin(), codes.end());
    if (codes.empty()) words.append(words.empty() ? "" : " ").append(part);
  }
  return query.codes.empty() ? std::string(text) : words;
}

// Returns the name in an escape sequence such as "\N{SNOWMAN}". Returns any other text unchanged.
std::string_view withoutName(std::string_view text) {
  constexpr std::string_view begin = "\\N{";
  if (!text.starts_with(begin) || !text.ends_with('}')) return text;
  return text.substr(begin.size(), text.size() - begin.size() - 1);
}

// Adds the precomposed character of a grapheme cluster, if there is one, and then the code points of the
// cluster. Does not add a code point twice.
void addParts(std::string_view cluster, std::vector<std::uint32_t>& characters) {
  const auto add = [&](char32_t point) {
    const auto value = static_cast<std::uint32_t>(point);
    if (std::find(characters.begin(), characters.end(), value) == characters.end())
      characters.push_back(value);
  };
  const std::u32string parts = codePoints(cluster);
  for (const char32_t point : codePoints(composed(cluster))) {
    if (parts.find(point) == std::u32string::npos) add(point);
  }
  for (const char32_t point : parts) {
    // ZERO WIDTH JOINER and variation selectors only change how the other code points are displayed.
    const bool joins = point == 0x200D || point == 0xFE0E || point == 0xFE0F;
    if (!joins || parts.size() == 1) add(point);
  }
}

void addCharacters(std::string_view text, ParsedQuery& query) {
  const std::vector<std::string_view> clusters = graphemeClusters(text);
  if (clusters.size() == 1) {
    addParts(text, query.characters);
    // The user may also mean the same letter in the other case.
    const char c = text.front();
    if (text.size() == 1 && ascii::isLetter(c))
      query.characters.push_back(static_cast<std::uint32_t>(c ^ 0x20));
    return;
  }
  bool hasLatin = false;
  const auto isLatin = [](std::string_view cluster) {
    WordReader reader(cluster);
    return reader.next() && static_cast<unsigned char>(reader.word().front()) < 0x80;
  };
  for (const std::string_view part : splitAtBlanks(text)) {
    const std::vector<std::string_view> inPart = graphemeClusters(part);
    // The signs next to the letters of a word are part of the word.
    const bool isWord = inPart.size() > 1 && std::any_of(inPart.begin(), inPart.end(), isLatin);
    for (const std::string_view cluster : inPart) {
      const bool onKeyboard = cluster.size() == 1;
      const bool latin = isLatin(cluster);
      hasLatin = hasLatin || latin;
      const bool ordinary = latin || onKeyboard;
      if ((latin && onKeyboard) || (ordinary && isWord)) continue;
      addParts(cluster, ordinary ? query.otherCharacters : query.besideWords);
    }
  }
  if (!hasLatin) query.characters.swap(query.besideWords);
}

// Returns the words that people use for a letter outside ASCII: "e grave" for "è" (see letterWords()). Empty
// for other texts.
std::string describedLetter(std::string_view text) {
  const std::u32string letter = codePoints(composed(text));
  if (letter.size() != 1 || letter.front() < 0x80) return {};
  char hex[9];
  std::snprintf(hex, sizeof hex, "%04x", static_cast<unsigned>(letter.front()));
  const std::optional<NameTableEntry> entry = findName(hex);
  return entry ? letterWords(entry->name) : std::string();
}

void addWords(std::string_view text, std::vector<std::string>& words) {
  WordReader reader(text);
  bool mayBeLetter = true;
  while (words.size() < mostWords && reader.next()) {
    // A single accented letter next to other words ("è maiuscola") is replaced by its description, because
    // folding would remove the accent. After another word, a single letter is a word ("carré à coins") unless
    // that other word announces a letter, such as "capital".
    const std::string_view typed = text.substr(reader.begin(), reader.end() - reader.begin());
    std::string described = typed.size() < text.size() ? describedLetter(typed) : std::string();
    if (!mayBeLetter) described.clear();
    mayBeLetter = announcesLetter(reader.word());
    if (described.empty()) words.emplace_back(reader.word().substr(0, longestWord));
    for (WordReader each(described); words.size() < mostWords && each.next();)
      words.emplace_back(each.word());
  }
}

}  // namespace

bool namesGroup(std::string_view text) {
  std::vector<std::string> groups;
  withoutGroups(shortened(text), groups);
  return !groups.empty();
}

std::optional<ParsedQuery> parseQuery(std::string_view text) {
  ParsedQuery query;
  const std::string withBlanks = withoutGroups(shortened(text), query.groups);
  const std::vector<std::string_view> parts = splitAtBlanks(withBlanks);
  if (parts.empty()) {
    // A query of blanks only searches for its first blank.
    if (query.groups.empty()) {
      if (withBlanks.empty()) return std::nullopt;
      query.characters.push_back(static_cast<std::uint32_t>(static_cast<unsigned char>(withBlanks.front())));
    }
    return query;
  }
  const std::string_view trimmed(
      parts.front().data(),
      static_cast<std::size_t>(parts.back().data() + parts.back().size() - parts.front().data()));
  query.notations = readNotation(trimmed);
  const std::string bytes = markedBytes(parts);
  // A reference such as "&#150;" was read as a notation.
  const bool isReference = trimmed.starts_with("&#") && !query.notations.certain.empty();
  if (!isReference) query.codes = parseCodes(bytes.empty() ? codeOfDataLine(trimmed) : bytes);
  const std::string withoutCodes =
      query.codes.empty() && !isReference ? takeMarkedCodes(trimmed, query) : std::string(trimmed);
  const std::string_view rest = withoutName(withoutCodes);
  const std::vector<std::string_view> numbers = splitAtBlanks(rest);
  numbers.size() > 1 ? addBareNumbers(numbers, query) : addBareNumber(rest, query);
  addCharacters(rest, query);
  query.bareText = rest;
  query.signs = signKey(rest);
  addWords(rest, query.words);
  return query;
}

}  // namespace glyph::search
