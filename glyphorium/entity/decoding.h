// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/entity/records.h"

namespace glyph {

/// Decodes JSON arrays in UTF-8, one after the other, with one parser. If an object has a key twice, the
/// first one counts. An embedded text is parsed in place, any other text is copied once.
class TableDecoder {
 public:
  TableDecoder();
  ~TableDecoder();
  TableDecoder(const TableDecoder&) = delete;
  TableDecoder& operator=(const TableDecoder&) = delete;

  /// Appends the records of `json` to `records` and returns an empty text. Record is ComputedEntity,
  /// AdditionalData, RawUnicodeEntity, or Entity for entities that have a ComputedEntity and no enrichment.
  /// One faulty row fails the whole array: `records` is then unchanged, and the result is one line that says
  /// what is wrong.
  template <class Record>
  std::string append(std::string_view json, std::vector<Record>& records);

 private:
  struct Parser;
  std::unique_ptr<Parser> parser_;
};

/// The records of one JSON array. On an error prints it as one diagnostic line and returns nullopt.
template <class Record>
std::optional<std::vector<Record>> decodeOrReport(std::string_view json);

}  // namespace glyph
