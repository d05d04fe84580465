// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// Receives one diagnostic line in UTF-8, without a line feed. The library may call the sink on any thread,
/// and on several threads at the same time. Its mutexes are unlocked during the call, so the sink may call
/// the library.
using DiagnosticsSink = std::function<void(std::string_view line)>;

/// Sends every further diagnostic line of the library to `sink`. Before the first call, and after a call with
/// an empty function, there is no sink: then changes of the catalog and decoding errors go to standard
/// output, and problems (see printProblem()) go to standard error. May be called from any thread. A line that
/// another thread is printing at the same time may still go to the previous sink.
GLYPHORIUM_EXPORT void setDiagnosticsSink(DiagnosticsSink sink);

/// Passes one line (without a line feed) to the sink, or to standard output if no sink is set. An exception
/// that the sink throws is ignored. May be called from any thread.
GLYPHORIUM_EXPORT void printDiagnostic(std::string_view line) noexcept;

/// Reports a problem outside of the catalog, such as a damaged settings file. Passes one line (without a line
/// feed) to the sink, or to standard error if no sink is set. Standard error keeps such lines out of the
/// output of a host that has not set a sink. An exception that the sink throws is ignored. May be called from
/// any thread.
GLYPHORIUM_EXPORT void printProblem(std::string_view line) noexcept;

}  // namespace glyph
