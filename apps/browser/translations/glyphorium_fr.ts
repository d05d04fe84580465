<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Category</name>
    <message>
        <source>uppercase letter</source>
        <translation>lettre majuscule</translation>
    </message>
    <message>
        <source>lowercase letter</source>
        <translation>lettre minuscule</translation>
    </message>
    <message>
        <source>titlecase letter</source>
        <translation>lettre de titre</translation>
    </message>
    <message>
        <source>modifier letter</source>
        <translation>lettre modificative</translation>
    </message>
    <message>
        <source>other letter</source>
        <translation>autre lettre</translation>
    </message>
    <message>
        <source>nonspacing mark</source>
        <translation>marque sans chasse</translation>
    </message>
    <message>
        <source>spacing mark</source>
        <translation>marque à chasse</translation>
    </message>
    <message>
        <source>enclosing mark</source>
        <translation>marque englobante</translation>
    </message>
    <message>
        <source>decimal number</source>
        <translation>chiffre décimal</translation>
    </message>
    <message>
        <source>letter number</source>
        <translation>nombre en forme de lettre</translation>
    </message>
    <message>
        <source>other number</source>
        <translation>autre nombre</translation>
    </message>
    <message>
        <source>connector punctuation</source>
        <translation>ponctuation de liaison</translation>
    </message>
    <message>
        <source>dash punctuation</source>
        <translation>tiret</translation>
    </message>
    <message>
        <source>open punctuation</source>
        <translation>ponctuation ouvrante</translation>
    </message>
    <message>
        <source>close punctuation</source>
        <translation>ponctuation fermante</translation>
    </message>
    <message>
        <source>initial punctuation</source>
        <translation>guillemet ouvrant</translation>
    </message>
    <message>
        <source>final punctuation</source>
        <translation>guillemet fermant</translation>
    </message>
    <message>
        <source>other punctuation</source>
        <translation>autre ponctuation</translation>
    </message>
    <message>
        <source>math symbol</source>
        <translation>symbole mathématique</translation>
    </message>
    <message>
        <source>currency symbol</source>
        <translation>symbole monétaire</translation>
    </message>
    <message>
        <source>modifier symbol</source>
        <translation>symbole modificatif</translation>
    </message>
    <message>
        <source>other symbol</source>
        <translation>autre symbole</translation>
    </message>
    <message>
        <source>space separator</source>
        <translation>espace</translation>
    </message>
    <message>
        <source>line separator</source>
        <translation>séparateur de lignes</translation>
    </message>
    <message>
        <source>paragraph separator</source>
        <translation>séparateur de paragraphes</translation>
    </message>
    <message>
        <source>control</source>
        <translation>caractère de commande</translation>
    </message>
    <message>
        <source>format</source>
        <translation>caractère de mise en forme</translation>
    </message>
    <message>
        <source>surrogate</source>
        <translation>indirection</translation>
    </message>
    <message>
        <source>private use</source>
        <translation>usage privé</translation>
    </message>
    <message>
        <source>unassigned</source>
        <translation>non attribué</translation>
    </message>
</context>
<context>
    <name>CharacterMenu</name>
    <message>
        <source>Skin tone</source>
        <translation>Couleur de peau</translation>
    </message>
</context>
<context>
    <name>CharacterTexts</name>
    <message>
        <source>Character without a name</source>
        <translation>Caractère sans nom</translation>
    </message>
</context>
<context>
    <name>CopyForm</name>
    <message>
        <source>Character</source>
        <translation>Caractère</translation>
    </message>
    <message>
        <source>Hexadecimal</source>
        <translation>Hexadécimal</translation>
    </message>
    <message>
        <source>Decimal</source>
        <translation>Décimal</translation>
    </message>
    <message>
        <source>Code point</source>
        <translation>Point de code</translation>
    </message>
    <message>
        <source>HTML name</source>
        <translation>Nom HTML</translation>
    </message>
    <message>
        <source>HTML hexadecimal</source>
        <translation>HTML hexadécimal</translation>
    </message>
    <message>
        <source>HTML decimal</source>
        <translation>HTML décimal</translation>
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
        <translation>Échappement octal</translation>
    </message>
