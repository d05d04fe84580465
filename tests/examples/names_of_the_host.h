// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// Names that the examples in the documentation use, and that a host must define.
inline void show(const std::string&, const std::string&) {}
inline const std::string typed = "arrow";
