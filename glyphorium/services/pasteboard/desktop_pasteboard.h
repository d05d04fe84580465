// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <string>
#include <string_view>
#include <utility>

#include "glyphorium/export.h"
#include "glyphorium/services/pasteboard/pasteboard.h"

namespace glyph {

/// The clipboard of the X11 or Wayland session that the environment variables DISPLAY and WAYLAND_DISPLAY
/// name.
///
/// On X11 and on Wayland, the program that copies keeps the text and sends it to the programs that paste. A
/// copy must remain after this process ends, so a small program in the background keeps the text. On X11 this
/// is glyphorium-clipboard-owner, which is installed with the library. It owns the clipboard when
/// setPlainText() returns. If several processes copy, the copy that was requested last remains. On Wayland
/// the program is wl-copy. If neither program works and DISPLAY is set, xclip or xsel is used. These two
/// programs may set the clipboard a moment after setPlainText() has returned.
class GLYPHORIUM_EXPORT DesktopPasteboard final : public Pasteboard {
 public:
  /// `limit` is the longest time that one call of setPlainText() waits for a display server that does not
  /// answer. `ownerProgram` is the absolute path of glyphorium-clipboard-owner, for a host that installs the
  /// program elsewhere. If the path is empty, the program that was installed with the library is used, even
  /// if both were moved together.
  explicit DesktopPasteboard(std::chrono::milliseconds limit = std::chrono::seconds(2),
                             std::string ownerProgram = {})
      : limit_(limit), ownerProgram_(std::move(ownerProgram)) {}

  bool setPlainText(std::string_view text) override;

 private:
  std::chrono::milliseconds limit_;
  std::string ownerProgram_;
};

}  // namespace glyph
