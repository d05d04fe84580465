// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/entity/records.h"

namespace glyph {

/// Decodes UTF-8 JSON arrays, one after the other, with one parser. Record is ComputedEntity, AdditionalData
/// or RawUnicodeEntity. Of duplicate keys the first counts. An embedded text is parsed where it lies, any
/// other is copied once.
class TableDecoder {
 public:
  TableDecoder();
  ~TableDecoder();
  TableDecoder(const TableDecoder&) = delete;
  TableDecoder& operator=(const TableDecoder&) = delete;

  /// Appends the records of `json` (for Entity: entities with ComputedEntity records, not enriched) to
  /// `records` and returns an empty text, or leaves them as they were and returns one line that says what is
  /// wrong: one faulty row fails the whole array.
  template <class Record>
  std::string append(std::string_view json, std::vector<Record>& records);

 private:
  struct Parser;
  std::unique_ptr<Parser> parser_;
};

/// The records of one JSON array; on an error prints it as one diagnostic line and returns nothing.
template <class Record>
std::optional<std::vector<Record>> decodeOrReport(std::string_view json);

}  // namespace glyph
