// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// The names of the notifications on NotificationCenter::defaultCenter(), each equal to its raw value. The
/// library posts entityCopied and contentHasChanged; the others are for the host's own use, so that hosts and
/// their plug-ins agree on them.
namespace glyph::notificationName {

inline constexpr std::string_view appAppearanceChanged = "appAppearanceChanged";
/// A text was copied. Its object is the displayed text where one was given, else the copied text.
inline constexpr std::string_view entityCopied = "entityCopied";
/// The list of selected entities was assigned. No object.
inline constexpr std::string_view contentHasChanged = "contentHasChanged";
inline constexpr std::string_view filteredContentHasChanged = "filteredContentHasChanged";
inline constexpr std::string_view preferencesGlyphGridChanged = "preferencesGlyphGridChanged";
inline constexpr std::string_view selectedGroupsHasChanged = "selectedGroupsHasChanged";
inline constexpr std::string_view escapeKeyDown = "escapeKeyDown";
inline constexpr std::string_view cardViewBecomeFirstResponder = "cardViewBecomeFirstResponder";
inline constexpr std::string_view cardViewResignFirstResponder = "cardViewResignFirstResponder";
inline constexpr std::string_view listViewBecomeFirstResponder = "listViewBecomeFirstResponder";
inline constexpr std::string_view listViewResignFirstResponder = "listViewResignFirstResponder";
inline constexpr std::string_view frequentlyUsedEntitiesChanged = "frequentlyUsedEntitiesChanged";

}  // namespace glyph::notificationName
