// SPDX-License-Identifier: MIT
#include "glyphorium/search/notations.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <optional>
#include <string>

#include "glyphorium/characters/emoji.h"
#include "glyphorium/characters/emoji_numbers.h"
#include "glyphorium/data/notations.h"
#include "glyphorium/search/text_parts.h"
#include "glyphorium/text/ascii.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph::search {
namespace {

constexpr std::size_t shortestBegun = 3;  // in bytes; a shorter text is a prefix of too many notations
constexpr std::size_t mostBegun = 20;

using CodePoints = std::vector<std::uint32_t>;

void addCharacters(std::string_view columns, CodePoints& found) {
  while (!columns.empty()) {
    std::string text;
    for (std::string_view column = takePart(columns, '\t'); !column.empty();)
      text += utf8(static_cast<char32_t>(ascii::number(takePart(column, ','), 16).value_or(0)));
    const auto key = characterKey(text);
    if (key && std::find(found.begin(), found.end(), *key) == found.end()) found.push_back(*key);
  }
}

CodePoints exactly(std::string_view lines, std::string_view notation) {
  CodePoints codePoints;
  const std::string_view line = firstLineFrom(lines, notation);
  std::string_view columns = line.substr(0, line.find('\n'));
  if (takePart(columns, '\t') == notation) addCharacters(columns, codePoints);
  return codePoints;
}

CodePoints begunWith(std::string_view lines, std::string_view notation) {
  CodePoints codePoints;
  std::string_view rest = firstLineFrom(lines, notation);
  while (rest.starts_with(notation) && codePoints.size() < mostBegun) {
    std::string_view columns = takePart(rest, '\n');
    takePart(columns, '\t');
    addCharacters(columns, codePoints);
  }
  return codePoints;
}

bool isLetters(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), ascii::isLetter);
}

// Returns the command for an accented letter in the spelling of the table: "\'{e}" for "\'e", and "\c{c}" for
// "\c c".
std::string accented(std::string_view command) {
  std::string sign(command.substr(0, 2));
  std::string letter;
  for (const char c : command.substr(2)) {
    if (c != ' ' && c != '{' && c != '}') letter += c;
  }
  if (letter.size() != 1) return std::string(command);
  return sign + "{" + letter + "}";
}

// Returns the characters for an Alt code. The table does not contain the codes of ASCII characters, because
// these codes equal the code points.
CodePoints altCode(std::string_view number) {
  const CodePoints found = exactly(notations::altCodes, number);
  const auto code = ascii::number(number, 10);
  return found.empty() && code && *code >= 0x20 && *code < 0x7F ? CodePoints{*code} : found;
}

CodePoints latex(std::string_view command) {
  CodePoints found = exactly(notations::latexCommands, command);
  if (!found.empty() || command.size() < 3) return found;
  // A LaTeX command that begins with two letters is a name, such as "\alpha". Any other command may be an
  // accent and a letter, such as "\'e" or "\c c".
  if (!ascii::isLetter(command[1]) || !ascii::isLetter(command[2])) {
    std::string spelling = accented(command);
    found = exactly(notations::latexCommands, spelling);
    // In the table, an accented i or j is written with the letter without a dot: "\'{\i}", not "\'{i}".
    if (found.empty() && spelling.size() == 5) {
      spelling.insert(3, 1, '\\');
      found = exactly(notations::latexCommands, spelling);
    }
    if (!found.empty()) return found;
  }
  // People often leave out the braces around the letter of a mathematical alphabet: "\mathbb R".
  if (const std::size_t blank = command.find(' '); blank + 2 == command.size())
    return exactly(notations::latexCommands,
                   std::string(command.substr(0, blank)) + "{" + command.back() + "}");
  constexpr std::string_view negation = "\\not";
  if (!command.starts_with(negation)) return found;
  std::string_view negated = command.substr(negation.size());
  while (negated.starts_with(' ')) negated.remove_prefix(1);
  const CodePoints plain = negated.starts_with('\\') ? latex(negated) : CodePoints();
  std::u32string sign =
      plain.empty() ? codePoints(negated) : std::u32string(1, static_cast<char32_t>(plain.front()));
  if (sign.size() != 1) return found;
  const std::u32string whole = codePoints(composed(utf8(sign.front()) + "\u0338"));
  if (whole.size() == 1) found.push_back(static_cast<std::uint32_t>(whole.front()));
  return found;
}

