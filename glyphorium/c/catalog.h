/* SPDX-License-Identifier: MIT */
#pragma once

/** The catalog of the process: its entities and groups, the groups that the user displays and the characters
 * that the user added. One thread at a time may use these functions; a host with several threads must lock a
 * mutex of its own around the calls. When a function that changes the user's choices returns true, the change
 * is stored durably. */

#include "glyphorium/c/entities.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Fills the catalog from the embedded tables and the user's stored choices, and builds the displayed list.
 * Each further call replaces the whole content. Takes a few milliseconds. Returns false only if memory runs
 * out. */
GLYPHORIUM_EXPORT bool glyphorium_configure(void);

/** Return all entities of the tables, in the order of the tables; the displayed entities, in code-point
 * order; and the entities of the characters that the user added, in the order of adding. The lists are empty
 * before glyphorium_configure(). */
GLYPHORIUM_EXPORT glyphorium_entities *glyphorium_all_entities(void);
GLYPHORIUM_EXPORT glyphorium_entities *glyphorium_displayed_entities(void);
GLYPHORIUM_EXPORT glyphorium_entities *glyphorium_custom_entities(void);

/** Returns the characters that a text names exactly: by the character itself, by codes, or by a name. For
 * each character, the list contains its first entity in the catalog. The list is empty if the text names no
 * character. If `alternatives` is not NULL, it is set to whether the list contains several characters that
 * have the text as their name, so that the user probably means only one of them. The catalog must be
 * configured. */
GLYPHORIUM_EXPORT glyphorium_entities *glyphorium_resolve(const char *text, size_t size, bool *alternatives);

/** Returns the names of the groups in display order. Empty before glyphorium_configure(). */
GLYPHORIUM_EXPORT glyphorium_texts *glyphorium_groups(void);
/** Returns the number of entities of the group, 0 if there is no such group. Case-sensitive. */
GLYPHORIUM_EXPORT int64_t glyphorium_group_count(const char *group);
/** Returns the name of the group in the catalog's spelling. `name` is not case-sensitive. Owned; NULL if
 * there is no such group. */
GLYPHORIUM_EXPORT char *glyphorium_group_named(const char *name);

/** Returns the names of the displayed groups in display order, as stored. */
GLYPHORIUM_EXPORT glyphorium_texts *glyphorium_displayed_groups(void);
/** Stores the names, without checking them. The displayed list changes when glyphorium_rebuild_displayed() is
 * called. */
GLYPHORIUM_EXPORT bool glyphorium_set_displayed_groups(const char *const *groups, size_t count);
/** Appends the name in lower case, unless the list already contains it. */
GLYPHORIUM_EXPORT bool glyphorium_add_displayed_group(const char *group);
/** Removes the name. Not case-sensitive. */
GLYPHORIUM_EXPORT bool glyphorium_remove_displayed_group(const char *group);
/** Return or set a flag. Storing displayed groups sets it to true; only the host sets it to false. */
GLYPHORIUM_EXPORT bool glyphorium_displayed_groups_changed(void);
GLYPHORIUM_EXPORT void glyphorium_set_displayed_groups_changed(bool changed);
/** Builds the displayed list from the displayed groups and posts "contentHasChanged". */
GLYPHORIUM_EXPORT bool glyphorium_rebuild_displayed(void);

/** Return or replace the hex codes that are left out of the displayed list. They are not stored in the
 * settings. */
GLYPHORIUM_EXPORT glyphorium_texts *glyphorium_forbidden_codes(void);
GLYPHORIUM_EXPORT bool glyphorium_set_forbidden_codes(const char *const *codes, size_t count);

/** Returns the hex codes or hex lists that the user added, in the order of adding, as stored. */
GLYPHORIUM_EXPORT glyphorium_texts *glyphorium_custom_codes(void);
/** Replace the list of codes, add codes to it, or remove codes from it. The codes are not checked. A call
 * stores either all of its changes or none. It also updates the lists of the catalog and, if
 * glyphorium_indexes_custom() is true, the desktop's search index. A code that the list already contains
 * keeps its place when it is added again. */
GLYPHORIUM_EXPORT bool glyphorium_set_custom_codes(const char *const *codes, size_t count);
GLYPHORIUM_EXPORT bool glyphorium_add_custom_codes(const char *const *codes, size_t count);
GLYPHORIUM_EXPORT bool glyphorium_remove_custom_codes(const char *const *codes, size_t count);

/** Returns the reason why the last attempt to read the choices failed, as a sentence for people. Owned; NULL
 * if the attempt succeeded. With this function a host can tell whether an empty list means that nothing is
 * stored or that the list could not be read. */
GLYPHORIUM_EXPORT char *glyphorium_choices_failure(void);

/** Return or store whether characters that the user adds go into the desktop's search index. True by
 * default. */
GLYPHORIUM_EXPORT bool glyphorium_indexes_custom(void);
GLYPHORIUM_EXPORT bool glyphorium_set_indexes_custom(bool use);
/** Return or store whether the desktop's search shows characters of the whole catalog. True by default. */
GLYPHORIUM_EXPORT bool glyphorium_desktop_searches_catalog(void);
GLYPHORIUM_EXPORT bool glyphorium_set_desktop_searches_catalog(bool whole_catalog);

/** Return or replace the user's languages, most preferred first: "de", "pt". NULL with a count of 0 restores
 * the languages of the environment. Another pointer with a count of 0 means that there is no language. */
GLYPHORIUM_EXPORT glyphorium_texts *glyphorium_languages(void);
GLYPHORIUM_EXPORT bool glyphorium_set_languages(const char *const *languages, size_t count);

/** Return the number, the names and the content of the texts that are embedded in the library:
 * "latinBasicJson", "additionalJson", "structuredUnicodeJSON". The texts live until the process ends. */
GLYPHORIUM_EXPORT size_t glyphorium_embedded_text_count(void);
GLYPHORIUM_EXPORT glyphorium_text glyphorium_embedded_text_name(size_t index);
GLYPHORIUM_EXPORT glyphorium_text glyphorium_embedded_text(const char *name);

#ifdef __cplusplus
}
#endif
