// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>

#include "glyphorium/data/generator/source_file.h"

namespace glyph::generator {

/// The figures that the generated texts must come to, from figures.tsv.
class Figures {
 public:
  explicit Figures(const std::filesystem::path& sources);

  /// Notes the value reached for a figure.
  void reached(const std::string& figure, std::size_t value) { reached_[figure] = value; }

  /// Fails with all figures that differ, that nobody reached or that the file does not hold.
  void check() const;

 private:
  std::filesystem::path file_;
  std::map<std::string, std::pair<std::size_t, Place>> wanted_;
  std::map<std::string, std::size_t> reached_;
};

}  // namespace glyph::generator
