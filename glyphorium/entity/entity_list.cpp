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
  // Populate only pages that lie wholly in the list, because other data may share the first and the last
  // page. A kernel older than 5.14 rejects the call and provides the pages one by one on their first use.
  const auto page = static_cast<std::uintptr_t>(sysconf(_SC_PAGESIZE));
  const std::uintptr_t begin = (reinterpret_cast<std::uintptr_t>(list.data()) + page - 1) & ~(page - 1);
  const std::uintptr_t end = reinterpret_cast<std::uintptr_t>(list.data() + count) & ~(page - 1);
  if (begin < end) madvise(reinterpret_cast<void*>(begin), end - begin, MADV_POPULATE_WRITE);
#endif
  return list;
}

}  // namespace glyph
