#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Finds characters by words:  find.py arrow left"""

import sys

import glyphorium

results = glyphorium.search(" ".join(sys.argv[1:]), limit=5)
for result in results:
    character = result.character
    print(glyphorium.visible(character.symbol), character.form("code-point"), character.name, sep="  ")
sys.exit(0 if results else "nothing found")
