<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>Category</name>
    <message>
        <source>uppercase letter</source>
        <translation>lettera maiuscola</translation>
    </message>
    <message>
        <source>lowercase letter</source>
        <translation>lettera minuscola</translation>
    </message>
    <message>
        <source>titlecase letter</source>
        <translation>lettera di titolo</translation>
    </message>
    <message>
        <source>modifier letter</source>
        <translation>lettera modificatrice</translation>
    </message>
    <message>
        <source>other letter</source>
        <translation>altra lettera</translation>
    </message>
    <message>
        <source>nonspacing mark</source>
        <translation>segno senza spaziatura</translation>
    </message>
    <message>
        <source>spacing mark</source>
        <translation>segno con spaziatura</translation>
    </message>
    <message>
        <source>enclosing mark</source>
        <translation>segno che racchiude</translation>
    </message>
    <message>
        <source>decimal number</source>
        <translation>cifra decimale</translation>
    </message>
    <message>
        <source>letter number</source>
        <translation>numero in forma di lettera</translation>
    </message>
    <message>
        <source>other number</source>
        <translation>altro numero</translation>
    </message>
    <message>
        <source>connector punctuation</source>
        <translation>punteggiatura di unione</translation>
    </message>
    <message>
        <source>dash punctuation</source>
        <translation>lineetta</translation>
    </message>
    <message>
        <source>open punctuation</source>
        <translation>punteggiatura di apertura</translation>
    </message>
    <message>
        <source>close punctuation</source>
        <translation>punteggiatura di chiusura</translation>
    </message>
    <message>
        <source>initial punctuation</source>
        <translation>virgolette di apertura</translation>
    </message>
    <message>
        <source>final punctuation</source>
        <translation>virgolette di chiusura</translation>
    </message>
    <message>
        <source>other punctuation</source>
        <translation>altra punteggiatura</translation>
    </message>
    <message>
        <source>math symbol</source>
        <translation>simbolo matematico</translation>
    </message>
    <message>
        <source>currency symbol</source>
        <translation>simbolo di valuta</translation>
    </message>
    <message>
        <source>modifier symbol</source>
        <translation>simbolo modificatore</translation>
    </message>
    <message>
        <source>other symbol</source>
        <translation>altro simbolo</translation>
    </message>
    <message>
        <source>space separator</source>
        <translation>spazio</translation>
    </message>
    <message>
        <source>line separator</source>
        <translation>separatore di righe</translation>
    </message>
    <message>
        <source>paragraph separator</source>
        <translation>separatore di paragrafi</translation>
    </message>
    <message>
        <source>control</source>
        <translation>carattere di controllo</translation>
    </message>
    <message>
        <source>format</source>
        <translation>carattere di formattazione</translation>
    </message>
    <message>
        <source>surrogate</source>
        <translation>surrogato</translation>
    </message>
    <message>
        <source>private use</source>
        <translation>uso privato</translation>
    </message>
    <message>
        <source>unassigned</source>
        <translation>non assegnato</translation>
    </message>
</context>
<context>
    <name>CharacterMenu</name>
    <message>
        <source>Skin tone</source>
        <translation>Tonalità della pelle</translation>
    </message>
</context>
<context>
    <name>CharacterTexts</name>
    <message>
        <source>Character without a name</source>
        <translation>Carattere senza nome</translation>
    </message>
</context>
<context>
    <name>CopyForm</name>
    <message>
        <source>Character</source>
        <translation>Carattere</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Esadecimale</translation>
    </message>
    <message>
        <source>Decimal</source>
        <translation>Decimale</translation>
    </message>
    <message>
        <source>Code point</source>
        <translation>Punto di codice</translation>
    </message>
    <message>
        <source>HTML name</source>
        <translation>Nome HTML</translation>
    </message>
    <message>
        <source>HTML hexadecimal</source>
        <translation>HTML esadecimale</translation>
    </message>
    <message>
        <source>HTML decimal</source>
        <translation>HTML decimale</translation>
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
        <translation>Escape ottale</translation>
    </message>
