// SPDX-License-Identifier: MIT
#pragma once

#include <glyphorium/services/pasteboard/pasteboard.h>

#include <memory>

namespace browser {

/// Returns a pasteboard for the library that uses Qt's clipboard. Create it once, after the QGuiApplication.
/// When the application quits, the text is handed to a program in the background, so that it can still be
/// pasted.
std::shared_ptr<glyph::Pasteboard> applicationPasteboard();

}  // namespace browser
