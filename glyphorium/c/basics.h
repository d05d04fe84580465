/* SPDX-License-Identifier: MIT */
#pragma once

/**
 * The rules that apply to all functions of the C interface.
 *
 * Texts are UTF-8. A text argument is a NUL-terminated string. If the text may contain U+0000 itself, a
 * second argument is its size in bytes; GLYPHORIUM_TERMINATED means that the text ends at its first NUL. The
 * library copies the texts that it needs after the call.
 *
 * A returned text is either borrowed or owned:
 * - A borrowed text is a glyphorium_text. It belongs to the object from which it was read, and is valid as
 *   long as that object. It is NUL-terminated; `size` does not count that NUL. `data` is NULL if there is no
 *   such text.
 * - An owned text is a `char *`, and the caller frees it with glyphorium_free(). It is NUL-terminated. If the
 *   argument `size` is not NULL, it receives the size in bytes without that NUL. NULL if there is no such
 *   text.
 *
 * Objects that a function returns without `const` belong to the caller, who frees each one with the `_free`
 * function of its type. Freeing NULL does nothing. Pointers to `const` are borrowed, like texts.
 *
 * A function that gets a bad argument (NULL, ill-formed UTF-8, an index that is out of range) returns the
 * neutral value: NULL, 0, false or an empty text. glyphorium_last_status() returns the reason. No function
 * throws a C++ exception, not even when memory runs out. Callbacks that the host implements must not throw
 * C++ exceptions and must not call longjmp().
 *
 * Threads: the catalog (catalog.h) may be used by one thread at a time. All other functions may be called
 * from any thread. An object may be read by several threads at once.
 *
 * Compatibility: within version 1, functions and constants may be added, but none is removed or changed.
 * Structures begin with their size, which the caller sets, so that members can be added at the end. Later
 * versions may return values of glyphorium_search_field and glyphorium_status that are not listed here, so
 * hosts must accept unknown values.
 */

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#include "glyphorium/export.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Passed as the size of a text, means that the text ends at its first NUL. */
#define GLYPHORIUM_TERMINATED ((size_t)-1)

/** A borrowed text. */
typedef struct glyphorium_text {
  const char *data; /**< NULL if there is no text */
  size_t size;      /**< in bytes, without the NUL at the end */
} glyphorium_text;

/** The outcome of the last call. */
typedef uint32_t glyphorium_status;
enum {
  GLYPHORIUM_OK = 0,               /**< success, also if the result is that nothing was found */
  GLYPHORIUM_INVALID_ARGUMENT = 1, /**< an argument is NULL, out of range or ill-formed */
  GLYPHORIUM_OUT_OF_MEMORY = 2,    /**< memory ran out; a change was made completely or not at all */
  GLYPHORIUM_FAILED = 3            /**< a service of the desktop failed; a diagnostic line says why */
};

/** Returns the status of the last function of this interface that this thread called. The `_free` functions
 * and the functions that read a member of an object change the status only if an argument is bad. */
GLYPHORIUM_EXPORT glyphorium_status glyphorium_last_status(void);

/** Returns the version of the library, for example "1.0.0". The text lives until the process ends. */
GLYPHORIUM_EXPORT const char *glyphorium_version(void);

/** Frees an owned text. */
GLYPHORIUM_EXPORT void glyphorium_free(char *text);

/** A list of texts. */
typedef struct glyphorium_texts glyphorium_texts;

/** Returns the number of texts. */
GLYPHORIUM_EXPORT size_t glyphorium_texts_count(const glyphorium_texts *texts);
/** Returns the text at this index. */
GLYPHORIUM_EXPORT glyphorium_text glyphorium_texts_at(const glyphorium_texts *texts, size_t index);
GLYPHORIUM_EXPORT void glyphorium_texts_free(glyphorium_texts *texts);

/** Frees the `user` pointer of a callback. The library calls this function once, after the last call of the
 * callback. If a callback cannot be set, the library calls this function at once. May be NULL. */
typedef void (*glyphorium_destroy)(void *user);

#ifdef __cplusplus
}
#endif
