<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Category</name>
    <message>
        <source>uppercase letter</source>
        <translation>Großbuchstabe</translation>
    </message>
    <message>
        <source>lowercase letter</source>
        <translation>Kleinbuchstabe</translation>
    </message>
    <message>
        <source>titlecase letter</source>
        <translation>Buchstabe mit großem Anfang</translation>
    </message>
    <message>
        <source>modifier letter</source>
        <translation>modifizierender Buchstabe</translation>
    </message>
    <message>
        <source>other letter</source>
        <translation>anderer Buchstabe</translation>
    </message>
    <message>
        <source>nonspacing mark</source>
        <translation>kombinierendes Zeichen ohne Breite</translation>
    </message>
    <message>
        <source>spacing mark</source>
        <translation>kombinierendes Zeichen mit Breite</translation>
    </message>
    <message>
        <source>enclosing mark</source>
        <translation>umschließendes Zeichen</translation>
    </message>
    <message>
        <source>decimal number</source>
        <translation>Dezimalziffer</translation>
    </message>
    <message>
        <source>letter number</source>
        <translation>Zahlbuchstabe</translation>
    </message>
    <message>
        <source>other number</source>
        <translation>andere Zahl</translation>
    </message>
    <message>
        <source>connector punctuation</source>
        <translation>verbindendes Satzzeichen</translation>
    </message>
    <message>
        <source>dash punctuation</source>
        <translation>Strich</translation>
    </message>
    <message>
        <source>open punctuation</source>
        <translation>öffnende Klammer</translation>
    </message>
    <message>
        <source>close punctuation</source>
        <translation>schließende Klammer</translation>
    </message>
    <message>
        <source>initial punctuation</source>
        <translation>öffnendes Anführungszeichen</translation>
    </message>
    <message>
        <source>final punctuation</source>
        <translation>schließendes Anführungszeichen</translation>
    </message>
    <message>
        <source>other punctuation</source>
        <translation>anderes Satzzeichen</translation>
    </message>
    <message>
        <source>math symbol</source>
        <translation>mathematisches Symbol</translation>
    </message>
    <message>
        <source>currency symbol</source>
        <translation>Währungssymbol</translation>
    </message>
    <message>
        <source>modifier symbol</source>
        <translation>modifizierendes Symbol</translation>
    </message>
    <message>
        <source>other symbol</source>
        <translation>anderes Symbol</translation>
    </message>
    <message>
        <source>space separator</source>
        <translation>Leerzeichen</translation>
    </message>
    <message>
        <source>line separator</source>
        <translation>Zeilentrenner</translation>
    </message>
    <message>
        <source>paragraph separator</source>
        <translation>Absatztrenner</translation>
    </message>
    <message>
        <source>control</source>
        <translation>Steuerzeichen</translation>
    </message>
    <message>
        <source>format</source>
        <translation>Formatierungszeichen</translation>
    </message>
    <message>
        <source>surrogate</source>
        <translation>Surrogat</translation>
    </message>
    <message>
        <source>private use</source>
        <translation>private Verwendung</translation>
    </message>
    <message>
        <source>unassigned</source>
        <translation>nicht zugewiesen</translation>
    </message>
</context>
<context>
    <name>CharacterMenu</name>
    <message>
        <source>Skin tone</source>
        <translation>Hautton</translation>
    </message>
</context>
<context>
    <name>CharacterTexts</name>
    <message>
        <source>Character without a name</source>
        <translation>Zeichen ohne Namen</translation>
    </message>
</context>
<context>
    <name>CopyForm</name>
    <message>
        <source>Character</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Hexadezimal</translation>
    </message>
    <message>
        <source>Decimal</source>
        <translation>Dezimal</translation>
    </message>
    <message>
        <source>Code point</source>
        <translation>Codepoint</translation>
    </message>
    <message>
        <source>HTML name</source>
        <translation>HTML-Name</translation>
    </message>
    <message>
        <source>HTML hexadecimal</source>
        <translation>HTML hexadezimal</translation>
    </message>
    <message>
        <source>HTML decimal</source>
        <translation>HTML dezimal</translation>
    </message>
    <message>
        <source>Swift</source>
        <translation>Swift</translation>
    </message>
    <message>
        <source>SwiftUI</source>
        <translation>SwiftUI</translation>
    </message>
    <message>
        <source>UIKit</source>
        <translation>UIKit</translation>
    </message>
    <message>
        <source>Octal escape</source>
        <translation>Oktal-Escape</translation>
    </message>
</context>
<context>
    <name>EmojiGroup</name>
    <message>
        <source>Smileys &amp; Emotion</source>
        <translation>Smileys und Gefühle</translation>
    </message>
    <message>
        <source>People &amp; Body</source>
        <translation>Menschen und Körper</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Bestandteile</translation>
    </message>
    <message>
        <source>Animals &amp; Nature</source>
        <translation>Tiere und Natur</translation>
    </message>
    <message>
        <source>Food &amp; Drink</source>
        <translation>Essen und Trinken</translation>
    </message>
    <message>
        <source>Travel &amp; Places</source>
        <translation>Reisen und Orte</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Aktivitäten</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Gegenstände</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Flaggen</translation>
    </message>
