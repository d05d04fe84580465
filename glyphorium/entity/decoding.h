// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/entity/records.h"

namespace glyph {

/// Decodes JSON arrays in UTF-8. One decoder can decode several arrays, one after another, and reuses its
/// parser. If an object has the same key twice, the first value counts. A text that is embedded in the
/// library is parsed in place; any other text is copied first.
class TableDecoder {
 public:
  TableDecoder();
  ~TableDecoder();
  TableDecoder(const TableDecoder&) = delete;
  TableDecoder& operator=(const TableDecoder&) = delete;

  /// Appends the records of `json` to `records`. Returns an empty text on success. Record is
  /// ComputedEntity, AdditionalData, RawUnicodeEntity or Entity. With Entity, `json` must be a group table,
  /// and the entities get no enrichment. If one row is faulty, the whole array is rejected: `records` stays
  /// unchanged, and the function returns one line that describes the error.
  template <class Record>
  std::string append(std::string_view json, std::vector<Record>& records);

 private:
  struct Parser;
  std::unique_ptr<Parser> parser_;
};

/// Returns the records of one JSON array. On an error, prints one diagnostic line and returns nullopt.
template <class Record>
std::optional<std::vector<Record>> decodeOrReport(std::string_view json);

}  // namespace glyph
