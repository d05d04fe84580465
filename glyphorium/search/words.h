// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace glyph::search {

/// Finds the words of a UTF-8 text one by one. A word is a run of letters and digits; everything else
/// separates words. The words are folded for comparing: see appendFolded(). The text must outlive the reader.
class WordReader {
 public:
  explicit WordReader(std::string_view text) : text_(text) {}

  /// Goes to the next word; false if there is none.
  bool next();

  /// The folded word, valid until the next call of next().
  std::string_view word() const { return word_; }
  /// The part of the text that the word was folded from, in bytes: [begin, end).
  std::size_t begin() const { return begin_; }
  std::size_t end() const { return end_; }

  /// Goes to the begin of another text. Saves the memory allocation that a new reader needs.
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

/// The words of a text as WordReader finds them, with a space between them.
std::string wordsOf(std::string_view text);

/// The form in which texts of signs ("->", "(c)") are compared: in lower case, without spaces. Empty if the
/// text consists of words and the hyphens, full stops and the like between them: its words are compared then.
std::string signKey(std::string_view text);

}  // namespace glyph::search
