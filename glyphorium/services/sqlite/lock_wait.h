// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

#include "glyphorium/export.h"

namespace glyph {

/// Decides whether to continue to wait for a file that another process has locked: the settings or the search
/// index. `waited` is the time that this operation on the settings, or this batch of index requests, has
/// waited so far. If the policy returns false or throws, the operation fails.
///
/// The policy is called many times a second on the waiting thread. An operation on the index waits on a
/// thread of the library, so several threads may call the policy at the same time. The library holds its
/// own mutexes during the call, so the policy may print or count, but must not call the library.
using LockWaitPolicy = std::function<bool(std::chrono::milliseconds waited)>;

/// Replaces the policy. A program needs its own policy if it must end within a certain time, or if it tells
/// its user why it waits. The default policy stops waiting after five seconds; an empty function restores it.
/// May be called from any thread.
GLYPHORIUM_EXPORT void setLockWaitPolicy(LockWaitPolicy policy);

}  // namespace glyph
