// SPDX-License-Identifier: MIT
// The indexes of the unchanged catalog and of the supplement, which the build made, in the read-only data of the
// library.
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
