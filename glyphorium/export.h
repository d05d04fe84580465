/* SPDX-License-Identifier: MIT */
#pragma once

/** Marks what the shared library exports; everything else in it is hidden. */
#define GLYPHORIUM_EXPORT __attribute__((visibility("default")))

/** Hides a member of an exported class. */
#define GLYPHORIUM_LOCAL __attribute__((visibility("hidden")))