</context>
<context>
    <name>EmojiGroup</name>
    <message>
        <source>Smileys &amp; Emotion</source>
        <translation>Faccine ed emozioni</translation>
    </message>
    <message>
        <source>People &amp; Body</source>
        <translation>Persone e corpo</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Componenti</translation>
    </message>
    <message>
        <source>Animals &amp; Nature</source>
        <translation>Animali e natura</translation>
    </message>
    <message>
        <source>Food &amp; Drink</source>
        <translation>Cibo e bevande</translation>
    </message>
    <message>
        <source>Travel &amp; Places</source>
        <translation>Viaggi e luoghi</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Attività</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Oggetti</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Simboli</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Bandiere</translation>
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
        <translation>Numeri egei</translation>
    </message>
    <message>
        <source>Alphabetic Presentation Forms</source>
        <translation>Forme di presentazione alfabetiche</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabo</translation>
    </message>
    <message>
        <source>Arabic Presentation Forms A</source>
        <translation>Forme di presentazione arabe A</translation>
    </message>
    <message>
        <source>Arabic Presentation Forms B</source>
        <translation>Forme di presentazione arabe B</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation>Armeno</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Frecce</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation>Bengalese</translation>
    </message>
    <message>
        <source>Block Elements</source>
        <translation>Elementi a blocchi</translation>
    </message>
    <message>
        <source>Bopomofo</source>
        <translation>Bopomofo</translation>
    </message>
    <message>
        <source>Bopomofo Extended</source>
        <translation>Bopomofo esteso</translation>
    </message>
    <message>
        <source>Box Drawing</source>
        <translation>Disegno di cornici</translation>
    </message>
    <message>
        <source>Braille Patterns</source>
        <translation>Combinazioni Braille</translation>
    </message>
    <message>
        <source>Buhid</source>
        <translation>Buhid</translation>
    </message>
    <message>
        <source>Cherokee</source>
        <translation>Cherokee</translation>
    </message>
    <message>
        <source>CJK Compatibility</source>
        <translation>Compatibilità CJK</translation>
    </message>
    <message>
        <source>CJK Compatibility Forms</source>
        <translation>Forme di compatibilità CJK</translation>
    </message>
    <message>
        <source>CJK Compatibility Ideographs</source>
        <translation>Ideogrammi di compatibilità CJK</translation>
    </message>
    <message>
        <source>CJK Radicals Supplement</source>
        <translation>Supplemento ai radicali CJK</translation>
    </message>
    <message>
        <source>CJK Symbols and Punctuation</source>
        <translation>Simboli e punteggiatura CJK</translation>
    </message>
    <message>
        <source>Combining Diacritical Marks</source>
        <translation>Segni diacritici combinanti</translation>
    </message>
    <message>
        <source>Combining Diacritical Marks for Symbols</source>
        <translation>Segni diacritici per simboli</translation>
    </message>
    <message>
        <source>Control Pictures</source>
        <translation>Simboli dei caratteri di controllo</translation>
    </message>
    <message>
        <source>Currency Symbols</source>
        <translation>Simboli di valuta</translation>
    </message>
    <message>
        <source>Your own characters</source>
        <translation>I tuoi caratteri</translation>
    </message>
    <message>
        <source>Cypriot Syllabary</source>
        <translation>Sillabario cipriota</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Cirillico</translation>
    </message>
    <message>
        <source>Cyrillic Supplementary</source>
        <translation>Supplemento cirillico</translation>
    </message>
    <message>
        <source>Deseret</source>
        <translation>Deseret</translation>
    </message>
    <message>
        <source>Design Inspiration</source>
        <translation>Ispirazione grafica</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation>Devanagari</translation>
    </message>
    <message>
        <source>Digital Typography (Latin)</source>
        <translation>Tipografia digitale (latino)</translation>
    </message>
    <message>
        <source>Dingbats</source>
        <translation>Dingbat</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Emoji</translation>
    </message>
    <message>
        <source>Enclosed Alphanumerics</source>
        <translation>Alfanumerici racchiusi</translation>
    </message>
    <message>
        <source>Enclosed CJK Letters and Months</source>
        <translation>Lettere e mesi CJK racchiusi</translation>
    </message>
    <message>
        <source>Ethiopic</source>
        <translation>Etiope</translation>
    </message>
    <message>
        <source>Geometric Shapes</source>
        <translation>Forme geometriche</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation>Georgiano</translation>
    </message>
    <message>
        <source>Gothic</source>
        <translation>Gotico</translation>
    </message>
    <message>
        <source>Greek and Coptic</source>
        <translation>Greco e copto</translation>
    </message>
    <message>
        <source>Greek Extended</source>
        <translation>Greco esteso</translation>
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
        <translation>Forme a mezza e piena larghezza</translation>
    </message>
    <message>
        <source>Hangul Compatibility Jamo</source>
        <translation>Jamo hangul di compatibilità</translation>
    </message>
    <message>
        <source>Hangul Jamo</source>
        <translation>Jamo hangul</translation>
    </message>
    <message>
        <source>Hanunoo</source>
        <translation>Hanunoo</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Ebraico</translation>
    </message>
    <message>
        <source>Hiragana</source>
        <translation>Hiragana</translation>
    </message>
    <message>
        <source>Ideographic Description Characters</source>
        <translation>Descrizione ideografica</translation>
    </message>
    <message>
        <source>IPA Extensions</source>
        <translation>Alfabeto fonetico internazionale</translation>
    </message>
    <message>
        <source>Kanbun</source>
        <translation>Kanbun</translation>
    </message>
    <message>
        <source>Kangxi Radicals</source>
        <translation>Radicali Kangxi</translation>
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
        <translation>Estensioni fonetiche katakana</translation>
    </message>
    <message>
        <source>Khmer</source>
        <translation>Khmer</translation>
    </message>
    <message>
        <source>Khmer Symbols</source>
        <translation>Simboli khmer</translation>
    </message>
    <message>
        <source>Lao</source>
        <translation>Lao</translation>
    </message>
    <message>
        <source>Basic Latin</source>
        <translation>Latino di base</translation>
    </message>
    <message>
        <source>Latin Extended A</source>
        <translation>Latino esteso A</translation>
    </message>
    <message>
        <source>Latin Extended Additional</source>
        <translation>Latino esteso aggiuntivo</translation>
    </message>
    <message>
        <source>Latin Extended B</source>
        <translation>Latino esteso B</translation>
    </message>
    <message>
        <source>Latin Supplement</source>
        <translation>Supplemento latino</translation>
    </message>
    <message>
        <source>Letterlike Symbols</source>
        <translation>Simboli letterali</translation>
    </message>
    <message>
        <source>Limbu</source>
        <translation>Limbu</translation>
    </message>
    <message>
        <source>Linear B Ideograms</source>
        <translation>Ideogrammi lineare B</translation>
    </message>
    <message>
        <source>Linear B Syllabary</source>
        <translation>Sillabario lineare B</translation>
    </message>
    <message>
        <source>Malayalam</source>
        <translation>Malayalam</translation>
    </message>
    <message>
        <source>Mathematical Alphanumeric Symbols</source>
        <translation>Alfanumerici matematici</translation>
    </message>
    <message>
        <source>Mathematical Operators</source>
        <translation>Operatori matematici</translation>
    </message>
    <message>
        <source>Miscellaneous Mathematical Symbols A</source>
        <translation>Simboli matematici vari A</translation>
    </message>
    <message>
        <source>Miscellaneous Mathematical Symbols B</source>
        <translation>Simboli matematici vari B</translation>
    </message>
    <message>
        <source>Miscellaneous Symbols</source>
        <translation>Simboli vari</translation>
    </message>
    <message>
        <source>Miscellaneous Symbols and Arrows</source>
        <translation>Simboli e frecce vari</translation>
    </message>
    <message>
        <source>Miscellaneous Technical</source>
        <translation>Segni tecnici vari</translation>
    </message>
    <message>
        <source>Mongolian</source>
        <translation>Mongolo</translation>
    </message>
    <message>
        <source>Musical Symbols</source>
        <translation>Simboli musicali</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>Birmano</translation>
    </message>
    <message>
        <source>Number Forms</source>
        <translation>Forme numeriche</translation>
    </message>
    <message>
        <source>Ogham</source>
        <translation>Ogham</translation>
    </message>
    <message>
        <source>Old Italic</source>
        <translation>Antico italico</translation>
    </message>
    <message>
        <source>Optical Character Recognition</source>
        <translation>Riconoscimento ottico dei caratteri</translation>
    </message>
    <message>
        <source>Oriya</source>
        <translation>Oriya</translation>
    </message>
    <message>
        <source>Osmanya</source>
        <translation>Osmanya</translation>
    </message>
    <message>
        <source>Phonetic Extensions</source>
        <translation>Estensioni fonetiche</translation>
    </message>
    <message>
        <source>Punctuation</source>
        <translation>Punteggiatura</translation>
    </message>
    <message>
        <source>Runic</source>
        <translation>Rune</translation>
    </message>
    <message>
        <source>Shavian</source>
        <translation>Shaviano</translation>
    </message>
    <message>
        <source>Sinhala</source>
        <translation>Singalese</translation>
    </message>
    <message>
        <source>Small Form Variants</source>
        <translation>Varianti di forma piccola</translation>
    </message>
    <message>
        <source>Spacing Modifier Letters</source>
        <translation>Lettere modificatrici</translation>
    </message>
    <message>
        <source>Superscripts and Subscripts</source>
        <translation>Apici e pedici</translation>
    </message>
    <message>
        <source>Supplemental Arrows A</source>
        <translation>Frecce supplementari A</translation>
    </message>
    <message>
        <source>Supplemental Arrows B</source>
        <translation>Frecce supplementari B</translation>
    </message>
    <message>
        <source>Supplemental Mathematical Operators</source>
        <translation>Operatori matematici supplementari</translation>
    </message>
    <message>
        <source>Syriac</source>
        <translation>Siriaco</translation>
    </message>
    <message>
        <source>Tagalog</source>
        <translation>Tagalog</translation>
    </message>
    <message>
        <source>Tagbanwa</source>
        <translation>Tagbanwa</translation>
    </message>
    <message>
        <source>Tai Le</source>
        <translation>Tai Le</translation>
    </message>
    <message>
        <source>Tai Xuan Jing Symbols</source>
        <translation>Simboli del Tai Xuan Jing</translation>
    </message>
    <message>
        <source>Tamil</source>
        <translation>Tamil</translation>
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
        <translation>Thai</translation>
    </message>
    <message>
        <source>Tibetan</source>
        <translation>Tibetano</translation>
    </message>
    <message>
        <source>Ugaritic</source>
        <translation>Ugaritico</translation>
    </message>
    <message>
        <source>Unified Canadian Aboriginal Syllabics</source>
        <translation>Sillabari aborigeni canadesi</translation>
    </message>
    <message>
        <source>Yi Radicals</source>
        <translation>Radicali yi</translation>
    </message>
    <message>
        <source>Yi Syllables</source>
        <translation>Sillabe yi</translation>
    </message>
    <message>
        <source>Yijing Hexagram Symbols</source>
        <translation>Esagrammi dell’I Ching</translation>
    </message>
