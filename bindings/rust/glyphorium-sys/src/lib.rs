// SPDX-License-Identifier: MIT
//! The C interface of libglyphorium, unchanged. Use the crate `glyphorium` instead where it has what you need.
//!
//! Made of the headers by `bindings/rust/generate`; do not edit.
#![allow(non_camel_case_types)]

use std::os::raw::{c_char, c_void};

/// As the size of a text: the text ends at its first NUL.
pub const GLYPHORIUM_TERMINATED: usize = usize::MAX;

/// A borrowed text.
#[repr(C)]
#[derive(Clone, Copy)]
pub struct glyphorium_text {
    /// NULL if there is no text
    pub data: *const c_char,
    /// in bytes, without the NUL at the end
    pub size: usize,
}

/// The outcome of the last call.
pub type glyphorium_status = u32;

/// success, also if the result is that nothing was found
pub const GLYPHORIUM_OK: glyphorium_status = 0;

/// an argument is NULL, out of range or ill-formed
pub const GLYPHORIUM_INVALID_ARGUMENT: glyphorium_status = 1;

/// memory ran out; a change was made completely or not at all
pub const GLYPHORIUM_OUT_OF_MEMORY: glyphorium_status = 2;

/// a service of the desktop failed; a diagnostic line says why
pub const GLYPHORIUM_FAILED: glyphorium_status = 3;

/// A list of texts.
#[repr(C)]
pub struct glyphorium_texts {
    _private: [u8; 0],
    _marker: std::marker::PhantomData<(*mut u8, std::marker::PhantomPinned)>,
}

/// Frees the `user` pointer of a callback. The library calls this function once, after the last call of the
/// callback. If a callback cannot be set, the library calls this function at once. May be NULL.
pub type glyphorium_destroy =
    Option<unsafe extern "C" fn(user: *mut c_void)>;

/// One entry of the catalog: a character, its code forms, its name and group, and its enrichment if it has
/// one. It never changes.
#[repr(C)]
pub struct glyphorium_entity {
    _private: [u8; 0],
    _marker: std::marker::PhantomData<(*mut u8, std::marker::PhantomPinned)>,
}

/// A list of entities. It never changes, even if the catalog changes later.
#[repr(C)]
pub struct glyphorium_entities {
    _private: [u8; 0],
    _marker: std::marker::PhantomData<(*mut u8, std::marker::PhantomPinned)>,
}

/// A truth value that may be absent.
pub type glyphorium_optional_bool = i32;

pub const GLYPHORIUM_ABSENT: glyphorium_optional_bool = -1;

pub const GLYPHORIUM_NO: glyphorium_optional_bool = 0;

pub const GLYPHORIUM_YES: glyphorium_optional_bool = 1;

/// The codes that glyphorium_codes_parse() has read.
#[repr(C)]
pub struct glyphorium_codes {
    _private: [u8; 0],
    _marker: std::marker::PhantomData<(*mut u8, std::marker::PhantomPinned)>,
}

/// A search. It never changes; any number of threads may query it at once.
#[repr(C)]
pub struct glyphorium_search {
    _private: [u8; 0],
    _marker: std::marker::PhantomData<(*mut u8, std::marker::PhantomPinned)>,
}

/// The options of a query. Initialise this structure with GLYPHORIUM_SEARCH_OPTIONS.
#[repr(C)]
#[derive(Clone, Copy)]
pub struct glyphorium_search_options {
    /// sizeof(glyphorium_search_options)
    pub struct_size: usize,
    /// the greatest number of results
    pub limit: usize,
    /// the user's languages ("de"); NULL means glyphorium_languages()
    pub languages: *const *const c_char,
    pub language_count: usize,
    /// exact names; if there are any, only these groups are searched
    pub groups: *const *const c_char,
    pub group_count: usize,
}

/// The answer to a query.
#[repr(C)]
pub struct glyphorium_results {
    _private: [u8; 0],
    _marker: std::marker::PhantomData<(*mut u8, std::marker::PhantomPinned)>,
}

/// The kind of data of a character, such as its name, that matches the text best.
pub type glyphorium_search_field = u32;

pub const GLYPHORIUM_FIELD_CHARACTER: glyphorium_search_field = 0;

pub const GLYPHORIUM_FIELD_CODE: glyphorium_search_field = 1;

pub const GLYPHORIUM_FIELD_NAME: glyphorium_search_field = 2;

pub const GLYPHORIUM_FIELD_ALIAS: glyphorium_search_field = 3;

pub const GLYPHORIUM_FIELD_HTML_NAME: glyphorium_search_field = 4;

pub const GLYPHORIUM_FIELD_SEARCH_TERM: glyphorium_search_field = 5;

pub const GLYPHORIUM_FIELD_ANNOTATION: glyphorium_search_field = 6;

pub const GLYPHORIUM_FIELD_GROUP: glyphorium_search_field = 7;

pub const GLYPHORIUM_FIELD_NOTE: glyphorium_search_field = 8;

pub const GLYPHORIUM_FIELD_NOTATION: glyphorium_search_field = 9;

/// Receives one diagnostic line, without a line feed.
pub type glyphorium_diagnostics =
    Option<unsafe extern "C" fn(user: *mut c_void, line: *const c_char, size: usize)>;

/// Receives a notification. The `data` of `object` is NULL if the notification has no object.
pub type glyphorium_observer =
    Option<unsafe extern "C" fn(user: *mut c_void, name: *const c_char, object: glyphorium_text)>;

