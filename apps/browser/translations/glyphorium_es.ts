<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>Category</name>
    <message>
        <source>uppercase letter</source>
        <translation>letra mayúscula</translation>
    </message>
    <message>
        <source>lowercase letter</source>
        <translation>letra minúscula</translation>
    </message>
    <message>
        <source>titlecase letter</source>
        <translation>letra de título</translation>
    </message>
    <message>
        <source>modifier letter</source>
        <translation>letra modificadora</translation>
    </message>
    <message>
        <source>other letter</source>
        <translation>otra letra</translation>
    </message>
    <message>
        <source>nonspacing mark</source>
        <translation>marca sin anchura</translation>
    </message>
    <message>
        <source>spacing mark</source>
        <translation>marca con anchura</translation>
    </message>
    <message>
        <source>enclosing mark</source>
        <translation>marca envolvente</translation>
    </message>
    <message>
        <source>decimal number</source>
        <translation>número decimal</translation>
    </message>
    <message>
        <source>letter number</source>
        <translation>número en forma de letra</translation>
    </message>
    <message>
        <source>other number</source>
        <translation>otro número</translation>
    </message>
    <message>
        <source>connector punctuation</source>
        <translation>puntuación de unión</translation>
    </message>
    <message>
        <source>dash punctuation</source>
        <translation>raya o guion</translation>
    </message>
    <message>
        <source>open punctuation</source>
        <translation>puntuación de apertura</translation>
    </message>
    <message>
        <source>close punctuation</source>
        <translation>puntuación de cierre</translation>
    </message>
    <message>
        <source>initial punctuation</source>
        <translation>comillas de apertura</translation>
    </message>
    <message>
        <source>final punctuation</source>
        <translation>comillas de cierre</translation>
    </message>
    <message>
        <source>other punctuation</source>
        <translation>otra puntuación</translation>
    </message>
    <message>
        <source>math symbol</source>
        <translation>símbolo matemático</translation>
    </message>
    <message>
        <source>currency symbol</source>
        <translation>símbolo de moneda</translation>
    </message>
    <message>
        <source>modifier symbol</source>
        <translation>símbolo modificador</translation>
    </message>
    <message>
        <source>other symbol</source>
        <translation>otro símbolo</translation>
    </message>
    <message>
        <source>space separator</source>
        <translation>espacio</translation>
    </message>
    <message>
        <source>line separator</source>
        <translation>separador de líneas</translation>
    </message>
    <message>
        <source>paragraph separator</source>
        <translation>separador de párrafos</translation>
    </message>
    <message>
        <source>control</source>
        <translation>carácter de control</translation>
    </message>
    <message>
        <source>format</source>
        <translation>carácter de formato</translation>
    </message>
    <message>
        <source>surrogate</source>
        <translation>sustituto</translation>
    </message>
    <message>
        <source>private use</source>
        <translation>uso privado</translation>
    </message>
    <message>
        <source>unassigned</source>
        <translation>sin asignar</translation>
    </message>
</context>
<context>
    <name>CharacterMenu</name>
    <message>
        <source>Skin tone</source>
        <translation>Tono de piel</translation>
    </message>
</context>
<context>
    <name>CharacterTexts</name>
    <message>
        <source>Character without a name</source>
        <translation>Carácter sin nombre</translation>
    </message>
</context>
<context>
    <name>CopyForm</name>
    <message>
        <source>Character</source>
        <translation>Carácter</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Hexadecimal</translation>
    </message>
    <message>
        <source>Decimal</source>
        <translation>Decimal</translation>
    </message>
    <message>
        <source>Code point</source>
        <translation>Punto de código</translation>
    </message>
    <message>
        <source>HTML name</source>
        <translation>Nombre HTML</translation>
    </message>
    <message>
        <source>HTML hexadecimal</source>
        <translation>HTML hexadecimal</translation>
    </message>
    <message>
        <source>HTML decimal</source>
        <translation>HTML decimal</translation>
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
        <translation>Escape octal</translation>
    </message>
