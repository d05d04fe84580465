# SPDX-License-Identifier: MIT
"""The character catalog Glyphorium: Unicode characters, HTML character entities and SF Symbols.

    >>> import glyphorium
    >>> glyphorium.character("→").name
    'Rightwards Arrow'

Texts are str. A lone surrogate counts as U+FFFD. Functions raise ValueError for an invalid argument, KeyError
if nothing has the requested name or code, OSError if the desktop or the disk refuses, and MemoryError.

Threads: one thread at a time may use the functions on displayed groups and added characters, and configure(). All
other functions may be called from any thread.
"""

from __future__ import annotations

import ctypes
import dataclasses
import json
import os
import threading
from typing import Any, Callable, Dict, Iterable, Iterator, List, Mapping, MutableMapping, Optional, Sequence, Tuple, \
    Union

from . import _library
from ._library import lib

__all__ = [
    "Character", "Observation", "Result", "Results", "add", "added", "catalog", "character", "characters", "configure",
    "copy", "copy_forms", "display", "displayed", "displayed_groups", "group_count", "groups", "languages", "name",
    "nearest", "observe", "parse_codes", "post", "remove", "search", "set_application_identifier", "set_diagnostics",
    "set_languages", "set_pasteboard", "set_settings", "version", "visible",
]

_TERMINATED = ctypes.c_size_t(-1).value

version: str = lib.version().decode()


@dataclasses.dataclass(frozen=True)
class Character:
    """One entry of the catalog. Two entries are equal if their hex codes are equal."""

    hex: str
    """The code point in hexadecimal, lower case, at least four digits: "2192". For a character of several code points,
    their codes joined by ","."""
    symbol: str = dataclasses.field(compare=False)
    """The character itself."""
    name: str = dataclasses.field(compare=False)
    """The name to show: the better name of the enrichment if there is one, otherwise the name in the name
    table."""
    table_name: str = dataclasses.field(compare=False)
    """The name in the name table."""
    group: str = dataclasses.field(compare=False)
    """The group; empty for a character that is not in the catalog."""
    decimal: int = dataclasses.field(compare=False)
    """The code point as a number."""
    html_hex: str = dataclasses.field(compare=False)
    """The HTML reference in hexadecimal: "&#x2192;"."""
    html_decimal: str = dataclasses.field(compare=False)
    """The HTML reference in decimal: "&#8594;"."""
    html_named: Optional[str] = dataclasses.field(compare=False)
    """The named HTML reference, "&rarr;", or None."""
    is_sf_symbol: bool = dataclasses.field(compare=False)
    """Whether it is an SF Symbol."""
    search_terms: Tuple[str, ...] = dataclasses.field(compare=False)
    """The search terms of the enrichment."""
    notes: Mapping[str, str] = dataclasses.field(compare=False)
    """The usage notes of the enrichment by language: "en", "de", "fr", "it", "es"."""

    @property
    def note(self) -> Optional[str]:
        """The usage note to show, in the first of languages(), otherwise in English, otherwise None. It comes
        from the enrichment, or from the supplementary notes of the library if the enrichment has none."""
        return self._with_handle(lib.entity_localized_note)

    def form(self, identifier: str) -> Optional[str]:
        """Returns one of copy_forms(), for example "html-hex", or None if the character does not have this form.
        Raises KeyError if there is no form with this identifier."""
        if identifier not in copy_forms():
            raise KeyError(identifier)
        return self._with_handle(lib.entity_form, identifier.encode())

    def _with_handle(self, function: Any, *arguments: Any) -> Optional[str]:
        """Calls a library function that returns an owned text for this character, and returns the text."""
        is_code_point = format(self.decimal, "04x") == self.hex
        handle = (lib.entity_of(self.decimal) if is_code_point else None) or lib.entity_from_hex(
            _library.identifier(self.hex))
        try:
            return _library.owned(function, handle, *arguments)
        finally:
            lib.entity_free(handle)

    def __str__(self) -> str:
        return self.symbol


def _character(entity: Any) -> Character:
    """Reads a borrowed entity."""
    return Character(
        hex=str(lib.entity_hex(entity)),
        symbol=str(lib.entity_symbol(entity)),
        name=str(lib.entity_name(entity)),
        table_name=str(lib.entity_table_name(entity)),
        group=str(lib.entity_group(entity)),
        decimal=lib.entity_decimal(entity),
        html_hex=str(lib.entity_html_hex(entity)),
        html_decimal=str(lib.entity_html_decimal(entity)),
        html_named=lib.entity_html_named(entity).optional(),
        is_sf_symbol=lib.entity_is_sf_symbol(entity) == 1,
        search_terms=tuple(
            str(lib.entity_search_term(entity, i)) for i in range(lib.entity_search_term_count(entity))),
        notes={
            str(lib.entity_note_language(entity, i)): str(lib.entity_note(entity, i))
            for i in range(lib.entity_note_count(entity))
        })


