// SPDX-License-Identifier: MIT
// The index of the unchanged catalog, which the build made, in the read-only data of the library.
.section .rodata
.balign 64
.global glyphoriumSearchIndex
.hidden glyphoriumSearchIndex
.type glyphoriumSearchIndex, %object
.size glyphoriumSearchIndex, glyphoriumSearchIndexEnd - glyphoriumSearchIndex
.global glyphoriumSearchIndexEnd
.hidden glyphoriumSearchIndexEnd
glyphoriumSearchIndex:
.incbin SEARCH_INDEX
glyphoriumSearchIndexEnd:
.section .note.GNU-stack,"",%progbits