</context>
<context>
    <name>GroupTitle</name>
    <message>
        <source>SF Symbols</source>
        <translation>SF Symbols</translation>
    </message>
    <message>
        <source>Aegean Numbers</source>
        <translation>Ägäische Zahlen</translation>
    </message>
    <message>
        <source>Alphabetic Presentation Forms</source>
        <translation>Alphabetische Präsentationsformen</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabisch</translation>
    </message>
    <message>
        <source>Arabic Presentation Forms A</source>
        <translation>Arabische Präsentationsformen A</translation>
    </message>
    <message>
        <source>Arabic Presentation Forms B</source>
        <translation>Arabische Präsentationsformen B</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation>Armenisch</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Pfeile</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation>Bengalisch</translation>
    </message>
    <message>
        <source>Block Elements</source>
        <translation>Blockelemente</translation>
    </message>
    <message>
        <source>Bopomofo</source>
        <translation>Bopomofo</translation>
    </message>
    <message>
        <source>Bopomofo Extended</source>
        <translation>Bopomofo, erweitert</translation>
    </message>
    <message>
        <source>Box Drawing</source>
        <translation>Rahmenzeichnung</translation>
    </message>
    <message>
        <source>Braille Patterns</source>
        <translation>Braille-Zeichen</translation>
    </message>
    <message>
        <source>Buhid</source>
        <translation>Buid</translation>
    </message>
    <message>
        <source>Cherokee</source>
        <translation>Cherokee</translation>
    </message>
    <message>
        <source>CJK Compatibility</source>
        <translation>CJK-Kompatibilität</translation>
    </message>
    <message>
        <source>CJK Compatibility Forms</source>
        <translation>CJK-Kompatibilitätsformen</translation>
    </message>
    <message>
        <source>CJK Compatibility Ideographs</source>
        <translation>CJK-Ideogramme, Kompatibilität</translation>
    </message>
    <message>
        <source>CJK Radicals Supplement</source>
        <translation>CJK-Radikale, Ergänzung</translation>
    </message>
    <message>
        <source>CJK Symbols and Punctuation</source>
        <translation>CJK-Symbole und Interpunktion</translation>
    </message>
    <message>
        <source>Combining Diacritical Marks</source>
        <translation>Kombinierende diakritische Zeichen</translation>
    </message>
    <message>
        <source>Combining Diacritical Marks for Symbols</source>
        <translation>Kombinierende Zeichen für Symbole</translation>
    </message>
    <message>
        <source>Control Pictures</source>
        <translation>Symbole für Steuerzeichen</translation>
    </message>
    <message>
        <source>Currency Symbols</source>
        <translation>Währungszeichen</translation>
    </message>
    <message>
        <source>Your own characters</source>
        <translation>Eigene Zeichen</translation>
    </message>
    <message>
        <source>Cypriot Syllabary</source>
        <translation>Kyprische Silbenschrift</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Kyrillisch</translation>
    </message>
    <message>
        <source>Cyrillic Supplementary</source>
        <translation>Kyrillisch, Ergänzung</translation>
    </message>
    <message>
        <source>Deseret</source>
        <translation>Mormonenalphabet</translation>
    </message>
    <message>
        <source>Design Inspiration</source>
        <translation>Anregungen zum Gestalten</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation>Devanagari</translation>
    </message>
    <message>
        <source>Digital Typography (Latin)</source>
        <translation>Digitale Typografie (lateinisch)</translation>
    </message>
    <message>
        <source>Dingbats</source>
        <translation>Dingbats</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Emoji</translation>
    </message>
    <message>
        <source>Enclosed Alphanumerics</source>
        <translation>Umschlossene Buchstaben und Ziffern</translation>
    </message>
    <message>
        <source>Enclosed CJK Letters and Months</source>
        <translation>Umschlossene CJK-Zeichen und Monate</translation>
    </message>
    <message>
        <source>Ethiopic</source>
        <translation>Äthiopisch</translation>
    </message>
    <message>
        <source>Geometric Shapes</source>
        <translation>Geometrische Formen</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation>Georgisch</translation>
    </message>
    <message>
        <source>Gothic</source>
        <translation>Gotisch</translation>
    </message>
    <message>
        <source>Greek and Coptic</source>
        <translation>Griechisch und Koptisch</translation>
    </message>
    <message>
        <source>Greek Extended</source>
        <translation>Griechisch, erweitert</translation>
    </message>
    <message>
        <source>Gujarati</source>
        <translation>Gujarati</translation>
    </message>
    <message>
        <source>Gurmukhi</source>
        <translation>Gurmukhi</translation>
    </message>
    <message>
        <source>Halfwidth and Fullwidth Forms</source>
        <translation>Halb- und vollbreite Formen</translation>
    </message>
    <message>
        <source>Hangul Compatibility Jamo</source>
        <translation>Hangul-Jamo, Kompatibilität</translation>
    </message>
    <message>
        <source>Hangul Jamo</source>
        <translation>Hangul-Jamo</translation>
    </message>
    <message>
        <source>Hanunoo</source>
        <translation>Hanunó’o</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hebräisch</translation>
    </message>
    <message>
        <source>Hiragana</source>
        <translation>Hiragana</translation>
    </message>
    <message>
        <source>Ideographic Description Characters</source>
        <translation>Ideografische Beschreibungszeichen</translation>
    </message>
    <message>
        <source>IPA Extensions</source>
        <translation>IPA-Erweiterungen</translation>
    </message>
    <message>
        <source>Kanbun</source>
        <translation>Kanbun</translation>
    </message>
    <message>
        <source>Kangxi Radicals</source>
        <translation>Kangxi-Radikale</translation>
    </message>
    <message>
        <source>Kannada</source>
        <translation>Kannada</translation>
    </message>
    <message>
        <source>Katakana</source>
        <translation>Katakana</translation>
    </message>
    <message>
        <source>Katakana Phonetic Extensions</source>
        <translation>Katakana, phonetische Erweiterung</translation>
    </message>
    <message>
        <source>Khmer</source>
        <translation>Khmer</translation>
    </message>
    <message>
        <source>Khmer Symbols</source>
        <translation>Khmer-Symbole</translation>
    </message>
    <message>
        <source>Lao</source>
        <translation>Laotisch</translation>
    </message>
    <message>
        <source>Basic Latin</source>
        <translation>Lateinisch, Grundzeichen</translation>
    </message>
    <message>
        <source>Latin Extended A</source>
        <translation>Lateinisch, erweitert A</translation>
    </message>
    <message>
        <source>Latin Extended Additional</source>
        <translation>Lateinisch, weiterer Zusatz</translation>
    </message>
    <message>
        <source>Latin Extended B</source>
        <translation>Lateinisch, erweitert B</translation>
    </message>
    <message>
        <source>Latin Supplement</source>
        <translation>Lateinisch, Ergänzung</translation>
    </message>
    <message>
        <source>Letterlike Symbols</source>
        <translation>Buchstabenähnliche Symbole</translation>
    </message>
    <message>
        <source>Limbu</source>
        <translation>Limbu</translation>
    </message>
    <message>
        <source>Linear B Ideograms</source>
        <translation>Linear B, Ideogramme</translation>
    </message>
    <message>
        <source>Linear B Syllabary</source>
        <translation>Linear B, Silbenzeichen</translation>
    </message>
    <message>
        <source>Malayalam</source>
        <translation>Malayalam</translation>
    </message>
    <message>
        <source>Mathematical Alphanumeric Symbols</source>
        <translation>Mathematische Buchstaben und Ziffern</translation>
    </message>
    <message>
        <source>Mathematical Operators</source>
        <translation>Mathematische Operatoren</translation>
    </message>
    <message>
        <source>Miscellaneous Mathematical Symbols A</source>
        <translation>Verschiedene mathematische Symbole A</translation>
    </message>
    <message>
        <source>Miscellaneous Mathematical Symbols B</source>
        <translation>Verschiedene mathematische Symbole B</translation>
    </message>
    <message>
        <source>Miscellaneous Symbols</source>
        <translation>Verschiedene Symbole</translation>
    </message>
    <message>
        <source>Miscellaneous Symbols and Arrows</source>
        <translation>Verschiedene Symbole und Pfeile</translation>
    </message>
    <message>
        <source>Miscellaneous Technical</source>
        <translation>Verschiedene technische Zeichen</translation>
    </message>
    <message>
        <source>Mongolian</source>
        <translation>Mongolisch</translation>
    </message>
    <message>
        <source>Musical Symbols</source>
        <translation>Notenschriftzeichen</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>Birmanisch</translation>
    </message>
    <message>
        <source>Number Forms</source>
        <translation>Zahlzeichen</translation>
    </message>
    <message>
        <source>Ogham</source>
        <translation>Ogham</translation>
    </message>
    <message>
        <source>Old Italic</source>
        <translation>Altitalisch</translation>
    </message>
    <message>
        <source>Optical Character Recognition</source>
        <translation>Optische Zeichenerkennung</translation>
    </message>
    <message>
        <source>Oriya</source>
        <translation>Oriya</translation>
    </message>
    <message>
        <source>Osmanya</source>
        <translation>Osmaniya</translation>
    </message>
    <message>
        <source>Phonetic Extensions</source>
        <translation>Phonetische Erweiterungen</translation>
    </message>
    <message>
        <source>Punctuation</source>
        <translation>Interpunktion</translation>
    </message>
    <message>
        <source>Runic</source>
        <translation>Runen</translation>
    </message>
    <message>
        <source>Shavian</source>
        <translation>Shaw-Alphabet</translation>
    </message>
    <message>
        <source>Sinhala</source>
        <translation>Singhalesisch</translation>
    </message>
    <message>
        <source>Small Form Variants</source>
        <translation>Kleine Formvarianten</translation>
    </message>
    <message>
        <source>Spacing Modifier Letters</source>
        <translation>Modifizierende Zeichen</translation>
    </message>
    <message>
        <source>Superscripts and Subscripts</source>
        <translation>Hoch- und tiefgestellte Zeichen</translation>
    </message>
    <message>
        <source>Supplemental Arrows A</source>
        <translation>Zusätzliche Pfeile A</translation>
    </message>
    <message>
        <source>Supplemental Arrows B</source>
        <translation>Zusätzliche Pfeile B</translation>
    </message>
    <message>
        <source>Supplemental Mathematical Operators</source>
        <translation>Zusätzliche mathematische Operatoren</translation>
    </message>
    <message>
        <source>Syriac</source>
        <translation>Syrisch</translation>
    </message>
    <message>
        <source>Tagalog</source>
        <translation>Tagalog</translation>
    </message>
    <message>
        <source>Tagbanwa</source>
        <translation>Tagbanuwa</translation>
    </message>
    <message>
        <source>Tai Le</source>
        <translation>Tai Le</translation>
    </message>
    <message>
        <source>Tai Xuan Jing Symbols</source>
        <translation>Tai-Xuan-Jing-Symbole</translation>
    </message>
    <message>
        <source>Tamil</source>
        <translation>Tamilisch</translation>
    </message>
    <message>
        <source>Telugu</source>
        <translation>Telugu</translation>
    </message>
    <message>
        <source>Thaana</source>
        <translation>Thaana</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thailändisch</translation>
    </message>
    <message>
        <source>Tibetan</source>
        <translation>Tibetisch</translation>
    </message>
    <message>
        <source>Ugaritic</source>
        <translation>Ugaritisch</translation>
    </message>
    <message>
        <source>Unified Canadian Aboriginal Syllabics</source>
        <translation>Kanadische Silbenschrift</translation>
    </message>
    <message>
        <source>Yi Radicals</source>
        <translation>Yi-Radikale</translation>
    </message>
    <message>
        <source>Yi Syllables</source>
        <translation>Yi-Silbenzeichen</translation>
    </message>
    <message>
        <source>Yijing Hexagram Symbols</source>
        <translation>I-Ging-Hexagramme</translation>
    </message>
