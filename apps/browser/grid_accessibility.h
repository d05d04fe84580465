// SPDX-License-Identifier: MIT
#pragma once

namespace browser {

/// Makes every CharacterGrid accessible to assistive technology, as a list whose items are the cells.
void installGridAccessibility();

}  // namespace browser
