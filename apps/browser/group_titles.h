// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace browser {

/// Returns the title of a group of the catalog in the user's language: "Basic Latin" for "latin basic".
/// Returns the name of the group if there is no title for it.
QString groupTitle(std::string_view group);

/// Returns the title of a block of Unicode in the user's language, or the name of the block if it has no
/// translation.
QString blockTitle(const std::string& block);

}  // namespace browser