</context>
<context>
    <name>EmojiGroup</name>
    <message>
        <source>Smileys &amp; Emotion</source>
        <translation>Émoticônes et émotions</translation>
    </message>
    <message>
        <source>People &amp; Body</source>
        <translation>Personnes et corps</translation>
    </message>
    <message>
        <source>Component</source>
        <translation>Composants</translation>
    </message>
    <message>
        <source>Animals &amp; Nature</source>
        <translation>Animaux et nature</translation>
    </message>
    <message>
        <source>Food &amp; Drink</source>
        <translation>Nourriture et boissons</translation>
    </message>
    <message>
        <source>Travel &amp; Places</source>
        <translation>Voyages et lieux</translation>
    </message>
    <message>
        <source>Activities</source>
        <translation>Activités</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objets</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symboles</translation>
    </message>
    <message>
        <source>Flags</source>
        <translation>Drapeaux</translation>
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
        <translation>Nombres égéens</translation>
    </message>
    <message>
        <source>Alphabetic Presentation Forms</source>
        <translation>Formes de présentation alphabétiques</translation>
    </message>
    <message>
        <source>Arabic</source>
        <translation>Arabe</translation>
    </message>
    <message>
        <source>Arabic Presentation Forms A</source>
        <translation>Formes de présentation arabes A</translation>
    </message>
    <message>
        <source>Arabic Presentation Forms B</source>
        <translation>Formes de présentation arabes B</translation>
    </message>
    <message>
        <source>Armenian</source>
        <translation>Arménien</translation>
    </message>
    <message>
        <source>Arrows</source>
        <translation>Flèches</translation>
    </message>
    <message>
        <source>Bengali</source>
        <translation>Bengali</translation>
    </message>
    <message>
        <source>Block Elements</source>
        <translation>Pavés</translation>
    </message>
    <message>
        <source>Bopomofo</source>
        <translation>Bopomofo</translation>
    </message>
    <message>
        <source>Bopomofo Extended</source>
        <translation>Bopomofo étendu</translation>
    </message>
    <message>
        <source>Box Drawing</source>
        <translation>Filets</translation>
    </message>
    <message>
        <source>Braille Patterns</source>
        <translation>Combinaisons Braille</translation>
    </message>
    <message>
        <source>Buhid</source>
        <translation>Bouhide</translation>
    </message>
    <message>
        <source>Cherokee</source>
        <translation>Chérokî</translation>
    </message>
    <message>
        <source>CJK Compatibility</source>
        <translation>Compatibilité CJC</translation>
    </message>
    <message>
        <source>CJK Compatibility Forms</source>
        <translation>Formes de compatibilité CJC</translation>
    </message>
    <message>
        <source>CJK Compatibility Ideographs</source>
        <translation>Idéogrammes de compatibilité CJC</translation>
    </message>
    <message>
        <source>CJK Radicals Supplement</source>
        <translation>Supplément aux clés CJC</translation>
    </message>
    <message>
        <source>CJK Symbols and Punctuation</source>
        <translation>Symboles et ponctuation CJC</translation>
    </message>
    <message>
        <source>Combining Diacritical Marks</source>
        <translation>Diacritiques</translation>
    </message>
    <message>
        <source>Combining Diacritical Marks for Symbols</source>
        <translation>Diacritiques pour symboles</translation>
    </message>
    <message>
        <source>Control Pictures</source>
        <translation>Pictogrammes de commande</translation>
    </message>
    <message>
        <source>Currency Symbols</source>
        <translation>Symboles monétaires</translation>
    </message>
    <message>
        <source>Your own characters</source>
        <translation>Vos caractères</translation>
    </message>
    <message>
        <source>Cypriot Syllabary</source>
        <translation>Syllabaire chypriote</translation>
    </message>
    <message>
        <source>Cyrillic</source>
        <translation>Cyrillique</translation>
    </message>
    <message>
        <source>Cyrillic Supplementary</source>
        <translation>Supplément cyrillique</translation>
    </message>
    <message>
        <source>Deseret</source>
        <translation>Déseret</translation>
    </message>
    <message>
        <source>Design Inspiration</source>
        <translation>Inspiration graphique</translation>
    </message>
    <message>
        <source>Devanagari</source>
        <translation>Dévanâgarî</translation>
    </message>
    <message>
        <source>Digital Typography (Latin)</source>
        <translation>Typographie numérique (latin)</translation>
    </message>
    <message>
        <source>Dingbats</source>
        <translation>Casseau</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Émojis</translation>
    </message>
    <message>
        <source>Enclosed Alphanumerics</source>
        <translation>Alphanumériques cerclés</translation>
    </message>
    <message>
        <source>Enclosed CJK Letters and Months</source>
        <translation>Lettres et mois CJC cerclés</translation>
    </message>
    <message>
        <source>Ethiopic</source>
        <translation>Éthiopien</translation>
    </message>
    <message>
        <source>Geometric Shapes</source>
        <translation>Formes géométriques</translation>
    </message>
    <message>
        <source>Georgian</source>
        <translation>Géorgien</translation>
    </message>
    <message>
        <source>Gothic</source>
        <translation>Gotique</translation>
    </message>
    <message>
        <source>Greek and Coptic</source>
        <translation>Grec et copte</translation>
    </message>
    <message>
        <source>Greek Extended</source>
        <translation>Grec étendu</translation>
    </message>
    <message>
        <source>Gujarati</source>
        <translation>Goudjarati</translation>
    </message>
    <message>
        <source>Gurmukhi</source>
        <translation>Gourmoukhî</translation>
    </message>
    <message>
        <source>Halfwidth and Fullwidth Forms</source>
        <translation>Formes de demi et pleine chasse</translation>
    </message>
    <message>
        <source>Hangul Compatibility Jamo</source>
        <translation>Jamos de compatibilité hangûl</translation>
    </message>
    <message>
        <source>Hangul Jamo</source>
        <translation>Jamos hangûl</translation>
    </message>
    <message>
        <source>Hanunoo</source>
        <translation>Hanounóo</translation>
    </message>
    <message>
        <source>Hebrew</source>
        <translation>Hébreu</translation>
    </message>
    <message>
        <source>Hiragana</source>
        <translation>Hiragana</translation>
    </message>
    <message>
        <source>Ideographic Description Characters</source>
        <translation>Description idéographique</translation>
    </message>
    <message>
        <source>IPA Extensions</source>
        <translation>Alphabet phonétique international</translation>
    </message>
    <message>
        <source>Kanbun</source>
        <translation>Kanboun</translation>
    </message>
    <message>
        <source>Kangxi Radicals</source>
        <translation>Clés Kangxi</translation>
    </message>
    <message>
        <source>Kannada</source>
        <translation>Kannara</translation>
    </message>
    <message>
        <source>Katakana</source>
        <translation>Katakana</translation>
    </message>
    <message>
        <source>Katakana Phonetic Extensions</source>
        <translation>Extension phonétique katakana</translation>
    </message>
    <message>
        <source>Khmer</source>
        <translation>Khmer</translation>
    </message>
    <message>
        <source>Khmer Symbols</source>
        <translation>Symboles khmers</translation>
    </message>
    <message>
        <source>Lao</source>
        <translation>Lao</translation>
    </message>
    <message>
        <source>Basic Latin</source>
        <translation>Latin de base</translation>
    </message>
    <message>
        <source>Latin Extended A</source>
        <translation>Latin étendu A</translation>
    </message>
    <message>
        <source>Latin Extended Additional</source>
        <translation>Latin étendu additionnel</translation>
    </message>
    <message>
        <source>Latin Extended B</source>
        <translation>Latin étendu B</translation>
    </message>
    <message>
        <source>Latin Supplement</source>
        <translation>Supplément latin</translation>
    </message>
    <message>
        <source>Letterlike Symbols</source>
        <translation>Symboles de type lettre</translation>
    </message>
    <message>
        <source>Limbu</source>
        <translation>Limbou</translation>
    </message>
    <message>
        <source>Linear B Ideograms</source>
        <translation>Idéogrammes linéaire B</translation>
    </message>
    <message>
        <source>Linear B Syllabary</source>
        <translation>Syllabaire linéaire B</translation>
    </message>
    <message>
        <source>Malayalam</source>
        <translation>Malayalam</translation>
    </message>
    <message>
        <source>Mathematical Alphanumeric Symbols</source>
        <translation>Alphanumériques mathématiques</translation>
    </message>
    <message>
        <source>Mathematical Operators</source>
        <translation>Opérateurs mathématiques</translation>
    </message>
    <message>
        <source>Miscellaneous Mathematical Symbols A</source>
        <translation>Divers symboles mathématiques A</translation>
    </message>
    <message>
        <source>Miscellaneous Mathematical Symbols B</source>
        <translation>Divers symboles mathématiques B</translation>
    </message>
    <message>
        <source>Miscellaneous Symbols</source>
        <translation>Symboles divers</translation>
    </message>
    <message>
        <source>Miscellaneous Symbols and Arrows</source>
        <translation>Symboles et flèches divers</translation>
    </message>
    <message>
        <source>Miscellaneous Technical</source>
        <translation>Signes techniques divers</translation>
    </message>
    <message>
        <source>Mongolian</source>
        <translation>Mongol</translation>
    </message>
    <message>
        <source>Musical Symbols</source>
        <translation>Symboles musicaux</translation>
    </message>
    <message>
        <source>Myanmar</source>
        <translation>Birman</translation>
    </message>
    <message>
        <source>Number Forms</source>
        <translation>Formes numérales</translation>
    </message>
    <message>
        <source>Ogham</source>
        <translation>Ogam</translation>
    </message>
    <message>
        <source>Old Italic</source>
        <translation>Alphabet italique</translation>
    </message>
    <message>
        <source>Optical Character Recognition</source>
        <translation>Reconnaissance optique de caractères</translation>
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
        <translation>Supplément phonétique</translation>
    </message>
    <message>
        <source>Punctuation</source>
        <translation>Ponctuation</translation>
    </message>
    <message>
        <source>Runic</source>
        <translation>Runes</translation>
    </message>
    <message>
        <source>Shavian</source>
        <translation>Shavien</translation>
    </message>
    <message>
        <source>Sinhala</source>
        <translation>Singhalais</translation>
    </message>
    <message>
        <source>Small Form Variants</source>
        <translation>Petites variantes de forme</translation>
    </message>
    <message>
        <source>Spacing Modifier Letters</source>
        <translation>Lettres modificatives</translation>
    </message>
    <message>
        <source>Superscripts and Subscripts</source>
        <translation>Exposants et indices</translation>
    </message>
    <message>
        <source>Supplemental Arrows A</source>
        <translation>Flèches supplémentaires A</translation>
    </message>
    <message>
        <source>Supplemental Arrows B</source>
        <translation>Flèches supplémentaires B</translation>
    </message>
    <message>
        <source>Supplemental Mathematical Operators</source>
        <translation>Opérateurs mathématiques supplémentaires</translation>
    </message>
    <message>
        <source>Syriac</source>
        <translation>Syriaque</translation>
    </message>
    <message>
        <source>Tagalog</source>
        <translation>Tagalog</translation>
    </message>
    <message>
        <source>Tagbanwa</source>
        <translation>Tagbanoua</translation>
    </message>
    <message>
        <source>Tai Le</source>
        <translation>Taï-le</translation>
    </message>
    <message>
        <source>Tai Xuan Jing Symbols</source>
        <translation>Symboles du Tai-xuan jing</translation>
    </message>
    <message>
        <source>Tamil</source>
        <translation>Tamoul</translation>
    </message>
    <message>
        <source>Telugu</source>
        <translation>Télougou</translation>
    </message>
    <message>
        <source>Thaana</source>
        <translation>Tâna</translation>
    </message>
    <message>
        <source>Thai</source>
        <translation>Thaï</translation>
    </message>
    <message>
        <source>Tibetan</source>
        <translation>Tibétain</translation>
    </message>
    <message>
        <source>Ugaritic</source>
        <translation>Ougaritique</translation>
    </message>
    <message>
        <source>Unified Canadian Aboriginal Syllabics</source>
        <translation>Syllabaires autochtones canadiens</translation>
    </message>
    <message>
        <source>Yi Radicals</source>
        <translation>Clés yi</translation>
    </message>
    <message>
        <source>Yi Syllables</source>
        <translation>Syllabaire yi</translation>
    </message>
    <message>
        <source>Yijing Hexagram Symbols</source>
        <translation>Hexagrammes du Yi-king</translation>
    </message>
