# Prints the properties of random code points from Python's copy of the Unicode Character Database. One half
# is chosen from all code points, the other half from code points with a name. The arguments are the seed of
# the random numbers and the number of code points.
import random
import sys
import unicodedata

random.seed(int(sys.argv[1]))
count = int(sys.argv[2])
named = [code_point for code_point in range(0x110000) if unicodedata.name(chr(code_point), None)]
print(unicodedata.unidata_version)
for code_point in random.sample(range(0x110000), count // 2) + random.sample(named, count - count // 2):
    c = chr(code_point)
    mapping = [code for code in unicodedata.decomposition(c).lower().split() if '<' not in code]
    letters = unicodedata.normalize('NFD', c)
    if 'HANGUL SYLLABLE' in unicodedata.name(c, ''):  # only normalize() decomposes these
        parts = [unicodedata.normalize('NFC', letters[:2]), letters[2]] if len(letters) == 3 else letters
        mapping = [f'{ord(part):04x}' for part in parts]
    decomposition = ','.join(mapping)
    cases = [','.join(f'{ord(one):04x}' for one in mapped) if mapped != c else '' for mapped in
             (c.upper(), c.lower(), c.title())]
    print(f'{code_point:04x}', unicodedata.name(c, ''), unicodedata.category(c), unicodedata.bidirectional(c),
          unicodedata.east_asian_width(c), unicodedata.combining(c), decomposition, *cases, sep='\t')
