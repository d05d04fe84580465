// SPDX-License-Identifier: MIT
// The index of the unchanged catalog, as the build made it, in the library's read-only image.
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
