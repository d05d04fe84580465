// SPDX-License-Identifier: MIT
#include "host_indexes.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <string>

#include "glyphorium/services/application/application.h"

namespace provider {
namespace {

using namespace std::chrono_literals;

// The maximum numbers of indexes and of directory entries that are read. Real users have fewer indexes.
// Other programs also create entries in the directory, and a huge directory must not delay the search.
constexpr std::size_t mostIndexes = 16;
constexpr int mostEntries = 2000;

// Whether the file is a regular file that this user owns. Other files must not be opened: opening a FIFO
// would block until it has a writer, and a symbolic link may lead to any file.
bool isOwnRegularFile(const std::filesystem::path& file) {
  struct stat status {};
  return lstat(file.c_str(), &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == geteuid();
}

std::vector<std::string> entries(const std::filesystem::path& directory) {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> opened(opendir(directory.c_str()), closedir);
  if (!opened) return names;
  for (int i = 0; i < mostEntries; ++i) {
    const dirent* const entry = readdir(opened.get());
    if (!entry) break;
    if (entry->d_name[0] != '.') names.emplace_back(entry->d_name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace

void HostIndexes::lookForFiles() {
  if (Clock::now() < lookAgainAt_) return;
  lookAgainAt_ = Clock::now() + 1s;
  files_.clear();
  const auto own = glyph::applicationDataDirectory();
  if (!own) return;
  files_.push_back(*own / "index.sqlite");
  for (const std::string& name : entries(own->parent_path())) {
    const std::filesystem::path file = own->parent_path() / name / "index.sqlite";
    if (files_.size() == mostIndexes) break;
    if (file != files_.front() && isOwnRegularFile(file)) files_.push_back(file);
  }
  std::erase_if(indexes_, [&](const auto& index) {
    return std::find(files_.begin(), files_.end(), index.first) == files_.end();
  });
}

// Calls `question` for one index after the other until it returns true. If another program has locked an
// index, reading it takes up to half a second. Desktops send a query for every key press, and each query
// would take this long. Therefore, an index that caused a wait is skipped for one second.
void HostIndexes::ask(const std::function<bool(glyph::SearchableIndexReader&)>& question) {
  lookForFiles();
  for (const std::filesystem::path& file : files_) {
    if (!isOwnRegularFile(file)) {
      indexes_.erase(file);
      continue;
    }
    Index& index = indexes_.try_emplace(file, Index{glyph::SearchableIndexReader(file)}).first->second;
    const auto begin = Clock::now();
    if (begin < index.skippedUntil) continue;
    const bool done = question(index.reader);
    if (Clock::now() - begin > 400ms) index.skippedUntil = Clock::now() + 1s;
    if (done) return;
  }
}

std::optional<glyph::SearchableItem> HostIndexes::item(std::string_view identifier) {
  std::optional<glyph::SearchableItem> found;
  ask([&](glyph::SearchableIndexReader& reader) { return (found = reader.item(identifier)).has_value(); });
  return found;
}

std::vector<glyph::SearchableItem> HostIndexes::search(std::string_view query, int limit) {
  std::vector<glyph::SearchableItem> found;
  ask([&](glyph::SearchableIndexReader& reader) {
    std::vector<glyph::SearchableItem> items = reader.search(query, limit);
    std::move(items.begin(), items.end(), std::back_inserter(found));
    return false;
  });
  return found;
}

}  // namespace provider