</context>
<context>
    <name>WayToType</name>
    <message>
        <source>Compose key</source>
        <translation>Compose-Taste</translation>
    </message>
    <message>
        <source>LaTeX</source>
        <translation>LaTeX</translation>
    </message>
    <message>
        <source>Digraph, Ctrl+K</source>
        <translation>Digraph, Strg+K</translation>
    </message>
    <message>
        <source>Shortcode</source>
        <translation>Kurzcode</translation>
    </message>
    <message>
        <source>Alt on Windows</source>
        <translation>Alt in Windows</translation>
    </message>
    <message>
        <source>Ctrl+Shift+U</source>
        <translation>Strg+Umschalt+U</translation>
    </message>
    <message>
        <source>Keysym</source>
        <translation>Keysym</translation>
    </message>
</context>
<context>
    <name>browser::AddDialog</name>
    <message>
        <source>For example 21D0, U+21D0, &amp;lArr;, a name or the character itself</source>
        <translation>Zum Beispiel 21D0, U+21D0, &amp;lArr;, ein Name oder das Zeichen selbst</translation>
    </message>
    <message>
        <source>“%1” is no code, name or character.</source>
        <translation>„%1“ ist kein Code, kein Name und kein Zeichen.</translation>
    </message>
    <message>
        <source>You have already added %1 (%2).</source>
        <translation>%1 (%2) haben Sie bereits hinzugefügt.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln characters: %1</source>
        <translation>
            <numerusform>%Ln Zeichen: %1</numerusform>
            <numerusform>%Ln Zeichen: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Add a character</source>
        <translation>Zeichen hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Code, name or character:</source>
        <translation>&amp;Code, Name oder Zeichen:</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>%1 is not assigned to a character in Unicode 17.0.</source>
        <translation>%1 ist in Unicode 17.0 keinem Zeichen zugewiesen.</translation>
    </message>
