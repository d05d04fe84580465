// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "glyphorium/export.h"
#include "glyphorium/services/pasteboard/pasteboard.h"

namespace glyph {

/// The clipboard of the machine on which the terminal runs. The text is sent with the control sequence OSC
/// 52. This works through ssh and without a display. A terminal does not answer, and many terminals ignore
/// the sequence until the user permits it. Success therefore means only that the sequence was written to the
/// terminal. Because this class writes to the user's terminal, the library uses it only if the host sets it
/// with setPasteboard().
class GLYPHORIUM_EXPORT TerminalPasteboard final : public Pasteboard {
 public:
  /// The length in bytes of the longest text that terminals are known to accept. Terminals ignore longer
  /// sequences without an error.
  static constexpr std::size_t maximumLength = 74'000;

  /// `device` is the path of the terminal device. The default is the terminal of this process.
  explicit TerminalPasteboard(std::string device = "/dev/tty");

  /// Returns false if the text is empty, because terminals do not accept an empty text, or if it is longer
  /// than maximumLength. Also returns false if the terminal cannot be opened or does not accept all bytes
  /// within two seconds.
  bool setPlainText(std::string_view text) override;

 private:
  std::string device_;
};

}  // namespace glyph
