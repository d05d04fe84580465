// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace provider {

/// Opens a window that searches for the query, and returns at once. The window is glyphorium-browser if that
/// program is installed, otherwise a terminal with the command-line program. An empty query shows the whole
/// catalog. Throws CallError if the terminal or the command-line program is needed but not installed.
void openSearch(const std::string& query);

}  // namespace provider
