# SPDX-License-Identifier: MIT
"""The C interface of libglyphorium, declared for ctypes. Private: hosts use the package itself."""

from __future__ import annotations

import ctypes
import os
import pathlib
from ctypes import (CFUNCTYPE, POINTER, Structure, c_bool, c_char_p, c_int32, c_int64, c_size_t, c_uint32,
                    c_void_p)
from typing import Any, Callable, Iterator, Optional, Sequence, Tuple


class Text(Structure):
    """A borrowed text of the library."""

    _fields_ = [("data", c_void_p), ("size", c_size_t)]

    def __str__(self) -> str:
        return ctypes.string_at(self.data, self.size).decode("utf-8", "replace") if self.data else ""

    def optional(self) -> Optional[str]:
        """Returns the text, or None if there is none."""
        return str(self) if self.data else None


class SearchOptions(Structure):
    _fields_ = [("struct_size", c_size_t), ("limit", c_size_t), ("languages", POINTER(c_char_p)),
                ("language_count", c_size_t), ("groups", POINTER(c_char_p)), ("group_count", c_size_t)]


Destroy = CFUNCTYPE(None, c_void_p)
Diagnostics = CFUNCTYPE(None, c_void_p, c_void_p, c_size_t)
Observer = CFUNCTYPE(None, c_void_p, c_char_p, Text)
SetText = CFUNCTYPE(c_bool, c_void_p, c_void_p, c_size_t)
Read = CFUNCTYPE(None, c_void_p, c_char_p, c_void_p)
Write = CFUNCTYPE(None, c_void_p, c_char_p, c_void_p, c_size_t)
Synchronize = CFUNCTYPE(c_bool, c_void_p)
Lock = CFUNCTYPE(None, c_void_p)


class Pasteboard(Structure):
    _fields_ = [("struct_size", c_size_t), ("set_text", SetText)]


class SettingsStore(Structure):
    _fields_ = [("struct_size", c_size_t), ("read", Read), ("write", Write), ("synchronize", Synchronize),
                ("lock", Lock), ("unlock", Lock), ("read_failure", Read)]


_text_in = c_char_p
_list_in = (POINTER(c_char_p), c_size_t)
_size_out = POINTER(c_size_t)

# The result and argument types of each function. An owned text is c_void_p, because it must be freed.
_functions: "dict[str, Tuple[Any, ...]]" = {
    "last_status": (c_uint32,),
    "version": (c_char_p,),
    "free": (None, c_void_p),
    "texts_count": (c_size_t, c_void_p),
    "texts_at": (Text, c_void_p, c_size_t),
    "texts_free": (None, c_void_p),
    "decimals_of_hex": (c_size_t, _text_in, POINTER(c_int64), c_size_t),
    "symbol_of_hex": (c_void_p, _text_in, _size_out),
    "symbol_of_references": (c_void_p, _text_in, c_size_t, _size_out),
    "html_hex_of_hex": (c_void_p, _text_in),
    "codes_parse": (c_void_p, _text_in),
    "codes_count": (c_size_t, c_void_p),
    "codes_code_point": (c_uint32, c_void_p, c_size_t),
    "codes_html_name": (Text, c_void_p, c_size_t),
    "codes_free": (None, c_void_p),
    "name_of_hex": (Text, _text_in),
    "code_point_named": (c_int64, _text_in),
    "entities_count": (c_size_t, c_void_p),
    "entities_at": (c_void_p, c_void_p, c_size_t),
    "entities_free": (None, c_void_p),
    "entity_of": (c_void_p, c_uint32),
    "entity_from_hex": (c_void_p, _text_in),
    "entity_copy": (c_void_p, c_void_p),
    "entity_free": (None, c_void_p),
    "entity_hex": (Text, c_void_p),
    "entity_decimal": (c_int64, c_void_p),
    "entity_html_hex": (Text, c_void_p),
    "entity_html_decimal": (Text, c_void_p),
    "entity_symbol": (Text, c_void_p),
    "entity_name": (Text, c_void_p),
    "entity_table_name": (Text, c_void_p),
    "entity_group": (Text, c_void_p),
    "entity_is_sf_symbol": (c_int32, c_void_p),
    "entity_html_named": (Text, c_void_p),
    "entity_search_term_count": (c_size_t, c_void_p),
    "entity_search_term": (Text, c_void_p, c_size_t),
    "entity_note_count": (c_size_t, c_void_p),
    "entity_note_language": (Text, c_void_p, c_size_t),
    "entity_note": (Text, c_void_p, c_size_t),
    "entity_localized_note": (c_void_p, c_void_p, _size_out),
    "entity_form": (c_void_p, c_void_p, _text_in, _size_out),
    "form_count": (c_size_t,),
    "form_identifier": (Text, c_size_t),
    "visible_symbol": (c_void_p, _text_in, c_size_t, _size_out),
    "configure": (c_bool,),
    "all_entities": (c_void_p,),
    "displayed_entities": (c_void_p,),
    "custom_entities": (c_void_p,),
    "resolve": (c_void_p, _text_in, c_size_t, POINTER(c_bool)),
    "groups": (c_void_p,),
    "group_count": (c_int64, _text_in),
    "group_named": (c_void_p, _text_in),
    "displayed_groups": (c_void_p,),
    "set_displayed_groups": (c_bool, *_list_in),
    "rebuild_displayed": (c_bool,),
    "custom_codes": (c_void_p,),
    "add_custom_codes": (c_bool, *_list_in),
    "remove_custom_codes": (c_bool, *_list_in),
    "choices_failure": (c_void_p,),
    "languages": (c_void_p,),
    "set_languages": (c_bool, *_list_in),
    "search_all": (c_void_p,),
    "search_is_current": (c_bool, c_void_p),
    "search_free": (None, c_void_p),
    "search_query": (c_void_p, c_void_p, _text_in, POINTER(SearchOptions)),
    "results_free": (None, c_void_p),
    "results_count": (c_size_t, c_void_p),
    "results_total": (c_size_t, c_void_p),
    "results_approximate": (c_bool, c_void_p),
    "results_entity": (c_void_p, c_void_p, c_size_t),
    "results_field": (c_uint32, c_void_p, c_size_t),
    "results_exact": (c_bool, c_void_p, c_size_t),
    "results_range_count": (c_size_t, c_void_p, c_size_t),
    "results_range": (c_bool, c_void_p, c_size_t, c_size_t, _size_out, _size_out),
    "nearest_texts": (c_void_p, _text_in, *_list_in, c_size_t),
    "set_application_identifier": (c_bool, _text_in),
    "set_diagnostics": (c_bool, Diagnostics, c_void_p, Destroy),
    "observe": (c_void_p, _text_in, Observer, c_void_p, Destroy),
    "observation_free": (None, c_void_p),
    "post": (c_bool, _text_in, _text_in),
    "copy": (c_bool, _text_in, c_size_t, _text_in),
    "set_pasteboard": (c_bool, POINTER(Pasteboard), c_void_p, Destroy),
    "reply_text": (None, c_void_p, c_char_p, c_size_t),
    "set_settings_store": (c_bool, POINTER(SettingsStore), c_void_p, Destroy),
    "use_settings_file": (c_bool, _text_in),
    "use_memory_settings": (c_bool,),
    "setting": (c_void_p, _text_in, _size_out),
    "set_setting": (c_bool, _text_in, _text_in),
}