// If the text begins with one of the words, returns the rest of the text after the word and any characters of
// `joints`: "3" for "Alt+3". Letter case does not count. Returns nullopt if the word is only the beginning of
// a longer word, and for any other text.
std::optional<std::string_view> after(std::initializer_list<std::string_view> words, std::string_view joints,
                                      std::string_view text) {
  for (const std::string_view word : words) {
    if (text.size() <= word.size() || lowercased(text.substr(0, word.size())) != word) continue;
    const std::string_view rest = text.substr(word.size());
    const std::size_t begin = rest.find_first_not_of(joints);
    const bool isJoined = isLetters(word.substr(word.size() - 1)) && isLetters(rest.substr(0, 1));
    if (begin != std::string_view::npos && (begin > 0 || !isJoined)) return rest.substr(begin);
  }
  return std::nullopt;
}

std::string withoutBlanks(std::string_view text) {
  std::string result(text);
  std::erase(result, ' ');
  return result;
}

// Returns the text with a blank after each name of a key instead of the brackets around it: "Multi_key o c "
// for "<Multi_key> <o> <c>", "Alt 0133" for "[Alt] 0133".
std::string withoutKeyBrackets(std::string_view text) {
  std::string result;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char closing = text[i] == '<' ? '>' : text[i] == '[' ? ']' : '\0';
    const std::size_t end = closing ? text.find(closing, i + 1) : std::string_view::npos;
    const bool isKey = end != std::string_view::npos && ascii::isAlphanumeric(text[i + 1]);
    result += isKey ? std::string(text.substr(i + 1, end - i - 1)) + ' ' : std::string(1, text[i]);
    if (isKey) i = end;
  }
  return result;
}

// Returns the character of a code before the keys that turn a code into its character in some word
// processors: "2640 Alt+X".
CodePoints codeBeforeKeys(std::string_view text) {
  const std::string lower = lowercased(text);
  for (const std::string_view keys : {"alt+x", "alt-x", "alt x"}) {
    if (!lower.ends_with(keys)) continue;
    const std::string code = withoutBlanks(text.substr(0, text.size() - keys.size()));
    const auto number = ascii::number(code, 16);
    if (number && code.size() >= 2) return {*number};
  }
  return {};
}

// Returns the characters of a shortcode without its colons. Chats add the skin tone as a second shortcode:
// "+1::skin-tone-3".
CodePoints shortcode(std::string_view name) {
  constexpr std::string_view toneBegin = "::skin-tone-";
  const std::size_t end = name.find(toneBegin);
  CodePoints found = exactly(notations::shortcodes, name.substr(0, end));
  const std::string_view tone = end == std::string_view::npos ? "" : name.substr(end + toneBegin.size());
  if (tone.size() != 1 || tone[0] < '2' || tone[0] > '6' || found.empty()) return found;
  // The chats number the tones from 2, as the Fitzpatrick scale does.
  const auto key =
      characterKey(withSkinTone(textOfCharacterKey(found.front()), static_cast<SkinTone>(tone[0] - '1')));
  return key ? CodePoints{*key} : found;
}

// Returns the character of an HTML reference to a C1 control: "&#150;". Browsers show the character that
// Windows-1252 has for the number.
CodePoints windowsReference(std::string_view text) {
  if (!text.starts_with("&#1") || !text.ends_with(';')) return {};
  return exactly(notations::altCodes, "0" + std::string(text.substr(2, text.size() - 3)));
}

