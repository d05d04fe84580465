// SPDX-License-Identifier: MIT
#pragma once

#include "glyphorium/export.h"

extern "C" {

/// The version of the library as a number, 1.0.
GLYPHORIUM_EXPORT extern const double GlyphoriumVersionNumber;

/// The version of the library as text.
GLYPHORIUM_EXPORT extern const char GlyphoriumVersionString[];
}
