// SPDX-License-Identifier: MIT
#pragma once

#include <cstring>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "glyphorium/c/basics.h"
#include "glyphorium/c/entities.h"
#include "glyphorium/entity/records.h"

// The types behind the handles of the C interface, and helpers that its functions share: status, exceptions,
// and the conversion of arguments and results.

struct glyphorium_texts {
  std::vector<std::string> list;
};

struct glyphorium_entities {
  std::vector<glyph::Entity> list;
};

namespace glyph::c {

/// Sets the status that glyphorium_last_status() returns on this thread.
void setStatus(glyphorium_status status) noexcept;

/// Runs the body of a function and returns its result. Returns the neutral value of the result's type if the
/// body throws.
template <class Body>
auto guarded(Body body) noexcept -> decltype(body()) {
  setStatus(GLYPHORIUM_OK);
  try {
    return body();
  } catch (const std::bad_alloc&) {
    setStatus(GLYPHORIUM_OUT_OF_MEMORY);
  } catch (...) {
    setStatus(GLYPHORIUM_FAILED);
  }
  return decltype(body())();
}

/// The result of a function that got a bad argument. Sets the status and converts to the neutral value of
/// the function's result type.
struct InvalidArgument {
  InvalidArgument() { setStatus(GLYPHORIUM_INVALID_ARGUMENT); }
  template <class T>
  operator T() const {  // implicit, because it is returned as any result type
    return T();
  }
};

/// Returns `success`. If it is false, sets the status to GLYPHORIUM_FAILED.
inline bool succeeded(bool success) {
  if (!success) setStatus(GLYPHORIUM_FAILED);
  return success;
}

/// A pointer to an Entity serves as the handle; the type glyphorium_entity is declared but never defined.
inline const Entity& entityOf(const glyphorium_entity* handle) {
  return *reinterpret_cast<const Entity*>(handle);
}
inline const glyphorium_entity* handleOf(const Entity& entity) {
  return reinterpret_cast<const glyphorium_entity*>(&entity);
}

inline glyphorium_text borrowed(std::string_view text) {
  return {text.data(), text.size()};
}
template <class Text>
glyphorium_text borrowed(const std::optional<Text>& text) {
  return text ? borrowed(std::string_view(*text)) : glyphorium_text{nullptr, 0};
}

/// Copies a text for the caller, who frees it with glyphorium_free().
char* owned(std::string_view text, std::size_t* size);
inline char* owned(std::string_view text) {
  return owned(text, nullptr);
}
template <class Text>
char* owned(const std::optional<Text>& text, std::size_t* size = nullptr) {
  return text ? owned(std::string_view(*text), size) : nullptr;
}

inline std::string_view textOf(const char* text, std::size_t size) {
  return size == GLYPHORIUM_TERMINATED ? std::string_view(text) : std::string_view(text, size);
}

/// Returns the texts of an array. Returns nullopt if the array or one of its elements is NULL.
std::optional<std::vector<std::string>> textsOf(const char* const* texts, std::size_t count);

/// Returns a handle for a list of texts.
inline glyphorium_texts* handleOf(std::vector<std::string> texts) {
  return new glyphorium_texts{std::move(texts)};
}
inline glyphorium_entities* handleOf(std::vector<Entity> entities) {
  return new glyphorium_entities{std::move(entities)};
}

/// Owns the `user` pointer of a callback. When the last copy is destroyed, it calls `destroy`.
inline std::shared_ptr<void> userOf(void* user, glyphorium_destroy destroy) {
  return {user, [destroy](void* pointer) {
            if (destroy) destroy(pointer);
          }};
}

/// Returns a copy of the host's structure. A host that was built with an older version passes a shorter
/// structure; the members that it lacks are zero in the copy. Returns nullopt if the structure is shorter
/// than `least` bytes.
template <class Structure>
std::optional<Structure> structureOf(const Structure* given, std::size_t least) {
  if (given->struct_size < least) return std::nullopt;
  Structure result{};
  std::memcpy(&result, given, std::min(given->struct_size, sizeof result));
  return result;
}

}  // namespace glyph::c
