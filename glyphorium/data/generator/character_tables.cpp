// SPDX-License-Identifier: MIT
#include "glyphorium/data/generator/character_tables.h"

#include <algorithm>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "glyphorium/data/character_tables.h"
#include "glyphorium/data/generator/source_file.h"
#include "glyphorium/text/ascii.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph::generator {
namespace {

using Path = std::filesystem::path;
using Table = EmbeddedImage::CharacterTable;

std::vector<std::string> parts(std::string_view text, char separator) {
  std::vector<std::string> list;
  for (std::size_t end = 0; end != std::string_view::npos;) {
    end = text.find(separator);
    list.emplace_back(text.substr(0, end));
    if (end != std::string_view::npos) text.remove_prefix(end + 1);
  }
  return list;
}

std::u32string codePointsOf(const SourceLine& line, std::string_view text) {
  std::u32string points;
  for (const std::string& code : parts(text, ',')) {
    const auto point = ascii::number(code, 16);
    if (!point || *point > 0x10FFFF || hexText(*point) != code)
      line.fail("'" + code + "' is not a code point");
    points += static_cast<char32_t>(*point);
  }
  return points;
}

std::string utf8Of(const std::u32string& points) {
  std::string text;
  for (const char32_t point : points) text += utf8(point);
  return text;
}

std::string utf8Of(const SourceLine& line, std::size_t column) {
  const std::string& text = line.columns[column];
  return text.empty() ? text : utf8Of(codePointsOf(line, text));
}

// Joins the columns with tabs, from column number `first` to the last one.
std::string joinedColumns(const SourceLine& line, std::size_t first) {
  std::string text;
  for (std::size_t i = first; i < line.columns.size(); ++i) text += (i > first ? "\t" : "") + line.columns[i];
  return text;
}

// Appends columns to the line of a code point.
void append(Table& table, char32_t key, const std::string& columns) {
  std::string& text = table[key];
  text += (text.empty() ? "" : "\t") + columns;
}

void insert(Table& table, const SourceLine& line, char32_t key, std::string columns) {
  if (!table.emplace(key, std::move(columns)).second) line.fail("repeats a key of an earlier line");
}

Table readRanges(const Path& file, std::size_t columns) {
  Table table;
  char32_t end = 0;
  for (const SourceLine& line : readTable(file, columns, columns)) {
    const char32_t first = line.codePoint(0, false);
    const char32_t last = line.codePoint(1, false);
    if (first < end || last < first) line.fail("is out of order");
    end = last + 1;
    insert(table, line, first, joinedColumns(line, 1));
  }
  return table;
}

// Reads a table with one line for each code point. The columns before number `firstText` are lists of code
// points. The others are texts.
Table readLinesOfCodePoints(const Path& file, std::size_t columns, std::size_t firstText) {
  Table table;
  for (const SourceLine& line : readTable(file, columns, columns)) {
    std::string text;
    for (std::size_t i = 1; i < columns; ++i)
      text += (i > 1 ? "\t" : "") + (i < firstText ? utf8Of(line, i) : line.columns[i]);
    insert(table, line, line.codePoint(0, false), std::move(text));
  }
  return table;
}

Table readLaterNames(const Path& file, const NameTable& names) {
  Table table = readLinesOfCodePoints(file, 2, 1);
  for (const auto& [codePoint, name] : table) {
    if (names.find(codePoint) && !names.isSymbol(codePoint))
      Place{file, 0}.fail(name + " is in the table of Unicode 13.0");
  }
  return table;
}

// Returns the decompositions in reverse, in the form of the table `composites`.
Table compositesOf(const Table& decompositions) {
  std::map<char32_t, std::pair<std::string, std::string>> composites;
  for (const auto& [codePoint, line] : decompositions) {
    const std::u32string mapping = codePoints(column(line, 1));
    if (column(line, 0) == "canonical")
      composites[mapping.front()].first += utf8(codePoint);
    else if (mapping.size() == 1)
      composites[mapping.front()].second += utf8(codePoint);
  }
  Table table;
  for (const auto& [codePoint, lists] : composites) table[codePoint] = lists.first + "\t" + lists.second;
  return table;
}

Table readDecompositions(const Path& file) {
  Table table;
  for (const SourceLine& line : readTable(file, 3, 3))
    insert(table, line, line.codePoint(0, false), line.columns[1] + "\t" + utf8Of(line, 2));
  return table;
}

// Reads a table of three columns in which a code point may have several lines.
Table readPairs(const Path& file) {
  Table table;
  for (const SourceLine& line : readTable(file, 3, 3)) {
    const bool isReference = line.columns[1] == "see";
    append(table, line.codePoint(0, false),
           line.columns[1] + "\t" + (isReference ? utf8Of(line, 2) : line.columns[2]));
  }
  return table;
}

Table readLookAlikes(const Path& file) {
  Table table;
  for (const SourceLine& line : readTable(file, 2, 2)) {
    const std::u32string members = codePointsOf(line, line.columns[1]);
    const std::string text = utf8Of(line, 0) + "\t" + utf8Of(members);
    for (const char32_t member : members) insert(table, line, member, text);
  }
  return table;
}

// The emoji and their numbers, which are their keys in the other tables.
class EmojiNumbers {
 public:
  EmojiNumbers(const Path& file, EmbeddedImage& image) {
    const std::vector<SourceLine> lines = readTable(file, 5, 5);
    for (const SourceLine& line : lines) {
      std::u32string points = codePointsOf(line, line.columns[0]);
      std::erase(points, char32_t{0xFE0F});
      if (!numbers_.emplace(points, 0).second) line.fail("repeats a key of an earlier line");
    }
    char32_t number = firstEmojiNumber;
    for (auto& [points, own] : numbers_) own = number++;
    Table table;
    Table order;
    char32_t base = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      std::u32string points = codePointsOf(lines[i], lines[i].columns[0]);
      const std::string emoji = utf8Of(points);
      const bool isVariant =
          points.size() > 1 && std::any_of(points.begin(), points.end(), isSkinToneModifier);
      std::erase(points, char32_t{0xFE0F});
      const char32_t own = numbers_.at(points);
      // In Unicode's lists, the variants with skin tones follow the emoji without a tone (their base).
      if (!isVariant) base = own;
      bases_[own] = base;
      // An emoji with a skin tone has the groups of the emoji without it, so its own columns stay empty.
      const std::string groups = base == own ? lines[i].columns[3] + "\t" + lines[i].columns[4] : "\t";
      table[own] = emoji + "\t" + lines[i].columns[1] + "\t" + lines[i].columns[2] + "\t" + groups + "\t" +
                   std::to_string(i) + "\t" + std::to_string(base - firstEmojiNumber);
      order[firstEmojiNumber + static_cast<char32_t>(i)] = std::to_string(own - firstEmojiNumber);
    }
    image.addCharacterTable("emojiTable", table);
    image.addCharacterTable("emojiOrder", order);
  }

