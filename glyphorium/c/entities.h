/* SPDX-License-Identifier: MIT */
#pragma once

/** Characters of the catalog and their data. */

#include "glyphorium/c/basics.h"

#ifdef __cplusplus
extern "C" {
#endif

/** One entry of the catalog: a character, its code forms, its name and group, and its enrichment if it has
 * one. It never changes. */
typedef struct glyphorium_entity glyphorium_entity;

/** A list of entities. It never changes, even if the catalog changes later. */
typedef struct glyphorium_entities glyphorium_entities;

/** Returns the number of entities. */
GLYPHORIUM_EXPORT size_t glyphorium_entities_count(const glyphorium_entities *entities);
/** Returns the entity at this index, borrowed from the list. */
GLYPHORIUM_EXPORT const glyphorium_entity *glyphorium_entities_at(const glyphorium_entities *entities,
                                                                  size_t index);
GLYPHORIUM_EXPORT void glyphorium_entities_free(glyphorium_entities *entities);

/** Decodes a group table (a JSON array of rows), joins it with an enrichment table if `enrichment` is not
 * NULL, and returns one entity for each row, in order. For hosts with their own tables. Returns NULL if the
 * table cannot be decoded; a diagnostic line says why. If only the enrichment table cannot be decoded, the
 * entities have no enrichment. */
GLYPHORIUM_EXPORT glyphorium_entities *glyphorium_entities_decode(const char *table, size_t table_size,
                                                                  const char *enrichment,
                                                                  size_t enrichment_size);

/** Returns the character with this code point as the catalog describes it. A character that is not in the
 * catalog has an empty group; its name comes from the name table and may be empty. Returns NULL if the number
 * is not a Unicode scalar value. The catalog need not be configured. */
GLYPHORIUM_EXPORT glyphorium_entity *glyphorium_entity_of(uint32_t code_point);

/** Returns an entity with all code forms of a hex code or hex list ("0041,030a"). Its name and group are
 * empty. */
GLYPHORIUM_EXPORT glyphorium_entity *glyphorium_entity_from_hex(const char *hex);

/** Returns a copy that belongs to the caller. */
GLYPHORIUM_EXPORT glyphorium_entity *glyphorium_entity_copy(const glyphorium_entity *entity);
GLYPHORIUM_EXPORT void glyphorium_entity_free(glyphorium_entity *entity);

/** Returns the code point in hexadecimal, lower case, at least four digits: "2192". */
GLYPHORIUM_EXPORT glyphorium_text glyphorium_entity_hex(const glyphorium_entity *entity);
/** Returns the code point as a number. */
GLYPHORIUM_EXPORT int64_t glyphorium_entity_decimal(const glyphorium_entity *entity);
/** Returns the HTML references: "&#x2192;", "&#8594;". */
GLYPHORIUM_EXPORT glyphorium_text glyphorium_entity_html_hex(const glyphorium_entity *entity);
GLYPHORIUM_EXPORT glyphorium_text glyphorium_entity_html_decimal(const glyphorium_entity *entity);
/** Returns the character itself. The symbol of U+0000 is one byte with the value 0. */
GLYPHORIUM_EXPORT glyphorium_text glyphorium_entity_symbol(const glyphorium_entity *entity);
/** Returns the name to show: the better name if there is one, otherwise the name in the table. */
GLYPHORIUM_EXPORT glyphorium_text glyphorium_entity_name(const glyphorium_entity *entity);
/** Returns the name in the table. */
GLYPHORIUM_EXPORT glyphorium_text glyphorium_entity_table_name(const glyphorium_entity *entity);
/** Returns the name of the group: "arrows". */
GLYPHORIUM_EXPORT glyphorium_text glyphorium_entity_group(const glyphorium_entity *entity);

/** A truth value that may be absent. */
typedef int32_t glyphorium_optional_bool;
enum { GLYPHORIUM_ABSENT = -1, GLYPHORIUM_NO = 0, GLYPHORIUM_YES = 1 };

/** Returns whether the entity is an SF Symbol. */
GLYPHORIUM_EXPORT glyphorium_optional_bool glyphorium_entity_is_sf_symbol(const glyphorium_entity *entity);

/** Returns whether the enrichment table has a row for the character. If not, the `data` of the texts below is
 * NULL. */
GLYPHORIUM_EXPORT bool glyphorium_entity_is_enriched(const glyphorium_entity *entity);
/** Returns the named HTML reference, "&rarr;". */
GLYPHORIUM_EXPORT glyphorium_text glyphorium_entity_html_named(const glyphorium_entity *entity);
GLYPHORIUM_EXPORT glyphorium_text glyphorium_entity_better_name(const glyphorium_entity *entity);
/** Returns the name of an image that the host supplies. */
GLYPHORIUM_EXPORT glyphorium_text glyphorium_entity_image_name(const glyphorium_entity *entity);
/** Returns whether a font with serifs shows the character better. */
GLYPHORIUM_EXPORT glyphorium_optional_bool glyphorium_entity_needs_serifs(const glyphorium_entity *entity);
/** Return the search terms of the enrichment. */
GLYPHORIUM_EXPORT size_t glyphorium_entity_search_term_count(const glyphorium_entity *entity);
GLYPHORIUM_EXPORT glyphorium_text glyphorium_entity_search_term(const glyphorium_entity *entity,
                                                                size_t index);
/** Return the usage notes of the enrichment: the language of each ("en", "de", "fr", "it", "es") and its
 * text. */
GLYPHORIUM_EXPORT size_t glyphorium_entity_note_count(const glyphorium_entity *entity);
GLYPHORIUM_EXPORT glyphorium_text glyphorium_entity_note_language(const glyphorium_entity *entity,
                                                                  size_t index);
GLYPHORIUM_EXPORT glyphorium_text glyphorium_entity_note(const glyphorium_entity *entity, size_t index);

/**
 * Returns the usage note to show, in the first preferred language or, if there is no such note, in English.
 * It is the note of the enrichment, or else a supplementary note of the library. Owned; NULL if there is no
 * note.
 */
GLYPHORIUM_EXPORT char *glyphorium_entity_localized_note(const glyphorium_entity *entity, size_t *size);
/** Returns all searchable texts of the entity in lower case, each followed by a blank. Owned. */
GLYPHORIUM_EXPORT char *glyphorium_entity_search_string(const glyphorium_entity *entity, size_t *size);
/** Returns the character in one of the forms below, for example "html-hex". Owned; NULL if the character does
 * not have this form, or if there is no form with this identifier. */
GLYPHORIUM_EXPORT char *glyphorium_entity_form(const glyphorium_entity *entity, const char *form,
                                               size_t *size);

/** Return the number and the identifiers of the forms in which a character can be copied, in the order in
 * which hosts show them: "character", "hex", "decimal", "code-point", "html", "html-hex", "html-decimal",
 * "swift", "utf-8", "utf-16", "utf-32", "c", "javascript", "json", "java", "python", "rust", "css", "url",
 * "octal-escape", "swiftui", "uikit". The identifiers never change, but later versions may have more forms.
 * The texts live until the process ends. */
GLYPHORIUM_EXPORT size_t glyphorium_form_count(void);
GLYPHORIUM_EXPORT glyphorium_text glyphorium_form_identifier(size_t index);
/** Returns the separator to put between the forms of several characters. */
GLYPHORIUM_EXPORT glyphorium_text glyphorium_form_separator(size_t index);

/** Returns the symbol in a form that is visible and does not affect the text around it: control pictures, a
 * dotted circle under a mark, and so on. Owned. */
GLYPHORIUM_EXPORT char *glyphorium_visible_symbol(const char *symbol, size_t symbol_size, size_t *size);
/** Returns whether a line that begins with the symbol runs from right to left. */
GLYPHORIUM_EXPORT bool glyphorium_runs_right_to_left(const char *symbol, size_t symbol_size);

#ifdef __cplusplus
}
#endif
