/* SPDX-License-Identifier: MIT */
#pragma once

/**
 * The services that the library uses: the settings store, the clipboard, the desktop's search index,
 * notifications and diagnostics. Each has a default that works on a Linux desktop. A host can replace all of
 * them except notifications.
 *
 * The library may call the callbacks on any thread, and several at the same time, unless a comment says
 * otherwise. `user` is passed to every callback unchanged.
 */

#include "glyphorium/c/entities.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Return or set the reverse-DNS identifier of the application. The directories for its settings and its
 * index have this name. Set the identifier before any other call. Returns false if the text cannot be a file
 * name. The returned text is owned. */
GLYPHORIUM_EXPORT char *glyphorium_application_identifier(void);
GLYPHORIUM_EXPORT bool glyphorium_set_application_identifier(const char *identifier);

/** Receives one diagnostic line, without a line feed. */
typedef void (*glyphorium_diagnostics)(void *user, const char *line, size_t size);
/** Sends all diagnostic lines to `sink`. NULL restores standard output and standard error. */
GLYPHORIUM_EXPORT bool glyphorium_set_diagnostics(glyphorium_diagnostics sink, void *user, glyphorium_destroy destroy);

/** Receives a notification. The `data` of `object` is NULL if the notification has no object. */
typedef void (*glyphorium_observer)(void *user, const char *name, glyphorium_text object);
/** The registration of an observer. */
typedef struct glyphorium_observation glyphorium_observation;
/** Calls `observer` for each notification with this name, on the thread that posts it, until the observation
 * is freed. The library posts "contentHasChanged" and "entityCopied" (with the text to show). */
GLYPHORIUM_EXPORT glyphorium_observation *glyphorium_observe(const char *name, glyphorium_observer observer, void *user,
                                                             glyphorium_destroy destroy);
/** Ends the registration. May be called inside the observer. */
GLYPHORIUM_EXPORT void glyphorium_observation_free(glyphorium_observation *observation);
/** Calls all observers of the name. `object` may be NULL. */
GLYPHORIUM_EXPORT bool glyphorium_post(const char *name, const char *object);

/** Replaces the whole content of the clipboard by the text, then posts "entityCopied" with `displayed`, or
 * with the text if `displayed` is NULL. Returns whether the clipboard accepted the text. */
GLYPHORIUM_EXPORT bool glyphorium_copy(const char *text, size_t size, const char *displayed);

/** A clipboard that the host implements. `set_text` returns whether the clipboard accepted the text. */
typedef struct glyphorium_pasteboard {
  size_t struct_size; /**< sizeof(glyphorium_pasteboard) */
  bool (*set_text)(void *user, const char *text, size_t size);
} glyphorium_pasteboard;
/** Makes the library copy to the host's clipboard. NULL restores the desktop's. */
GLYPHORIUM_EXPORT bool glyphorium_set_pasteboard(const glyphorium_pasteboard *pasteboard, void *user,
                                                 glyphorium_destroy destroy);
/** Makes the library copy to the clipboard of the terminal (OSC 52). */
GLYPHORIUM_EXPORT bool glyphorium_use_terminal_pasteboard(void);

/** Receives the text that a callback returns. */
typedef struct glyphorium_reply glyphorium_reply;
/** Sets the text. The library copies it. If a callback does not call this function, it returns no text. If it
 * calls this function several times, the last call applies. */
GLYPHORIUM_EXPORT void glyphorium_reply_text(glyphorium_reply *reply, const char *text, size_t size);

/** A settings store that the host implements. Values are JSON texts: true, 1, 1.5, "text", ["a","b"]. */
typedef struct glyphorium_settings_store {
  size_t struct_size; /**< sizeof(glyphorium_settings_store) */
  /** Sets the reply to the value of the key. Does not set a reply if there is no value. */
  void (*read)(void *user, const char *key, glyphorium_reply *reply);
  /** Stores the value. */
  void (*write)(void *user, const char *key, const char *json, size_t size);
  /** Returns whether all values are stored durably. NULL means that they always are. */
  bool (*synchronize)(void *user);
  /** lock() prevents all other threads and processes from writing until unlock(). The lock is recursive: the
   * thread that has the lock may call lock() again. Both may be NULL if only one thread of one process uses
   * the store. */
  void (*lock)(void *user);
  void (*unlock)(void *user);
  /** If the last read of the key failed, sets the reply to the reason, a sentence for people. May be NULL. */
  void (*read_failure)(void *user, const char *key, glyphorium_reply *reply);
} glyphorium_settings_store;
/** Makes the library use the host's store. NULL restores the file of the application. */
GLYPHORIUM_EXPORT bool glyphorium_set_settings_store(const glyphorium_settings_store *store, void *user,
                                                     glyphorium_destroy destroy);
/** Make the library store the settings in this file, or only in memory. */
GLYPHORIUM_EXPORT bool glyphorium_use_settings_file(const char *path);
GLYPHORIUM_EXPORT bool glyphorium_use_memory_settings(void);
/** Return or store a value of the current store as JSON text. The text is owned; NULL if there is no value.
 * Returns false if the text is not valid JSON. */