  // Returns the code point if the column has only one, otherwise the number of the emoji. Returns 0 if there
  // is no such emoji.
  char32_t keyOf(const SourceLine& line, std::size_t column) const {
    return keyOf(codePointsOf(line, line.columns[column]));
  }
  char32_t keyOf(std::u32string points) const {
    std::erase(points, char32_t{0xFE0F});
    if (points.size() == 1) return points.front();
    const auto found = numbers_.find(points);
    return found == numbers_.end() ? 0 : found->second;
  }

  // If `key` is an emoji with exactly one skin tone, returns the key of the same emoji without the tone, and
  // the tone. Otherwise returns nullopt.
  std::optional<std::pair<char32_t, char32_t>> baseAndTone(char32_t key, const std::u32string& points) const {
    char32_t tone = 0;
    for (const char32_t point : points) {
      if (!isSkinToneModifier(point)) continue;
      if (tone != 0 && tone != point) return std::nullopt;
      tone = point;
    }
    const auto base = bases_.find(key);
    if (tone == 0 || base == bases_.end() || base->second == key) return std::nullopt;
    for (const auto& [basePoints, own] : numbers_) {
      if (own == base->second) return std::pair(basePoints.size() == 1 ? basePoints.front() : own, tone);
    }
    return std::nullopt;
  }

 private:
  std::map<char32_t, char32_t> bases_;
  // In the order of code points, which is also the order of the bytes of UTF-8.
  std::map<std::u32string, char32_t> numbers_;
};

