// SPDX-License-Identifier: MIT
#pragma once

/// Marks what the shared library exports; everything else in it is hidden.
#define GLYPHORIUM_EXPORT __attribute__((visibility("default")))
