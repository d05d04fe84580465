// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string_view>

namespace browser {

/// Returns the title of a group of the catalog in the user's language: "Basic Latin" for "latin basic".
/// Returns the name of the group if there is no title for it.
QString groupTitle(std::string_view group);

}  // namespace browser