/// The registration of an observer.
#[repr(C)]
pub struct glyphorium_observation {
    _private: [u8; 0],
    _marker: std::marker::PhantomData<(*mut u8, std::marker::PhantomPinned)>,
}

/// A clipboard that the host implements. `set_text` returns whether the clipboard accepted the text.
#[repr(C)]
#[derive(Clone, Copy)]
pub struct glyphorium_pasteboard {
    /// sizeof(glyphorium_pasteboard)
    pub struct_size: usize,
    pub set_text: Option<unsafe extern "C" fn(user: *mut c_void, text: *const c_char, size: usize) -> bool>,
}

/// Receives the text that a callback returns.
#[repr(C)]
pub struct glyphorium_reply {
    _private: [u8; 0],
    _marker: std::marker::PhantomData<(*mut u8, std::marker::PhantomPinned)>,
}

/// A settings store that the host implements. Values are JSON texts: true, 1, 1.5, "text", \["a","b"\].
#[repr(C)]
#[derive(Clone, Copy)]
pub struct glyphorium_settings_store {
    /// sizeof(glyphorium_settings_store)
    pub struct_size: usize,
    /// Sets the reply to the value of the key. Does not set a reply if there is no value.
    pub read: Option<unsafe extern "C" fn(user: *mut c_void, key: *const c_char, reply: *mut glyphorium_reply)>,
    /// Stores the value.
    pub write: Option<unsafe extern "C" fn(user: *mut c_void, key: *const c_char, json: *const c_char, size: usize)>,
    /// Returns whether all values are stored durably. NULL means that they always are.
    pub synchronize: Option<unsafe extern "C" fn(user: *mut c_void) -> bool>,
    /// lock() prevents all other threads and processes from writing until unlock(). The lock is recursive: the
    /// thread that has the lock may call lock() again. Both may be NULL if only one thread of one process uses
    /// the store.
    pub lock: Option<unsafe extern "C" fn(user: *mut c_void)>,
    pub unlock: Option<unsafe extern "C" fn(user: *mut c_void)>,
    /// If the last read of the key failed, sets the reply to the reason, a sentence for people. May be NULL.
    pub read_failure: Option<unsafe extern "C" fn(user: *mut c_void, key: *const c_char, reply: *mut glyphorium_reply)>,
}

/// Returns whether to continue to wait for a file that another process has locked. `milliseconds` is the time
/// waited so far. Must be quick and must not call the library.
pub type glyphorium_lock_wait =
    Option<unsafe extern "C" fn(user: *mut c_void, milliseconds: i64) -> bool>;

/// Items of the desktop's search.
#[repr(C)]
pub struct glyphorium_items {
    _private: [u8; 0],
    _marker: std::marker::PhantomData<(*mut u8, std::marker::PhantomPinned)>,
}

/// Called once, on any thread, when a request is done. The `data` of `error` is NULL after a success,
/// otherwise `error` is a sentence with the reason.
pub type glyphorium_done =
    Option<unsafe extern "C" fn(user: *mut c_void, error: glyphorium_text)>;

/// A request to the host's index.
#[repr(C)]
pub struct glyphorium_request {
    _private: [u8; 0],
    _marker: std::marker::PhantomData<(*mut u8, std::marker::PhantomPinned)>,
}

/// A search index that the host implements. Each function takes a request, returns at once and later calls
/// glyphorium_request_done(). The items are borrowed until the function returns.
#[repr(C)]
#[derive(Clone, Copy)]
pub struct glyphorium_index {
    /// sizeof(glyphorium_index)
    pub struct_size: usize,
    pub add: Option<unsafe extern "C" fn(user: *mut c_void, items: *const glyphorium_items, request: *mut glyphorium_request)>,
    pub remove: Option<unsafe extern "C" fn(user: *mut c_void, identifiers: *const *const c_char, count: usize, request: *mut glyphorium_request)>,
    pub remove_all: Option<unsafe extern "C" fn(user: *mut c_void, request: *mut glyphorium_request)>,
    /// Waits until all requests are done, but at most for this time, and returns whether all are done. NULL
    /// means that a request is always done when its function returns.
    pub wait: Option<unsafe extern "C" fn(user: *mut c_void, milliseconds: i64) -> bool>,
}

