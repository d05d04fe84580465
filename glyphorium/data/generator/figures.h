// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>

#include "glyphorium/data/generator/source_file.h"

namespace glyph::generator {

/// Sizes and counts of the generated texts. They are compared with the values in figures.tsv.
class Figures {
 public:
  explicit Figures(const std::filesystem::path& sources);

  /// Records the value of a number that was counted in the generated texts.
  void reached(const std::string& figure, std::size_t value) { reached_[figure] = value; }

  /// Compares the recorded values with those in figures.tsv. Throws SourceError if a value differs, or if a
  /// number is only in the file or was only recorded. The message lists all such numbers.
  void check() const;

 private:
  std::filesystem::path file_;
  std::map<std::string, std::pair<std::size_t, Place>> wanted_;
  std::map<std::string, std::size_t> reached_;
};

}  // namespace glyph::generator
