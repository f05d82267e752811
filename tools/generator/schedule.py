"""The order of an answer file is the game's schedule.

A pool is walked in whole shuffled rounds, so nothing comes back before every entry has had its day,
and no entry comes back within MIN_GAP days, neither across a round boundary nor across the wrap from
the last day of the modulus to the first.
"""

import random

MIN_GAP = 30


def schedule(pool, days, seed):
    """`days` entries of `pool` (a list of distinct strings), in rounds, reproducible from `seed`."""
    pool = sorted(set(pool))
    rng = random.Random(seed)
    size = len(pool)
    gap = MIN_GAP if size >= 2 * MIN_GAP else size // 2
    out = []
    while len(out) < days:
        order = pool[:]
        rng.shuffle(order)
        start = len(out)
        for i in range(min(size, days - start)):
            position = start + i
            if not _fits(order[i], position, out, days, gap):
                for j in range(i + 1, size):
                    if _fits(order[j], position, out, days, gap):
                        order[i], order[j] = order[j], order[i]
                        break
            out.append(order[i])
    return out


def _fits(entry, position, out, days, gap):
    if entry in out[max(0, position - gap + 1):position]:
        return False
    # The day after the last wraps to the first line.
    wrap_end = position + gap - days
    return wrap_end <= 0 or entry not in out[:wrap_end]
