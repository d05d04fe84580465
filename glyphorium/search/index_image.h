// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "glyphorium/search/index.h"

namespace glyph::search {

/// An index in one block of bytes without pointers, which is used where it lies. Machines of the same byte
/// order make the same image from the same entities. Its address must be a multiple of eight.
using IndexImage = std::vector<std::byte>;

IndexImage packed(const Index& index);

/// The index in an image. The image must outlive it.
Index openIndex(std::span<const std::byte> image);

/// The image that the build made of the entities that configure() puts into buildInEntities().
std::span<const std::byte> catalogIndexImage();

}  // namespace glyph::search
