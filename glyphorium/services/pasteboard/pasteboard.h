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

  /// Replaces the whole content, of all types, by one plain text in UTF-8. The text may be empty and may
  /// contain NUL. Returns true if the clipboard has accepted the text. Otherwise prints the reason as a
  /// diagnostic and returns false. Does not throw exceptions. May be called from any thread.
  virtual bool setPlainText(std::string_view text) = 0;
};

/// Returns the pasteboard to which the library copies: a DesktopPasteboard, until the host sets another one.
/// Never returns null. May be called from any thread.
GLYPHORIUM_EXPORT std::shared_ptr<Pasteboard> pasteboard();

/// Makes the library copy to another pasteboard. Null restores a DesktopPasteboard. May be called from any
/// thread.
GLYPHORIUM_EXPORT void setPasteboard(std::shared_ptr<Pasteboard> replacement);

/// A pasteboard that keeps its text in this process, for tests and for hosts without a desktop.
class GLYPHORIUM_EXPORT MemoryPasteboard final : public Pasteboard {
 public:
  bool setPlainText(std::string_view text) override;
  /// Returns the text that was set last, or nullopt if no text has been set.
  std::optional<std::string> plainText() const;

 private:
  mutable std::mutex mutex_;
  std::optional<std::string> text_;
};

}  // namespace glyph
