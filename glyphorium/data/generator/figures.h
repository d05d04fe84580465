// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>

#include "glyphorium/data/generator/source_file.h"

namespace glyph::generator {

/// Sizes and counts of the generated texts, compared with figures.tsv.
class Figures {
 public:
  explicit Figures(const std::filesystem::path& sources);

  /// Records the value of a figure.
  void reached(const std::string& figure, std::size_t value) { reached_[figure] = value; }

  /// Fails if a value differs from the file, or if only one of the two has a figure. Names all such figures.
  void check() const;

 private:
  std::filesystem::path file_;
  std::map<std::string, std::pair<std::size_t, Place>> wanted_;
  std::map<std::string, std::size_t> reached_;
};

}  // namespace glyph::generator