</context>
<context>
    <name>browser::BrowserApplication</name>
    <message>
        <source>The character was copied</source>
        <translation>Das Zeichen wurde kopiert</translation>
    </message>
    <message>
        <source>This desktop does not let programs type into other windows, or the tool for it is not installed. Ctrl+V pastes the character.</source>
        <translation>Diese Arbeitsumgebung lässt Programme nicht in andere Fenster tippen, oder das Werkzeug dafür ist nicht installiert. Strg+V fügt das Zeichen ein.</translation>
    </message>
</context>
<context>
    <name>browser::Catalog</name>
    <message>
        <source>Add “%1”</source>
        <translation>„%1“ hinzufügen</translation>
    </message>
    <message>
        <source>Remove “%1”</source>
        <translation>„%1“ entfernen</translation>
    </message>
    <message>
        <source>Remove “%1” from the favourites</source>
        <translation>„%1“ aus den Favoriten entfernen</translation>
    </message>
    <message>
        <source>Add “%1” to the favourites</source>
        <translation>„%1“ zu den Favoriten hinzufügen</translation>
    </message>
    <message>
        <source>The choice could not be saved. It is kept until the program ends.</source>
        <translation>Die Auswahl konnte nicht gespeichert werden. Sie gilt, bis das Programm endet.</translation>
    </message>
