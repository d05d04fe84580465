// SPDX-License-Identifier: MIT
#pragma once

#include <mutex>
#include <string>
#include <vector>

#include "glyphorium/services/diagnostics/diagnostics.h"

namespace glyph {

/// Collects the diagnostic lines that the library prints during the lifetime of this object.
class RecordedDiagnostics {
 public:
  RecordedDiagnostics() {
    setDiagnosticsSink([this](std::string_view line) {
      const std::lock_guard lock(mutex_);
      lines_.emplace_back(line);
    });
  }
  ~RecordedDiagnostics() { setDiagnosticsSink(nullptr); }
  RecordedDiagnostics(const RecordedDiagnostics&) = delete;
  RecordedDiagnostics& operator=(const RecordedDiagnostics&) = delete;

  /// Returns the lines since the last call.
  std::vector<std::string> take() {
    const std::lock_guard lock(mutex_);
    return std::exchange(lines_, {});
  }

 private:
  std::mutex mutex_;
  std::vector<std::string> lines_;
};

}  // namespace glyph
