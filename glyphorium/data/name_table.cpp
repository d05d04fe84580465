// SPDX-License-Identifier: MIT
#include "glyphorium/data/name_table.h"

#include <charconv>
#include <cstdint>
#include <cstring>

#include "glyphorium/catalog/entity/decoding_internal.h"
#include "glyphorium/data/embedded_image_internal.h"

namespace glyph {
namespace {

struct IndexEntry {
  std::uint32_t codePoint;
  std::uint32_t nameOffset;
};

IndexEntry indexEntry(std::size_t position) noexcept {
  IndexEntry entry;
  std::memcpy(&entry, nameIndexImage.data() + position * sizeof entry, sizeof entry);
  return entry;
}

// The number of a hex code spelled as the table spells it.
std::optional<std::uint32_t> canonicalCodePoint(std::string_view hex) noexcept {
  std::uint32_t value = 0;
  const auto [end, error] = std::from_chars(hex.data(), hex.data() + hex.size(), value, 16);
  if (error != std::errc() || end != hex.data() + hex.size() || hex.size() < 4) return std::nullopt;
  if (hex.size() > 4 && hex.front() == '0') return std::nullopt;
  return value;
}

}  // namespace

std::string_view structuredUnicodeJSON() noexcept {
  return structuredUnicodeJsonText;
}

std::vector<RawUnicodeEntity>& structuredUnicodes() {
  static std::vector<RawUnicodeEntity> entries;
  return entries;
}

void loadStructuredUnicodes() {
  if (auto entries = decodeOrReport<RawUnicodeEntity>(structuredUnicodeJSON())) {
    structuredUnicodes() = std::move(*entries);
  }
}

std::optional<NameTableEntry> findName(std::string_view hex) noexcept {
  const auto codePoint = canonicalCodePoint(hex);
  if (!codePoint) return std::nullopt;
  const std::size_t size = nameIndexImage.size() / sizeof(IndexEntry);
  std::size_t begin = 0;
  for (std::size_t end = size; begin < end;) {
    const std::size_t middle = begin + (end - begin) / 2;
    if (indexEntry(middle).codePoint < *codePoint) {
      begin = middle + 1;
    } else {
      end = middle;
    }
  }
  if (begin == size || indexEntry(begin).codePoint != *codePoint) return std::nullopt;
  const std::string_view rest = structuredUnicodeJSON().substr(indexEntry(begin).nameOffset);
  const std::size_t end = rest.find('"');
  // What follows the name is `","isSFSymbol":true` or `…false`.
  return NameTableEntry{rest.substr(0, end), rest.substr(end).starts_with("\",\"isSFSymbol\":t")};
}

}  // namespace glyph
