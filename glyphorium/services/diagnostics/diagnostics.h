// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// Receives one diagnostic line at a time, UTF-8, without its line feed. The library calls it from any thread,
/// also from several at once, and holds no lock during the call: the sink may use the library.
using DiagnosticsSink = std::function<void(std::string_view line)>;

/// Sends every diagnostic line of the library to `sink` from now on. Until the first call, and after a call with
/// an empty function, the lines go to standard output. May be called from any thread. A line that another
/// thread is printing at the moment may still go to the previous sink.
GLYPHORIUM_EXPORT void setDiagnosticsSink(DiagnosticsSink sink);

/// Hands one line (without a line feed) to the sink. An exception that the sink throws is ignored.
GLYPHORIUM_EXPORT void printDiagnostic(std::string_view line) noexcept;

}  // namespace glyph
