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

  /// Replaces the whole content, whatever its types, by one plain text in UTF-8. The text may be empty and
  /// may contain NUL. Returns true when the clipboard has taken the text; else prints the reason as a
  /// diagnostic. Throws nothing and may be called from any thread.
  virtual bool setPlainText(std::string_view text) = 0;
};

/// The pasteboard that the library copies to. It is a DesktopPasteboard until a host sets another one. Never
/// null.
GLYPHORIUM_EXPORT std::shared_ptr<Pasteboard> pasteboard();

/// Makes the library copy to another pasteboard. Null: to a DesktopPasteboard again.
GLYPHORIUM_EXPORT void setPasteboard(std::shared_ptr<Pasteboard> replacement);

/// A pasteboard that keeps its text in this process, for tests and for hosts without a desktop.
class GLYPHORIUM_EXPORT MemoryPasteboard final : public Pasteboard {
 public:
  bool setPlainText(std::string_view text) override;
  /// The text that was set last. nullopt before the first.
  std::optional<std::string> plainText() const;

 private:
  mutable std::mutex mutex_;
  std::optional<std::string> text_;
};

}  // namespace glyph
