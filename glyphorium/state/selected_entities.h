// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "glyphorium/entity/records.h"
#include "glyphorium/export.h"
#include "glyphorium/state/observed.h"

namespace glyph {

/// Returns the list that the host displays, in code-point order. It is empty until Glyphorium::configure()
/// assigns the first list. Every assignment, even of an equal list, posts "contentHasChanged" on
/// NotificationCenter::defaultCenter(). The first call creates the list; several threads may make this call
/// at once. Use the list from one thread at a time. It lives until the process ends.
GLYPHORIUM_EXPORT Observed<std::vector<Entity>>& selectedEntities();

/// Returns the host's filtered view of selectedEntities(). The library never writes it. The rules about
/// threads and lifetime are those of selectedEntities().
GLYPHORIUM_EXPORT std::optional<std::vector<Entity>>& filteredEntities();

}  // namespace glyph
