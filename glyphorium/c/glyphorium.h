/* SPDX-License-Identifier: MIT */
#pragma once

/** Includes the whole C interface. basics.h describes the rules that apply to all functions. */

#include "glyphorium/c/basics.h"
#include "glyphorium/c/catalog.h"
#include "glyphorium/c/codes.h"
#include "glyphorium/c/entities.h"
#include "glyphorium/c/search.h"
#include "glyphorium/c/services.h"
