/* SPDX-License-Identifier: MIT */
#pragma once

/** The textual forms of a character's code, and texts that are codes. A hex code is a code point in
 * hexadecimal digits without a prefix: "0020", "1f600". A hex list is several hex codes joined by ",":
 * "0041,030a". The comment of each function says what bad input gives. All returned texts are owned. */

#include "glyphorium/c/basics.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Converts a hex code to a number: "0020" gives 32. A character that is not a hexadecimal digit counts as 0.
 * Returns 0 for fewer than three characters and for a value of more than 64 bits. */
GLYPHORIUM_EXPORT int64_t glyphorium_decimal_of_hex(const char *hex);
/** Converts a number to a hex code of at least four digits: 32 gives "0020". A negative number counts as
 * 0. */
GLYPHORIUM_EXPORT char *glyphorium_hex_of_decimal(int64_t decimal);
/** Converts a hex code or hex list to hexadecimal HTML character references: "0041,030a" gives
 * "&#x41;&#x30a;". */
GLYPHORIUM_EXPORT char *glyphorium_html_hex_of_hex(const char *hex_list);
/** Converts a number to a decimal HTML character reference: 32 gives "&#32;". */
GLYPHORIUM_EXPORT char *glyphorium_html_decimal_of_decimal(int64_t decimal);
/** Returns the text with its XML references replaced: "&#x20;" gives a blank. */
GLYPHORIUM_EXPORT char *glyphorium_symbol_of_references(const char *text, size_t text_size, size_t *size);
/** Converts a hex code or hex list to text: "0041,030a" gives the text of these two code points. A component
 * is left out if it is not a hexadecimal number, or if its value is not a Unicode scalar value. */
GLYPHORIUM_EXPORT char *glyphorium_symbol_of_hex(const char *hex_list, size_t *size);
/** Converts a hex list to numbers. Writes at most `capacity` of them to `decimals`, and returns how many
 * numbers the whole list has. `decimals` may be NULL if `capacity` is 0. A component of fewer than three
 * characters is left out. */
GLYPHORIUM_EXPORT size_t glyphorium_decimals_of_hex(const char *hex_list, int64_t *decimals, size_t capacity);
/** Converts numbers to decimal HTML character references: 65 and 778 give "&#65;&#778;". */
GLYPHORIUM_EXPORT char *glyphorium_html_decimal_of_decimals(const int64_t *decimals, size_t count);
/** Return the source line that shows the SF Symbol with this name. The name is inserted without escaping. */
GLYPHORIUM_EXPORT char *glyphorium_swiftui_of_sf_symbol(const char *name);
GLYPHORIUM_EXPORT char *glyphorium_uikit_of_sf_symbol(const char *name);

/** The codes that glyphorium_codes_parse() has read. */
typedef struct glyphorium_codes glyphorium_codes;

/** Reads a text that consists of codes only: "U+2192", "\u2192", "&rarr;", "0x2192", "%E2%86%92", separated
 * by blanks or commas. The list is empty if the text contains anything else. */
GLYPHORIUM_EXPORT glyphorium_codes *glyphorium_codes_parse(const char *text);
GLYPHORIUM_EXPORT size_t glyphorium_codes_count(const glyphorium_codes *codes);
/** Returns the code point as written, which may be a number that is not a Unicode scalar value. Returns 0 if
 * the code is an HTML name. */
GLYPHORIUM_EXPORT uint32_t glyphorium_codes_code_point(const glyphorium_codes *codes, size_t index);
/** Returns the HTML name as written, "rarr". Empty if the code is a number. */
GLYPHORIUM_EXPORT glyphorium_text glyphorium_codes_html_name(const glyphorium_codes *codes, size_t index);
GLYPHORIUM_EXPORT void glyphorium_codes_free(glyphorium_codes *codes);

/** Returns the Unicode 13.0 or SF Symbol name of a hex code of four digits or more, in the spelling of the
 * table. The text lives until the process ends; its `data` is NULL if there is no such entry. */
GLYPHORIUM_EXPORT glyphorium_text glyphorium_name_of_hex(const char *hex);
/** Returns the lowest code point with this name, or -1. The case of ASCII letters is ignored. */
GLYPHORIUM_EXPORT int64_t glyphorium_code_point_named(const char *name);

#ifdef __cplusplus
}
#endif