extern "C" {
    /// Returns the status of the last function of this interface that this thread called. The `_free` functions
    /// and the functions that read a member of an object change the status only if an argument is bad.
    pub fn glyphorium_last_status() -> glyphorium_status;
    /// Returns the version of the library, for example "1.0.0". The text lives until the process ends.
    pub fn glyphorium_version() -> *const c_char;
    /// Frees an owned text.
    pub fn glyphorium_free(text: *mut c_char);
    /// Returns the number of texts.
    pub fn glyphorium_texts_count(texts: *const glyphorium_texts) -> usize;
    /// Returns the text at this index.
    pub fn glyphorium_texts_at(texts: *const glyphorium_texts, index: usize) -> glyphorium_text;
    pub fn glyphorium_texts_free(texts: *mut glyphorium_texts);
    /// Returns the number of entities.
    pub fn glyphorium_entities_count(entities: *const glyphorium_entities) -> usize;
    /// Returns the entity at this index, borrowed from the list.
    pub fn glyphorium_entities_at(entities: *const glyphorium_entities, index: usize) -> *const glyphorium_entity;
    pub fn glyphorium_entities_free(entities: *mut glyphorium_entities);
    /// Decodes a group table (a JSON array of rows), joins it with an enrichment table if `enrichment` is not
    /// NULL, and returns one entity for each row, in order. For hosts with their own tables. Returns NULL if the
    /// table cannot be decoded; a diagnostic line says why. If only the enrichment table cannot be decoded, the
    /// entities have no enrichment.
    pub fn glyphorium_entities_decode(table: *const c_char, table_size: usize, enrichment: *const c_char, enrichment_size: usize) -> *mut glyphorium_entities;
    /// Returns the character with this code point as the catalog describes it. A character that is not in the
    /// catalog has an empty group; its name comes from the name table and may be empty. Returns NULL if the number
    /// is not a Unicode scalar value. The catalog need not be configured.
    pub fn glyphorium_entity_of(code_point: u32) -> *mut glyphorium_entity;
    /// Returns an entity with all code forms of a hex code or hex list ("0041,030a"). Its name and group are
    /// empty.
    pub fn glyphorium_entity_from_hex(hex: *const c_char) -> *mut glyphorium_entity;
    /// Returns a copy that belongs to the caller.
    pub fn glyphorium_entity_copy(entity: *const glyphorium_entity) -> *mut glyphorium_entity;
    pub fn glyphorium_entity_free(entity: *mut glyphorium_entity);
    /// Returns the code point in hexadecimal, lower case, at least four digits: "2192".
    pub fn glyphorium_entity_hex(entity: *const glyphorium_entity) -> glyphorium_text;
    /// Returns the code point as a number.
    pub fn glyphorium_entity_decimal(entity: *const glyphorium_entity) -> i64;
    /// Returns the HTML references: "&#x2192;", "&#8594;".
    pub fn glyphorium_entity_html_hex(entity: *const glyphorium_entity) -> glyphorium_text;
    pub fn glyphorium_entity_html_decimal(entity: *const glyphorium_entity) -> glyphorium_text;
    /// Returns the character itself. The symbol of U+0000 is one byte with the value 0.
    pub fn glyphorium_entity_symbol(entity: *const glyphorium_entity) -> glyphorium_text;
    /// Returns the name to show: the better name if there is one, otherwise the name in the table.
    pub fn glyphorium_entity_name(entity: *const glyphorium_entity) -> glyphorium_text;
    /// Returns the name in the table.
    pub fn glyphorium_entity_table_name(entity: *const glyphorium_entity) -> glyphorium_text;
    /// Returns the name of the group: "arrows".
    pub fn glyphorium_entity_group(entity: *const glyphorium_entity) -> glyphorium_text;
    /// Returns whether the entity is an SF Symbol.
    pub fn glyphorium_entity_is_sf_symbol(entity: *const glyphorium_entity) -> glyphorium_optional_bool;
    /// Returns whether the enrichment table has a row for the character. If not, the `data` of the texts below is
    /// NULL.
    pub fn glyphorium_entity_is_enriched(entity: *const glyphorium_entity) -> bool;
    /// Returns the named HTML reference, "&rarr;".
    pub fn glyphorium_entity_html_named(entity: *const glyphorium_entity) -> glyphorium_text;
    pub fn glyphorium_entity_better_name(entity: *const glyphorium_entity) -> glyphorium_text;
    /// Returns the name of an image that the host supplies.
    pub fn glyphorium_entity_image_name(entity: *const glyphorium_entity) -> glyphorium_text;
    /// Returns whether a font with serifs shows the character better.
    pub fn glyphorium_entity_needs_serifs(entity: *const glyphorium_entity) -> glyphorium_optional_bool;
    /// Return the search terms of the enrichment.
    pub fn glyphorium_entity_search_term_count(entity: *const glyphorium_entity) -> usize;
    pub fn glyphorium_entity_search_term(entity: *const glyphorium_entity, index: usize) -> glyphorium_text;
    /// Return the usage notes of the enrichment: the language of each ("en", "de", "fr", "it", "es") and its
    /// text.
    pub fn glyphorium_entity_note_count(entity: *const glyphorium_entity) -> usize;
    pub fn glyphorium_entity_note_language(entity: *const glyphorium_entity, index: usize) -> glyphorium_text;
    pub fn glyphorium_entity_note(entity: *const glyphorium_entity, index: usize) -> glyphorium_text;
    /// Returns the usage note to show, in the first preferred language or, if there is no such note, in English.
    /// It is the note of the enrichment, or else a supplementary note of the library. Owned; NULL if there is no
    /// note.
    pub fn glyphorium_entity_localized_note(entity: *const glyphorium_entity, size: *mut usize) -> *mut c_char;
    /// Returns all searchable texts of the entity in lower case, each followed by a blank. Owned.
    pub fn glyphorium_entity_search_string(entity: *const glyphorium_entity, size: *mut usize) -> *mut c_char;
    /// Returns the character in one of the forms below, for example "html-hex". Owned; NULL if the character does
    /// not have this form, or if there is no form with this identifier.
    pub fn glyphorium_entity_form(entity: *const glyphorium_entity, form: *const c_char, size: *mut usize) -> *mut c_char;
    /// Return the number and the identifiers of the forms in which a character can be copied, in the order in
    /// which hosts show them: "character", "hex", "decimal", "code-point", "html", "html-hex", "html-decimal",
    /// "swift", "utf-8", "utf-16", "utf-32", "c", "javascript", "json", "java", "python", "rust", "css", "url",
    /// "octal-escape", "swiftui", "uikit". The identifiers never change, but later versions may have more forms.
    /// The texts live until the process ends.
    pub fn glyphorium_form_count() -> usize;
    pub fn glyphorium_form_identifier(index: usize) -> glyphorium_text;
    /// Returns the separator to put between the forms of several characters.
    pub fn glyphorium_form_separator(index: usize) -> glyphorium_text;
    /// Returns the symbol in a form that is visible and does not affect the text around it: control pictures, a
    /// dotted circle under a mark, and so on. Owned.
    pub fn glyphorium_visible_symbol(symbol: *const c_char, symbol_size: usize, size: *mut usize) -> *mut c_char;
    /// Returns whether a line that begins with the symbol runs from right to left.
    pub fn glyphorium_runs_right_to_left(symbol: *const c_char, symbol_size: usize) -> bool;
    /// Converts a hex code to a number: "0020" gives 32. A character that is not a hexadecimal digit counts as 0.
    /// Returns 0 for fewer than three characters and for a value of more than 64 bits.
    pub fn glyphorium_decimal_of_hex(hex: *const c_char) -> i64;
    /// Converts a number to a hex code of at least four digits: 32 gives "0020". A negative number counts as
    /// 0.
    pub fn glyphorium_hex_of_decimal(decimal: i64) -> *mut c_char;
    /// Converts a hex code or hex list to hexadecimal HTML character references: "0041,030a" gives
    /// "&#x41;&#x30a;".
    pub fn glyphorium_html_hex_of_hex(hex_list: *const c_char) -> *mut c_char;
    /// Converts a number to a decimal HTML character reference: 32 gives "&#32;".
    pub fn glyphorium_html_decimal_of_decimal(decimal: i64) -> *mut c_char;
    /// Returns the text with its XML references replaced: "&#x20;" gives a blank.
    pub fn glyphorium_symbol_of_references(text: *const c_char, text_size: usize, size: *mut usize) -> *mut c_char;
    /// Converts a hex code or hex list to text: "0041,030a" gives the text of these two code points. A component
    /// is left out if it is not a hexadecimal number, or if its value is not a Unicode scalar value.
    pub fn glyphorium_symbol_of_hex(hex_list: *const c_char, size: *mut usize) -> *mut c_char;
    /// Converts a hex list to numbers. Writes at most `capacity` of them to `decimals`, and returns how many
    /// numbers the whole list has. `decimals` may be NULL if `capacity` is 0. A component of fewer than three
    /// characters is left out.
    pub fn glyphorium_decimals_of_hex(hex_list: *const c_char, decimals: *mut i64, capacity: usize) -> usize;
    /// Converts numbers to decimal HTML character references: 65 and 778 give "&#65;&#778;".
    pub fn glyphorium_html_decimal_of_decimals(decimals: *const i64, count: usize) -> *mut c_char;
    /// Return the source line that shows the SF Symbol with this name. The name is inserted without escaping.
    pub fn glyphorium_swiftui_of_sf_symbol(name: *const c_char) -> *mut c_char;
    pub fn glyphorium_uikit_of_sf_symbol(name: *const c_char) -> *mut c_char;
    /// Reads a text that consists of codes only: "U+2192", "\u2192", "&rarr;", "0x2192", "%E2%86%92", separated
    /// by blanks or commas. The list is empty if the text contains anything else.
    pub fn glyphorium_codes_parse(text: *const c_char) -> *mut glyphorium_codes;
    pub fn glyphorium_codes_count(codes: *const glyphorium_codes) -> usize;
    /// Returns the code point as written, which may be a number that is not a Unicode scalar value. Returns 0 if
    /// the code is an HTML name.
    pub fn glyphorium_codes_code_point(codes: *const glyphorium_codes, index: usize) -> u32;
    /// Returns the HTML name as written, "rarr". Empty if the code is a number.
    pub fn glyphorium_codes_html_name(codes: *const glyphorium_codes, index: usize) -> glyphorium_text;
    pub fn glyphorium_codes_free(codes: *mut glyphorium_codes);
    /// Returns the Unicode 13.0 or SF Symbol name of a hex code of four digits or more, in the spelling of the
    /// table. The text lives until the process ends; its `data` is NULL if there is no such entry.
    pub fn glyphorium_name_of_hex(hex: *const c_char) -> glyphorium_text;
    /// Returns the lowest code point with this name, or -1. The case of ASCII letters is ignored.
    pub fn glyphorium_code_point_named(name: *const c_char) -> i64;
    /// Fills the catalog from the embedded tables and the user's stored choices, and builds the displayed list.
    /// Each further call replaces the whole content. Takes a few milliseconds. Returns false only if memory runs
    /// out.
    pub fn glyphorium_configure() -> bool;
    /// Return all entities of the tables, in the order of the tables; the displayed entities, in code-point
    /// order; and the entities of the characters that the user added, in the order of adding. The lists are empty
    /// before glyphorium_configure().
    pub fn glyphorium_all_entities() -> *mut glyphorium_entities;
    pub fn glyphorium_displayed_entities() -> *mut glyphorium_entities;
    pub fn glyphorium_custom_entities() -> *mut glyphorium_entities;
    /// Returns the characters that a text names exactly: by the character itself, by codes, or by a name. For
    /// each character, the list contains its first entity in the catalog. The list is empty if the text names no
    /// character. If `alternatives` is not NULL, it is set to whether the list contains several characters that
    /// have the text as their name, so that the user probably means only one of them. The catalog must be
    /// configured.
    pub fn glyphorium_resolve(text: *const c_char, size: usize, alternatives: *mut bool) -> *mut glyphorium_entities;
    /// Returns the names of the groups in display order. Empty before glyphorium_configure().
    pub fn glyphorium_groups() -> *mut glyphorium_texts;
    /// Returns the number of entities of the group, 0 if there is no such group. Case-sensitive.
    pub fn glyphorium_group_count(group: *const c_char) -> i64;
    /// Returns the name of the group in the catalog's spelling. `name` is not case-sensitive. Owned; NULL if
    /// there is no such group.
    pub fn glyphorium_group_named(name: *const c_char) -> *mut c_char;
    /// Returns the names of the displayed groups in display order, as stored.
    pub fn glyphorium_displayed_groups() -> *mut glyphorium_texts;
    /// Stores the names, without checking them. The displayed list changes when glyphorium_rebuild_displayed() is
    /// called.
    pub fn glyphorium_set_displayed_groups(groups: *const *const c_char, count: usize) -> bool;
    /// Appends the name in lower case, unless the list already contains it.
    pub fn glyphorium_add_displayed_group(group: *const c_char) -> bool;
    /// Removes the name. Not case-sensitive.
    pub fn glyphorium_remove_displayed_group(group: *const c_char) -> bool;
    /// Return or set a flag. Storing displayed groups sets it to true; only the host sets it to false.
    pub fn glyphorium_displayed_groups_changed() -> bool;
    pub fn glyphorium_set_displayed_groups_changed(changed: bool);
    /// Builds the displayed list from the displayed groups and posts "contentHasChanged".
    pub fn glyphorium_rebuild_displayed() -> bool;
    /// Return or replace the hex codes that are left out of the displayed list. They are not stored in the
    /// settings.
    pub fn glyphorium_forbidden_codes() -> *mut glyphorium_texts;
    pub fn glyphorium_set_forbidden_codes(codes: *const *const c_char, count: usize) -> bool;
    /// Returns the hex codes or hex lists that the user added, in the order of adding, as stored.
    pub fn glyphorium_custom_codes() -> *mut glyphorium_texts;
    /// Replace the list of codes, add codes to it, or remove codes from it. The codes are not checked. A call
    /// stores either all of its changes or none. It also updates the lists of the catalog and, if
    /// glyphorium_indexes_custom() is true, the desktop's search index. A code that the list already contains
    /// keeps its place when it is added again.
    pub fn glyphorium_set_custom_codes(codes: *const *const c_char, count: usize) -> bool;
    pub fn glyphorium_add_custom_codes(codes: *const *const c_char, count: usize) -> bool;
    pub fn glyphorium_remove_custom_codes(codes: *const *const c_char, count: usize) -> bool;
    /// Returns the reason why the last attempt to read the choices failed, as a sentence for people. Owned; NULL
    /// if the attempt succeeded. With this function a host can tell whether an empty list means that nothing is
    /// stored or that the list could not be read.
    pub fn glyphorium_choices_failure() -> *mut c_char;
    /// Return or store whether characters that the user adds go into the desktop's search index. True by
    /// default.
    pub fn glyphorium_indexes_custom() -> bool;
    pub fn glyphorium_set_indexes_custom(r#use: bool) -> bool;
    /// Return or store whether the desktop's search shows characters of the whole catalog. True by default.
    pub fn glyphorium_desktop_searches_catalog() -> bool;
    pub fn glyphorium_set_desktop_searches_catalog(whole_catalog: bool) -> bool;
    /// Return or replace the user's languages, most preferred first: "de", "pt". NULL with a count of 0 restores
    /// the languages of the environment. Another pointer with a count of 0 means that there is no language.
    pub fn glyphorium_languages() -> *mut glyphorium_texts;
    pub fn glyphorium_set_languages(languages: *const *const c_char, count: usize) -> bool;
    /// Return the number, the names and the content of the texts that are embedded in the library:
    /// "latinBasicJson", "additionalJson", "structuredUnicodeJSON". The texts live until the process ends.
    pub fn glyphorium_embedded_text_count() -> usize;
    pub fn glyphorium_embedded_text_name(index: usize) -> glyphorium_text;
    pub fn glyphorium_embedded_text(name: *const c_char) -> glyphorium_text;
    /// Returns a search over the whole catalog and the characters that the user has added at this time. The
    /// catalog need not be configured. This is quick, because the index of the catalog is part of the library.
    pub fn glyphorium_search_all() -> *mut glyphorium_search;
    /// Returns a search over a list, for example glyphorium_displayed_entities(). The search keeps a copy of the
    /// list. For the whole catalog, this function takes some milliseconds.
    pub fn glyphorium_search_over(entities: *const glyphorium_entities) -> *mut glyphorium_search;
    /// Returns whether the user's added characters are still the same as when glyphorium_search_all() created the
    /// search. If not, create a new search. Always true for a search over a list.
    pub fn glyphorium_search_is_current(search: *const glyphorium_search) -> bool;
    pub fn glyphorium_search_free(search: *mut glyphorium_search);
    /// Returns the characters that match a text, the best match first. `text` may contain words, codes,
    /// references, characters, ASCII notations of characters ("->"), and filters such as "group:arrows". `options`
    /// may be NULL.
    pub fn glyphorium_search_query(search: *const glyphorium_search, text: *const c_char, options: *const glyphorium_search_options) -> *mut glyphorium_results;
    pub fn glyphorium_results_free(results: *mut glyphorium_results);
    pub fn glyphorium_results_count(results: *const glyphorium_results) -> usize;
    /// Returns the number of all matching characters, which may be larger than the limit.
    pub fn glyphorium_results_total(results: *const glyphorium_results) -> usize;
    /// Returns whether no character matches the text as typed, and the results match a similar text instead.
    pub fn glyphorium_results_approximate(results: *const glyphorium_results) -> bool;
    /// Returns the entity of a result, borrowed from the results.
    pub fn glyphorium_results_entity(results: *const glyphorium_results, index: usize) -> *const glyphorium_entity;
    /// Returns the index of the entity in the list that was given to glyphorium_search_over(). For a search from
    /// glyphorium_search_all(), the number only distinguishes the results.
    pub fn glyphorium_results_position(results: *const glyphorium_results, index: usize) -> usize;
    pub fn glyphorium_results_field(results: *const glyphorium_results, index: usize) -> glyphorium_search_field;
    /// Returns whether the text is exactly the character, its code, or one of its names or terms.
    pub fn glyphorium_results_exact(results: *const glyphorium_results, index: usize) -> bool;
    /// Returns the cost of a match: the better the match, the lower the cost. Use it only to merge the results of
    /// several searches for the same text.
    pub fn glyphorium_results_cost(results: *const glyphorium_results, index: usize) -> u32;
    /// Return the parts of the entity's name that match, for highlighting: offsets in bytes, in ascending order,
    /// `end` not included. glyphorium_results_range() returns false if there is no such part.
    pub fn glyphorium_results_range_count(results: *const glyphorium_results, index: usize) -> usize;
    pub fn glyphorium_results_range(results: *const glyphorium_results, index: usize, range: usize, begin: *mut usize, end: *mut usize) -> bool;
    /// Returns at most `limit` of the candidates that the user may have meant by a mistyped text, the most
    /// similar first.
    pub fn glyphorium_nearest_texts(text: *const c_char, candidates: *const *const c_char, count: usize, limit: usize) -> *mut glyphorium_texts;
    /// Return or set the reverse-DNS identifier of the application. The directories for its settings and its
    /// index have this name. Set the identifier before any other call. Returns false if the text cannot be a file
    /// name. The returned text is owned.
    pub fn glyphorium_application_identifier() -> *mut c_char;
    pub fn glyphorium_set_application_identifier(identifier: *const c_char) -> bool;
    /// Sends all diagnostic lines to `sink`. NULL restores standard output and standard error.
    pub fn glyphorium_set_diagnostics(sink: glyphorium_diagnostics, user: *mut c_void, destroy: glyphorium_destroy) -> bool;
    /// Calls `observer` for each notification with this name, on the thread that posts it, until the observation
    /// is freed. The library posts "contentHasChanged" and "entityCopied" (with the text to show).
    pub fn glyphorium_observe(name: *const c_char, observer: glyphorium_observer, user: *mut c_void, destroy: glyphorium_destroy) -> *mut glyphorium_observation;
    /// Ends the registration. May be called inside the observer.
    pub fn glyphorium_observation_free(observation: *mut glyphorium_observation);
    /// Calls all observers of the name. `object` may be NULL.
    pub fn glyphorium_post(name: *const c_char, object: *const c_char) -> bool;
    /// Replaces the whole content of the clipboard by the text, then posts "entityCopied" with `displayed`, or
    /// with the text if `displayed` is NULL. Returns whether the clipboard accepted the text.
    pub fn glyphorium_copy(text: *const c_char, size: usize, displayed: *const c_char) -> bool;
    /// Makes the library copy to the host's clipboard. NULL restores the desktop's.
    pub fn glyphorium_set_pasteboard(pasteboard: *const glyphorium_pasteboard, user: *mut c_void, destroy: glyphorium_destroy) -> bool;
    /// Makes the library copy to the clipboard of the terminal (OSC 52).
    pub fn glyphorium_use_terminal_pasteboard() -> bool;
    /// Sets the text. The library copies it. If a callback does not call this function, it returns no text. If it
    /// calls this function several times, the last call applies.
    pub fn glyphorium_reply_text(reply: *mut glyphorium_reply, text: *const c_char, size: usize);
    /// Makes the library use the host's store. NULL restores the file of the application.
    pub fn glyphorium_set_settings_store(store: *const glyphorium_settings_store, user: *mut c_void, destroy: glyphorium_destroy) -> bool;
    /// Make the library store the settings in this file, or only in memory.
    pub fn glyphorium_use_settings_file(path: *const c_char) -> bool;
    pub fn glyphorium_use_memory_settings() -> bool;
    /// Return or store a value of the current store as JSON text. The text is owned; NULL if there is no value.
    /// Returns false if the text is not valid JSON.
    pub fn glyphorium_setting(key: *const c_char, size: *mut usize) -> *mut c_char;
    pub fn glyphorium_set_setting(key: *const c_char, json: *const c_char) -> bool;
    /// Tries again to store the values that could not be stored. Returns whether all values are stored.
    pub fn glyphorium_synchronize_settings() -> bool;
    /// Returns the reason why the last read of the key failed. Owned; NULL if it succeeded.
    pub fn glyphorium_setting_failure(key: *const c_char) -> *mut c_char;
    /// Replaces the default policy, which waits for five seconds. NULL restores the default.
    pub fn glyphorium_set_lock_wait(policy: glyphorium_lock_wait, user: *mut c_void, destroy: glyphorium_destroy) -> bool;
    pub fn glyphorium_items_count(items: *const glyphorium_items) -> usize;
    /// Return the fields of an item. The identifier is its key. The title is the symbol, a tab and the name. The
    /// `data` of the comment may be NULL.
    pub fn glyphorium_items_identifier(items: *const glyphorium_items, index: usize) -> glyphorium_text;
    pub fn glyphorium_items_domain(items: *const glyphorium_items, index: usize) -> glyphorium_text;
    pub fn glyphorium_items_content_type(items: *const glyphorium_items, index: usize) -> glyphorium_text;
    pub fn glyphorium_items_title(items: *const glyphorium_items, index: usize) -> glyphorium_text;
    pub fn glyphorium_items_symbol(items: *const glyphorium_items, index: usize) -> glyphorium_text;
    pub fn glyphorium_items_comment(items: *const glyphorium_items, index: usize) -> glyphorium_text;
    pub fn glyphorium_items_genre(items: *const glyphorium_items, index: usize) -> glyphorium_text;
    pub fn glyphorium_items_keyword_count(items: *const glyphorium_items, index: usize) -> usize;
    pub fn glyphorium_items_keyword(items: *const glyphorium_items, index: usize, keyword: usize) -> glyphorium_text;
    pub fn glyphorium_items_free(items: *mut glyphorium_items);
    /// Ask the index to add or replace the items of the entities, to delete these items, or to delete all items
    /// of the application. The functions return at once; the requests are carried out later, in order. `done` may
    /// be NULL. If a function returns false, `done` is not called.
    pub fn glyphorium_index_add(entities: *const glyphorium_entities, done: glyphorium_done, user: *mut c_void) -> bool;
    pub fn glyphorium_index_remove(entities: *const glyphorium_entities, done: glyphorium_done, user: *mut c_void) -> bool;
    pub fn glyphorium_index_reset(done: glyphorium_done, user: *mut c_void) -> bool;
    /// Waits until all requests are carried out, but at most for this time. Returns whether all requests are
    /// carried out.
    pub fn glyphorium_index_wait(milliseconds: i64) -> bool;
    /// Returns the items that match all words, at most `limit`, best first. `file` is the path of an index file,
    /// or NULL for the application's index. Returns NULL if the file cannot be read; glyphorium_last_status() is
    /// then GLYPHORIUM_FAILED.
    pub fn glyphorium_index_search(file: *const c_char, query: *const c_char, limit: usize) -> *mut glyphorium_items;
    /// Returns the number of items in the index file (NULL as above), or -1 if the file cannot be read. A missing
    /// file has no items.
    pub fn glyphorium_index_count(file: *const c_char) -> i64;
    /// Reports that the host's index has finished a request. Call this exactly once for each request, on any
    /// thread. `error` is NULL after a success.
    pub fn glyphorium_request_done(request: *mut glyphorium_request, error: *const c_char);
    /// Makes the library use the index that the program supplies through these callbacks. NULL restores the default: an
    /// index file of the library for each application.
    pub fn glyphorium_set_index(index: *const glyphorium_index, user: *mut c_void, destroy: glyphorium_destroy) -> bool;
    /// Makes the library keep the index only in memory. For tests and for hosts without a desktop.
    pub fn glyphorium_use_memory_index() -> bool;
}

#[cfg(test)]
mod tests {
    // Does not link if the library lacks a function.
    #[test]
    fn library_has_all_functions() {
        let functions = [
            super::glyphorium_last_status as *const (),
            super::glyphorium_version as *const (),
            super::glyphorium_free as *const (),
            super::glyphorium_texts_count as *const (),
            super::glyphorium_texts_at as *const (),
            super::glyphorium_texts_free as *const (),
            super::glyphorium_entities_count as *const (),
            super::glyphorium_entities_at as *const (),
            super::glyphorium_entities_free as *const (),
            super::glyphorium_entities_decode as *const (),
            super::glyphorium_entity_of as *const (),
            super::glyphorium_entity_from_hex as *const (),
            super::glyphorium_entity_copy as *const (),
            super::glyphorium_entity_free as *const (),
            super::glyphorium_entity_hex as *const (),
            super::glyphorium_entity_decimal as *const (),
            super::glyphorium_entity_html_hex as *const (),
            super::glyphorium_entity_html_decimal as *const (),
            super::glyphorium_entity_symbol as *const (),
            super::glyphorium_entity_name as *const (),
            super::glyphorium_entity_table_name as *const (),
            super::glyphorium_entity_group as *const (),
            super::glyphorium_entity_is_sf_symbol as *const (),
            super::glyphorium_entity_is_enriched as *const (),
            super::glyphorium_entity_html_named as *const (),
            super::glyphorium_entity_better_name as *const (),
            super::glyphorium_entity_image_name as *const (),
            super::glyphorium_entity_needs_serifs as *const (),
            super::glyphorium_entity_search_term_count as *const (),
            super::glyphorium_entity_search_term as *const (),
            super::glyphorium_entity_note_count as *const (),
            super::glyphorium_entity_note_language as *const (),
            super::glyphorium_entity_note as *const (),
            super::glyphorium_entity_localized_note as *const (),
            super::glyphorium_entity_search_string as *const (),
            super::glyphorium_entity_form as *const (),
            super::glyphorium_form_count as *const (),
            super::glyphorium_form_identifier as *const (),
            super::glyphorium_form_separator as *const (),
            super::glyphorium_visible_symbol as *const (),
            super::glyphorium_runs_right_to_left as *const (),
            super::glyphorium_decimal_of_hex as *const (),
            super::glyphorium_hex_of_decimal as *const (),
            super::glyphorium_html_hex_of_hex as *const (),
            super::glyphorium_html_decimal_of_decimal as *const (),
            super::glyphorium_symbol_of_references as *const (),
            super::glyphorium_symbol_of_hex as *const (),
            super::glyphorium_decimals_of_hex as *const (),
            super::glyphorium_html_decimal_of_decimals as *const (),
            super::glyphorium_swiftui_of_sf_symbol as *const (),
            super::glyphorium_uikit_of_sf_symbol as *const (),
            super::glyphorium_codes_parse as *const (),
            super::glyphorium_codes_count as *const (),
            super::glyphorium_codes_code_point as *const (),
            super::glyphorium_codes_html_name as *const (),
            super::glyphorium_codes_free as *const (),
            super::glyphorium_name_of_hex as *const (),
            super::glyphorium_code_point_named as *const (),
            super::glyphorium_configure as *const (),
            super::glyphorium_all_entities as *const (),
            super::glyphorium_displayed_entities as *const (),
            super::glyphorium_custom_entities as *const (),
            super::glyphorium_resolve as *const (),
            super::glyphorium_groups as *const (),
            super::glyphorium_group_count as *const (),
            super::glyphorium_group_named as *const (),
            super::glyphorium_displayed_groups as *const (),
            super::glyphorium_set_displayed_groups as *const (),
            super::glyphorium_add_displayed_group as *const (),
            super::glyphorium_remove_displayed_group as *const (),
            super::glyphorium_displayed_groups_changed as *const (),
            super::glyphorium_set_displayed_groups_changed as *const (),
            super::glyphorium_rebuild_displayed as *const (),
            super::glyphorium_forbidden_codes as *const (),
            super::glyphorium_set_forbidden_codes as *const (),
            super::glyphorium_custom_codes as *const (),
            super::glyphorium_set_custom_codes as *const (),
            super::glyphorium_add_custom_codes as *const (),
            super::glyphorium_remove_custom_codes as *const (),
            super::glyphorium_choices_failure as *const (),
            super::glyphorium_indexes_custom as *const (),
            super::glyphorium_set_indexes_custom as *const (),
            super::glyphorium_desktop_searches_catalog as *const (),
            super::glyphorium_set_desktop_searches_catalog as *const (),
            super::glyphorium_languages as *const (),
            super::glyphorium_set_languages as *const (),
            super::glyphorium_embedded_text_count as *const (),
            super::glyphorium_embedded_text_name as *const (),
            super::glyphorium_embedded_text as *const (),
            super::glyphorium_search_all as *const (),
            super::glyphorium_search_over as *const (),
            super::glyphorium_search_is_current as *const (),
            super::glyphorium_search_free as *const (),
            super::glyphorium_search_query as *const (),
            super::glyphorium_results_free as *const (),
            super::glyphorium_results_count as *const (),
            super::glyphorium_results_total as *const (),
            super::glyphorium_results_approximate as *const (),
            super::glyphorium_results_entity as *const (),
            super::glyphorium_results_position as *const (),
            super::glyphorium_results_field as *const (),
            super::glyphorium_results_exact as *const (),
            super::glyphorium_results_cost as *const (),
            super::glyphorium_results_range_count as *const (),
            super::glyphorium_results_range as *const (),
            super::glyphorium_nearest_texts as *const (),
            super::glyphorium_application_identifier as *const (),
            super::glyphorium_set_application_identifier as *const (),
            super::glyphorium_set_diagnostics as *const (),
            super::glyphorium_observe as *const (),
            super::glyphorium_observation_free as *const (),
            super::glyphorium_post as *const (),
            super::glyphorium_copy as *const (),
            super::glyphorium_set_pasteboard as *const (),
            super::glyphorium_use_terminal_pasteboard as *const (),
            super::glyphorium_reply_text as *const (),
            super::glyphorium_set_settings_store as *const (),
            super::glyphorium_use_settings_file as *const (),
            super::glyphorium_use_memory_settings as *const (),
            super::glyphorium_setting as *const (),
            super::glyphorium_set_setting as *const (),
            super::glyphorium_synchronize_settings as *const (),
            super::glyphorium_setting_failure as *const (),
            super::glyphorium_set_lock_wait as *const (),
            super::glyphorium_items_count as *const (),
            super::glyphorium_items_identifier as *const (),
            super::glyphorium_items_domain as *const (),
            super::glyphorium_items_content_type as *const (),
            super::glyphorium_items_title as *const (),
            super::glyphorium_items_symbol as *const (),
            super::glyphorium_items_comment as *const (),
            super::glyphorium_items_genre as *const (),
            super::glyphorium_items_keyword_count as *const (),
            super::glyphorium_items_keyword as *const (),
            super::glyphorium_items_free as *const (),
            super::glyphorium_index_add as *const (),
            super::glyphorium_index_remove as *const (),
            super::glyphorium_index_reset as *const (),
            super::glyphorium_index_wait as *const (),
            super::glyphorium_index_search as *const (),
            super::glyphorium_index_count as *const (),
            super::glyphorium_request_done as *const (),
            super::glyphorium_set_index as *const (),
            super::glyphorium_use_memory_index as *const (),
        ];
        assert!(functions.iter().all(|function| !function.is_null()));
    }
}
