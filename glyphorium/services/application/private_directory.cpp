// SPDX-License-Identifier: MIT
#include "glyphorium/services/application/private_directory.h"

#include <sys/stat.h>

#include <cerrno>

namespace glyph {

bool createPrivateDirectory(const std::filesystem::path& directory) {
  if (mkdir(directory.c_str(), 0700) == 0) return true;
  if (errno == EEXIST) {
    struct stat status {};
    if (stat(directory.c_str(), &status) != 0) return false;
    if (S_ISDIR(status.st_mode)) return true;
    errno = ENOTDIR;
    return false;
  }
  if (errno != ENOENT || !directory.has_parent_path() || directory.parent_path() == directory) return false;
  return createPrivateDirectory(directory.parent_path()) &&
         (mkdir(directory.c_str(), 0700) == 0 || errno == EEXIST);
}

}  // namespace glyph
