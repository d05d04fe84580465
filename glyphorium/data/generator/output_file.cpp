// SPDX-License-Identifier: MIT
#include "glyphorium/data/generator/output_file.h"

#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace glyph::generator {

void writeFile(const std::filesystem::path& file, std::string_view content) {
  std::filesystem::create_directories(file.parent_path());
  {
    std::ifstream existing(file, std::ios::binary);
    if (existing && std::string(std::istreambuf_iterator<char>(existing), {}) == content) return;
  }
  std::ofstream stream(file, std::ios::binary);
  stream << content;
  stream.close();
  if (!stream) throw std::runtime_error(file.string() + ": error: cannot be written");
}

}  // namespace glyph::generator