def _load() -> ctypes.CDLL:
    given = os.environ.get("GLYPHORIUM_LIBRARY")
    inside = pathlib.Path(__file__).with_name("libglyphorium.so.1")
    try:
        return ctypes.CDLL(given or (str(inside) if inside.exists() else "libglyphorium.so.1"))
    except OSError as error:
        raise ImportError(f"libglyphorium is not found ({error}). Install the library of Glyphorium, or set "
                          "GLYPHORIUM_LIBRARY to its file.") from error


class Library:
    """The functions of the C interface, as attributes whose names lack the prefix."""

    def __init__(self) -> None:
        library = _load()
        for name, (result, *arguments) in _functions.items():
            function = getattr(library, "glyphorium_" + name)
            function.restype = result
            function.argtypes = arguments
            setattr(self, name, function)

    def __getattr__(self, name: str) -> Callable[..., Any]:
        raise AttributeError(name)


lib = Library()

INVALID_ARGUMENT, OUT_OF_MEMORY, FAILED = 1, 2, 3


def utf8(text: str) -> bytes:
    """Encodes a text for the library. Lone surrogates become U+FFFD."""
    return text.encode("utf-8", "surrogatepass").decode("utf-8", "replace").encode("utf-8")


def identifier(text: str) -> bytes:
    """Encodes a text for the library. Raises ValueError if it contains NUL."""
    if "\0" in text:
        raise ValueError("the text contains NUL")
    return utf8(text)


def check(result: Any) -> Any:
    """Returns the result. Raises MemoryError or ValueError if the result is neutral for that reason."""
    if not result:
        status = lib.last_status()
        if status == OUT_OF_MEMORY:
            raise MemoryError
        if status == INVALID_ARGUMENT:
            raise ValueError("the library rejected an argument")
    return result


def owned(function: Callable[..., Any], *arguments: Any) -> Optional[str]:
    """Calls a function that returns an owned text with its size, and frees the text."""
    size = c_size_t()
    data = check(function(*arguments, ctypes.byref(size)))
    if not data:
        return None
    try:
        return ctypes.string_at(data, size.value).decode("utf-8", "replace")
    finally:
        lib.free(data)


def terminated(function: Callable[..., Any], *arguments: Any) -> Optional[str]:
    """Calls a function that returns an owned text without its size, and frees the text."""
    data = check(function(*arguments))
    if not data:
        return None
    try:
        return ctypes.string_at(data).decode("utf-8", "replace")
    finally:
        lib.free(data)


def texts(handle: Any) -> "list[str]":
    """Reads and frees a list of texts."""
    check(handle)
    try:
        return [str(lib.texts_at(handle, i)) for i in range(lib.texts_count(handle))]
    finally:
        lib.texts_free(handle)


def array(values: Sequence[str]) -> Tuple[Any, int]:
    """Returns the texts as an array for the library, and their number."""
    encoded = [identifier(value) for value in values]
    return (c_char_p * max(len(encoded), 1))(*encoded), len(encoded)


def entities(handle: Any) -> "Iterator[Any]":
    """Yields the borrowed entities of a list, then frees the list."""
    check(handle)
    try:
        for i in range(lib.entities_count(handle)):
            yield lib.entities_at(handle, i)
    finally:
        lib.entities_free(handle)
