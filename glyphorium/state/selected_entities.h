// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "glyphorium/entity/records.h"
#include "glyphorium/export.h"
#include "glyphorium/state/observed.h"

namespace glyph {

/// The list that the host displays, in code-point order; empty until Glyphorium::configure() assigns the
/// first one. Every assignment, also of an equal list, posts "contentHasChanged" on
/// NotificationCenter::defaultCenter(). Its creation is safe from several threads; use it from one thread at
/// a time. It lives until the process ends.
GLYPHORIUM_EXPORT Observed<std::vector<Entity>>& selectedEntities();

/// The host's filtered view of selectedEntities(). The library never writes it. Threads and lifetime as with
/// selectedEntities().
GLYPHORIUM_EXPORT std::optional<std::vector<Entity>>& filteredEntities();

}  // namespace glyph
