// SPDX-License-Identifier: MIT
#include "glyphorium/version.h"

extern "C" {

constinit const double GlyphoriumVersionNumber = 1.0;
constinit const char GlyphoriumVersionString[] = GLYPHORIUM_VERSION;
}
