// SPDX-License-Identifier: MIT
#pragma once

namespace cli {

/// Limits the total time that this program waits for locked settings and for a locked search index to five
/// seconds. After one second, a message on standard error explains why the program is waiting.
void limitLockWaits();

}  // namespace cli
