// SPDX-License-Identifier: MIT
#include "glyphorium/data/generator/notations.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "glyphorium/data/generator/source_file.h"

namespace glyph::generator {
namespace {

// For each notation, the characters that it stands for, each with a rank. The character with the lowest rank
// comes first.
using Notations = std::map<std::string, std::vector<std::pair<std::size_t, std::string>>>;

// Documents write a letter of a mathematical alphabet as a command with an argument: "\mathbb{R}". The tables
// have a separate command for each letter instead: "\BbbR".
constexpr std::pair<std::string_view, std::string_view> alphabets[] = {
    {"\\Bbb", "\\mathbb"},   {"\\mscr", "\\mathcal"},   {"\\mscr", "\\mathscr"}, {"\\mfrak", "\\mathfrak"},
    {"\\mbf", "\\mathbf"},   {"\\mbf", "\\boldsymbol"}, {"\\mbf", "\\bm"},       {"\\mit", "\\mathit"},
    {"\\msans", "\\mathsf"}, {"\\mtt", "\\mathtt"},
};

const std::set<std::string, std::less<>> greekLetters{
    "alpha",  "beta",    "gamma",  "delta",  "epsilon", "varepsilon", "zeta",    "eta",   "theta", "vartheta",
    "iota",   "kappa",   "lambda", "mu",     "nu",      "xi",         "omicron", "pi",    "rho",   "sigma",
    "tau",    "upsilon", "phi",    "varphi", "chi",     "psi",        "omega",   "Gamma", "Delta", "Theta",
    "Lambda", "Xi",      "Pi",     "Sigma",  "Upsilon", "Phi",        "Psi",     "Omega"};

Notations readLatex(const std::filesystem::path& file) {
  Notations notations;
  for (const SourceLine& line : readTable(file, 3, 3)) {
    const std::string codePoint = hexText(line.codePoint(0, false));
    const std::string& command = line.columns[1];
    // The third column lists the tables of commands from which the line was taken. The more tables contain
    // it, the more likely people mean this character by the command.
    const auto commas = std::count(line.columns[2].begin(), line.columns[2].end(), ',');
    const std::size_t rank = 9 - static_cast<std::size_t>(commas);
    notations[command].emplace_back(rank, codePoint);
    for (const auto& [prefix, alphabet] : alphabets) {
      if (!command.starts_with(prefix) || command.size() == prefix.size()) continue;
      // The rest of the command is a letter or the name of a Greek letter: "\mbfA", "\mbfalpha".
      const std::string letter = command.substr(prefix.size());
      const bool isOne = letter.size() == 1;
      if (isOne || greekLetters.contains(letter))
        notations[std::string(alphabet) + (isOne ? "{" : "{\\") + letter + "}"].emplace_back(rank, codePoint);
    }
  }
  return notations;
}

// Reads a table of pairs: a character or an emoji, a notation. If several lines have the same notation, the
// first one is the likeliest.
Notations readPairs(const std::filesystem::path& file, std::size_t columns, bool withoutBlanks) {
  Notations notations;
  for (const SourceLine& line : readTable(file, columns, columns)) {
    std::string text = line.columns[1];
    if (withoutBlanks) std::erase(text, ' ');
    auto& codePoints = notations[text];
    codePoints.emplace_back(codePoints.size(), line.columns[0]);
  }
  return notations;
}

// A number that begins with a zero means code page 1252. Of the other code pages, that of the United States
// is more common than that of western Europe.
Notations readAltCodes(const std::filesystem::path& file) {
  Notations notations;
  for (const SourceLine& line : readTable(file, 3, 3)) {
    const std::string& page = line.columns[0];
    const std::string number = (page == "cp1252" ? "0" : "") + std::to_string(line.number(1));
    notations[number].emplace_back(page == "cp850" ? 1 : 0, hexText(line.codePoint(2, false)));
  }
  return notations;
}

std::string linesOf(Notations notations) {
  std::string lines;
  for (auto& [text, codePoints] : notations) {
    std::sort(codePoints.begin(), codePoints.end());
    lines += text;
    std::vector<std::string> seen;
    for (const auto& [rank, codePoint] : codePoints) {
      if (std::find(seen.begin(), seen.end(), codePoint) != seen.end()) continue;
      seen.push_back(codePoint);
      lines += "\t" + codePoint;
    }
    lines += '\n';
  }
  return lines;
}

}  // namespace

void addNotations(const std::filesystem::path& sources, EmbeddedImage& image) {
  const std::filesystem::path folder = sources / "input";
  image.addNotations("latexCommands", linesOf(readLatex(folder / "latex-commands.tsv")));
  image.addNotations("shortcodes", linesOf(readPairs(folder / "emoji-shortcodes.tsv", 3, false)));
  image.addNotations("composeSequences", linesOf(readPairs(folder / "compose-sequences.tsv", 2, true)));
  image.addNotations("digraphs", linesOf(readPairs(folder / "digraphs.tsv", 2, false)));
  image.addNotations("drawings", linesOf(readPairs(folder / "drawings.tsv", 2, true)));
  image.addNotations("altCodes", linesOf(readAltCodes(folder / "alt-codes.tsv")));
}

}  // namespace glyph::generator
