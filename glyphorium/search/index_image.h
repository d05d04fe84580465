// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "glyphorium/search/index.h"

namespace glyph::search {

/// An index as one block of bytes. It contains no pointers, so it is used in place, without unpacking or
/// copying. The address of an image must be a multiple of eight. The same entities give the same image on all
/// machines with the same byte order.
using IndexImage = std::vector<std::byte>;

/// Returns an image with a copy of the index. If `docEntity` is empty, openIndex() uses `docCodePoint` in its
/// place.
IndexImage packed(const Index& index);

/// Returns the index in an image. The index consists of views of the image, so the image must outlive it. The
/// image must come from packed() on a machine with the same byte order. This is not checked.
Index openIndex(std::span<const std::byte> image);

/// Returns the image that is part of the library. The build makes it from the entities that configure() puts
/// into buildInEntities().
std::span<const std::byte> catalogIndexImage();

/// Returns the image of the supplement that is part of the library: see supplement_indexing.h.
std::span<const std::byte> supplementIndexImage();

}  // namespace glyph::search