GLYPHORIUM_EXPORT char *glyphorium_setting(const char *key, size_t *size);
GLYPHORIUM_EXPORT bool glyphorium_set_setting(const char *key, const char *json);
/** Tries again to store the values that could not be stored. Returns whether all values are stored. */
GLYPHORIUM_EXPORT bool glyphorium_synchronize_settings(void);
/** Returns the reason why the last read of the key failed. Owned; NULL if it succeeded. */
GLYPHORIUM_EXPORT char *glyphorium_setting_failure(const char *key);

/** Returns whether to continue to wait for a file that another process has locked. `milliseconds` is the time
 * waited so far. Must be quick and must not call the library. */
typedef bool (*glyphorium_lock_wait)(void *user, int64_t milliseconds);
/** Replaces the default policy, which waits for five seconds. NULL restores the default. */
GLYPHORIUM_EXPORT bool glyphorium_set_lock_wait(glyphorium_lock_wait policy, void *user, glyphorium_destroy destroy);

/** Items of the desktop's search. */
typedef struct glyphorium_items glyphorium_items;
GLYPHORIUM_EXPORT size_t glyphorium_items_count(const glyphorium_items *items);
/** Return the fields of an item. The identifier is its key. The title is the symbol, a tab and the name. The
 * `data` of the comment may be NULL. */
GLYPHORIUM_EXPORT glyphorium_text glyphorium_items_identifier(const glyphorium_items *items, size_t index);
GLYPHORIUM_EXPORT glyphorium_text glyphorium_items_domain(const glyphorium_items *items, size_t index);
GLYPHORIUM_EXPORT glyphorium_text glyphorium_items_content_type(const glyphorium_items *items, size_t index);
GLYPHORIUM_EXPORT glyphorium_text glyphorium_items_title(const glyphorium_items *items, size_t index);
GLYPHORIUM_EXPORT glyphorium_text glyphorium_items_symbol(const glyphorium_items *items, size_t index);
GLYPHORIUM_EXPORT glyphorium_text glyphorium_items_comment(const glyphorium_items *items, size_t index);
GLYPHORIUM_EXPORT glyphorium_text glyphorium_items_genre(const glyphorium_items *items, size_t index);
GLYPHORIUM_EXPORT size_t glyphorium_items_keyword_count(const glyphorium_items *items, size_t index);
GLYPHORIUM_EXPORT glyphorium_text glyphorium_items_keyword(const glyphorium_items *items, size_t index, size_t keyword);
GLYPHORIUM_EXPORT void glyphorium_items_free(glyphorium_items *items);

/** Called once, on any thread, when a request is done. The `data` of `error` is NULL after a success,
 * otherwise `error` is a sentence with the reason. */
typedef void (*glyphorium_done)(void *user, glyphorium_text error);
/** Ask the index to add or replace the items of the entities, to delete these items, or to delete all items
 * of the application. The functions return at once; the requests are carried out later, in order. `done` may
 * be NULL. If a function returns false, `done` is not called. */
GLYPHORIUM_EXPORT bool glyphorium_index_add(const glyphorium_entities *entities, glyphorium_done done, void *user);
GLYPHORIUM_EXPORT bool glyphorium_index_remove(const glyphorium_entities *entities, glyphorium_done done, void *user);
GLYPHORIUM_EXPORT bool glyphorium_index_reset(glyphorium_done done, void *user);
/** Waits until all requests are carried out, but at most for this time. Returns whether all requests are
 * carried out. */
GLYPHORIUM_EXPORT bool glyphorium_index_wait(int64_t milliseconds);
/** Returns the items that match all words, at most `limit`, best first. `file` is the path of an index file,
 * or NULL for the application's index. Returns NULL if the file cannot be read; glyphorium_last_status() is
 * then GLYPHORIUM_FAILED. */
GLYPHORIUM_EXPORT glyphorium_items *glyphorium_index_search(const char *file, const char *query, size_t limit);
/** Returns the number of items in the index file (NULL as above), or -1 if the file cannot be read. A missing
 * file has no items. */
GLYPHORIUM_EXPORT int64_t glyphorium_index_count(const char *file);

/** A request to the host's index. */
typedef struct glyphorium_request glyphorium_request;
/** Reports that the host's index has finished a request. Call this exactly once for each request, on any
 * thread. `error` is NULL after a success. */
GLYPHORIUM_EXPORT void glyphorium_request_done(glyphorium_request *request, const char *error);
/** A search index that the host implements. Each function takes a request, returns at once and later calls
 * glyphorium_request_done(). The items are borrowed until the function returns. */
typedef struct glyphorium_index {
  size_t struct_size; /**< sizeof(glyphorium_index) */
  void (*add)(void *user, const glyphorium_items *items, glyphorium_request *request);
  void (*remove)(void *user, const char *const *identifiers, size_t count, glyphorium_request *request);
  void (*remove_all)(void *user, glyphorium_request *request);
  /** Waits until all requests are done, but at most for this time, and returns whether all are done. NULL
   * means that a request is always done when its function returns. */
  bool (*wait)(void *user, int64_t milliseconds);
} glyphorium_index;
/** Makes the library use the index that the program supplies through these callbacks. NULL restores the default: an
    index file of the library for each application. */
GLYPHORIUM_EXPORT bool glyphorium_set_index(const glyphorium_index *index, void *user, glyphorium_destroy destroy);
/** Makes the library keep the index only in memory. For tests and for hosts without a desktop. */
GLYPHORIUM_EXPORT bool glyphorium_use_memory_index(void);

#ifdef __cplusplus
}
#endif