</context>
<context>
    <name>WayToType</name>
    <message>
        <source>Compose key</source>
        <translation>Touche Compose</translation>
    </message>
    <message>
        <source>LaTeX</source>
        <translation>LaTeX</translation>
    </message>
    <message>
        <source>Digraph, Ctrl+K</source>
        <translation>Digraphe, Ctrl+K</translation>
    </message>
    <message>
        <source>Shortcode</source>
        <translation>Code court</translation>
    </message>
    <message>
        <source>Alt on Windows</source>
        <translation>Alt sous Windows</translation>
    </message>
    <message>
        <source>Ctrl+Shift+U</source>
        <translation>Ctrl+Maj+U</translation>
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
        <translation>Par exemple 21D0, U+21D0, &amp;lArr;, un nom ou le caractère lui-même</translation>
    </message>
    <message>
        <source>“%1” is no code, name or character.</source>
        <translation>« %1 » n’est ni un code, ni un nom, ni un caractère.</translation>
    </message>
    <message>
        <source>You have already added %1 (%2).</source>
        <translation>Vous avez déjà ajouté %1 (%2).</translation>
    </message>
    <message numerus="yes">
        <source>%Ln characters: %1</source>
        <translation>
            <numerusform>%Ln caractère : %1</numerusform>
            <numerusform>%Ln caractères : %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Add a character</source>
        <translation>Ajouter un caractère</translation>
    </message>
    <message>
        <source>&amp;Code, name or character:</source>
        <translation>&amp;Code, nom ou caractère :</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>%1 is not assigned to a character in Unicode 17.0.</source>
        <translation>%1 n’est attribué à aucun caractère dans Unicode 17.0.</translation>
    </message>