</context>
<context>
    <name>EmojiGroup</name>
    <message>
        <source>Smileys &amp; Emotion</source>
        <translation>Caritas y emociones</translation>
    </message>
    <message>
        <source>People &amp; Body</source>
        <translation>Personas y cuerpo</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Componentes</translation>
    </message>
    <message>
        <source>Animals &amp; Nature</source>
        <translation>Animales y naturaleza</translation>
    </message>
    <message>
        <source>Food &amp; Drink</source>
        <translation>Comida y bebida</translation>
    </message>
    <message>
        <source>Travel &amp; Places</source>
        <translation>Viajes y lugares</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Actividades</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objetos</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Símbolos</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Banderas</translation>
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
        <translation>Números egeos</translation>
    </message>
    <message>
        <source>Alphabetic Presentation Forms</source>
        <translation>Formas de presentación alfabéticas</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Árabe</translation>
    </message>
    <message>
        <source>Arabic Presentation Forms A</source>
        <translation>Formas de presentación árabes A</translation>
    </message>
    <message>
        <source>Arabic Presentation Forms B</source>
        <translation>Formas de presentación árabes B</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation>Armenio</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Flechas</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation>Bengalí</translation>
    </message>
    <message>
        <source>Block Elements</source>
        <translation>Elementos de bloque</translation>
    </message>
    <message>
        <source>Bopomofo</source>
        <translation>Bopomofo</translation>
    </message>
    <message>
        <source>Bopomofo Extended</source>
        <translation>Bopomofo extendido</translation>
    </message>
    <message>
        <source>Box Drawing</source>
        <translation>Dibujo de recuadros</translation>
    </message>
    <message>
        <source>Braille Patterns</source>
        <translation>Patrones Braille</translation>
    </message>
    <message>
        <source>Buhid</source>
        <translation>Buhid</translation>
    </message>
    <message>
        <source>Cherokee</source>
        <translation>Cheroqui</translation>
    </message>
    <message>
        <source>CJK Compatibility</source>
        <translation>Compatibilidad CJK</translation>
    </message>
    <message>
        <source>CJK Compatibility Forms</source>
        <translation>Formas de compatibilidad CJK</translation>
    </message>
    <message>
        <source>CJK Compatibility Ideographs</source>
        <translation>Ideogramas de compatibilidad CJK</translation>
    </message>
    <message>
        <source>CJK Radicals Supplement</source>
        <translation>Suplemento de radicales CJK</translation>
    </message>
    <message>
        <source>CJK Symbols and Punctuation</source>
        <translation>Símbolos y puntuación CJK</translation>
    </message>
    <message>
        <source>Combining Diacritical Marks</source>
        <translation>Marcas diacríticas combinables</translation>
    </message>
    <message>
        <source>Combining Diacritical Marks for Symbols</source>
        <translation>Marcas diacríticas para símbolos</translation>
    </message>
    <message>
        <source>Control Pictures</source>
        <translation>Símbolos de caracteres de control</translation>
    </message>
    <message>
        <source>Currency Symbols</source>
        <translation>Símbolos de moneda</translation>
    </message>
    <message>
        <source>Your own characters</source>
        <translation>Sus caracteres</translation>
    </message>
    <message>
        <source>Cypriot Syllabary</source>
        <translation>Silabario chipriota</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Cirílico</translation>
    </message>
    <message>
        <source>Cyrillic Supplementary</source>
        <translation>Suplemento cirílico</translation>
    </message>
    <message>
        <source>Deseret</source>
        <translation>Deseret</translation>
    </message>
    <message>
        <source>Design Inspiration</source>
        <translation>Inspiración para el diseño</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation>Devanagari</translation>
    </message>
    <message>
        <source>Digital Typography (Latin)</source>
        <translation>Tipografía digital (latín)</translation>
    </message>
    <message>
        <source>Dingbats</source>
        <translation>Dingbats</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Emojis</translation>
    </message>
    <message>
        <source>Enclosed Alphanumerics</source>
        <translation>Alfanuméricos rodeados</translation>
    </message>
    <message>
        <source>Enclosed CJK Letters and Months</source>
        <translation>Letras y meses CJK rodeados</translation>
    </message>
    <message>
        <source>Ethiopic</source>
        <translation>Etíope</translation>
    </message>
    <message>
        <source>Geometric Shapes</source>
        <translation>Formas geométricas</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation>Georgiano</translation>
    </message>
    <message>
        <source>Gothic</source>
        <translation>Gótico</translation>
    </message>
    <message>
        <source>Greek and Coptic</source>
        <translation>Griego y copto</translation>
    </message>
    <message>
        <source>Greek Extended</source>
        <translation>Griego extendido</translation>
    </message>
    <message>
        <source>Gujarati</source>
        <translation>Guyaratí</translation>
    </message>
    <message>
        <source>Gurmukhi</source>
        <translation>Gurmuji</translation>
    </message>
    <message>
        <source>Halfwidth and Fullwidth Forms</source>
        <translation>Formas de ancho medio y completo</translation>
    </message>
    <message>
        <source>Hangul Compatibility Jamo</source>
        <translation>Jamo de compatibilidad hangul</translation>
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
        <translation>Hebreo</translation>
    </message>
    <message>
        <source>Hiragana</source>
        <translation>Hiragana</translation>
    </message>
    <message>
        <source>Ideographic Description Characters</source>
        <translation>Descripción ideográfica</translation>
    </message>
    <message>
        <source>IPA Extensions</source>
        <translation>Alfabeto fonético internacional</translation>
    </message>
    <message>
        <source>Kanbun</source>
        <translation>Kanbun</translation>
    </message>
    <message>
        <source>Kangxi Radicals</source>
        <translation>Radicales de Kangxi</translation>
    </message>
    <message>
        <source>Kannada</source>
        <translation>Canarés</translation>
    </message>
    <message>
        <source>Katakana</source>
        <translation>Katakana</translation>
    </message>
    <message>
        <source>Katakana Phonetic Extensions</source>
        <translation>Extensiones fonéticas katakana</translation>
    </message>
    <message>
        <source>Khmer</source>
        <translation>Jemer</translation>
    </message>
    <message>
        <source>Khmer Symbols</source>
        <translation>Símbolos jemeres</translation>
    </message>
    <message>
        <source>Lao</source>
        <translation>Lao</translation>
    </message>
    <message>
        <source>Basic Latin</source>
        <translation>Latín básico</translation>
    </message>
    <message>
        <source>Latin Extended A</source>
        <translation>Latín extendido A</translation>
    </message>
    <message>
        <source>Latin Extended Additional</source>
        <translation>Latín extendido adicional</translation>
    </message>
    <message>
        <source>Latin Extended B</source>
        <translation>Latín extendido B</translation>
    </message>
    <message>
        <source>Latin Supplement</source>
        <translation>Suplemento latino</translation>
    </message>
    <message>
        <source>Letterlike Symbols</source>
        <translation>Símbolos con forma de letra</translation>
    </message>
    <message>
        <source>Limbu</source>
        <translation>Limbu</translation>
    </message>
    <message>
        <source>Linear B Ideograms</source>
        <translation>Ideogramas lineal B</translation>
    </message>
    <message>
        <source>Linear B Syllabary</source>
        <translation>Silabario lineal B</translation>
    </message>
    <message>
        <source>Malayalam</source>
        <translation>Malayalam</translation>
    </message>
    <message>
        <source>Mathematical Alphanumeric Symbols</source>
        <translation>Alfanuméricos matemáticos</translation>
    </message>
    <message>
        <source>Mathematical Operators</source>
        <translation>Operadores matemáticos</translation>
    </message>
    <message>
        <source>Miscellaneous Mathematical Symbols A</source>
        <translation>Símbolos matemáticos varios A</translation>
    </message>
    <message>
        <source>Miscellaneous Mathematical Symbols B</source>
        <translation>Símbolos matemáticos varios B</translation>
    </message>
    <message>
        <source>Miscellaneous Symbols</source>
        <translation>Símbolos varios</translation>
    </message>
    <message>
        <source>Miscellaneous Symbols and Arrows</source>
        <translation>Símbolos y flechas varios</translation>
    </message>
    <message>
        <source>Miscellaneous Technical</source>
        <translation>Signos técnicos varios</translation>
    </message>
    <message>
        <source>Mongolian</source>
        <translation>Mongol</translation>
    </message>
    <message>
        <source>Musical Symbols</source>
        <translation>Símbolos musicales</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>Birmano</translation>
    </message>
    <message>
        <source>Number Forms</source>
        <translation>Formas numéricas</translation>
    </message>
    <message>
        <source>Ogham</source>
        <translation>Ogham</translation>
    </message>
    <message>
        <source>Old Italic</source>
        <translation>Itálico antiguo</translation>
    </message>
    <message>
        <source>Optical Character Recognition</source>
        <translation>Reconocimiento óptico de caracteres</translation>
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
        <translation>Extensiones fonéticas</translation>
    </message>
    <message>
        <source>Punctuation</source>
        <translation>Puntuación</translation>
    </message>
    <message>
        <source>Runic</source>
        <translation>Runas</translation>
    </message>
    <message>
        <source>Shavian</source>
        <translation>Shaviano</translation>
    </message>
    <message>
        <source>Sinhala</source>
        <translation>Cingalés</translation>
    </message>
    <message>
        <source>Small Form Variants</source>
        <translation>Variantes de forma pequeña</translation>
    </message>
    <message>
        <source>Spacing Modifier Letters</source>
        <translation>Letras modificadoras</translation>
    </message>
    <message>
        <source>Superscripts and Subscripts</source>
        <translation>Superíndices y subíndices</translation>
    </message>
    <message>
        <source>Supplemental Arrows A</source>
        <translation>Flechas suplementarias A</translation>
    </message>
    <message>
        <source>Supplemental Arrows B</source>
        <translation>Flechas suplementarias B</translation>
    </message>
    <message>
        <source>Supplemental Mathematical Operators</source>
        <translation>Operadores matemáticos suplementarios</translation>
    </message>
    <message>
        <source>Syriac</source>
        <translation>Siríaco</translation>
    </message>
    <message>
        <source>Tagalog</source>
        <translation>Tagalo</translation>
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
        <translation>Símbolos del Tai Xuan Jing</translation>
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
        <translation>Tailandés</translation>
    </message>
    <message>
        <source>Tibetan</source>
        <translation>Tibetano</translation>
    </message>
    <message>
        <source>Ugaritic</source>
        <translation>Ugarítico</translation>
    </message>
    <message>
        <source>Unified Canadian Aboriginal Syllabics</source>
        <translation>Silabarios aborígenes canadienses</translation>
    </message>
    <message>
        <source>Yi Radicals</source>
        <translation>Radicales yi</translation>
    </message>
    <message>
        <source>Yi Syllables</source>
        <translation>Sílabas yi</translation>
    </message>
    <message>
        <source>Yijing Hexagram Symbols</source>
        <translation>Hexagramas del I Ching</translation>
    </message>
