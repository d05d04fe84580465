// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// Receives one diagnostic line at a time, UTF-8, without its line feed. The library calls it from any
/// thread, also from several at once, and holds no lock during the call: the sink may use the library.
using DiagnosticsSink = std::function<void(std::string_view line)>;

/// Sends every diagnostic line of the library to `sink` from now on. Until the first call, and after a call
/// with an empty function, changes of the catalog and decoding errors go to standard output, and problems
/// (see printProblem()) to standard error. May be called from any thread. A line that another thread is
/// printing at the moment may still go to the previous sink.
GLYPHORIUM_EXPORT void setDiagnosticsSink(DiagnosticsSink sink);

/// Hands one line (without a line feed) to the sink, or to standard output if there is none. An exception
/// that the sink throws is ignored.
GLYPHORIUM_EXPORT void printDiagnostic(std::string_view line) noexcept;

/// Reports a problem outside of the catalog, such as a damaged settings file: hands one line (without a line
/// feed) to the sink, or to standard error if there is none. A host that has not asked for such lines finds
/// none in its standard output. An exception that the sink throws is ignored.
GLYPHORIUM_EXPORT void printProblem(std::string_view line) noexcept;

}  // namespace glyph
