// SPDX-License-Identifier: MIT
#pragma once

#include <string_view>

/// The names of the notifications on NotificationCenter::defaultCenter(). The text of each name equals the
/// name of its constant. The library itself posts only entityCopied and contentHasChanged. The other names
/// are for hosts and their plug-ins. The library declares them so that hosts and plug-ins use the same names.
namespace glyph::notificationName {

inline constexpr std::string_view appAppearanceChanged = "appAppearanceChanged";
/// A text was copied. The object is the displayed text if the caller gave one, otherwise the copied text.
inline constexpr std::string_view entityCopied = "entityCopied";
/// A new list of selected entities was assigned. This notification has no object.
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
