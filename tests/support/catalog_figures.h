// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

/// The sizes of the catalog, for tests that compare counts.
namespace glyph::figures {

inline constexpr std::size_t entities = 17532;  ///< rows of the configured group tables
inline constexpr std::size_t groups = 112;      ///< configured group tables
inline constexpr std::size_t names = 35469;     ///< entries of the name table
inline constexpr std::size_t arrows = 112;      ///< rows of the group "arrows"
inline constexpr std::size_t sfSymbols = 1083;  ///< rows of the group "SF Symbols"

}  // namespace glyph::figures
