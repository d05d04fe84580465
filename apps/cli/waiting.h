// SPDX-License-Identifier: MIT
#pragma once

namespace cli {

/// From now on, all waits of this program for locked settings share five seconds, and after one second the user is
/// told why the program waits.
void limitLockWaits();

}  // namespace cli
