// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <string_view>

namespace browser {

/// Returns the title of a group of the catalog in the user's language: "Basic Latin" for "latin basic". A
/// group without a title of its own gives its name.
QString groupTitle(std::string_view group);

}  // namespace browser
