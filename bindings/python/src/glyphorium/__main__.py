# SPDX-License-Identifier: MIT
"""A small command line: python3 -m glyphorium search arrow."""

import argparse
import sys

import glyphorium


def main() -> int:
    parser = argparse.ArgumentParser(prog="python3 -m glyphorium", description="Finds and describes characters.")
    parser.add_argument("--version", action="version", version=f"Glyphorium {glyphorium.version}")
    commands = parser.add_subparsers(dest="command", required=True)
    search = commands.add_parser("search", help="find characters by words, codes or other notations")
    search.add_argument("words", nargs="+")
    search.add_argument("--limit", type=int, default=20)
    show = commands.add_parser("show", help="describe characters")
    show.add_argument("characters", nargs="+", metavar="character", help="a character, a code or a name")
    arguments = parser.parse_args()

    if arguments.command == "search":
        results = glyphorium.search(" ".join(arguments.words), limit=arguments.limit)
        for result in results:
            found = result.character
            print(f"{glyphorium.visible(found.symbol)}\t{found.form('code-point')}\t{found.name}")
        if not results:
            print("nothing found", file=sys.stderr)
        return 0 if results else 1

    status = 0
    for text in arguments.characters:
        found_characters = glyphorium.characters(text)
        if not found_characters:
            print(f"{text}: no such character", file=sys.stderr)
            status = 1
        for found in found_characters:
            print(f"{glyphorium.visible(found.symbol)}  {found.name}")
            for identifier in glyphorium.copy_forms():
                form = found.form(identifier)
                if form is not None and identifier != "character":
                    print(f"    {identifier:14}{form}")
            if found.note:
                print(f"    {found.note}")
    return status


if __name__ == "__main__":
    try:
        sys.exit(main())
    except BrokenPipeError:
        sys.stderr.close()
        sys.exit(1)
