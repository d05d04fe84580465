// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/entity/records.h"
#include "output.h"

namespace cli {

/// How a command prints a list of characters. At most one member is set. If no member is set, the command
/// prints a table.
struct Listing {
  bool json = false;
  bool tsv = false;
  std::string format;  ///< see formatted()

  bool isTable() const { return !json && !tsv && format.empty(); }
};

/// Returns the template `format` with each field replaced by a text of the entity. A field is "%(name)".
/// "%(name l:8)" and "%(name r:8)" pad it to eight columns, with the text on the left or on the right. "%%"
/// is a percent sign; "\t" and "\n" are a tab and a line feed. The fields are char, name, group, block,
/// script, category, version, numeric, octal, binary, plane, width (in columns), bidi, aliases, the forms of
/// copyForms(), the first way to type by a method of waysToType() ("compose"), and the bytes in an encoding
/// ("bytes:cp1252"). A field becomes empty if the character has no such text.
std::string formatted(std::string_view format, const glyph::Entity& entity);

/// Returns the names of all fields, without "bytes:".
std::vector<std::string_view> fieldsOfFormats();

/// Returns an error message for the first fault in a template, or nullopt if the template is valid.
std::optional<std::string> faultOfFormat(std::string_view format);

/// Prints the characters in the form that `listing` selects. A member of `listing` must be set, because this
/// function prints no table.
void printListing(Output& output, const std::vector<const glyph::Entity*>& entities, const Listing& listing);

/// Print the parts of a listing that is a template or a table with tabs: the heading, if it has one, and the
/// line of a character.
void printHeading(Output& output, const Listing& listing);
void printRow(Output& output, const glyph::Entity& entity, const Listing& listing);

}  // namespace cli
