// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string_view>

#include "glyphorium/export.h"
#include "glyphorium/services/pasteboard/pasteboard.h"

namespace glyph {

/// The clipboard of the X11 or Wayland session that the environment names (DISPLAY, WAYLAND_DISPLAY). On both
/// a clipboard's content lives in the program that offers it, so the text is handed to a small program that
/// stays behind: wl-copy, xclip or xsel, whichever is installed and suits the session. The copy therefore
/// survives the end of this process.
class GLYPHORIUM_EXPORT DesktopPasteboard final : public Pasteboard {
 public:
  /// `limit` bounds one setPlainText, which else would wait for ever for a display server that does not
  /// answer.
  explicit DesktopPasteboard(std::chrono::milliseconds limit = std::chrono::seconds(2)) : limit_(limit) {}

  bool setPlainText(std::string_view text) override;

 private:
  std::chrono::milliseconds limit_;
};

}  // namespace glyph
