#!/usr/bin/env python3
"""Rebuilds every list file in resources/ from its sources, reproducibly.

    cd tools/generator && npm ci && python3 generate.py [--out ../../resources]

Needs the Debian packages scowl, wordnet-base and wspanish. The seed is fixed: the same sources give the
same files byte for byte, and the order of an answer file is the game's schedule.
"""

import argparse
import os
import sys

import english
import equations
import number_pools
import spanish
from schedule import schedule

HERE = os.path.dirname(os.path.abspath(__file__))
SEED = "tessarine-2022-04-01"
DAYS = 3654
DAYS_BY_FILE = {"4GLetterAnswers": 5480, "5GLetterAnswers": 7306}
EQUATION_TYPES = {"All": "+-X/", "AS": "+-", "MD": "X/"}
NOTICE_SOURCES = [
    ("SCOWL (Spell Checker Oriented Word Lists), english and american words lists up to size 80",
     "/usr/share/doc/scowl/copyright"),
    ("WordNet 3.0 (definitions after each English word)", "/usr/share/doc/wordnet-base/copyright"),
    ("wspanish (Spanish valid guesses)", "/usr/share/doc/wspanish/copyright"),
    ("an-array-of-spanish-words (Spanish valid guesses)",
     os.path.join(HERE, "node_modules", "an-array-of-spanish-words", "license")),
]


class Writer:
    def __init__(self, out, released_through=None):
        self.out = out
        self.released_through = released_through
        os.makedirs(out, exist_ok=True)

    def _guard_released_days(self, name, lines):
        """Days that players have already seen keep their answers: refuse to rewrite them."""
        path = os.path.join(self.out, name + ".txt")
        if self.released_through is None or not os.path.exists(path):
            return
        with open(path, encoding="utf-8") as f:
            old = f.read().split("\n")
        for day in range(min(self.released_through + 1, len(lines))):
            if day >= len(old) or old[day] != lines[day]:
                sys.exit(f"error: {name} would change day {day}, already released; keep its sources as they were")

    def lines(self, name, lines):
        with open(os.path.join(self.out, name + ".txt"), "w", encoding="utf-8", newline="\n") as f:
            f.write("".join(line + "\n" for line in lines))
        print(f"{name}: {len(lines)} lines", file=sys.stderr)

    def answers(self, name, pool):
        days = DAYS_BY_FILE.get(name, DAYS)
        lines = schedule(pool, days, f"{SEED}:{name}")
        self._guard_released_days(name, lines)
        self.lines(name, lines)
        print(f"  pool {len(set(pool))}", file=sys.stderr)


def write_english(w):
    source = english.English()
    for length in range(3, 9):
        everyday = source.answers(length)
        genius = source.genius(length, everyday) if length in (4, 5) else []
        w.answers(f"{length}LetterAnswers", [x.upper() for x in everyday])
        if genius:
            w.answers(f"{length}GLetterAnswers", [x.upper() for x in genius])
        w.lines(f"{length}LetterWords", source.validity_lines(length, everyday + genius))


def write_spanish(w):
    for length in (4, 5):
        rows = spanish.answers_and_translations(length)
        words = [word for word, _ in rows]
        # The answers are real words: one missing from the word lists is added, never dropped.
        w.lines(f"{length}SLetterWords", sorted(spanish.valid_words(length) | set(words)))
        w.answers(f"{length}SLetterAnswers", words)
        print(f"  {spanish.common_share(words)} of them among the 10,000 most used Spanish words", file=sys.stderr)
        w.lines(f"{length}LetterTranslation", [f"{word} {text}" for word, text in rows])


def write_numbers(w):
    for digits in (3, 4, 5):
        primes = number_pools.primes_of_length(digits)
        w.lines(f"{digits}DigitPrimes", primes)
        w.answers(f"{digits}PrimeAnswers", primes)
        w.answers(f"{digits}NumberAnswers", number_pools.numbers_of_length(digits))
    for tiles in (6, 7, 8):
        for suffix, operators in EQUATION_TYPES.items():
            w.answers(f"{tiles}Math{suffix}Answers", equations.equation_pool(tiles, operators))


def write_notice(out):
    parts = ["The list files in this folder are built by tools/generator from the sources below.\n"
             "Their notices follow, as the sources require.\n"]
    for title, path in NOTICE_SOURCES:
        with open(path, encoding="utf-8") as f:
            parts.append(f"{'=' * 72}\n{title}\n{'=' * 72}\n\n{f.read().rstrip()}\n")
    with open(os.path.join(out, "NOTICE"), "w", encoding="utf-8", newline="\n") as f:
        f.write("\n".join(parts))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--out", default=os.path.join(HERE, "..", "..", "resources"))
    parser.add_argument("--only", choices=["english", "spanish", "numbers"], help="rebuild one family")
    parser.add_argument("--released-through", type=int, metavar="DAY",
                        help="fail rather than change the answer of any day index up to DAY")
    args = parser.parse_args()
    w = Writer(os.path.normpath(args.out), args.released_through)
    families = {"english": write_english, "spanish": write_spanish, "numbers": write_numbers}
    for name, build in families.items():
        if args.only in (None, name):
            build(w)
    write_notice(w.out)


if __name__ == "__main__":
    main()
