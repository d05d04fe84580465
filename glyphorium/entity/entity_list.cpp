// SPDX-License-Identifier: MIT
#include "glyphorium/entity/entity_list.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cstdint>

namespace glyph {

std::vector<Entity> entityListFor(std::size_t count) {
  std::vector<Entity> list;
  list.reserve(count);
#ifdef MADV_POPULATE_WRITE
  // Only whole pages, because other data may be on the first page and on the last one. A kernel before 5.14
  // refuses this, and then provides the pages one by one.
  const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  const std::uintptr_t begin = (reinterpret_cast<std::uintptr_t>(list.data()) + page - 1) & ~(page - 1);
  const std::uintptr_t end = reinterpret_cast<std::uintptr_t>(list.data() + count) & ~(page - 1);
  if (begin < end) madvise(reinterpret_cast<void*>(begin), end - begin, MADV_POPULATE_WRITE);
#endif
  return list;
}

}  // namespace glyph