</context>
<context>
    <name>browser::CharacterCard</name>
    <message>
        <source>Character</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Verwendung</translation>
    </message>
    <message>
        <source>See also</source>
        <translation>Siehe auch</translation>
    </message>
    <message>
        <source>Also found by</source>
        <translation>Auch gefunden mit</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Collect</source>
        <translation>Sammeln</translation>
    </message>
    <message>
        <source>Collect, to copy it together with others</source>
        <translation>Sammeln, um es mit anderen zusammen zu kopieren</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>%1 kopieren</translation>
    </message>
    <message>
        <source>Codes</source>
        <translation>Codes</translation>
    </message>
    <message>
        <source>Unicode name: %1</source>
        <translation>Unicode-Name: %1</translation>
    </message>
    <message>
        <source>Remove from the favourites (Ctrl+D)</source>
        <translation>Aus den Favoriten entfernen (Strg+D)</translation>
    </message>
    <message>
        <source>Add to the favourites (Ctrl+D)</source>
        <translation>Zu den Favoriten hinzufügen (Strg+D)</translation>
    </message>
    <message>
        <source>Remove from your own characters</source>
        <translation>Aus den eigenen Zeichen entfernen</translation>
    </message>
    <message>
        <source>Add to your own characters</source>
        <translation>Zu den eigenen Zeichen hinzufügen</translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation>Schrift: %1</translation>
    </message>
    <message>
        <source>No installed font draws this character.</source>
        <translation>Keine installierte Schrift enthält dieses Zeichen.</translation>
    </message>
    <message>
        <source>No installed font draws this character. The package %1 has one.</source>
        <translation>Keine installierte Schrift enthält dieses Zeichen. Das Paket %1 bringt eine mit.</translation>
    </message>
    <message>
        <source>Skin tones</source>
        <translation>Hauttöne</translation>
    </message>
    <message>
        <source>Easily mistaken for</source>
        <translation>Leicht zu verwechseln mit</translation>
    </message>
    <message>
        <source>How to type it</source>
        <translation>Eingabe</translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation>Unicode</translation>
    </message>
    <message>
        <source>Also called</source>
        <translation>Auch genannt</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Bedeutung</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Schriftsystem</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Since version</source>
        <translation>Seit Version</translation>
    </message>
    <message>
        <source>A private-use character. No installed font draws it.</source>
        <translation>Ein Zeichen zur privaten Verwendung. Keine installierte Schrift zeigt es.</translation>
    </message>
</context>
<context>
    <name>browser::CharacterFilter</name>
    <message>
        <source>All characters</source>
        <translation>Alle Zeichen</translation>
    </message>
    <message>
        <source>Checked groups</source>
        <translation>Markierte Gruppen</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Recently copied</source>
        <translation>Zuletzt kopiert</translation>
    </message>
    <message>
        <source>Characters of “%1”</source>
        <translation>Zeichen von „%1“</translation>
    </message>
</context>
<context>
    <name>browser::CharacterGrid</name>
    <message>
        <source>Characters</source>
        <translation>Zeichen</translation>
    </message>
</context>
<context>
    <name>browser::Collector</name>
    <message>
        <source>Collected:</source>
        <translation>Gesammelt:</translation>
    </message>
    <message>
        <source>Collected characters</source>
        <translation>Gesammelte Zeichen</translation>
    </message>
    <message>
        <source>Copy all</source>
        <translation>Alle kopieren</translation>
    </message>
    <message>
        <source>Empty the collection</source>
        <translation>Sammlung leeren</translation>
    </message>
</context>
<context>
    <name>browser::GlobalShortcut</name>
    <message>
        <source>Pick a character</source>
        <translation>Zeichen auswählen</translation>
    </message>
</context>
<context>
    <name>browser::LargeGlyph</name>
    <message>
        <source>Drag the character into another window</source>
        <translation>Das Zeichen in ein anderes Fenster ziehen</translation>
    </message>
