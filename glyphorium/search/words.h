// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace glyph::search {

/// Reads the words of a UTF-8 text one by one. A word is a sequence of letters and digits. All other
/// characters separate words. A single letter before an apostrophe ("l’œil") is left out. The reader folds
/// the words so that they can be compared: see appendFolded(). The text must outlive the reader.
class WordReader {
 public:
  explicit WordReader(std::string_view text) : text_(text) {}

  /// Moves to the next word. Returns false if there are no more words.
  bool next();

  /// Returns the current word, folded. The view is valid until the next call of next().
  std::string_view word() const { return word_; }
  /// The position of the current word in the text: from byte begin() up to but not including byte end().
  std::size_t begin() const { return begin_; }
  std::size_t end() const { return end_; }

  /// Starts to read another text. This avoids the memory allocation that a new reader needs.
  void restart(std::string_view text) {
    text_ = text;
    end_ = 0;
  }

 private:
  void read();
  bool isElided() const;
  bool appendNonAscii(std::size_t& position);

  std::string_view text_;
  std::string word_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
};

/// Returns the folded words of a text, as WordReader reads them, with one space between two words.
std::string wordsOf(std::string_view text);

/// Returns the form in which texts that contain signs ("->", "(c)") are compared: in lower case, without
/// spaces. Texts without signs are compared word by word; for these the result is empty. A text has no signs
/// if it consists of words, spaces, hyphens, underscores, full stops, commas and apostrophes.
std::string signKey(std::string_view text);

}  // namespace glyph::search
