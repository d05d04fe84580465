// SPDX-License-Identifier: MIT
#include "glyphorium/data/prepared_rows.h"

#include "glyphorium/data/embedded_image.h"

namespace glyph {

std::size_t preparedEnrichmentCount() noexcept {
  return enrichmentIndex.size();
}

std::optional<std::size_t> findPreparedEnrichment(std::uint32_t codePoint) noexcept {
  return enrichmentIndex.find(codePoint);
}

PreparedEnrichmentReader::PreparedEnrichmentReader(std::size_t number) noexcept
    : at_(preparedEnrichment.data() + enrichmentIndex[number].offset) {}

}  // namespace glyph
