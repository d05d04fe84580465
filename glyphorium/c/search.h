/* SPDX-License-Identifier: MIT */
#pragma once

/** Search for characters by words, codes, notations and the characters themselves. */

#include "glyphorium/c/entities.h"

#ifdef __cplusplus
extern "C" {
#endif

/** A search. It never changes; any number of threads may query it at once. */
typedef struct glyphorium_search glyphorium_search;

/** Returns a search over the whole catalog and the characters that the user has added at this time. The
 * catalog need not be configured. This is quick, because the index of the catalog is part of the library. */
GLYPHORIUM_EXPORT glyphorium_search *glyphorium_search_all(void);
/** Returns a search over a list, for example glyphorium_displayed_entities(). The search keeps a copy of the
 * list. For the whole catalog, this function takes some milliseconds. */
GLYPHORIUM_EXPORT glyphorium_search *glyphorium_search_over(const glyphorium_entities *entities);
/** Returns whether the user's added characters are still the same as when glyphorium_search_all() created the
 * search. If not, create a new search. Always true for a search over a list. */
GLYPHORIUM_EXPORT bool glyphorium_search_is_current(const glyphorium_search *search);
GLYPHORIUM_EXPORT void glyphorium_search_free(glyphorium_search *search);

/** The options of a query. Initialise this structure with GLYPHORIUM_SEARCH_OPTIONS. */
typedef struct glyphorium_search_options {
  size_t struct_size;           /**< sizeof(glyphorium_search_options) */
  size_t limit;                 /**< the greatest number of results */
  const char *const *languages; /**< the user's languages ("de"); NULL means glyphorium_languages() */
  size_t language_count;
  const char *const *groups; /**< exact names; if there are any, only these groups are searched */
  size_t group_count;
} glyphorium_search_options;

/** The default options, which are also used if the options are NULL. */
#define GLYPHORIUM_SEARCH_OPTIONS \
  { sizeof(glyphorium_search_options), 100, NULL, 0, NULL, 0 }

/** The answer to a query. */
typedef struct glyphorium_results glyphorium_results;

/** Returns the characters that match a text, the best match first. `text` may contain words, codes,
 * references, characters, ASCII notations of characters ("->"), and filters such as "group:arrows". `options`
 * may be NULL. */
GLYPHORIUM_EXPORT glyphorium_results *glyphorium_search_query(const glyphorium_search *search, const char *text,
                                                              const glyphorium_search_options *options);
GLYPHORIUM_EXPORT void glyphorium_results_free(glyphorium_results *results);

GLYPHORIUM_EXPORT size_t glyphorium_results_count(const glyphorium_results *results);
/** Returns the number of all matching characters, which may be larger than the limit. */
GLYPHORIUM_EXPORT size_t glyphorium_results_total(const glyphorium_results *results);
/** Returns whether no character matches the text as typed, and the results match a similar text instead. */
GLYPHORIUM_EXPORT bool glyphorium_results_approximate(const glyphorium_results *results);
/** Returns the entity of a result, borrowed from the results. */
GLYPHORIUM_EXPORT const glyphorium_entity *glyphorium_results_entity(const glyphorium_results *results, size_t index);
/** Returns the index of the entity in the list that was given to glyphorium_search_over(). For a search from
 * glyphorium_search_all(), the number only distinguishes the results. */
GLYPHORIUM_EXPORT size_t glyphorium_results_position(const glyphorium_results *results, size_t index);

/** The kind of data of a character, such as its name, that matches the text best. */
typedef uint32_t glyphorium_search_field;
enum {
  GLYPHORIUM_FIELD_CHARACTER = 0,
  GLYPHORIUM_FIELD_CODE = 1,
  GLYPHORIUM_FIELD_NAME = 2,
  GLYPHORIUM_FIELD_ALIAS = 3,
  GLYPHORIUM_FIELD_HTML_NAME = 4,
  GLYPHORIUM_FIELD_SEARCH_TERM = 5,
  GLYPHORIUM_FIELD_ANNOTATION = 6,
  GLYPHORIUM_FIELD_GROUP = 7,
  GLYPHORIUM_FIELD_NOTE = 8,
  GLYPHORIUM_FIELD_NOTATION = 9
};
GLYPHORIUM_EXPORT glyphorium_search_field glyphorium_results_field(const glyphorium_results *results, size_t index);
/** Returns whether the text is exactly the character, its code, or one of its names or terms. */
GLYPHORIUM_EXPORT bool glyphorium_results_exact(const glyphorium_results *results, size_t index);
/** Returns the cost of a match: the better the match, the lower the cost. Use it only to merge the results of
 * several searches for the same text. */
GLYPHORIUM_EXPORT uint32_t glyphorium_results_cost(const glyphorium_results *results, size_t index);

/** Return the parts of the entity's name that match, for highlighting: offsets in bytes, in ascending order,
 * `end` not included. glyphorium_results_range() returns false if there is no such part. */
GLYPHORIUM_EXPORT size_t glyphorium_results_range_count(const glyphorium_results *results, size_t index);
GLYPHORIUM_EXPORT bool glyphorium_results_range(const glyphorium_results *results, size_t index, size_t range,
                                                size_t *begin, size_t *end);

/** Returns at most `limit` of the candidates that the user may have meant by a mistyped text, the most
 * similar first. */
GLYPHORIUM_EXPORT glyphorium_texts *glyphorium_nearest_texts(const char *text, const char *const *candidates,
                                                             size_t count, size_t limit);

#ifdef __cplusplus
}
#endif
