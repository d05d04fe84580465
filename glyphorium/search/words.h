// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace glyph::search {

/// Finds the words of a text one by one, folded for comparing: lower case, Latin letters without diacritics
/// ("flèche" is "fleche", "ß" is "ss"). A word is a run of letters and digits; all else separates.
class WordReader {
 public:
  explicit WordReader(std::string_view text) : text_(text) {}

  /// Goes to the next word; false behind the last one.
  bool next();

  /// Valid until the next call of next().
  std::string_view word() const { return word_; }
  std::size_t begin() const { return begin_; }
  std::size_t end() const { return end_; }

  /// Goes on with another text; keeps the buffer.
  void restart(std::string_view text) {
    text_ = text;
    end_ = 0;
  }

 private:
  bool appendNonAscii(std::size_t& position);

  std::string_view text_;
  std::string word_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
};

/// The words of a text as WordReader finds them, with blanks between them.
std::string wordsOf(std::string_view text);

/// What a text of signs is compared by: lower case, without blanks. Empty for what consists of words only,
/// hyphens, full stops and such between or behind them included: there the words say it all.
std::string signKey(std::string_view text);

}  // namespace glyph::search