_lock = threading.Lock()
_configured = False


def configure() -> None:
    """Fills the catalog again with the user's stored choices. The other functions do this when they first
    need the catalog. Call it when another program may have changed the choices."""
    global _configured
    if not _library.check(lib.configure()):
        raise OSError("the catalog cannot be configured")
    _configured = True


def _ensure_configured() -> None:
    with _lock:
        if not _configured:
            configure()


def characters(text: str) -> List[Character]:
    """Returns the characters that a text means exactly: one user-perceived character ("→"), codes ("U+2192",
    "&rarr;", "2192") or a name ("rightwards arrow"). Empty if the text means no character."""
    _ensure_configured()
    data = _library.utf8(text)
    return [_character(entity) for entity in _library.entities(lib.resolve(data, len(data), None))]


def character(text: Union[str, int]) -> Character:
    """Returns the first of characters(text), or the character with this code point. Raises KeyError if there is
    none."""
    if isinstance(text, int):
        entity = lib.entity_of(text) if 0 <= text <= 0x10FFFF else None
        if not entity:
            raise KeyError(text)
        try:
            return _character(entity)
        finally:
            lib.entity_free(entity)
    found = characters(text)
    if not found:
        raise KeyError(text)
    return found[0]


def name(text: Union[str, int]) -> str:
    """Returns the name of character(text)."""
    return character(text).name


@dataclasses.dataclass(frozen=True)
class Result:
    """A result of a search."""

    character: Character
    field: str
    """The field that matches best: "character", "code", "name", "alias", "html_name", "search_term",
    "annotation", "group", "note" or "notation"."""
    exact: bool
    """Whether the query is the character, its code, or one of its whole names or terms."""
    ranges: Tuple[Tuple[int, int], ...]
    """The parts of character.name that match, as indexes of characters, for highlighting."""


class Results(Sequence[Result]):
    """The results of a search, best first."""

    def __init__(self, results: List[Result], total: int, approximate: bool) -> None:
        self._results = results
        self.total = total
        """The number of all matching characters."""
        self.approximate = approximate
        """Whether nothing matches the text as typed, so that the results match a changed text."""

    def __getitem__(self, index: Any) -> Any:
        return self._results[index]

    def __len__(self) -> int:
        return len(self._results)

    def __repr__(self) -> str:
        return f"Results({self._results!r}, total={self.total}, approximate={self.approximate})"


_FIELDS = ("character", "code", "name", "alias", "html_name", "search_term", "annotation", "group", "note",
           "notation")


class _Search:
    """The search over the catalog and the added characters. It is made again when the added characters
    change."""

    handle: Any = None
    lock = threading.Lock()

    @classmethod
    def query(cls, text: bytes, options: _library.SearchOptions) -> Any:
        with cls.lock:
            if not cls.handle or not lib.search_is_current(cls.handle):
                lib.search_free(cls.handle)
                cls.handle = None
                cls.handle = _library.check(lib.search_all())
            return _library.check(lib.search_query(cls.handle, text, ctypes.byref(options)))


def search(text: str, *, limit: int = 100, languages: Optional[Sequence[str]] = None,
           groups: Sequence[str] = ()) -> Results:
    """Searches the whole catalog and the user's own characters.

    text       words in any order, codes, HTML references, characters, "->", and "group:arrows"
    limit      the maximum number of results
    languages  the user's languages ("de"); None stands for glyphorium.languages()
    groups     exact names of groups; if there are any, only these groups are searched
    """
    if limit < 0:
        raise ValueError("limit is negative")
    wanted = _library.array(languages) if languages is not None else (None, 0)
    restricted = _library.array(groups)
    options = _library.SearchOptions(ctypes.sizeof(_library.SearchOptions), limit, wanted[0], wanted[1], restricted[0],
                                     restricted[1])
    handle = _Search.query(_library.utf8(text).split(b"\0")[0], options)
    try:
        return Results([_result(handle, i) for i in range(lib.results_count(handle))], lib.results_total(handle),
                       lib.results_approximate(handle))
    finally:
        lib.results_free(handle)


def _result(handle: Any, index: int) -> Result:
    found = _character(lib.results_entity(handle, index))
    data = found.name.encode()
    ranges = []
    begin, end = ctypes.c_size_t(), ctypes.c_size_t()
    for i in range(lib.results_range_count(handle, index)):
        lib.results_range(handle, index, i, ctypes.byref(begin), ctypes.byref(end))
        ranges.append((len(data[:begin.value].decode()), len(data[:end.value].decode())))
    field = lib.results_field(handle, index)
    return Result(found, _FIELDS[field] if field < len(_FIELDS) else "name", lib.results_exact(handle, index),
                  tuple(ranges))


