// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <utility>

#include "glyphorium/export.h"
#include "glyphorium/services/pasteboard/pasteboard.h"

namespace glyph {

/// The clipboard of the X11 or Wayland session that the environment names (DISPLAY, WAYLAND_DISPLAY).
///
/// On both, a program that copies keeps the text and answers those who paste. So that a copy survives the end
/// of this process, a small program in the background keeps it. On X11 that is glyphorium-clipboard-owner,
/// which is installed with the library. It has the clipboard when setPlainText returns, and of two copies the
/// later one stays, also when two processes copy. On Wayland it is wl-copy. Where neither is there or works,
/// xclip or xsel is asked. These two may take the clipboard a moment after setPlainText has returned.
class GLYPHORIUM_EXPORT DesktopPasteboard final : public Pasteboard {
 public:
  /// `limit` is the longest that one setPlainText waits, for a display server that does not answer.
  /// `ownerProgram` is the absolute path of glyphorium-clipboard-owner, for a host that puts it elsewhere.
  /// Empty: the one that was installed with the library, wherever both are now.
  explicit DesktopPasteboard(std::chrono::milliseconds limit = std::chrono::seconds(2),
                             std::string ownerProgram = {})
      : limit_(limit), ownerProgram_(std::move(ownerProgram)) {}

  bool setPlainText(std::string_view text) override;

 private:
  std::chrono::milliseconds limit_;
  std::string ownerProgram_;
};

}  // namespace glyph
