// SPDX-License-Identifier: MIT
#include "tests/memory/failing_new.h"

#include <cstdlib>
#include <new>

namespace {

struct State {
  bool active = false;
  bool once = false;
  std::size_t failing = 0;
  std::size_t calls = 0;
};
thread_local State state;

void* allocated(std::size_t size) noexcept {
  if (state.active) {
    ++state.calls;
    if (state.once ? state.calls == state.failing : state.calls >= state.failing) return nullptr;
  }
  return std::malloc(size > 0 ? size : 1);
}

}  // namespace

namespace glyph {

FailingNew::FailingNew(std::size_t k, Mode mode) {
  state = {true, mode == Mode::once, k, 0};
}
FailingNew::~FailingNew() {
  state.active = false;
}
std::size_t FailingNew::calls() const {
  return state.calls;
}

}  // namespace glyph

// All forms together (but those for over-aligned types, which nobody here uses): a sanitizer has its own of
// each, and notices memory that goes from one to the other.
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