def parse_codes(text: str) -> List[Union[int, str]]:
    """Reads a text that consists only of codes ("U+2192, &rarr;"). Returns each code as a number, the code
    point, or as an HTML name. Empty if the text contains anything else."""
    handle = _library.check(lib.codes_parse(_library.identifier(text)))
    try:
        return [
            str(lib.codes_html_name(handle, i)) or lib.codes_code_point(handle, i)
            for i in range(lib.codes_count(handle))
        ]
    finally:
        lib.codes_free(handle)


def visible(symbol: str) -> str:
    """Returns the symbol in a form that is visible in a list: control pictures, a dotted circle under a mark, ..."""
    data = _library.utf8(symbol)
    return _library.owned(lib.visible_symbol, data, len(data)) or ""


def copy_forms() -> List[str]:
    """Returns the identifiers of the forms in which a character can be copied: "character", "hex", ..."""
    return [str(lib.form_identifier(i)) for i in range(lib.form_count())]


def nearest(text: str, candidates: Sequence[str], limit: int = 3) -> List[str]:
    """Returns the candidates that are most similar to a mistyped text, the most similar first."""
    return _library.texts(lib.nearest_texts(_library.identifier(text), *_library.array(candidates), max(limit, 0)))


# The catalog and the user's choices


def catalog() -> List[Character]:
    """Returns the characters of all groups, in the order of the catalog. A character may be in several groups."""
    _ensure_configured()
    return [_character(entity) for entity in _library.entities(lib.all_entities())]


def displayed() -> List[Character]:
    """Returns the characters that a host displays: those of the displayed groups, in the order of their codes."""
    _ensure_configured()
    return [_character(entity) for entity in _library.entities(lib.displayed_entities())]


def groups() -> List[str]:
    """Returns the names of the groups in display order."""
    _ensure_configured()
    return _library.texts(lib.groups())


def group_count(group: str) -> int:
    """Returns the number of characters of a group. Letter case does not count. Raises KeyError if there is no
    such group."""
    _ensure_configured()
    spelled = _library.terminated(lib.group_named, _library.identifier(group))
    if spelled is None:
        raise KeyError(group)
    return int(lib.group_count(spelled.encode()))


def _stored(result: bool) -> None:
    if not _library.check(result):
        raise OSError(_library.terminated(lib.choices_failure) or "the choice could not be stored")


def _read(texts: List[str]) -> List[str]:
    failure = _library.terminated(lib.choices_failure)
    if failure is not None:
        raise OSError(failure)
    return texts


def displayed_groups() -> List[str]:
    """Returns the names of the displayed groups. Raises OSError if they cannot be read."""
    return _read(_library.texts(lib.displayed_groups()))


def display(group_names: Iterable[str]) -> None:
    """Stores the names of the displayed groups and rebuilds displayed(). Raises KeyError if a group does not
    exist."""
    names = []
    for group in group_names:
        spelled = _library.terminated(lib.group_named, _library.identifier(group))
        if spelled is None:
            raise KeyError(group)
        names.append(spelled)
    _ensure_configured()
    _stored(lib.set_displayed_groups(*_library.array(names)))
    _library.check(lib.rebuild_displayed())


def added() -> List[str]:
    """Returns the hex codes of the characters that the user added. Raises OSError if they cannot be read."""
    return _read(_library.texts(lib.custom_codes()))


def _codes_of(texts: Iterable[str]) -> List[str]:
    return [character(text).hex for text in texts]


def add(*texts: str) -> None:
    """Adds characters to those that the user added, in one change. Each text means one character, as in
    character()."""
    codes = _codes_of(texts)
    _ensure_configured()
    _stored(lib.add_custom_codes(*_library.array(codes)))


def remove(*texts: str) -> None:
    """Removes characters from those that the user added, in one change."""
    codes = _codes_of(texts)
    _ensure_configured()
    _stored(lib.remove_custom_codes(*_library.array(codes)))


def languages() -> List[str]:
    """Returns the user's languages, most preferred first."""
    return _library.texts(lib.languages())


def set_languages(tags: Optional[Sequence[str]]) -> None:
    """Replaces the user's languages. None restores the languages of the environment."""
    _library.check(lib.set_languages(*(_library.array(tags) if tags is not None else (None, 0))))


# The desktop


