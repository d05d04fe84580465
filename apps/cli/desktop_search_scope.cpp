// SPDX-License-Identifier: MIT
#include "glyphorium/state/desktop_search_scope.h"

#include "commands.h"

namespace cli {

int desktopSearchScope(Output& output, const std::string& scope) {
  if (!scope.empty() && !glyph::setDesktopSearchesCatalog(scope == "all")) {
    complainOfFailure("the choice could not be saved");
    return notWritten;
  }
  output.printLine(glyph::desktopSearchesCatalog()
                       ? "all: the desktop's search shows characters of the whole catalog"
                       : "mine: the desktop's search shows what you added and what is in an index");
  return found;
}

}  // namespace cli
