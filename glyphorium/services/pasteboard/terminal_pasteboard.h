// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "glyphorium/export.h"
#include "glyphorium/services/pasteboard/pasteboard.h"

namespace glyph {

/// The clipboard of the machine on which the terminal runs, reached by the control sequence OSC 52. It works
/// through ssh and without a display. A terminal does not answer, and many ignore the sequence until the user
/// permits it. Success therefore means only that the terminal was asked. The library uses it only where a
/// host sets it, because it writes to the user's terminal.
class GLYPHORIUM_EXPORT TerminalPasteboard final : public Pasteboard {
 public:
  /// The longest text in bytes that terminals are known to take. They ignore longer sequences silently.
  static constexpr std::size_t maximumLength = 74'000;

  /// `device` is the path of the terminal. The default is the terminal of this process.
  explicit TerminalPasteboard(std::string device = "/dev/tty");

  /// False for the empty text, which terminals do not take, and for a text longer than maximumLength. Also
  /// false where there is no terminal, or where it does not accept the bytes within two seconds.
  bool setPlainText(std::string_view text) override;

 private:
  std::string device_;
};

}  // namespace glyph