</context>
<context>
    <name>WayToType</name>
    <message>
        <source>Compose key</source>
        <translation>Tasto Compose</translation>
    </message>
    <message>
        <source>LaTeX</source>
        <translation>LaTeX</translation>
    </message>
    <message>
        <source>Digraph, Ctrl+K</source>
        <translation>Digrafo, Ctrl+K</translation>
    </message>
    <message>
        <source>Shortcode</source>
        <translation>Codice breve</translation>
    </message>
    <message>
        <source>Alt on Windows</source>
        <translation>Alt in Windows</translation>
    </message>
    <message>
        <source>Ctrl+Shift+U</source>
        <translation>Ctrl+Maiusc+U</translation>
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
        <translation>Per esempio 21D0, U+21D0, &amp;lArr;, un nome o il carattere stesso</translation>
    </message>
    <message>
        <source>“%1” is no code, name or character.</source>
        <translation>«%1» non è un codice, né un nome, né un carattere.</translation>
    </message>
    <message>
        <source>You have already added %1 (%2).</source>
        <translation>Hai già aggiunto %1 (%2).</translation>
    </message>
    <message numerus="yes">
        <source>%Ln characters: %1</source>
        <translation>
            <numerusform>%Ln carattere: %1</numerusform>
            <numerusform>%Ln caratteri: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Add a character</source>
        <translation>Aggiungi un carattere</translation>
    </message>
    <message>
        <source>&amp;Code, name or character:</source>
        <translation>&amp;Codice, nome o carattere:</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <source>%1 is not assigned to a character in Unicode 17.0.</source>
        <translation>%1 non è assegnato ad alcun carattere in Unicode 17.0.</translation>
    </message>
