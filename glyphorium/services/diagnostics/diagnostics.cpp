// SPDX-License-Identifier: MIT
#include "glyphorium/services/diagnostics/diagnostics.h"

#include <cstdio>
#include <memory>
#include <mutex>
#include <string>
#include <utility>

#include "glyphorium/text/never_destroyed.h"

namespace glyph {
namespace {

struct Destination {
  std::mutex mutex;
  std::shared_ptr<const DiagnosticsSink> sink;  // null means standard output or standard error
};

Destination& destination() {
  static NeverDestroyed<Destination> instance;
  return *instance;
}

void print(std::string_view line, std::FILE* withoutSink) noexcept {
  try {
    std::shared_ptr<const DiagnosticsSink> sink;
    {
      const std::lock_guard lock(destination().mutex);
      sink = destination().sink;
    }
    // The mutex is unlocked while the sink runs, so the sink may set another sink or print a line.
    if (sink) {
      (*sink)(line);
      return;
    }
    std::string text(line);
    text += '\n';
    std::fwrite(text.data(), 1, text.size(), withoutSink);
  } catch (...) {  // a failure to print a diagnostic must not make the operation itself fail
  }
}

}  // namespace

void setDiagnosticsSink(DiagnosticsSink sink) {
  auto replacement = sink ? std::make_shared<const DiagnosticsSink>(std::move(sink)) : nullptr;
  const std::lock_guard lock(destination().mutex);
  destination().sink.swap(replacement);
}

void printDiagnostic(std::string_view line) noexcept {
  print(line, stdout);
}

void printProblem(std::string_view line) noexcept {
  print(line, stderr);
}

}  // namespace glyph