void addAnnotations(const Path& folder, const std::vector<Language>& languages, const EmojiNumbers& emoji,
                    EmbeddedImage& image) {
  for (const Language& language : languages) {
    const Path file = folder / ("annotations." + language.code + ".tsv");
    if (!std::filesystem::exists(file)) continue;
    std::map<char32_t, std::string> names;  // also contains the names from search/
    if (const Path older = folder / ".." / "search" / file.filename(); std::filesystem::exists(older)) {
      for (const SourceLine& line : readTable(older, 2, 64)) {
        if (const char32_t key = emoji.keyOf(line, 0)) names[key] = line.columns[1];
      }
    }
    const std::vector<SourceLine> lines = readTable(file, 3, 3);
    for (const SourceLine& line : lines) {
      if (const char32_t key = emoji.keyOf(line, 0)) names[key] = line.columns[1];
    }
    Table table;
    for (const SourceLine& line : lines) {
      // Skip sequences that are not recommended for general interchange. CLDR has annotations for them too.
      const char32_t key = emoji.keyOf(line, 0);
      if (key == 0) continue;
      const auto base = emoji.baseAndTone(key, codePointsOf(line, line.columns[0]));
      if (base && base->first != toneSample && line.columns[2].empty()) {
        const std::string& sample = names[emoji.keyOf({toneSample, base->second})];
        const std::string& plain = names[toneSample];
        const bool isSample = sample.starts_with(plain);
        if (isSample && line.columns[1] == names[base->first] + sample.substr(plain.size())) continue;
      }
      std::string text = joinedColumns(line, 1);
      std::replace(text.begin(), text.end(), '|', '\n');
      insert(table, line, key, std::move(text));
    }
    image.addCharacterAnnotations(language.code, table);
  }
}

// Reads a table whose second column says how the character in the first column is typed. Leaves out a line
// whose first column has several code points that are not an emoji.
Table readInput(const Path& file, std::size_t columns, const EmojiNumbers& emoji) {
  Table table;
  for (const SourceLine& line : readTable(file, columns, columns)) {
    if (const char32_t key = emoji.keyOf(line, 0)) append(table, key, line.columns[1]);
  }
  return table;
}

Table readLatex(const Path& file) {
  std::map<char32_t, std::vector<std::pair<std::size_t, std::string>>> commands;
  for (const SourceLine& line : readTable(file, 3, 3)) {
    const std::size_t sources = parts(line.columns[2], ',').size();
    commands[line.codePoint(0, false)].emplace_back(sources, line.columns[1]);
  }
  Table table;
  for (auto& [codePoint, list] : commands) {
    std::stable_sort(list.begin(), list.end(), [](auto& a, auto& b) { return a.first > b.first; });
    for (const auto& [sources, command] : list) append(table, codePoint, command);
  }
  return table;
}

Table readAltCodes(const Path& file) {
  Table table;
  for (const SourceLine& line : readTable(file, 3, 3)) {
    line.number(1);
    append(table, line.codePoint(2, false), line.columns[0] + "\t" + line.columns[1]);
  }
  return table;
}

}  // namespace

void addCharacterTables(const Path& sources, const std::vector<Language>& languages, const NameTable& names,
                        EmbeddedImage& image) {
  const Path folder = sources / "characters";
  image.addCharacterTable("laterNames", readLaterNames(folder / "names.tsv", names));
  image.addCharacterTable("nameRanges", readRanges(folder / "name-ranges.tsv", 3));
  image.addCharacterTable("propertyRanges", readRanges(folder / "properties.tsv", 8));
  image.addCharacterTable("blockRanges", readRanges(folder / "blocks.tsv", 3));
  image.addCharacterTable("caseMappings", readLinesOfCodePoints(folder / "case-mappings.tsv", 4, 4));
  const Table decompositions = readDecompositions(folder / "decompositions.tsv");
  image.addCharacterTable("decompositions", decompositions);
  image.addCharacterTable("composites", compositesOf(decompositions));
  image.addCharacterTable("numericValues", readLinesOfCodePoints(folder / "numeric-values.tsv", 2, 1));
  image.addCharacterTable("mirrorImages", readLinesOfCodePoints(folder / "mirrors.tsv", 2, 2));
  image.addCharacterTable("nameAliases", readPairs(folder / "name-aliases.tsv"));
  image.addPackedTable("remarks", readPairs(folder / "names-list.tsv"));
  image.addPackedTable("hanReadings", readLinesOfCodePoints(folder / "han.tsv", 6, 1));
  image.addCharacterTable("lookAlikeClasses", readLookAlikes(folder / "look-alikes.tsv"));

  const EmojiNumbers emoji(folder / "emoji.tsv", image);
  addAnnotations(folder, languages, emoji, image);

  const Path input = sources / "input";
  image.addPackedTable("composeKeys", readInput(input / "compose-sequences.tsv", 2, emoji));
  image.addPackedTable("latexCommands", readLatex(input / "latex-commands.tsv"));
  image.addPackedTable("digraphs", readInput(input / "digraphs.tsv", 2, emoji));
  image.addPackedTable("keysyms", readInput(input / "keysyms.tsv", 2, emoji));
  image.addPackedTable("shortcodes", readInput(input / "emoji-shortcodes.tsv", 3, emoji));
  image.addCharacterTable("altCodes", readAltCodes(input / "alt-codes.tsv"));
}

}  // namespace glyph::generator