</context>
<context>
    <name>browser::BrowserApplication</name>
    <message>
        <source>The character was copied</source>
        <translation>Il carattere è stato copiato</translation>
    </message>
    <message>
        <source>This desktop does not let programs type into other windows, or the tool for it is not installed. Ctrl+V pastes the character.</source>
        <translation>Questo ambiente non permette ai programmi di scrivere in altre finestre, oppure manca lo strumento necessario. Ctrl+V incolla il carattere.</translation>
    </message>
</context>
<context>
    <name>browser::Catalog</name>
    <message>
        <source>Add “%1”</source>
        <translation>Aggiungi «%1»</translation>
    </message>
    <message>
        <source>Remove “%1”</source>
        <translation>Rimuovi «%1»</translation>
    </message>
    <message>
        <source>Remove “%1” from the favourites</source>
        <translation>Rimuovi «%1» dai preferiti</translation>
    </message>
    <message>
        <source>Add “%1” to the favourites</source>
        <translation>Aggiungi «%1» ai preferiti</translation>
    </message>
    <message>
        <source>The choice could not be saved. It is kept until the program ends.</source>
        <translation>La scelta non è stata salvata. Vale fino alla chiusura del programma.</translation>
    </message>
</context>
<context>
    <name>browser::CharacterCard</name>
    <message>
        <source>Character</source>
        <translation>Carattere</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Uso</translation>
    </message>
    <message>
        <source>See also</source>
        <translation>Vedi anche</translation>
    </message>
    <message>
        <source>Also found by</source>
        <translation>Trovato anche con</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppi</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Preferito</translation>
    </message>
    <message>
        <source>Collect</source>
        <translation>Raccogli</translation>
    </message>
    <message>
        <source>Collect, to copy it together with others</source>
        <translation>Raccogli, per copiarlo insieme ad altri</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>Copia %1</translation>
    </message>
    <message>
        <source>Codes</source>
        <translation>Codici</translation>
    </message>
    <message>
        <source>Unicode name: %1</source>
        <translation>Nome Unicode: %1</translation>
    </message>
    <message>
        <source>Remove from the favourites (Ctrl+D)</source>
        <translation>Rimuovi dai preferiti (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add to the favourites (Ctrl+D)</source>
        <translation>Aggiungi ai preferiti (Ctrl+D)</translation>
    </message>
    <message>
        <source>Remove from your own characters</source>
        <translation>Rimuovi dai tuoi caratteri</translation>
    </message>
    <message>
        <source>Add to your own characters</source>
        <translation>Aggiungi ai tuoi caratteri</translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation>Tipo di carattere: %1</translation>
    </message>
    <message>
        <source>No installed font draws this character.</source>
        <translation>Nessun tipo di carattere installato contiene questo carattere.</translation>
    </message>
    <message>
        <source>No installed font draws this character. The package %1 has one.</source>
        <translation>Nessun tipo di carattere installato contiene questo carattere. Il pacchetto %1 ne fornisce uno.</translation>
    </message>
    <message>
        <source>Skin tones</source>
        <translation>Tonalità della pelle</translation>
    </message>
    <message>
        <source>Easily mistaken for</source>
        <translation>Facile da confondere con</translation>
    </message>
    <message>
        <source>How to type it</source>
        <translation>Come digitarlo</translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation>Unicode</translation>
    </message>
    <message>
        <source>Also called</source>
        <translation>Altro nome</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Significato</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Blocco</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Scrittura</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoria</translation>
    </message>
    <message>
        <source>Since version</source>
        <translation>Dalla versione</translation>
    </message>
    <message>
        <source>A private-use character. No installed font draws it.</source>
        <translation>Un carattere a uso privato. Nessun font installato lo disegna.</translation>
    </message>
</context>
<context>
    <name>browser::CharacterFilter</name>
    <message>
        <source>All characters</source>
        <translation>Tutti i caratteri</translation>
    </message>
    <message>
        <source>Checked groups</source>
        <translation>Gruppi selezionati</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Preferiti</translation>
    </message>
    <message>
        <source>Recently copied</source>
        <translation>Copiati di recente</translation>
    </message>
    <message>
        <source>Characters of “%1”</source>
        <translation>Caratteri di «%1»</translation>
    </message>
</context>
<context>
    <name>browser::CharacterGrid</name>
    <message>
        <source>Characters</source>
        <translation>Caratteri</translation>
    </message>
</context>
<context>
    <name>browser::Collector</name>
    <message>
        <source>Collected:</source>
        <translation>Raccolti:</translation>
    </message>
    <message>
        <source>Collected characters</source>
        <translation>Caratteri raccolti</translation>
    </message>
    <message>
        <source>Copy all</source>
        <translation>Copia tutti</translation>
    </message>
    <message>
        <source>Empty the collection</source>
        <translation>Svuota la raccolta</translation>
    </message>
</context>
<context>
    <name>browser::GlobalShortcut</name>
    <message>
        <source>Pick a character</source>
        <translation>Scegli un carattere</translation>
    </message>
</context>
<context>
    <name>browser::LargeGlyph</name>
    <message>
        <source>Drag the character into another window</source>
        <translation>Trascina il carattere in un’altra finestra</translation>
    </message>
</context>
<context>
    <name>browser::MainWindow</name>
    <message>
        <source>Groups (F9)</source>
        <translation>Gruppi (F9)</translation>
    </message>
    <message>
        <source>Search by name, meaning, code or character</source>
        <translation>Cerca nome, significato, codice o carattere</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ricerca</translation>
    </message>
    <message>
        <source>Add a character (Ctrl+N)</source>
        <translation>Aggiungi un carattere (Ctrl+N)</translation>
    </message>
    <message>
        <source>Menu (F10)</source>
        <translation>Menu (F10)</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>C&amp;erca</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copia</translation>
    </message>
    <message>
        <source>Copy &amp;as</source>
        <translation>Copia c&amp;ome</translation>
    </message>
    <message>
        <source>Co&amp;llect</source>
        <translation>Racco&amp;gli</translation>
    </message>
    <message>
        <source>&amp;Favourite</source>
        <translation>&amp;Preferito</translation>
    </message>
    <message>
        <source>&amp;Add a character …</source>
        <translation>&amp;Aggiungi un carattere…</translation>
    </message>
    <message>
        <source>&amp;Remove from your own</source>
        <translation>&amp;Rimuovi dai tuoi</translation>
    </message>
    <message>
        <source>&amp;Identify the clipboard’s text</source>
        <translation>&amp;Identifica il testo degli appunti</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Visualizza</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>&amp;Gruppi</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation>Più g&amp;rande</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation>Più &amp;piccolo</translation>
    </message>
    <message>
        <source>&amp;Usual size</source>
        <translation>Dimensione &amp;normale</translation>
    </message>
    <message>
        <source>Forget the &amp;recently copied characters</source>
        <translation>&amp;Dimentica i caratteri copiati di recente</translation>
    </message>
    <message>
        <source>&amp;Preferences …</source>
        <translation>Prefere&amp;nze…</translation>
    </message>
    <message>
        <source>&amp;Keys and mouse</source>
        <translation>&amp;Tasti e mouse</translation>
    </message>
    <message>
        <source>A&amp;bout</source>
        <translation>Informa&amp;zioni</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>E&amp;sci</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Copiato: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln characters</source>
        <translation>
            <numerusform>%Ln carattere</numerusform>
            <numerusform>%Ln caratteri</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing matches exactly. %Ln similar characters:</source>
        <translation>
            <numerusform>Nessuna corrispondenza esatta. %Ln carattere simile:</numerusform>
            <numerusform>Nessuna corrispondenza esatta. %Ln caratteri simili:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln more in all characters</source>
        <translation>
            <numerusform>%Ln altro in tutti i caratteri</numerusform>
            <numerusform>Altri %Ln in tutti i caratteri</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing found for “%1”.</source>
        <translation>Nessun risultato per «%1».</translation>
    </message>
    <message>
        <source>No favourites yet. Ctrl+D makes the current character a favourite.</source>
        <translation>Ancora nessun preferito. Ctrl+D aggiunge il carattere attuale ai preferiti.</translation>
    </message>
    <message>
        <source>What you copy appears here.</source>
        <translation>Qui appare ciò che copi.</translation>
    </message>
    <message>
        <source>No characters yet. Ctrl+N adds a character by its code, its name or by pasting it.</source>
        <translation>Ancora nessun carattere. Ctrl+N aggiunge un carattere con il codice, il nome o incollandolo.</translation>
    </message>
    <message>
        <source>Collect</source>
        <translation>Raccogli</translation>
    </message>
    <message>
        <source>Remove from the favourites</source>
        <translation>Rimuovi dai preferiti</translation>
    </message>
    <message>
        <source>Add to the favourites</source>
        <translation>Aggiungi ai preferiti</translation>
    </message>
    <message>
        <source>Remove from your own characters</source>
        <translation>Rimuovi dai tuoi caratteri</translation>
    </message>
    <message>
        <source>Add to your own characters</source>
        <translation>Aggiungi ai tuoi caratteri</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Lettere</translation>
    </message>
    <message>
        <source>search</source>
        <translation>cercare</translation>
    </message>
    <message>
        <source>Enter, double click</source>
        <translation>Invio, doppio clic</translation>
    </message>
    <message>
        <source>copy the character</source>
        <translation>copiare il carattere</translation>
    </message>
    <message>
        <source>Alt+Enter</source>
        <translation>Alt+Invio</translation>
    </message>
    <message>
        <source>Ctrl+1 … Ctrl+9</source>
        <translation>Ctrl+1 … Ctrl+9</translation>
    </message>
    <message>
        <source>copy another form</source>
        <translation>copiare un’altra forma</translation>
    </message>
    <message>
        <source>Space, Ctrl+Enter, Ctrl+click</source>
        <translation>Spazio, Ctrl+Invio, Ctrl+clic</translation>
    </message>
    <message>
        <source>collect, to copy several characters together</source>
        <translation>raccogliere, per copiare più caratteri insieme</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>preferito</translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>add a character of your own</source>
        <translation>aggiungere un carattere tuo</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Canc</translation>
    </message>
    <message>
        <source>remove a character of your own</source>
        <translation>rimuovere un carattere tuo</translation>
    </message>
    <message>
        <source>Ctrl+V, drop a text</source>
        <translation>Ctrl+V, rilasciare un testo</translation>
    </message>
    <message>
        <source>show the characters of a text</source>
        <translation>mostrare i caratteri di un testo</translation>
    </message>
    <message>
        <source>Ctrl+Z, Ctrl+Shift+Z</source>
        <translation>Ctrl+Z, Ctrl+Maiusc+Z</translation>
    </message>
    <message>
        <source>undo, redo</source>
        <translation>annullare, ripetere</translation>
    </message>
    <message>
        <source>Ctrl++, Ctrl+-, Ctrl+wheel</source>
        <translation>Ctrl++, Ctrl+-, Ctrl+rotella</translation>
    </message>
    <message>
        <source>zoom</source>
        <translation>ingrandire, ridurre</translation>
    </message>
    <message>
        <source>Ctrl+F, Escape</source>
        <translation>Ctrl+F, Esc</translation>
    </message>
    <message>
        <source>into the search field, empty it</source>
        <translation>andare alla ricerca, svuotarla</translation>
    </message>
    <message>
        <source>F9</source>
        <translation>F9</translation>
    </message>
    <message>
        <source>show or hide the groups</source>
        <translation>mostrare o nascondere i gruppi</translation>
    </message>
    <message>
        <source>Keys and mouse</source>
        <translation>Tasti e mouse</translation>
    </message>
    <message>
        <source>About Glyphorium</source>
        <translation>Informazioni su Glyphorium</translation>
    </message>
    <message>
        <source>A character catalog: Unicode characters, HTML character entities and symbols.</source>
        <translation>Un catalogo di caratteri: caratteri Unicode, entità HTML e simboli.</translation>
    </message>
    <message>
        <source>Under the MIT licence. Data of the Unicode Character Database and of CLDR stands under the Unicode licence.</source>
        <translation>Con licenza MIT. I dati dell’Unicode Character Database e di CLDR hanno la licenza Unicode.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>Back to where you were before (Alt+Left)</source>
        <translation>Torna a dove eri prima (Alt+Sinistra)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Indietro</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Annulla: %1</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Ripeti: %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message>
        <source>Copy as</source>
        <translation>Copia come</translation>
    </message>
    <message>
        <source>copy the form chosen in the preferences</source>
        <translation>copia la forma scelta nelle preferenze</translation>
    </message>
    <message>
        <source>Long press on an emoji</source>
        <translation>Pressione lunga su un emoji</translation>
    </message>
    <message>
        <source>choose its skin tone</source>
        <translation>scegli la tonalità della pelle</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation>Alt+Sinistra</translation>
    </message>
    <message>
        <source>back from a link on the card</source>
        <translation>torna da un collegamento della scheda</translation>
    </message>
    <message>
        <source>Empty the search field</source>
        <translation>Svuota il campo di ricerca</translation>
    </message>
    <message>
        <source>Enter searches all characters.</source>
        <translation>Invio cerca in tutti i caratteri.</translation>
    </message>
    <message>
        <source>No checked group has characters. Check groups in the list of groups to see their characters together here.</source>
        <translation>Nessun gruppo selezionato ha caratteri. Selezionare gruppi nell’elenco dei gruppi per vedere qui insieme i loro caratteri.</translation>
    </message>
</context>
<context>
    <name>browser::Picker</name>
    <message>
        <source>Pick a character</source>
        <translation>Scegli un carattere</translation>
    </message>
    <message>
        <source>Search by name, meaning, code or character</source>
        <translation>Cerca nome, significato, codice o carattere</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ricerca</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Nessun risultato.</translation>
    </message>
    <message>
        <source>Enter: copy · Ctrl+Enter: collect · Alt+Enter: other form</source>
        <translation>Invio: copia · Ctrl+Invio: raccogli · Alt+Invio: altra forma</translation>
    </message>
    <message>
        <source>Empty the search field</source>
        <translation>Svuota il campo di ricerca</translation>
    </message>
</context>
<context>
    <name>browser::PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <source>Picker</source>
        <translation>Selettore</translation>
    </message>
    <message>
        <source>Desktop search</source>
        <translation>Ricerca del desktop</translation>
    </message>
    <message>
        <source>Like the desktop</source>
        <translation>Come il desktop</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Chiaro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Scuro</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Tema:</translation>
    </message>
    <message>
        <source>Chosen for each character</source>
        <translation>Scelto per ogni carattere</translation>
    </message>
    <message>
        <source>&amp;Font of the characters:</source>
        <translation>Tip&amp;o dei caratteri:</translation>
    </message>
    <message>
        <source>&amp;Alt+Enter copies:</source>
        <translation>&amp;Alt+Invio copia:</translation>
    </message>
    <message>
        <source>&amp;Type the character into the window that had the focus</source>
        <translation>S&amp;crivi il carattere nella finestra che era attiva</translation>
    </message>
    <message>
        <source>For this, install the package xdotool (X11) or wtype (Sway and other wlroots desktops). Without it, Ctrl+V pastes the character.</source>
        <translation>Serve il pacchetto xdotool (X11) o wtype (Sway e altri ambienti wlroots). Senza, Ctrl+V incolla il carattere.</translation>
    </message>
    <message>
        <source>&amp;Start with the desktop, so that the picker opens at once</source>
        <translation>&amp;Avvia con il desktop, così il selettore si apre subito</translation>
    </message>
    <message>
        <source>GNOME Shell and KRunner find characters when glyphorium-search-provider is installed.</source>
        <translation>GNOME Shell e KRunner trovano i caratteri se è installato glyphorium-search-provider.</translation>
    </message>
    <message>
        <source>The desktop’s search finds &amp;all characters, not only your own</source>
        <translation>La ricerca del desktop trova &amp;tutti i caratteri, non solo i tuoi</translation>
    </message>
    <message>
        <source>The desktop’s search finds the characters that you &amp;add</source>
        <translation>La ricerca del desktop trova i caratteri che &amp;aggiungi</translation>
    </message>
    <message>
        <source>&amp;Skin tone of emoji:</source>
        <translation>Tonalità della pe&amp;lle degli emoji:</translation>
    </message>
    <message>
        <source>Settings › Keyboard › View and Customise Shortcuts › Custom Shortcuts, with the command</source>
        <translation>Impostazioni › Tastiera › Visualizza e personalizza le scorciatoie › Scorciatoie personalizzate, con il comando</translation>
    </message>
    <message>
        <source>System Settings › Shortcuts › Add Command</source>
        <translation>Impostazioni di sistema › Scorciatoie › Aggiungi comando</translation>
    </message>
    <message>
        <source>a line in the configuration</source>
        <translation>una riga nella configurazione</translation>
    </message>
    <message>
        <source>&amp;Let the desktop open the picker with a key</source>
        <translation>I&amp;l desktop apre il selettore con un tasto</translation>
    </message>
    <message>
        <source>The desktop’s settings show the key. It works while Glyphorium runs.</source>
        <translation>Le impostazioni del desktop mostrano il tasto. Funziona finché Glyphorium è in esecuzione.</translation>
    </message>
    <message>
        <source>The key is “%1”. It works while Glyphorium runs.</source>
        <translation>Il tasto è «%1». Funziona finché Glyphorium è in esecuzione.</translation>
    </message>
    <message>
        <source>This desktop does not let programs ask for a key. Its own settings can open the picker with a key over every window:</source>
        <translation>Questo desktop non permette ai programmi di chiedere un tasto. Le sue impostazioni possono aprire il selettore con un tasto sopra ogni finestra:</translation>
    </message>
    <message>
        <source>The desktop’s own settings can also open the picker with a key over every window:</source>
        <translation>Anche le impostazioni del desktop possono aprire il selettore con un tasto sopra ogni finestra:</translation>
    </message>
</context>
<context>
    <name>browser::ScopeModel</name>
    <message>
        <source>Groups</source>
        <translation>Gruppi</translation>
    </message>
    <message numerus="yes">
        <source>%Ln characters</source>
        <translation>
            <numerusform>%Ln carattere</numerusform>
            <numerusform>%Ln caratteri</numerusform>
        </translation>
    </message>
    <message>
        <source>The characters of all groups with a check mark</source>
        <translation>I caratteri di tutti i gruppi selezionati</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Emoji</translation>
    </message>
    <message>
        <source>Blocks of Unicode</source>
        <translation>Blocchi Unicode</translation>
    </message>
</context>
<context>
    <name>browser::Sidebar</name>
    <message>
        <source>Groups</source>
        <translation>Gruppi</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Browse, search and copy Unicode characters, HTML entities and symbols.</source>
        <translation>Sfogliare, cercare e copiare caratteri Unicode, entità HTML e simboli.</translation>
    </message>
    <message>
        <source>Open the window and search for these words.</source>
        <translation>Aprire la finestra e cercare queste parole.</translation>
    </message>
    <message>
        <source>words</source>
        <translation>parole</translation>
    </message>
    <message>
        <source>Open a small window to pick a character for another program.</source>
        <translation>Aprire una piccola finestra per scegliere un carattere per un altro programma.</translation>
    </message>
    <message>
        <source>Open no window yet, so that later ones open at once.</source>
        <translation>Non aprire ancora finestre, così le successive si aprono subito.</translation>
    </message>
    <message>
        <source>Use this theme: system, light or dark.</source>
        <translation>Usare questo tema: system, light o dark.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nome</translation>
    </message>
</context>
</TS>
