// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace provider {

/// Opens a window with the search for the query, and does not wait for it: the browser's, where
/// glyphorium-browser is installed, else the command line's in a terminal. An empty query shows the whole
/// catalog. Throws CallError where there is no terminal or no command line.
void openSearch(const std::string& query);

}  // namespace provider