</context>
<context>
    <name>browser::BrowserApplication</name>
    <message>
        <source>The character was copied</source>
        <translation>Le caractère a été copié</translation>
    </message>
    <message>
        <source>This desktop does not let programs type into other windows, or the tool for it is not installed. Ctrl+V pastes the character.</source>
        <translation>Cet environnement ne permet pas aux programmes d’écrire dans d’autres fenêtres, ou l’outil nécessaire n’est pas installé. Ctrl+V colle le caractère.</translation>
    </message>
</context>
<context>
    <name>browser::Catalog</name>
    <message>
        <source>Add “%1”</source>
        <translation>Ajouter « %1 »</translation>
    </message>
    <message>
        <source>Remove “%1”</source>
        <translation>Retirer « %1 »</translation>
    </message>
    <message>
        <source>Remove “%1” from the favourites</source>
        <translation>Retirer « %1 » des favoris</translation>
    </message>
    <message>
        <source>Add “%1” to the favourites</source>
        <translation>Ajouter « %1 » aux favoris</translation>
    </message>
    <message>
        <source>The choice could not be saved. It is kept until the program ends.</source>
        <translation>Le choix n’a pas pu être enregistré. Il est conservé jusqu’à la fin du programme.</translation>
    </message>
</context>
<context>
    <name>browser::CharacterCard</name>
    <message>
        <source>Character</source>
        <translation>Caractère</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Usage</translation>
    </message>
    <message>
        <source>See also</source>
        <translation>Voir aussi</translation>
    </message>
    <message>
        <source>Also found by</source>
        <translation>Trouvé aussi avec</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Favourite</source>
        <translation>Favori</translation>
    </message>
    <message>
        <source>Collect</source>
        <translation>Collecter</translation>
    </message>
    <message>
        <source>Collect, to copy it together with others</source>
        <translation>Collecter, pour le copier avec d’autres</translation>
    </message>
    <message>
        <source>Copy %1</source>
        <translation>Copier %1</translation>
    </message>
    <message>
        <source>Codes</source>
        <translation>Codes</translation>
    </message>
    <message>
        <source>Unicode name: %1</source>
        <translation>Nom Unicode : %1</translation>
    </message>
    <message>
        <source>Remove from the favourites (Ctrl+D)</source>
        <translation>Retirer des favoris (Ctrl+D)</translation>
    </message>
    <message>
        <source>Add to the favourites (Ctrl+D)</source>
        <translation>Ajouter aux favoris (Ctrl+D)</translation>
    </message>
    <message>
        <source>Remove from your own characters</source>
        <translation>Retirer de vos caractères</translation>
    </message>
    <message>
        <source>Add to your own characters</source>
        <translation>Ajouter à vos caractères</translation>
    </message>
    <message>
        <source>Font: %1</source>
        <translation>Police : %1</translation>
    </message>
    <message>
        <source>No installed font draws this character.</source>
        <translation>Aucune police installée ne contient ce caractère.</translation>
    </message>
    <message>
        <source>No installed font draws this character. The package %1 has one.</source>
        <translation>Aucune police installée ne contient ce caractère. Le paquet %1 en fournit une.</translation>
    </message>
    <message>
        <source>Skin tones</source>
        <translation>Couleurs de peau</translation>
    </message>
    <message>
        <source>Easily mistaken for</source>
        <translation>À ne pas confondre avec</translation>
    </message>
    <message>
        <source>How to type it</source>
        <translation>Comment le saisir</translation>
    </message>
    <message>
        <source>Unicode</source>
        <translation>Unicode</translation>
    </message>
    <message>
        <source>Also called</source>
        <translation>Autre nom</translation>
    </message>
    <message>
        <source>Meaning</source>
        <translation>Sens</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloc</translation>
    </message>
    <message>
        <source>Script</source>
        <translation>Écriture</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Since version</source>
        <translation>Depuis la version</translation>
    </message>
    <message>
        <source>A private-use character. No installed font draws it.</source>
        <translation>Un caractère à usage privé. Aucune police installée ne le dessine.</translation>
    </message>
