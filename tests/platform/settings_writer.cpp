// SPDX-License-Identifier: MIT
// A process of its own that writes settings, for tests of several processes and of sudden death:
//   settings_writer FILE count            replaces "state" by the next one for ever; prints each number once
//   saved settings_writer FILE append TAG N     appends TAG0 … to "list", one update each
#include "tests/platform/settings_writer.h"

#include <unistd.h>

#include <cstdlib>
#include <string_view>

#include "glyphorium/platform/sqlite_settings_store.h"

int main(int argc, char** argv) {
  using glyph::SettingValue;
  using List = std::vector<std::string>;
  if (argc < 3) return 2;
  glyph::SqliteSettingsStore store{std::filesystem::path(argv[1])};
  const std::string_view mode = argv[2];

  if (mode == "append" && argc == 5) {
    for (int i = 0; i < std::atoi(argv[4]); ++i) {
      store.update("list", [&](std::optional<SettingValue> present) -> std::optional<SettingValue> {
        List list = present ? std::get<List>(*present) : List{};
        list.push_back(argv[3] + std::to_string(i));
        return list;
      });
    }
    return store.synchronize() ? 0 : 1;
  }

  if (mode != "count") return 2;
  const auto stored = store.object("state");
  for (long number = stored ? std::stol(std::get<List>(*stored).front()) : 0;;) {
    ++number;
    store.set("state", glyph::settingsState(number));
    if (!store.synchronize()) return 1;
    const std::string line = std::to_string(number) + "\n";
    if (write(STDOUT_FILENO, line.data(), line.size()) < 0) return 1;
  }
}
