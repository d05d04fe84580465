// SPDX-License-Identifier: MIT
#include "glyphorium/data/generator/figures.h"

namespace glyph::generator {

Figures::Figures(const std::filesystem::path& sources) : file_(sources / "figures.tsv") {
  for (const SourceLine& line : readTable(file_, 2, 2)) {
    if (!wanted_.emplace(line.columns[0], std::pair{line.number(1), line.place}).second)
      line.fail("repeats a key of an earlier line");
  }
}

void Figures::check() const {
  std::string faults;
  const auto note = [&faults](const Place& place, const std::string& message) {
    try {
      place.fail(message);
    } catch (const SourceError& error) {
      faults += (faults.empty() ? "" : "\n") + std::string(error.what());
    }
  };
  for (const auto& [figure, wanted] : wanted_) {
    const auto value = reached_.find(figure);
    if (value == reached_.end()) {
      note(wanted.second, "nothing computes '" + figure + "'");
    } else if (value->second != wanted.first) {
      note(wanted.second,
           figure + ": " + std::to_string(value->second) + ", expected " + std::to_string(wanted.first));
    }
  }
  for (const auto& [figure, value] : reached_) {
    if (!wanted_.contains(figure)) note({file_, 0}, "'" + figure + "' is missing: " + std::to_string(value));
  }
  if (!faults.empty()) throw SourceError(faults);
}

}  // namespace glyph::generator
