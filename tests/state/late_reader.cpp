// SPDX-License-Identifier: MIT
// A host that uses the library's globals at exit: in the destructor of an object, and in a function
// registered with atexit(). The object was created, and the function registered, before the globals were
// created, so both run late.
#include <glyphorium/glyphorium.h>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

void useEverything(const char* where) {
  glyph::filteredEntities().emplace(1);
  glyph::glyphorium().setSelectedGroups({"arrows"});
  glyph::glyphorium().setSelectedEntities();
  std::printf("%s: %zu characters, %zu displayed, %zu groups, %zu names, %s\n", where,
              glyph::glyphorium().buildInEntities().size(), glyph::selectedEntities().size(),
              glyph::allBuildInEntityGroups().size(), glyph::structuredUnicodes().size(),
              glyph::toolKit().getHex(0x2192).c_str());
}

struct Oldest {
  ~Oldest() { useEverything("destructor"); }
};

}  // namespace

int main() {
  static const Oldest oldest;
  std::atexit([] { useEverything("function at exit"); });
  glyph::setDiagnosticsSink([](std::string_view) {});
  glyph::setSettingsStore(std::make_shared<glyph::MemorySettingsStore>());
  glyph::glyphorium().configure();
  glyph::loadStructuredUnicodes();
}