</context>
<context>
    <name>browser::CharacterFilter</name>
    <message>
        <source>All characters</source>
        <translation>Tous les caractères</translation>
    </message>
    <message>
        <source>Checked groups</source>
        <translation>Groupes cochés</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>Recently copied</source>
        <translation>Copiés récemment</translation>
    </message>
    <message>
        <source>Characters of “%1”</source>
        <translation>Caractères de « %1 »</translation>
    </message>
</context>
<context>
    <name>browser::CharacterGrid</name>
    <message>
        <source>Characters</source>
        <translation>Caractères</translation>
    </message>
</context>
<context>
    <name>browser::Collector</name>
    <message>
        <source>Collected:</source>
        <translation>Collectés :</translation>
    </message>
    <message>
        <source>Collected characters</source>
        <translation>Caractères collectés</translation>
    </message>
    <message>
        <source>Copy all</source>
        <translation>Tout copier</translation>
    </message>
    <message>
        <source>Empty the collection</source>
        <translation>Vider la collection</translation>
    </message>
</context>
<context>
    <name>browser::GlobalShortcut</name>
    <message>
        <source>Pick a character</source>
        <translation>Choisir un caractère</translation>
    </message>
</context>
<context>
    <name>browser::LargeGlyph</name>
    <message>
        <source>Drag the character into another window</source>
        <translation>Glissez le caractère dans une autre fenêtre</translation>
    </message>
