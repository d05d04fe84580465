// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// The application identifier of this project's own hosts, a reverse-DNS name.
inline constexpr std::string_view defaultApplicationIdentifier = "org.glyphorium.Glyphorium";

/// The reverse-DNS identifier of the host application. It names the directories of its settings and its
/// search index and is the domain of its items in that index.
GLYPHORIUM_EXPORT std::string applicationIdentifier();

/// Sets the identifier. Call it before the first use of settings, clipboard or index. A text that is no file
/// name (empty, ".", "..", or with "/" or NUL in it) is ignored, and a diagnostic line says so.
GLYPHORIUM_EXPORT void setApplicationIdentifier(std::string_view identifier);

/// The application's own directory below $XDG_CONFIG_HOME (by default ~/.config) and below $XDG_DATA_HOME (by
/// default ~/.local/share), by the XDG base directory rules of freedesktop.org: a relative path in those
/// variables is ignored. If HOME is unset, the user database gives the home directory. Nothing is created;
/// nullopt if no home directory is known.
GLYPHORIUM_EXPORT std::optional<std::filesystem::path> applicationConfigDirectory();
GLYPHORIUM_EXPORT std::optional<std::filesystem::path> applicationDataDirectory();

}  // namespace glyph
