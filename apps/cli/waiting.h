// SPDX-License-Identifier: MIT
#pragma once

namespace cli {

/// Limits the time that this program waits for locked settings and a locked search index to five seconds, all
/// waits together. After one
/// second, a message on standard error explains why the program is waiting.
void limitLockWaits();

}  // namespace cli