</context>
<context>
    <name>WayToType</name>
    <message>
        <source>Compose key</source>
        <translation>Tecla Componer</translation>
    </message>
    <message>
        <source>LaTeX</source>
        <translation>LaTeX</translation>
    </message>
    <message>
        <source>Digraph, Ctrl+K</source>
        <translation>Dígrafo, Ctrl+K</translation>
    </message>
    <message>
        <source>Shortcode</source>
        <translation>Código corto</translation>
    </message>
    <message>
        <source>Alt on Windows</source>
        <translation>Alt en Windows</translation>
    </message>
    <message>
        <source>Ctrl+Shift+U</source>
        <translation>Ctrl+Mayús+U</translation>
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
        <translation>Por ejemplo 21D0, U+21D0, &amp;lArr;, un nombre o el propio carácter</translation>
    </message>
    <message>
        <source>“%1” is no code, name or character.</source>
        <translation>«%1» no es un código, un nombre ni un carácter.</translation>
    </message>
    <message>
        <source>You have already added %1 (%2).</source>
        <translation>Ya ha añadido %1 (%2).</translation>
    </message>
    <message numerus="yes">
        <source>%Ln characters: %1</source>
        <translation>
            <numerusform>%Ln carácter: %1</numerusform>
            <numerusform>%Ln caracteres: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Add a character</source>
        <translation>Añadir un carácter</translation>
    </message>
    <message>
        <source>&amp;Code, name or character:</source>
        <translation>&amp;Código, nombre o carácter:</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>%1 is not assigned to a character in Unicode 17.0.</source>
        <translation>%1 no está asignado a ningún carácter en Unicode 17.0.</translation>
    </message>
