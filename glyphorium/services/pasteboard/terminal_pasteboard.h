// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "glyphorium/export.h"
#include "glyphorium/services/pasteboard/pasteboard.h"

namespace glyph {

/// The clipboard of the terminal's own machine, by the control sequence OSC 52: it works through ssh and
/// without a display. A terminal does not answer, and many ignore the sequence until the user permits it, so
/// success means only that the terminal was asked. Never in place by itself: the bytes go into a screen that
/// is not ours to write to unless the user wants it.
class GLYPHORIUM_EXPORT TerminalPasteboard final : public Pasteboard {
 public:
  /// What terminals are known to take, in bytes of text; longer sequences are dropped without a word.
  static constexpr std::size_t maximumLength = 74'000;

  explicit TerminalPasteboard(std::string device = "/dev/tty");

  /// False for the empty text, which terminals do not take, for one longer than maximumLength, and where
  /// there is no terminal or it does not accept the bytes within two seconds.
  bool setPlainText(std::string_view text) override;

 private:
  std::string device_;
};

}  // namespace glyph
