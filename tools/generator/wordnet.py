"""WordNet 3.0 reader: lemmas, first glosses, and the base form of an inflected word."""

import os

POS_FILES = {"n": "noun", "v": "verb", "a": "adj", "r": "adv"}

# WordNet's own detachment rules (morphy), by part of speech.
SUFFIX_RULES = {
    "n": [("s", ""), ("ses", "s"), ("xes", "x"), ("zes", "z"), ("ches", "ch"), ("shes", "sh"),
          ("men", "man"), ("ies", "y")],
    "v": [("s", ""), ("ies", "y"), ("es", "e"), ("es", ""), ("ed", "e"), ("ed", ""),
          ("ing", "e"), ("ing", "")],
    "a": [("er", ""), ("est", ""), ("er", "e"), ("est", "e")],
    "r": [],
}

MAX_GLOSS = 110


def _short_gloss(gloss):
    """The definition part of a gloss: before the examples and before a second definition."""
    text = gloss.strip()
    for stop in ('; "', ' "', "; "):
        cut = text.find(stop)
        if cut > 0:
            text = text[:cut]
    text = text.strip(" ;:,")
    if len(text) > MAX_GLOSS:
        text = text[:MAX_GLOSS].rsplit(" ", 1)[0].rstrip(" ,;:(") + "..."
    return text


class WordNet:
    def __init__(self, directory="/usr/share/wordnet"):
        self.index = {}  # lemma -> {pos: (tagsense_cnt, [offsets])}
        self.data = {}
        self.exceptions = {}  # pos -> {inflected: [bases]}
        for pos, name in POS_FILES.items():
            with open(os.path.join(directory, "index." + name), encoding="latin-1") as f:
                for line in f:
                    if line.startswith("  "):
                        continue
                    fields = line.split()
                    lemma = fields[0]
                    ptr_count = int(fields[3])
                    tagsense = int(fields[5 + ptr_count])
                    offsets = fields[6 + ptr_count:]
                    self.index.setdefault(lemma, {})[pos] = (tagsense, offsets)
            with open(os.path.join(directory, "data." + name), "rb") as f:
                self.data[pos] = f.read()
            exc = {}
            with open(os.path.join(directory, name + ".exc"), encoding="latin-1") as f:
                for line in f:
                    fields = line.split()
                    if len(fields) >= 2:
                        exc[fields[0]] = fields[1:]
            self.exceptions[pos] = exc

    def _synset(self, pos, offset):
        blob = self.data[pos]
        start = int(offset)
        end = blob.index(b"\n", start)
        line = blob[start:end].decode("latin-1")
        head, _, gloss = line.partition(" | ")
        fields = head.split()
        count = int(fields[3], 16)
        words = [fields[4 + 2 * i] for i in range(count)]
        return words, gloss

    def is_lemma(self, word):
        return word in self.index

    def common_senses(self, word):
        """(pos, gloss) of the synsets where the word stands in lower case, most used first."""
        entry = self.index.get(word, {})
        order = sorted(entry, key=lambda p: (-entry[p][0], "nvar".index(p)))
        for pos in order:
            for offset in entry[pos][1]:
                words, gloss = self._synset(pos, offset)
                # An adjective may carry a marker such as "(a)"; proper nouns are capitalised.
                if any(w.split("(")[0] == word for w in words):
                    yield pos, gloss

    def has_common_sense(self, word):
        return next(self.common_senses(word), None) is not None

    def base_forms(self, word):
        """Lemmas that `word` is an inflection of, through the exception lists and the suffix rules."""
        found = []
        for pos in "nvar":
            for base in self.exceptions[pos].get(word, []):
                if base != word and base in self.index and pos in self.index[base]:
                    found.append(base)
            for suffix, ending in SUFFIX_RULES[pos]:
                if word.endswith(suffix) and len(word) > len(suffix):
                    base = word[: len(word) - len(suffix)] + ending
                    if base != word and base in self.index and pos in self.index[base]:
                        found.append(base)
        return list(dict.fromkeys(found))

    def definition(self, word):
        """The first gloss of the word's own common sense, else of its base form; None when neither."""
        for candidate in [word] + self.base_forms(word):
            for _, gloss in self.common_senses(candidate):
                text = _short_gloss(gloss)
                if text:
                    return text
        return None
