// SPDX-License-Identifier: MIT
#include "tests/memory/failing_new.h"

#include <cstdlib>
#include <new>

namespace glyph {

thread_local FailingNew failingNew;

}  // namespace glyph

namespace {

void* allocated(std::size_t size) noexcept {
  auto& [first, last, calls] = glyph::failingNew;
  ++calls;
  return first <= calls && calls <= last ? nullptr : std::malloc(size > 0 ? size : 1);
}

}  // namespace

// Replaces all forms of operator new and delete except the forms for over-aligned types, which this program
// does not use. All forms must be replaced, because the address sanitizer reports memory that is allocated by
// one implementation and freed by another.
void* operator new(std::size_t size) {
  if (void* const memory = allocated(size)) return memory;
  throw std::bad_alloc();
}
void* operator new[](std::size_t size) {
  return operator new(size);
}
void* operator new(std::size_t size, const std::nothrow_t&) noexcept {
  return allocated(size);
}
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept {
  return allocated(size);
}
void operator delete(void* memory) noexcept {
  std::free(memory);
}
void operator delete[](void* memory) noexcept {
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept {
  std::free(memory);
}
void operator delete(void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}
void operator delete[](void* memory, const std::nothrow_t&) noexcept {
  std::free(memory);
}