</context>
<context>
    <name>browser::MainWindow</name>
    <message>
        <source>Groups (F9)</source>
        <translation>Gruppen (F9)</translation>
    </message>
    <message>
        <source>Search by name, meaning, code or character</source>
        <translation>Name, Bedeutung, Code oder Zeichen suchen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Add a character (Ctrl+N)</source>
        <translation>Zeichen hinzufügen (Strg+N)</translation>
    </message>
    <message>
        <source>Menu (F10)</source>
        <translation>Menü (F10)</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy &amp;as</source>
        <translation>Kopieren &amp;als</translation>
    </message>
    <message>
        <source>Co&amp;llect</source>
        <translation>Sa&amp;mmeln</translation>
    </message>
    <message>
        <source>&amp;Favourite</source>
        <translation>&amp;Favorit</translation>
    </message>
    <message>
        <source>&amp;Add a character …</source>
        <translation>Zeichen &amp;hinzufügen …</translation>
    </message>
    <message>
        <source>&amp;Remove from your own</source>
        <translation>Aus den eigenen &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Identify the clipboard’s text</source>
        <translation>Text der &amp;Zwischenablage bestimmen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>&amp;Gruppen</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation>G&amp;rößer</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation>&amp;Kleiner</translation>
    </message>
    <message>
        <source>&amp;Usual size</source>
        <translation>&amp;Normale Größe</translation>
    </message>
    <message>
        <source>Forget the &amp;recently copied characters</source>
        <translation>&amp;Zuletzt kopierte Zeichen vergessen</translation>
    </message>
    <message>
        <source>&amp;Preferences …</source>
        <translation>&amp;Einstellungen …</translation>
    </message>
    <message>
        <source>&amp;Keys and mouse</source>
        <translation>&amp;Tasten und Maus</translation>
    </message>
    <message>
        <source>A&amp;bout</source>
        <translation>&amp;Über</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Kopiert: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln characters</source>
        <translation>
            <numerusform>%Ln Zeichen</numerusform>
            <numerusform>%Ln Zeichen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing matches exactly. %Ln similar characters:</source>
        <translation>
            <numerusform>Nichts passt genau. %Ln ähnliches Zeichen:</numerusform>
            <numerusform>Nichts passt genau. %Ln ähnliche Zeichen:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln more in all characters</source>
        <translation>
            <numerusform>%Ln weiteres in allen Zeichen</numerusform>
            <numerusform>%Ln weitere in allen Zeichen</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing found for “%1”.</source>
        <translation>Nichts gefunden für „%1“.</translation>
    </message>
    <message>
        <source>No favourites yet. Ctrl+D makes the current character a favourite.</source>
        <translation>Noch keine Favoriten. Strg+D macht das aktuelle Zeichen zum Favoriten.</translation>
    </message>
    <message>
        <source>What you copy appears here.</source>
        <translation>Hier erscheint, was Sie kopieren.</translation>
    </message>
    <message>
        <source>No characters yet. Ctrl+N adds a character by its code, its name or by pasting it.</source>
        <translation>Noch keine Zeichen. Strg+N fügt ein Zeichen hinzu: mit seinem Code, seinem Namen oder aus der Zwischenablage.</translation>
    </message>
    <message>
        <source>Collect</source>
        <translation>Sammeln</translation>
    </message>
    <message>
        <source>Remove from the favourites</source>
        <translation>Aus den Favoriten entfernen</translation>
    </message>
    <message>
        <source>Add to the favourites</source>
        <translation>Zu den Favoriten hinzufügen</translation>
    </message>
    <message>
        <source>Remove from your own characters</source>
        <translation>Aus den eigenen Zeichen entfernen</translation>
    </message>
    <message>
        <source>Add to your own characters</source>
        <translation>Zu den eigenen Zeichen hinzufügen</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Buchstaben</translation>
    </message>
    <message>
        <source>search</source>
        <translation>suchen</translation>
    </message>
    <message>
        <source>Enter, double click</source>
        <translation>Eingabetaste, Doppelklick</translation>
    </message>
    <message>
        <source>copy the character</source>
        <translation>das Zeichen kopieren</translation>
    </message>
    <message>
        <source>Alt+Enter</source>
        <translation>Alt+Eingabetaste</translation>
    </message>
    <message>
        <source>Ctrl+1 … Ctrl+9</source>
        <translation>Strg+1 … Strg+9</translation>
    </message>
    <message>
        <source>copy another form</source>
        <translation>eine andere Form kopieren</translation>
    </message>
    <message>
        <source>Space, Ctrl+Enter, Ctrl+click</source>
        <translation>Leertaste, Strg+Eingabetaste, Strg+Klick</translation>
    </message>
    <message>
        <source>collect, to copy several characters together</source>
        <translation>sammeln, um mehrere Zeichen zusammen zu kopieren</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Strg+D</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>Favorit</translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation>Strg+N</translation>
    </message>
    <message>
        <source>add a character of your own</source>
        <translation>ein eigenes Zeichen hinzufügen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Entf</translation>
    </message>
    <message>
        <source>remove a character of your own</source>
        <translation>ein eigenes Zeichen entfernen</translation>
    </message>
    <message>
        <source>Ctrl+V, drop a text</source>
        <translation>Strg+V, einen Text ablegen</translation>
    </message>
    <message>
        <source>show the characters of a text</source>
        <translation>die Zeichen eines Textes zeigen</translation>
    </message>
    <message>
        <source>Ctrl+Z, Ctrl+Shift+Z</source>
        <translation>Strg+Z, Strg+Umschalt+Z</translation>
    </message>
    <message>
        <source>undo, redo</source>
        <translation>rückgängig machen, wiederholen</translation>
    </message>
    <message>
        <source>Ctrl++, Ctrl+-, Ctrl+wheel</source>
        <translation>Strg++, Strg+-, Strg+Mausrad</translation>
    </message>
    <message>
        <source>zoom</source>
        <translation>Größe ändern</translation>
    </message>
    <message>
        <source>Ctrl+F, Escape</source>
        <translation>Strg+F, Escape</translation>
    </message>
    <message>
        <source>into the search field, empty it</source>
        <translation>ins Suchfeld, es leeren</translation>
    </message>
    <message>
        <source>F9</source>
        <translation>F9</translation>
    </message>
    <message>
        <source>show or hide the groups</source>
        <translation>die Gruppen ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Keys and mouse</source>
        <translation>Tasten und Maus</translation>
    </message>
    <message>
        <source>About Glyphorium</source>
        <translation>Über Glyphorium</translation>
    </message>
    <message>
        <source>A character catalog: Unicode characters, HTML character entities and symbols.</source>
        <translation>Ein Zeichenkatalog: Unicode-Zeichen, HTML-Zeichenentitäten und Symbole.</translation>
    </message>
    <message>
        <source>Under the MIT licence. Data of the Unicode Character Database and of CLDR stands under the Unicode licence.</source>
        <translation>Unter der MIT-Lizenz. Die Daten der Unicode Character Database und von CLDR stehen unter der Unicode-Lizenz.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Back to where you were before (Alt+Left)</source>
        <translation>Zurück zur vorigen Stelle (Alt+Links)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy as</source>
        <translation>Kopieren als</translation>
    </message>
    <message>
        <source>copy the form chosen in the preferences</source>
        <translation>die in den Einstellungen gewählte Form kopieren</translation>
    </message>
    <message>
        <source>Long press on an emoji</source>
        <translation>Emoji lange drücken</translation>
    </message>
    <message>
        <source>choose its skin tone</source>
        <translation>seinen Hautton wählen</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation>Alt+Links</translation>
    </message>
    <message>
        <source>back from a link on the card</source>
        <translation>von einem Link der Karte zurück</translation>
    </message>
    <message>
        <source>Empty the search field</source>
        <translation>Suchfeld leeren</translation>
    </message>
    <message>
        <source>Enter searches all characters.</source>
        <translation>Die Eingabetaste sucht in allen Zeichen.</translation>
    </message>
    <message>
        <source>No checked group has characters. Check groups in the list of groups to see their characters together here.</source>
        <translation>Keine markierte Gruppe hat Zeichen. Die Zeichen der in der Gruppenliste markierten Gruppen erscheinen hier zusammen.</translation>
    </message>