</context>
<context>
    <name>browser::MainWindow</name>
    <message>
        <source>Groups (F9)</source>
        <translation>Groupes (F9)</translation>
    </message>
    <message>
        <source>Search by name, meaning, code or character</source>
        <translation>Chercher un nom, un sens, un code, un caractère</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>Add a character (Ctrl+N)</source>
        <translation>Ajouter un caractère (Ctrl+N)</translation>
    </message>
    <message>
        <source>Menu (F10)</source>
        <translation>Menu (F10)</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy &amp;as</source>
        <translation>Copier co&amp;mme</translation>
    </message>
    <message>
        <source>Co&amp;llect</source>
        <translation>Co&amp;llecter</translation>
    </message>
    <message>
        <source>&amp;Favourite</source>
        <translation>&amp;Favori</translation>
    </message>
    <message>
        <source>&amp;Add a character …</source>
        <translation>&amp;Ajouter un caractère…</translation>
    </message>
    <message>
        <source>&amp;Remove from your own</source>
        <translation>Re&amp;tirer de vos caractères</translation>
    </message>
    <message>
        <source>&amp;Identify the clipboard’s text</source>
        <translation>&amp;Identifier le texte du presse-papiers</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>A&amp;ffichage</translation>
    </message>
    <message>
        <source>&amp;Groups</source>
        <translation>&amp;Groupes</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation>P&amp;lus grand</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation>Plus &amp;petit</translation>
    </message>
    <message>
        <source>&amp;Usual size</source>
        <translation>Taille &amp;normale</translation>
    </message>
    <message>
        <source>Forget the &amp;recently copied characters</source>
        <translation>&amp;Oublier les caractères copiés récemment</translation>
    </message>
    <message>
        <source>&amp;Preferences …</source>
        <translation>&amp;Préférences…</translation>
    </message>
    <message>
        <source>&amp;Keys and mouse</source>
        <translation>Clavier et sour&amp;is</translation>
    </message>
    <message>
        <source>A&amp;bout</source>
        <translation>À prop&amp;os</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>Copié : %1</translation>
    </message>
    <message numerus="yes">
        <source>%Ln characters</source>
        <translation>
            <numerusform>%Ln caractère</numerusform>
            <numerusform>%Ln caractères</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Nothing matches exactly. %Ln similar characters:</source>
        <translation>
            <numerusform>Rien ne correspond exactement. %Ln caractère semblable :</numerusform>
            <numerusform>Rien ne correspond exactement. %Ln caractères semblables :</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln more in all characters</source>
        <translation>
            <numerusform>%Ln de plus dans tous les caractères</numerusform>
            <numerusform>%Ln de plus dans tous les caractères</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing found for “%1”.</source>
        <translation>Rien trouvé pour « %1 ».</translation>
    </message>
    <message>
        <source>No favourites yet. Ctrl+D makes the current character a favourite.</source>
        <translation>Pas encore de favoris. Ctrl+D ajoute le caractère actuel aux favoris.</translation>
    </message>
    <message>
        <source>What you copy appears here.</source>
        <translation>Ce que vous copiez apparaît ici.</translation>
    </message>
    <message>
        <source>No characters yet. Ctrl+N adds a character by its code, its name or by pasting it.</source>
        <translation>Pas encore de caractères. Ctrl+N ajoute un caractère par son code, son nom ou en le collant.</translation>
    </message>
    <message>
        <source>Collect</source>
        <translation>Collecter</translation>
    </message>
    <message>
        <source>Remove from the favourites</source>
        <translation>Retirer des favoris</translation>
    </message>
    <message>
        <source>Add to the favourites</source>
        <translation>Ajouter aux favoris</translation>
    </message>
    <message>
        <source>Remove from your own characters</source>
        <translation>Retirer de vos caractères</translation>
    </message>
    <message>
        <source>Add to your own characters</source>
        <translation>Ajouter à vos caractères</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Lettres</translation>
    </message>
    <message>
        <source>search</source>
        <translation>chercher</translation>
    </message>
    <message>
        <source>Enter, double click</source>
        <translation>Entrée, double clic</translation>
    </message>
    <message>
        <source>copy the character</source>
        <translation>copier le caractère</translation>
    </message>
    <message>
        <source>Alt+Enter</source>
        <translation>Alt+Entrée</translation>
    </message>
    <message>
        <source>Ctrl+1 … Ctrl+9</source>
        <translation>Ctrl+1 … Ctrl+9</translation>
    </message>
    <message>
        <source>copy another form</source>
        <translation>copier une autre forme</translation>
    </message>
    <message>
        <source>Space, Ctrl+Enter, Ctrl+click</source>
        <translation>Espace, Ctrl+Entrée, Ctrl+clic</translation>
    </message>
    <message>
        <source>collect, to copy several characters together</source>
        <translation>collecter, pour copier plusieurs caractères ensemble</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>favourite</source>
        <translation>favori</translation>
    </message>
    <message>
        <source>Ctrl+N</source>
        <translation>Ctrl+N</translation>
    </message>
    <message>
        <source>add a character of your own</source>
        <translation>ajouter un caractère à vous</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Suppr</translation>
    </message>
    <message>
        <source>remove a character of your own</source>
        <translation>retirer un caractère à vous</translation>
    </message>
    <message>
        <source>Ctrl+V, drop a text</source>
        <translation>Ctrl+V, déposer un texte</translation>
    </message>
    <message>
        <source>show the characters of a text</source>
        <translation>montrer les caractères d’un texte</translation>
    </message>
    <message>
        <source>Ctrl+Z, Ctrl+Shift+Z</source>
        <translation>Ctrl+Z, Ctrl+Maj+Z</translation>
    </message>
    <message>
        <source>undo, redo</source>
        <translation>annuler, rétablir</translation>
    </message>
    <message>
        <source>Ctrl++, Ctrl+-, Ctrl+wheel</source>
        <translation>Ctrl++, Ctrl+-, Ctrl+molette</translation>
    </message>
    <message>
        <source>zoom</source>
        <translation>agrandir, réduire</translation>
    </message>
    <message>
        <source>Ctrl+F, Escape</source>
        <translation>Ctrl+F, Échap</translation>
    </message>
    <message>
        <source>into the search field, empty it</source>
        <translation>aller à la recherche, la vider</translation>
    </message>
    <message>
        <source>F9</source>
        <translation>F9</translation>
    </message>
    <message>
        <source>show or hide the groups</source>
        <translation>afficher ou masquer les groupes</translation>
    </message>
    <message>
        <source>Keys and mouse</source>
        <translation>Clavier et souris</translation>
    </message>
    <message>
        <source>About Glyphorium</source>
        <translation>À propos de Glyphorium</translation>
    </message>
    <message>
        <source>A character catalog: Unicode characters, HTML character entities and symbols.</source>
        <translation>Un catalogue de caractères : caractères Unicode, entités HTML et symboles.</translation>
    </message>
    <message>
        <source>Under the MIT licence. Data of the Unicode Character Database and of CLDR stands under the Unicode licence.</source>
        <translation>Sous licence MIT. Les données de l’Unicode Character Database et de CLDR sont sous licence Unicode.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Back to where you were before (Alt+Left)</source>
        <translation>Revenir à l’endroit précédent (Alt+Gauche)</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Retour</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Undo: %1</source>
        <translation>Annuler : %1</translation>
    </message>
    <message>
        <source>Redo: %1</source>
        <translation>Rétablir : %1</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy as</source>
        <translation>Copier comme</translation>
    </message>
    <message>
        <source>copy the form chosen in the preferences</source>
        <translation>copier la forme choisie dans les préférences</translation>
    </message>
    <message>
        <source>Long press on an emoji</source>
        <translation>Appui long sur un émoji</translation>
    </message>
    <message>
        <source>choose its skin tone</source>
        <translation>choisir sa couleur de peau</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation>Alt+Gauche</translation>
    </message>
    <message>
        <source>back from a link on the card</source>
        <translation>revenir d’un lien de la fiche</translation>
    </message>
    <message>
        <source>Empty the search field</source>
        <translation>Vider le champ de recherche</translation>
    </message>
    <message>
        <source>Enter searches all characters.</source>
        <translation>Entrée cherche dans tous les caractères.</translation>
    </message>
    <message>
        <source>No checked group has characters. Check groups in the list of groups to see their characters together here.</source>
        <translation>Aucun groupe coché ne contient de caractères. Cochez des groupes dans la liste des groupes pour voir ici leurs caractères ensemble.</translation>
    </message>
