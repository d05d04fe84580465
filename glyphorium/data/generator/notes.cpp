// SPDX-License-Identifier: MIT
#include "glyphorium/data/generator/notes.h"

#include <algorithm>
#include <optional>
#include <set>
#include <string_view>
#include <utility>

#include "glyphorium/data/generator/source_file.h"
#include "glyphorium/data/name_capitalization.h"
#include "glyphorium/text/ascii.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph::generator {
namespace {

namespace fs = std::filesystem;

// Fails if the line contains a straight quotation mark or a reverse solidus. One is allowed if its code
// follows in parentheses, because then the text is about that character.
void requireAllowedCharacters(const Place& place, const std::string& line) {
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (static_cast<unsigned char>(c) < 0x20) place.fail("contains a control character");
    if (c != '"' && c != '\'' && c != '\\') continue;
    const std::string code = " (" + hexText(static_cast<unsigned char>(c)) + ")";
    if (line.compare(i + 1, code.size(), code) != 0)
      place.fail("contains a straight quotation mark or a reverse solidus");
  }
}

bool isSpace(char32_t c) {
  return c == U' ' || c == U'\u00A0' || c == U'\u202F';
}

// Fails if a single character is followed by the code of another character: "« (00bb)". Does not check ASCII
// letters, because the letter may be a word and the number a year.
void requireMatchingCodes(const Place& place, const std::string& line) {
  const std::u32string text = codePoints(line);
  for (std::size_t i = text.find(U" ("); i != std::u32string::npos; i = text.find(U" (", i + 1)) {
    const bool standsAlone = i > 0 && (i == 1 || isSpace(text[i - 2]));
    if (!standsAlone || (text[i - 1] < 0x80 && ascii::isLetter(static_cast<char>(text[i - 1])))) continue;
    std::string code;
    std::size_t end = i + 2;
    while (end < text.size() && text[end] < 0x80 && ascii::isHexDigit(static_cast<char>(text[end])))
      code += static_cast<char>(text[end++]);
    const bool isCode = code.size() >= 4 && end < text.size() && (text[end] == U')' || text[end] == U',');
    if (isCode && code != hexText(text[i - 1]))
      place.fail("gives " + utf8(text[i - 1]) + " the code " + code + ", expected " + hexText(text[i - 1]));
  }
}

// Fails if a line of a note breaks a rule for the form of notes. `before` is the line above `line`, which may
// be the heading.
void requireNoteForm(const Place& place, const Language& language, const std::string& before,
                     const std::string& line) {
  requireAllowedCharacters(place, line);
  if (line.starts_with('#')) place.fail("is not a heading of the form '## CODE Name'");
  if (line.empty()) {
    if (before.empty()) place.fail("is the second empty line in a row");
    return;
  }
  if (line.starts_with("• ")) {
    if (!before.starts_with("• ") && !before.ends_with(':'))
      place.fail("begins a list, but the line before it does not end in a colon");
  } else if (!before.empty()) {
    place.fail("follows text without an empty line, but does not begin with '• '");
  }
  requireMatchingCodes(place, line);
  std::string blanks = line;
  for (const std::string noBreakSpace : {"\u00A0", "\u202F"}) {
    for (std::size_t i; (i = blanks.find(noBreakSpace)) != std::string::npos;)
      blanks.replace(i, noBreakSpace.size(), " ");
  }
  if (blanks.starts_with(' ') || blanks.ends_with(' ')) place.fail("begins or ends with a space");
  if (blanks.find("  ") != std::string::npos) place.fail("contains two spaces in a row");
  const auto forbid = [&](const std::string& breakable) {
    if (line.find(breakable) != std::string::npos)
      place.fail("needs a no-break space in '" + breakable + "'");
  };
  for (const char32_t c : language.unbreakableBefore) forbid(" " + utf8(c));
  for (const char32_t c : language.unbreakableBehind) forbid(utf8(c) + " ");
}

// Returns the notes in the file. Empty if there is no such file.
Notes readNotes(const fs::path& file, const Language& language, const NameTable& names) {
  Notes notes;
  if (!fs::exists(file)) return notes;
  std::string previous;
  std::optional<Place> heading;
  char32_t codePoint = 0;
  std::string note;
  const auto finish = [&] {
    while (note.ends_with('\n')) note.pop_back();
    note.erase(0, std::min(note.find_first_not_of('\n'), note.size()));
    if (!heading) {
      if (!note.empty()) Place{file, 1}.fail("does not begin with a heading");
      return;
    }
    if (note.empty()) heading->fail("has no note");
    notes[codePoint] = note;
  };
  std::size_t number = 0;
  std::string before;
  for (const std::string& text : readLines(file)) {
    const Place place{file, ++number};
    const std::string above = std::exchange(before, text);
    if (!text.starts_with("## ")) {
      requireNoteForm(place, language, above, text);
      note += text + '\n';
      continue;
    }
    if (!above.empty()) place.fail("needs an empty line before it");
    finish();
    note.clear();
    heading = place;
    const SourceLine line{place, {text.substr(3, text.find(' ', 3) - 3)}};
    codePoint = line.codePoint(0, false);
    const std::string hex = hexText(codePoint);
    if (hex <= previous) place.fail("is out of order");
    previous = hex;
    const NameTable::Entry* const entry = names.find(codePoint);
    const std::string wanted = "## " + hex + " " + (entry ? capitalizedName(entry->name) : "?");
    if (text != wanted) place.fail("must read '" + wanted + "'");
  }
  finish();
  return notes;
}

// Returns the code points for which notes/facts.tsv has facts. Fails if the file breaks a rule.
std::set<char32_t> charactersWithFacts(const fs::path& file, const NameTable& names) {
  std::set<char32_t> codePoints;
  char32_t previous = 0;
  for (const SourceLine& line : readTable(file, 3, 3)) {
    const char32_t codePoint = line.codePoint(0, false);
    if (codePoint < previous) line.fail("is out of order");
    if (!names.find(codePoint)) line.fail("has no name");
    for (const std::string& column : line.columns) {
      if (column.empty()) line.fail("has an empty column");
    }
    codePoints.insert(previous = codePoint);
  }
  return codePoints;
}

}  // namespace

Notes tableNotes(const fs::path& sources, const Language& language, const NameTable& names) {
  return readNotes(sources / "enrichment" / "advice" / (language.code + ".md"), language, names);
}

void addSupplementaryNotes(const fs::path& sources, const std::vector<Language>& languages,
                           const NameTable& names, EmbeddedImage& image) {
  const std::set<char32_t> withFacts = charactersWithFacts(sources / "notes" / "facts.tsv", names);
  for (const Language& language : languages) {
    const fs::path file = sources / "notes" / (language.code + ".md");
    const Notes notes = readNotes(file, language, names);
    const Notes inTable = tableNotes(sources, language, names);
    for (const auto& [codePoint, note] : notes) {
      const std::string hex = hexText(codePoint);
      if (!withFacts.contains(codePoint)) Place{file, 0}.fail(hex + " has no facts in facts.tsv");
      if (inTable.contains(codePoint)) Place{file, 0}.fail(hex + " has a note in enrichment/advice");
    }
    image.addNotes(language.code, notes);
  }
}

}  // namespace glyph::generator
