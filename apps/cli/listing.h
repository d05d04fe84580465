// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/entity/records.h"
#include "output.h"

namespace cli {

/// How a command prints a list of characters. At most one of the three is set; without any, the command
/// prints its table.
struct Listing {
  bool json = false;
  bool tsv = false;
  std::string format;  ///< see formatted()

  bool isTable() const { return !json && !tsv && format.empty(); }
};

/// Returns the template with its fields replaced by those of the entity. A field is "%(name)" or, padded to
/// so many columns on the left or on the right, "%(name l:8)" and "%(name r:8)". "%%" is a percent sign; "\t"
/// and "\n" are a tab and a line feed. The fields are char, name, group, block, script, category, version,
/// numeric and the forms of copyForms(); a field that the character does not have is empty.
std::string formatted(std::string_view format, const glyph::Entity& entity);

/// Returns the first fault of a template as a message, or nullopt if it has none.
std::optional<std::string> faultOfFormat(std::string_view format);

/// Prints the characters as the listing says. It must not be a table.
void printListing(Output& output, const std::vector<const glyph::Entity*>& entities, const Listing& listing);

}  // namespace cli