</context>
<context>
    <name>browser::Picker</name>
    <message>
        <source>Pick a character</source>
        <translation>Choisir un caractère</translation>
    </message>
    <message>
        <source>Search by name, meaning, code or character</source>
        <translation>Chercher un nom, un sens, un code, un caractère</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>Nothing found.</source>
        <translation>Rien trouvé.</translation>
    </message>
    <message>
        <source>Enter: copy · Ctrl+Enter: collect · Alt+Enter: other form</source>
        <translation>Entrée : copier · Ctrl+Entrée : collecter · Alt+Entrée : autre forme</translation>
    </message>
    <message>
        <source>Empty the search field</source>
        <translation>Vider le champ de recherche</translation>
    </message>
</context>
<context>
    <name>browser::PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Picker</source>
        <translation>Sélecteur</translation>
    </message>
    <message>
        <source>Desktop search</source>
        <translation>Recherche du bureau</translation>
    </message>
    <message>
        <source>Like the desktop</source>
        <translation>Comme le bureau</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Thème :</translation>
    </message>
    <message>
        <source>Chosen for each character</source>
        <translation>Choisie pour chaque caractère</translation>
    </message>
    <message>
        <source>&amp;Font of the characters:</source>
        <translation>&amp;Police des caractères :</translation>
    </message>
    <message>
        <source>&amp;Alt+Enter copies:</source>
        <translation>&amp;Alt+Entrée copie :</translation>
    </message>
    <message>
        <source>&amp;Type the character into the window that had the focus</source>
        <translation>É&amp;crire le caractère dans la fenêtre qui était active</translation>
    </message>
    <message>
        <source>For this, install the package xdotool (X11) or wtype (Sway and other wlroots desktops). Without it, Ctrl+V pastes the character.</source>
        <translation>Il faut pour cela le paquet xdotool (X11) ou wtype (Sway et autres bureaux wlroots). Sans lui, Ctrl+V colle le caractère.</translation>
    </message>
    <message>
        <source>&amp;Start with the desktop, so that the picker opens at once</source>
        <translation>&amp;Démarrer avec le bureau, pour que le sélecteur s’ouvre aussitôt</translation>
    </message>
    <message>
        <source>GNOME Shell and KRunner find characters when glyphorium-search-provider is installed.</source>
        <translation>GNOME Shell et KRunner trouvent les caractères si glyphorium-search-provider est installé.</translation>
    </message>
    <message>
        <source>The desktop’s search finds &amp;all characters, not only your own</source>
        <translation>La recherche du bureau trouve &amp;tous les caractères, pas seulement les vôtres</translation>
    </message>
    <message>
        <source>The desktop’s search finds the characters that you &amp;add</source>
        <translation>La recherche du bureau trouve les caractères que vous &amp;ajoutez</translation>
    </message>
    <message>
        <source>&amp;Skin tone of emoji:</source>
        <translation>&amp;Couleur de peau des émojis :</translation>
    </message>
    <message>
        <source>Settings › Keyboard › View and Customise Shortcuts › Custom Shortcuts, with the command</source>
        <translation>Paramètres › Clavier › Afficher et personnaliser les raccourcis › Raccourcis personnalisés, avec la commande</translation>
    </message>
    <message>
        <source>System Settings › Shortcuts › Add Command</source>
        <translation>Configuration du système › Raccourcis clavier › Ajouter une commande</translation>
    </message>
    <message>
        <source>a line in the configuration</source>
        <translation>une ligne dans la configuration</translation>
    </message>
    <message>
        <source>&amp;Let the desktop open the picker with a key</source>
        <translation>&amp;Laisser le bureau ouvrir le sélecteur avec une touche</translation>
    </message>
    <message>
        <source>The desktop’s settings show the key. It works while Glyphorium runs.</source>
        <translation>Les paramètres du bureau montrent la touche. Elle agit tant que Glyphorium est en marche.</translation>
    </message>
    <message>
        <source>The key is “%1”. It works while Glyphorium runs.</source>
        <translation>La touche est « %1 ». Elle agit tant que Glyphorium est en marche.</translation>
    </message>
    <message>
        <source>This desktop does not let programs ask for a key. Its own settings can open the picker with a key over every window:</source>
        <translation>Ce bureau ne permet pas aux programmes de demander une touche. Ses propres paramètres peuvent ouvrir le sélecteur avec une touche par-dessus toute fenêtre :</translation>
    </message>
    <message>
        <source>The desktop’s own settings can also open the picker with a key over every window:</source>
        <translation>Les paramètres du bureau peuvent aussi ouvrir le sélecteur avec une touche par-dessus toute fenêtre :</translation>
    </message>