</context>
<context>
    <name>browser::BrowserApplication</name>
    <message>
        <source>The character was copied</source>
        <translation>Se ha copiado el carácter</translation>
    </message>
    <message>
        <source>This desktop does not let programs type into other windows, or the tool for it is not installed. Ctrl+V pastes the character.</source>
        <translation>Este entorno no permite que los programas escriban en otras ventanas, o falta la herramienta necesaria. Ctrl+V pega el carácter.</translation>
    </message>
</context>
<context>
    <name>browser::Catalog</name>
    <message>
        <source>Add “%1”</source>
        <translation>Añadir «%1»</translation>
    </message>
    <message>
        <source>Remove “%1”</source>
        <translation>Quitar «%1»</translation>
    </message>
    <message>
        <source>Remove “%1” from the favourites</source>
        <translation>Quitar «%1» de los favoritos</translation>
    </message>
    <message>
        <source>Add “%1” to the favourites</source>
        <translation>Añadir «%1» a los favoritos</translation>
    </message>
    <message>
        <source>The choice could not be saved. It is kept until the program ends.</source>
        <translation>No se pudo guardar la elección. Se conserva hasta que termine el programa.</translation>
    </message>
</context>
<context>
    <name>browser::CharacterCard</name>
    <message>
        <source>Character</source>
        <translation>Carácter</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Uso</translation>
    </message>
    <message>
        <source>See also</source>
        <translation>Véase también</translation>
    </message>
    <message>
        <source>Also found by</source>
        <translation>También se encuentra con</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favorito</translation>
    </message>
    <message>
        <source>Collect</source>
        <translation>Reunir</translation>
    </message>
    <message>
        <source>Collect, to copy it together with others</source>
        <translation>Reunir, para copiarlo junto con otros</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>Copiar %1</translation>
    </message>
    <message>
        <source>Codes</source>
        <translation>Códigos</translation>
    </message>
    <message>
        <source>Unicode name: %1</source>
        <translation>Nombre Unicode: %1</translation>
    </message>
    <message>
        <source>Remove from the favourites (Ctrl+D)</source>
        <translation>Quitar de los favoritos (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add to the favourites (Ctrl+D)</source>
        <translation>Añadir a los favoritos (Ctrl+D)</translation>
    </message>
    <message>
        <source>Remove from your own characters</source>
        <translation>Quitar de sus caracteres</translation>
    </message>
    <message>
        <source>Add to your own characters</source>
        <translation>Añadir a sus caracteres</translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation>Tipo de letra: %1</translation>
    </message>
    <message>
        <source>No installed font draws this character.</source>
        <translation>Ningún tipo de letra instalado contiene este carácter.</translation>
    </message>
    <message>
        <source>No installed font draws this character. The package %1 has one.</source>
        <translation>Ningún tipo de letra instalado contiene este carácter. El paquete %1 trae uno.</translation>
    </message>
    <message>
        <source>Skin tones</source>
        <translation>Tonos de piel</translation>
    </message>
    <message>
        <source>Easily mistaken for</source>
        <translation>Fácil de confundir con</translation>
    </message>
    <message>
        <source>How to type it</source>
        <translation>Cómo escribirlo</translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation>Unicode</translation>
    </message>
    <message>
        <source>Also called</source>
        <translation>Otro nombre</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Significado</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloque</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Escritura</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Categoría</translation>
    </message>
    <message>
        <source>Since version</source>
        <translation>Desde la versión</translation>
    </message>
    <message>
        <source>A private-use character. No installed font draws it.</source>
        <translation>Un carácter de uso privado. Ninguna fuente instalada lo dibuja.</translation>
    </message>
</context>
<context>
    <name>browser::CharacterFilter</name>
    <message>
        <source>All characters</source>
        <translation>Todos los caracteres</translation>
    </message>
    <message>
        <source>Checked groups</source>
        <translation>Grupos marcados</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>Recently copied</source>
        <translation>Copiados recientemente</translation>
    </message>
    <message>
        <source>Characters of “%1”</source>
        <translation>Caracteres de «%1»</translation>
    </message>
</context>
<context>
    <name>browser::CharacterGrid</name>
    <message>
        <source>Characters</source>
        <translation>Caracteres</translation>
    </message>
</context>
<context>
    <name>browser::Collector</name>
    <message>
        <source>Collected:</source>
        <translation>Reunidos:</translation>
    </message>
    <message>
        <source>Collected characters</source>
        <translation>Caracteres reunidos</translation>
    </message>
    <message>
        <source>Copy all</source>
        <translation>Copiar todos</translation>
    </message>
    <message>
        <source>Empty the collection</source>
        <translation>Vaciar la colección</translation>
    </message>
</context>
<context>
    <name>browser::GlobalShortcut</name>
    <message>
        <source>Pick a character</source>
        <translation>Elegir un carácter</translation>
    </message>
</context>
<context>
    <name>browser::LargeGlyph</name>
    <message>
        <source>Drag the character into another window</source>
        <translation>Arrastre el carácter a otra ventana</translation>
    </message>
</context>
<context>
    <name>browser::MainWindow</name>
    <message>
        <source>Groups (F9)</source>
        <translation>Grupos (F9)</translation>
    </message>
    <message>
        <source>Search by name, meaning, code or character</source>
        <translation>Buscar nombre, significado, código o carácter</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Búsqueda</translation>
    </message>
    <message>
        <source>Add a character (Ctrl+N)</source>
        <translation>Añadir un carácter (Ctrl+N)</translation>
    </message>
    <message>
        <source>Menu (F10)</source>
        <translation>Menú (F10)</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Buscar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>Copy &amp;as</source>
        <translation>Copiar c&amp;omo</translation>
    </message>
    <message>
        <source>Co&amp;llect</source>
        <translation>&amp;Reunir</translation>
    </message>
    <message>
        <source>&amp;Favourite</source>
        <translation>&amp;Favorito</translation>
    </message>
    <message>
        <source>&amp;Add a character …</source>
        <translation>&amp;Añadir un carácter…</translation>
    </message>
    <message>
        <source>&amp;Remove from your own</source>
        <translation>&amp;Quitar de los suyos</translation>
    </message>
    <message>
        <source>&amp;Identify the clipboard’s text</source>
        <translation>&amp;Identificar el texto del portapapeles</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>&amp;Grupos</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation>Más g&amp;rande</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation>Más &amp;pequeño</translation>
    </message>
    <message>
        <source>&amp;Usual size</source>
        <translation>Tamaño &amp;normal</translation>
    </message>
    <message>
        <source>Forget the &amp;recently copied characters</source>
        <translation>&amp;Olvidar los caracteres copiados recientemente</translation>
    </message>
    <message>
        <source>&amp;Preferences …</source>
        <translation>&amp;Preferencias…</translation>
    </message>
    <message>
        <source>&amp;Keys and mouse</source>
        <translation>&amp;Teclas y ratón</translation>
    </message>
    <message>
        <source>A&amp;bout</source>
        <translation>Acerca &amp;de</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Copiado: %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln characters</source>
        <translation>
            <numerusform>%Ln carácter</numerusform>
            <numerusform>%Ln caracteres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing matches exactly. %Ln similar characters:</source>
        <translation>
            <numerusform>Nada coincide exactamente. %Ln carácter parecido:</numerusform>
            <numerusform>Nada coincide exactamente. %Ln caracteres parecidos:</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln more in all characters</source>
        <translation>
            <numerusform>%Ln más en todos los caracteres</numerusform>
            <numerusform>%Ln más en todos los caracteres</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing found for “%1”.</source>
        <translation>No se encontró nada para «%1».</translation>
    </message>
    <message>
        <source>No favourites yet. Ctrl+D makes the current character a favourite.</source>
        <translation>Aún no hay favoritos. Ctrl+D añade el carácter actual a los favoritos.</translation>
    </message>
    <message>
        <source>What you copy appears here.</source>
        <translation>Aquí aparece lo que copia.</translation>
    </message>
    <message>
        <source>No characters yet. Ctrl+N adds a character by its code, its name or by pasting it.</source>
        <translation>Aún no hay caracteres. Ctrl+N añade un carácter por su código, su nombre o pegándolo.</translation>
    </message>
    <message>
        <source>Collect</source>
        <translation>Reunir</translation>
    </message>
    <message>
        <source>Remove from the favourites</source>
        <translation>Quitar de los favoritos</translation>
    </message>
    <message>
        <source>Add to the favourites</source>
        <translation>Añadir a los favoritos</translation>
    </message>
    <message>
        <source>Remove from your own characters</source>
        <translation>Quitar de sus caracteres</translation>
    </message>
    <message>
        <source>Add to your own characters</source>
        <translation>Añadir a sus caracteres</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Letras</translation>
    </message>
    <message>
        <source>search</source>
        <translation>buscar</translation>
    </message>
    <message>
        <source>Enter, double click</source>
        <translation>Intro, doble clic</translation>
    </message>
    <message>
        <source>copy the character</source>
        <translation>copiar el carácter</translation>
    </message>
    <message>
        <source>Alt+Enter</source>
        <translation>Alt+Intro</translation>
    </message>
    <message>
        <source>Ctrl+1 … Ctrl+9</source>
        <translation>Ctrl+1 … Ctrl+9</translation>
    </message>
    <message>
        <source>copy another form</source>
        <translation>copiar otra forma</translation>
    </message>
    <message>
        <source>Space, Ctrl+Enter, Ctrl+click</source>
        <translation>Espacio, Ctrl+Intro, Ctrl+clic</translation>
    </message>
    <message>
        <source>collect, to copy several characters together</source>
        <translation>reunir, para copiar varios caracteres juntos</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>favorito</translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>add a character of your own</source>
        <translation>añadir un carácter propio</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supr</translation>
    </message>
    <message>
        <source>remove a character of your own</source>
        <translation>quitar un carácter propio</translation>
    </message>
    <message>
        <source>Ctrl+V, drop a text</source>
        <translation>Ctrl+V, soltar un texto</translation>
    </message>
    <message>
        <source>show the characters of a text</source>
        <translation>mostrar los caracteres de un texto</translation>
    </message>
    <message>
        <source>Ctrl+Z, Ctrl+Shift+Z</source>
        <translation>Ctrl+Z, Ctrl+Mayús+Z</translation>
    </message>
    <message>
        <source>undo, redo</source>
        <translation>deshacer, rehacer</translation>
    </message>
    <message>
        <source>Ctrl++, Ctrl+-, Ctrl+wheel</source>
        <translation>Ctrl++, Ctrl+-, Ctrl+rueda</translation>
    </message>
    <message>
        <source>zoom</source>
        <translation>ampliar, reducir</translation>
    </message>
    <message>
        <source>Ctrl+F, Escape</source>
        <translation>Ctrl+F, Escape</translation>
    </message>
    <message>
        <source>into the search field, empty it</source>
        <translation>ir a la búsqueda, vaciarla</translation>
    </message>
    <message>
        <source>F9</source>
        <translation>F9</translation>
    </message>
    <message>
        <source>show or hide the groups</source>
        <translation>mostrar u ocultar los grupos</translation>
    </message>
    <message>
        <source>Keys and mouse</source>
        <translation>Teclas y ratón</translation>
    </message>
    <message>
        <source>About Glyphorium</source>
        <translation>Acerca de Glyphorium</translation>
    </message>
    <message>
        <source>A character catalog: Unicode characters, HTML character entities and symbols.</source>
        <translation>Un catálogo de caracteres: caracteres Unicode, entidades HTML y símbolos.</translation>
    </message>
    <message>
        <source>Under the MIT licence. Data of the Unicode Character Database and of CLDR stands under the Unicode licence.</source>
        <translation>Con licencia MIT. Los datos de la Unicode Character Database y de CLDR tienen la licencia Unicode.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>Back to where you were before (Alt+Left)</source>
        <translation>Volver a donde estaba antes (Alt+Izquierda)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Deshacer: %1</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Rehacer: %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy as</source>
        <translation>Copiar como</translation>
    </message>
    <message>
        <source>copy the form chosen in the preferences</source>
        <translation>copiar la forma elegida en las preferencias</translation>
    </message>
    <message>
        <source>Long press on an emoji</source>
        <translation>Pulsación larga en un emoji</translation>
    </message>
    <message>
        <source>choose its skin tone</source>
        <translation>elegir su tono de piel</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation>Alt+Izquierda</translation>
    </message>
    <message>
        <source>back from a link on the card</source>
        <translation>volver de un enlace de la ficha</translation>
    </message>
    <message>
        <source>Empty the search field</source>
        <translation>Vaciar el campo de búsqueda</translation>
    </message>
    <message>
        <source>Enter searches all characters.</source>
        <translation>Intro busca en todos los caracteres.</translation>
    </message>
    <message>
        <source>No checked group has characters. Check groups in the list of groups to see their characters together here.</source>
        <translation>Ningún grupo marcado tiene caracteres. Marque grupos en la lista de grupos para ver aquí juntos sus caracteres.</translation>
    </message>
</context>
<context>
    <name>browser::Picker</name>
    <message>
        <source>Pick a character</source>
        <translation>Elegir un carácter</translation>
    </message>
    <message>
        <source>Search by name, meaning, code or character</source>
        <translation>Buscar nombre, significado, código o carácter</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Búsqueda</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>No se encontró nada.</translation>
    </message>
    <message>
        <source>Enter: copy · Ctrl+Enter: collect · Alt+Enter: other form</source>
        <translation>Intro: copiar · Ctrl+Intro: reunir · Alt+Intro: otra forma</translation>
    </message>
    <message>
        <source>Empty the search field</source>
        <translation>Vaciar el campo de búsqueda</translation>
    </message>
</context>
<context>
    <name>browser::PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Picker</source>
        <translation>Selector</translation>
    </message>
    <message>
        <source>Desktop search</source>
        <translation>Búsqueda del escritorio</translation>
    </message>
    <message>
        <source>Like the desktop</source>
        <translation>Como el escritorio</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Claro</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Oscuro</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Tema:</translation>
    </message>
    <message>
        <source>Chosen for each character</source>
        <translation>Elegido para cada carácter</translation>
    </message>
    <message>
        <source>&amp;Font of the characters:</source>
        <translation>Tipo de &amp;letra:</translation>
    </message>
    <message>
        <source>&amp;Alt+Enter copies:</source>
        <translation>&amp;Alt+Intro copia:</translation>
    </message>
    <message>
        <source>&amp;Type the character into the window that had the focus</source>
        <translation>&amp;Escribir el carácter en la ventana que estaba activa</translation>
    </message>
    <message>
        <source>For this, install the package xdotool (X11) or wtype (Sway and other wlroots desktops). Without it, Ctrl+V pastes the character.</source>
        <translation>Hace falta el paquete xdotool (X11) o wtype (Sway y otros entornos wlroots). Sin él, Ctrl+V pega el carácter.</translation>
    </message>
    <message>
        <source>&amp;Start with the desktop, so that the picker opens at once</source>
        <translation>&amp;Iniciar con el escritorio, para que el selector se abra al momento</translation>
    </message>
    <message>
        <source>GNOME Shell and KRunner find characters when glyphorium-search-provider is installed.</source>
        <translation>GNOME Shell y KRunner encuentran caracteres si está instalado glyphorium-search-provider.</translation>
    </message>
    <message>
        <source>The desktop’s search finds &amp;all characters, not only your own</source>
        <translation>La búsqueda del escritorio encuentra &amp;todos los caracteres, no solo los suyos</translation>
    </message>
    <message>
        <source>The desktop’s search finds the characters that you &amp;add</source>
        <translation>La búsqueda del escritorio encuentra los caracteres que &amp;añade</translation>
    </message>
    <message>
        <source>&amp;Skin tone of emoji:</source>
        <translation>Tono de &amp;piel de los emojis:</translation>
    </message>
    <message>
        <source>Settings › Keyboard › View and Customise Shortcuts › Custom Shortcuts, with the command</source>
        <translation>Configuración › Teclado › Ver y personalizar los atajos › Atajos personalizados, con la orden</translation>
    </message>
    <message>
        <source>System Settings › Shortcuts › Add Command</source>
        <translation>Preferencias del sistema › Atajos › Añadir orden</translation>
    </message>
    <message>
        <source>a line in the configuration</source>
        <translation>una línea en la configuración</translation>
    </message>
    <message>
        <source>&amp;Let the desktop open the picker with a key</source>
        <translation>E&amp;l escritorio abre el selector con una tecla</translation>
    </message>
    <message>
        <source>The desktop’s settings show the key. It works while Glyphorium runs.</source>
        <translation>La configuración del escritorio muestra la tecla. Funciona mientras Glyphorium está en marcha.</translation>
    </message>
    <message>
        <source>The key is “%1”. It works while Glyphorium runs.</source>
        <translation>La tecla es «%1». Funciona mientras Glyphorium está en marcha.</translation>
    </message>
    <message>
        <source>This desktop does not let programs ask for a key. Its own settings can open the picker with a key over every window:</source>
        <translation>Este escritorio no permite a los programas pedir una tecla. Su propia configuración puede abrir el selector con una tecla sobre cualquier ventana:</translation>
    </message>
    <message>
        <source>The desktop’s own settings can also open the picker with a key over every window:</source>
        <translation>También la configuración del escritorio puede abrir el selector con una tecla sobre cualquier ventana:</translation>
    </message>
</context>
<context>
    <name>browser::ScopeModel</name>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
    <message numerus="yes">
        <source>%Ln characters</source>
        <translation>
            <numerusform>%Ln carácter</numerusform>
            <numerusform>%Ln caracteres</numerusform>
        </translation>
    </message>
    <message>
        <source>The characters of all groups with a check mark</source>
        <translation>Los caracteres de todos los grupos marcados</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Emojis</translation>
    </message>
    <message>
        <source>Blocks of Unicode</source>
        <translation>Bloques de Unicode</translation>
    </message>
</context>
<context>
    <name>browser::Sidebar</name>
    <message>
        <source>Groups</source>
        <translation>Grupos</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Browse, search and copy Unicode characters, HTML entities and symbols.</source>
        <translation>Explorar, buscar y copiar caracteres Unicode, entidades HTML y símbolos.</translation>
    </message>
    <message>
        <source>Open the window and search for these words.</source>
        <translation>Abrir la ventana y buscar estas palabras.</translation>
    </message>
    <message>
        <source>words</source>
        <translation>palabras</translation>
    </message>
    <message>
        <source>Open a small window to pick a character for another program.</source>
        <translation>Abrir una ventana pequeña para elegir un carácter para otro programa.</translation>
    </message>
    <message>
        <source>Open no window yet, so that later ones open at once.</source>
        <translation>No abrir todavía ninguna ventana, para que las siguientes se abran al momento.</translation>
    </message>
    <message>
        <source>Use this theme: system, light or dark.</source>
        <translation>Usar este tema: system, light o dark.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nombre</translation>
    </message>
</context>
</TS>
