// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <functional>

#include "glyphorium/export.h"

namespace glyph {

/// Decides whether an operation on the settings goes on waiting for a file that another process has locked.
/// `waited` is how long this operation has waited so far; false gives up, and the operation fails.
///
/// The policy is asked many times a second on the waiting thread, while the library holds its own locks: it
/// may print or count, but must not use the library.
using LockWaitPolicy = std::function<bool(std::chrono::milliseconds waited)>;

/// Replaces the policy, for a program that must end within a certain time or that tells its user why it
/// waits. The default, which an empty function restores, gives up after five seconds. May be called from any
/// thread.
GLYPHORIUM_EXPORT void setLockWaitPolicy(LockWaitPolicy policy);

}  // namespace glyph
