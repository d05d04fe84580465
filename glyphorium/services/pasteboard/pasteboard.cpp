// SPDX-License-Identifier: MIT
#include "glyphorium/services/pasteboard/pasteboard.h"

#include <utility>

#include "glyphorium/services/pasteboard/desktop_pasteboard.h"
#include "glyphorium/text/never_destroyed.h"

namespace glyph {
namespace {

struct Current {
  std::mutex mutex;
  std::shared_ptr<Pasteboard> pasteboard = std::make_shared<DesktopPasteboard>();
};

Current& current() {
  static NeverDestroyed<Current> instance;
  return *instance;
}

}  // namespace

Pasteboard::~Pasteboard() = default;

std::shared_ptr<Pasteboard> pasteboard() {
  const std::lock_guard lock(current().mutex);
  return current().pasteboard;
}

void setPasteboard(std::shared_ptr<Pasteboard> replacement) {
  if (!replacement) replacement = std::make_shared<DesktopPasteboard>();
  const std::lock_guard lock(current().mutex);
  current().pasteboard.swap(replacement);
}

bool MemoryPasteboard::setPlainText(std::string_view text) {
  const std::lock_guard lock(mutex_);
  text_ = text;
  return true;
}

std::optional<std::string> MemoryPasteboard::plainText() const {
  const std::lock_guard lock(mutex_);
  return text_;
}

}  // namespace glyph
