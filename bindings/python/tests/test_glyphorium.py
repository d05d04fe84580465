# SPDX-License-Identifier: MIT
import json
import os
import pathlib
import re
import subprocess
import sys
import threading

import pytest

import glyphorium
from glyphorium import _library


@pytest.fixture
def store():
    """Settings in a dictionary, for one test."""
    values = {}
    glyphorium.set_settings(values)
    yield values
    glyphorium.set_settings(None)


@pytest.fixture(autouse=True)
def home(tmp_path, monkeypatch):
    monkeypatch.setenv("XDG_CONFIG_HOME", str(tmp_path))
    monkeypatch.setenv("XDG_DATA_HOME", str(tmp_path))
    glyphorium.set_languages(["en"])


def test_characters(store):
    arrow = glyphorium.character("→")
    assert (arrow.hex, arrow.decimal, arrow.name, arrow.group) == ("2192", 0x2192, "Rightwards Arrow", "arrows")
    assert arrow == glyphorium.character(0x2192) == glyphorium.character("&rarr;") == glyphorium.character("U+2192")
    assert {arrow: 1}[glyphorium.character("rightwards arrow")] == 1
    assert glyphorium.character(0).symbol == "\0"
    assert len(glyphorium.characters("U+2190 U+2191")) == 2
    assert glyphorium.characters("no such character") == []
    for absent in ("no such character", -1, 0xD800, 0x110000):
        with pytest.raises(KeyError):
            glyphorium.character(absent)


def test_every_form():
    ampersand = glyphorium.character("&")
    forms = {form: ampersand.form(form) for form in glyphorium.copy_forms()}
    assert forms.items() >= {
        "character": "&", "hex": "0026", "decimal": "38", "code-point": "U+0026", "html": "&amp;",
        "html-hex": "&#x26;", "html-decimal": "&#38;", "swift": r"\u{0026}", "swiftui": None, "uikit": None,
    }.items()
    with pytest.raises(KeyError):
        ampersand.form("no such form")


def test_notes_in_the_users_language():
    quote = glyphorium.character("’")
    assert quote.note == quote.notes["en"]
    glyphorium.set_languages(["de"])
    assert quote.note == quote.notes["de"] != quote.notes["en"]
    assert "Malzeichen" in glyphorium.character("×").note and not glyphorium.character("×").notes
    assert glyphorium.character("q").note is None


def test_search():
    results = glyphorium.search("arrow left", limit=5)
    assert results[0].character.symbol == "←" and len(results) == 5 and results.total > 5 and not results.approximate
    first = results[0]
    assert {first.character.name[begin:end].lower() for begin, end in first.ranges} >= {"arrow"}
    assert glyphorium.search("pfeil", languages=["de"])[0].character.symbol == "→"
    assert all(r.character.group == "arrows" for r in glyphorium.search("double", groups=["arrows"]))
    assert [r.character.hex for r in glyphorium.search("\ud800\0")] == ["fffd"]
    with pytest.raises(ValueError):
        glyphorium.search("x", limit=-1)


def test_search_finds_what_was_just_added(store):
    assert glyphorium.search("U+12000")[0].character.group != "custom"
    glyphorium.add("U+12000")
    assert "12000" in store["customAddedEntities"]
    assert glyphorium.search("U+12000")[0].character.group == "custom"
    assert glyphorium.search("cuneiform sign a")[0].character.hex == "12000"


def test_choices(store):
    glyphorium.display(["Arrows"])
    assert store["displayedGroups"] == ["arrows"] and glyphorium.displayed_groups() == ["arrows"]
    assert len(glyphorium.displayed()) == glyphorium.group_count("ARROWS") == 112
    changes = []
    with glyphorium.observe("contentHasChanged", changes.append):
        glyphorium.add("⇐", "A")
    glyphorium.remove("A")
    assert glyphorium.added() == ["21d0"] and changes
    with pytest.raises(KeyError):
        glyphorium.display(["no such group"])


def test_choices_in_a_file_that_another_process_reads(tmp_path):
    glyphorium.set_settings(tmp_path / "own.sqlite")
    glyphorium.add("⇐")
    script = "import glyphorium, sys; glyphorium.set_settings(sys.argv[1]); print(glyphorium.added())"
    printed = subprocess.run([sys.executable, "-c", script, tmp_path / "own.sqlite"], check=True, text=True,
                             capture_output=True).stdout
    assert printed == "['21d0']\n"
    glyphorium.set_settings(None)


def test_copy():
    copied, told = [], []
    glyphorium.set_pasteboard(lambda text: not copied.append(text))
    with glyphorium.observe("entityCopied", told.append):
        glyphorium.copy("a\0→", displayed="Arrow")
    assert copied == ["a\0→"] and told == ["Arrow"]
    for refuses in (lambda text: False, lambda text: 1 / 0):
        glyphorium.set_pasteboard(refuses)
        with pytest.raises(OSError):
            glyphorium.copy("x")
    glyphorium.set_pasteboard(None)


def test_threads_search_at_once():
    found = []
    threads = [threading.Thread(target=lambda: found.append(glyphorium.search("arrow").total)) for _ in range(8)]
    for thread in threads:
        thread.start()
    for thread in threads:
        thread.join()
    assert len(set(found)) == 1 and len(found) == 8


def test_small_functions():
    assert glyphorium.parse_codes("U+2192, &rarr;") == [0x2192, "rarr"]
    assert glyphorium.visible("\0") == "␀"
    assert glyphorium.nearest("arow", ["arrow", "house"]) == ["arrow"]
    assert glyphorium.groups()[0] == "custom"
    assert len(glyphorium.catalog()) == 17532
    with pytest.raises(ValueError):
        glyphorium.parse_codes("\0")


def test_command_line():
    run = lambda *arguments: subprocess.run([sys.executable, "-m", "glyphorium", *arguments], text=True,
                                            capture_output=True)
    assert run("search", "arrow", "--limit", "1").stdout == "→\tU+2192\tRightwards Arrow\n"
    assert "&amp;" in run("show", "&").stdout
    assert run("show", "no such character").returncode == 1


def test_declarations_agree_with_the_header():
    """ctypes does not notice a wrong number of arguments, so this compares the declarations with the
    headers."""
    headers = pathlib.Path(os.environ["GLYPHORIUM_HEADERS"])
    text = re.sub(r"/\*.*?\*/", "", "".join(p.read_text() for p in sorted(headers.glob("*.h"))), flags=re.S)
    declared = dict(re.findall(r"glyphorium_([a-z_0-9]+)\(([^()]*)\);", text))
    for name, (_, *arguments) in _library._functions.items():
        parameters = declared[name]
        expected = 0 if parameters.strip() == "void" else parameters.count(",") + 1
        assert len(arguments) == expected, name
