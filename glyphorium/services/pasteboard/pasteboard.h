// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// A clipboard whose whole content can be replaced by one plain text.
class GLYPHORIUM_EXPORT Pasteboard {
 public:
  virtual ~Pasteboard();

  /// Replaces the whole content, of whatever types, by the one plain text (UTF-8; empty and NUL are texts
  /// like others). True where the clipboard took it; the reason of a failure goes to the diagnostics. Throws
  /// nothing. Safe to call from any thread.
  virtual bool setPlainText(std::string_view text) = 0;
};

/// The pasteboard in place: until a host sets another, the desktop's (DesktopPasteboard). Never null.
GLYPHORIUM_EXPORT std::shared_ptr<Pasteboard> pasteboard();

/// Puts the host's pasteboard in place; null goes back to the desktop's.
GLYPHORIUM_EXPORT void setPasteboard(std::shared_ptr<Pasteboard> replacement);

/// A pasteboard of this process alone, for tests and for hosts without a desktop.
class GLYPHORIUM_EXPORT MemoryPasteboard final : public Pasteboard {
 public:
  bool setPlainText(std::string_view text) override;
  /// The text set last; nullopt before the first.
  std::optional<std::string> plainText() const;

 private:
  mutable std::mutex mutex_;
  std::optional<std::string> text_;
};

}  // namespace glyph