def copy(text: str, displayed: Optional[str] = None) -> None:
    """Replaces the content of the clipboard by the text. Posts "entityCopied" with `displayed`, or with the
    text if that is None. Raises OSError if the clipboard refuses the text."""
    data = _library.utf8(text)
    if not _library.check(lib.copy(data, len(data), _library.identifier(displayed) if displayed is not None else None)):
        raise OSError("the clipboard did not accept the text")


def set_application_identifier(identifier: str) -> None:
    """Sets the reverse-DNS identifier of the application, which names its settings and its index. Call it
    before all other functions."""
    if not _library.check(lib.set_application_identifier(_library.identifier(identifier))):
        raise ValueError(identifier)


class Observation:
    """The registration of an observer. It lasts until end() is called, until a `with` block over it ends, or
    until it is deleted."""

    def __init__(self, handle: Any, callback: Any) -> None:
        self._handle = handle
        self._callback = callback  # must exist as long as the library may call it

    def end(self) -> None:
        """Ends the registration."""
        handle, self._handle = self._handle, None
        lib.observation_free(handle)

    def __enter__(self) -> "Observation":
        return self

    def __exit__(self, *_: Any) -> None:
        self.end()

    def __del__(self) -> None:
        if self._handle:
            self.end()


def observe(name: str, callback: Callable[[Optional[str]], None]) -> Observation:
    """Calls callback(object) for every notification with this name, such as "contentHasChanged" and
    "entityCopied", until the observation ends."""
    function = _library.Observer(lambda user, name, text: callback(text.optional()))
    return Observation(
        _library.check(lib.observe(_library.identifier(name), function, None, _library.Destroy(0))), function)


def post(name: str, object: Optional[str] = None) -> None:
    """Posts a notification."""
    _library.check(
        lib.post(_library.identifier(name), _library.identifier(object) if object is not None else None))


# The Python functions that the library calls. They are never dropped, because a replaced function may still
# run on another thread.
_kept: List[Any] = []


def set_diagnostics(sink: Optional[Callable[[str], None]]) -> None:
    """Sends the diagnostic lines of the library to `sink`. None restores standard output and standard error.
    Until the first call, this package drops the lines."""
    if sink is None:
        function = _library.Diagnostics(0)
    else:
        receive = sink
        function = _library.Diagnostics(
            lambda user, data, size: receive(ctypes.string_at(data, size).decode("utf-8", "replace")))
        _kept.append(function)
    _library.check(lib.set_diagnostics(function, None, _library.Destroy(0)))


def set_pasteboard(receive: Optional[Callable[[str], bool]]) -> None:
    """Makes copy() call `receive` with the text. `receive` must return whether it accepted the text. None
    restores the desktop's clipboard."""
    if receive is None:
        _library.check(lib.set_pasteboard(None, None, _library.Destroy(0)))
        return
    function = receive

    def set_text(user: Any, data: int, size: int) -> bool:
        try:
            return bool(function(ctypes.string_at(data, size).decode("utf-8", "replace")))
        except Exception:  # an exception cannot pass through the library
            return False

    clipboard = _library.Pasteboard(ctypes.sizeof(_library.Pasteboard), _library.SetText(set_text))
    _kept.append(clipboard)
    _library.check(lib.set_pasteboard(ctypes.byref(clipboard), None, _library.Destroy(0)))


def set_settings(store: Union[None, str, "os.PathLike[str]", MutableMapping[str, Any]]) -> None:
    """Chooses where the user's choices are kept: a file (its path), a mapping from names to values that JSON can
    express, or None for the application's own file. The catalog is filled again when it is next needed."""
    global _configured
    if store is None:
        _library.check(lib.set_settings_store(None, None, _library.Destroy(0)))
    elif isinstance(store, (str, os.PathLike)):
        _library.check(lib.use_settings_file(os.fsencode(store)))
    else:
        _set_mapping(store)
    _configured = False


def _set_mapping(mapping: MutableMapping[str, Any]) -> None:
    lock = threading.RLock()

    def read(user: Any, key: bytes, reply: int) -> None:
        with lock:
            if key.decode() in mapping:
                data = json.dumps(mapping[key.decode()]).encode()
                lib.reply_text(reply, data, len(data))

    def write(user: Any, key: bytes, data: int, size: int) -> None:
        with lock:
            mapping[key.decode()] = json.loads(ctypes.string_at(data, size))

    store = _library.SettingsStore(
        ctypes.sizeof(_library.SettingsStore), _library.Read(read), _library.Write(write), _library.Synchronize(0),
        _library.Lock(lambda user: lock.acquire() and None), _library.Lock(lambda user: lock.release()),
        _library.Read(0))
    _kept.append(store)
    _library.check(lib.set_settings_store(ctypes.byref(store), None, _library.Destroy(0)))


set_diagnostics(lambda line: None)