</context>
<context>
    <name>browser::ScopeModel</name>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
    <message numerus="yes">
        <source>%Ln characters</source>
        <translation>
            <numerusform>%Ln caractère</numerusform>
            <numerusform>%Ln caractères</numerusform>
        </translation>
    </message>
    <message>
        <source>The characters of all groups with a check mark</source>
        <translation>Les caractères de tous les groupes cochés</translation>
    </message>
    <message>
        <source>Emoji</source>
        <translation>Émojis</translation>
    </message>
    <message>
        <source>Blocks of Unicode</source>
        <translation>Blocs Unicode</translation>
    </message>
</context>
<context>
    <name>browser::Sidebar</name>
    <message>
        <source>Groups</source>
        <translation>Groupes</translation>
    </message>
</context>
<context>
    <name>main</name>
    <message>
        <source>Browse, search and copy Unicode characters, HTML entities and symbols.</source>
        <translation>Parcourir, chercher et copier des caractères Unicode, des entités HTML et des symboles.</translation>
    </message>
    <message>
        <source>Open the window and search for these words.</source>
        <translation>Ouvrir la fenêtre et chercher ces mots.</translation>
    </message>
    <message>
        <source>words</source>
        <translation>mots</translation>
    </message>
    <message>
        <source>Open a small window to pick a character for another program.</source>
        <translation>Ouvrir une petite fenêtre pour choisir un caractère destiné à un autre programme.</translation>
    </message>
    <message>
        <source>Open no window yet, so that later ones open at once.</source>
        <translation>N’ouvrir aucune fenêtre pour l’instant, afin que les suivantes s’ouvrent aussitôt.</translation>
    </message>
    <message>
        <source>Use this theme: system, light or dark.</source>
        <translation>Utiliser ce thème : system, light ou dark.</translation>
    </message>
    <message>
        <source>name</source>
        <translation>nom</translation>
    </message>
</context>
</TS>