// Returns the characters that Windows-1252 has for the bytes from 0x80 to 0x9F. It is 0 for the bytes for
// which it has none.
const std::array<char32_t, 32>& windowsCharacters() {
  static const auto characters = [] {
    std::array<char32_t, 32> made{};
    for (std::size_t i = 0; i < made.size(); ++i) {
      const CodePoints found = exactly(notations::altCodes, "0" + std::to_string(0x80 + i));
      if (!found.empty()) made[i] = found.front();
    }
    return made;
  }();
  return characters;
}

// Returns the characters of a text whose UTF-8 was read as Windows-1252: "â€™" for "’".
CodePoints misread(std::string_view text) {
  std::string bytes;
  for (const char32_t point : codePoints(text)) {
    if (point < 0x80 || (point >= 0xA0 && point <= 0xFF)) {
      bytes += static_cast<char>(point);
      continue;
    }
    const auto& known = windowsCharacters();
    const auto found = std::find(known.begin(), known.end(), point);
    if (found == known.end()) return {};
    bytes += static_cast<char>(0x80 + (found - known.begin()));
  }
  if (bytes == text || !isWellFormedUtf8(bytes)) return {};
  const std::u32string read = codePoints(bytes);
  return {read.begin(), read.end()};
}

}  // namespace

NotationsFound readNotation(std::string_view text) {
  NotationsFound found;
  const std::string keyText = withoutKeyBrackets(text);
  std::string_view command = text;
  if (command.size() > 2 && command.starts_with('$') && command.ends_with('$'))
    command = command.substr(1, command.size() - 2);
  if (command.size() > 2 && command.starts_with("{\\") && command.ends_with('}'))
    command = command.substr(1, command.size() - 2);
  if (command.starts_with('\\')) {
    found.certain = latex(command);
    if (command.size() >= shortestBegun && isLetters(command.substr(1)))
      found.begun = begunWith(notations::latexCommands, command);
  } else if (text.size() >= shortestBegun && text.starts_with(':') && text.find(' ') == text.npos) {
    std::string_view name = text.substr(1);
    const bool closed = name.ends_with(':');
    if (closed) name.remove_suffix(1);
    found.certain = shortcode(name);
    if (!closed && name.size() + 1 >= shortestBegun) {
      found.begun = begunWith(notations::shortcodes, name);
      if (name.find_first_of("abcdefghijklmnopqrstuvwxyz") == name.npos)
        found = {};  // a smiley such as ":-3"
    }
  } else if (const auto number = after({"alt code", "alt"}, " +-", keyText)) {
    found.certain = altCode(withoutBlanks(*number));
  } else if (const auto keys = after({"compose", "multi_key", "multi key"}, " +:", keyText)) {
    found.certain = exactly(notations::composeSequences, withoutBlanks(*keys));
    // A comma after "Compose" may be a key. If that gives nothing, it only separates the keys from the word:
    // "Compose, o c".
    if (found.certain.empty() && keys->starts_with(','))
      found.certain = exactly(notations::composeSequences, withoutBlanks(keys->substr(1)));
    if (found.certain.empty()) {
      std::string joined = withoutBlanks(*keys);
      std::erase(joined, '+');
      found.certain = exactly(notations::composeSequences, joined);
    }
  } else if (const auto pair =
                 after({"ctrl-k", "ctrl+k", "c-k", "^k", "vim digraph", ":digraph", ":dig", "digraph", "vim"},
                       " ", keyText)) {
    found.certain = exactly(notations::digraphs, withoutBlanks(*pair));
  } else if (text.size() == 2 && !(ascii::isAlphanumeric(text[0]) && ascii::isAlphanumeric(text[1]))) {
    found.guessed = exactly(notations::digraphs, text);
  }
  if (found.certain.empty()) found.certain = codeBeforeKeys(text);
  if (found.certain.empty()) found.certain = windowsReference(text);
  if (found.certain.empty()) found.certain = misread(text);
  found.drawn = exactly(notations::drawings, withoutBlanks(text));
  return found;
}

}  // namespace glyph::search
