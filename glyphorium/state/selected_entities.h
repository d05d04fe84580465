// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <vector>

#include "glyphorium/entity/records.h"
#include "glyphorium/export.h"
#include "glyphorium/state/observed.h"

namespace glyph {

namespace state_observers {
/// Posts "contentHasChanged" on the default notification center.
GLYPHORIUM_EXPORT void selectedEntitiesDidSet(const std::vector<Entity>& entities);
}  // namespace state_observers

using SelectedEntities = Observed<std::vector<Entity>, state_observers::selectedEntitiesDidSet>;

/// The list that the host displays, in code-point order; empty until Glyphorium::configure(). Every
/// assignment, also of an equal list, posts "contentHasChanged". To be used from one thread at a time; its
/// creation is safe from several.
GLYPHORIUM_EXPORT SelectedEntities& selectedEntities();

/// The host's filtered view of it. The library never writes it.
GLYPHORIUM_EXPORT std::optional<std::vector<Entity>>& filteredEntities();

}  // namespace glyph