</context>
<context>
    <name>browser::Picker</name>
    <message>
        <source>Pick a character</source>
        <translation>Zeichen auswählen</translation>
    </message>
    <message>
        <source>Search by name, meaning, code or character</source>
        <translation>Name, Bedeutung, Code oder Zeichen suchen</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nichts gefunden.</translation>
    </message>
    <message>
        <source>Enter: copy · Ctrl+Enter: collect · Alt+Enter: other form</source>
        <translation>Eingabe: kopieren · Strg+Eingabe: sammeln · Alt+Eingabe: andere Form</translation>
    </message>
    <message>
        <source>Empty the search field</source>
        <translation>Suchfeld leeren</translation>
    </message>
</context>
<context>
    <name>browser::PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Picker</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Desktop search</source>
        <translation>Desktopsuche</translation>
    </message>
    <message>
        <source>Like the desktop</source>
        <translation>Wie die Arbeitsumgebung</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Erscheinungsbild:</translation>
    </message>
    <message>
        <source>Chosen for each character</source>
        <translation>Für jedes Zeichen passend</translation>
    </message>
    <message>
        <source>&amp;Font of the characters:</source>
        <translation>&amp;Schrift der Zeichen:</translation>
    </message>
    <message>
        <source>&amp;Alt+Enter copies:</source>
        <translation>&amp;Alt+Eingabe kopiert:</translation>
    </message>
    <message>
        <source>&amp;Type the character into the window that had the focus</source>
        <translation>Das Zeichen in das zuvor aktive Fenster &amp;tippen</translation>
    </message>
    <message>
        <source>For this, install the package xdotool (X11) or wtype (Sway and other wlroots desktops). Without it, Ctrl+V pastes the character.</source>
        <translation>Dafür ist das Paket xdotool (X11) oder wtype (Sway und andere wlroots-Umgebungen) nötig. Ohne es fügt Strg+V das Zeichen ein.</translation>
    </message>
    <message>
        <source>&amp;Start with the desktop, so that the picker opens at once</source>
        <translation>Mit der Arbeitsumgebung &amp;starten, damit die Auswahl sofort erscheint</translation>
    </message>
    <message>
        <source>GNOME Shell and KRunner find characters when glyphorium-search-provider is installed.</source>
        <translation>GNOME Shell und KRunner finden Zeichen, wenn glyphorium-search-provider installiert ist.</translation>
    </message>
    <message>
        <source>The desktop’s search finds &amp;all characters, not only your own</source>
        <translation>Die Desktopsuche findet &amp;alle Zeichen, nicht nur die eigenen</translation>
    </message>
    <message>
        <source>The desktop’s search finds the characters that you &amp;add</source>
        <translation>Die Desktopsuche findet die Zeichen, die Sie &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Skin tone of emoji:</source>
        <translation>&amp;Hautton der Emoji:</translation>
    </message>
    <message>
        <source>Settings › Keyboard › View and Customise Shortcuts › Custom Shortcuts, with the command</source>
        <translation>Einstellungen › Tastatur › Tastenkürzel anzeigen und anpassen › Eigene Tastenkürzel, mit dem Befehl</translation>
    </message>
    <message>
        <source>System Settings › Shortcuts › Add Command</source>
        <translation>Systemeinstellungen › Kurzbefehle › Befehl hinzufügen</translation>
    </message>
    <message>
        <source>a line in the configuration</source>
        <translation>eine Zeile in der Konfiguration</translation>
    </message>
    <message>
        <source>&amp;Let the desktop open the picker with a key</source>
        <translation>Die Arbeitsumgebung öffnet die Auswah&amp;l mit einer Taste</translation>
    </message>
    <message>
        <source>The desktop’s settings show the key. It works while Glyphorium runs.</source>
        <translation>Die Einstellungen der Arbeitsumgebung zeigen die Taste. Sie wirkt, solange Glyphorium läuft.</translation>
    </message>
    <message>
        <source>The key is “%1”. It works while Glyphorium runs.</source>
        <translation>Die Taste ist „%1“. Sie wirkt, solange Glyphorium läuft.</translation>
    </message>
    <message>
        <source>This desktop does not let programs ask for a key. Its own settings can open the picker with a key over every window:</source>
        <translation>Diese Arbeitsumgebung vergibt keine Tasten an Programme. Ihre eigenen Einstellungen können die Auswahl mit einer Taste über jedem Fenster öffnen:</translation>
    </message>
    <message>
        <source>The desktop’s own settings can also open the picker with a key over every window:</source>
        <translation>Auch die eigenen Einstellungen der Arbeitsumgebung können die Auswahl mit einer Taste über jedem Fenster öffnen:</translation>
    </message>
