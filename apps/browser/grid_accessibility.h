// SPDX-License-Identifier: MIT
#pragma once

namespace browser {

/// Lets assistive technology read and use every CharacterGrid: a list whose items are the cells.
void installGridAccessibility();

}  // namespace browser
