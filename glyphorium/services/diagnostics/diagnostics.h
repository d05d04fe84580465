// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// Receives one diagnostic line at a time, UTF-8, without its line feed. May be called from any thread, also
/// from several at once.
using DiagnosticsSink = std::function<void(std::string_view line)>;

/// Puts `sink` in the place of standard output for every diagnostic line of the library from now on. An empty
/// function restores standard output. Safe to call from any thread; a line being delivered meanwhile may
/// still reach the sink before.
GLYPHORIUM_EXPORT void setDiagnosticsSink(DiagnosticsSink sink);

/// Hands one line (without a line feed) to the sink. What the sink throws is swallowed.
GLYPHORIUM_EXPORT void printDiagnostic(std::string_view line) noexcept;

}  // namespace glyph
