// SPDX-License-Identifier: MIT
// Puts the indexes of the unchanged catalog and of the supplement into the read-only data of the library. The build
// has made these indexes.
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
.balign 64
.global glyphoriumSupplementIndex
.hidden glyphoriumSupplementIndex
.type glyphoriumSupplementIndex, %object
.size glyphoriumSupplementIndex, glyphoriumSupplementIndexEnd - glyphoriumSupplementIndex
.global glyphoriumSupplementIndexEnd
.hidden glyphoriumSupplementIndexEnd
glyphoriumSupplementIndex:
.incbin SUPPLEMENT_INDEX
glyphoriumSupplementIndexEnd:
.section .note.GNU-stack,"",%progbits
