// SPDX-License-Identifier: MIT
#include "glyphorium/platform/preferred_languages.h"