</context>
<context>
    <name>browser::ScopeModel</name>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message numerus="yes">
        <source>%Ln characters</source>
        <translation>
            <numerusform>%Ln Zeichen</numerusform>
            <numerusform>%Ln Zeichen</numerusform>
        </translation>
    </message>
    <message>
        <source>The characters of all groups with a check mark</source>
        <translation>Die Zeichen aller markierten Gruppen</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Emoji</translation>
    </message>
    <message>
        <source>Blocks of Unicode</source>
        <translation>Unicode-Blöcke</translation>
    </message>
</context>
<context>
    <name>browser::Sidebar</name>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Browse, search and copy Unicode characters, HTML entities and symbols.</source>
        <translation>Unicode-Zeichen, HTML-Entitäten und Symbole durchsehen, suchen und kopieren.</translation>
    </message>
    <message>
        <source>Open the window and search for these words.</source>
        <translation>Das Fenster öffnen und diese Wörter suchen.</translation>
    </message>
    <message>
        <source>words</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>Open a small window to pick a character for another program.</source>
        <translation>Ein kleines Fenster öffnen, um ein Zeichen für ein anderes Programm auszuwählen.</translation>
    </message>
    <message>
        <source>Open no window yet, so that later ones open at once.</source>
        <translation>Noch kein Fenster öffnen, damit spätere sofort erscheinen.</translation>
    </message>
    <message>
        <source>Use this theme: system, light or dark.</source>
        <translation>Dieses Erscheinungsbild verwenden: system, light oder dark.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>Name</translation>
    </message>
</context>
</TS>
