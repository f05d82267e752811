"""Equation pools, built by construction from the arithmetic the game accepts.

Every equation is written with numbers that have no leading zero and no sign, divides only exactly and
never by zero, and evaluates by the game's rules: X and / before + and -, equal ranks from the left.
"""

ADD_SUB = "+-"
MUL_DIV = "X/"


def _numbers(length):
    # Zero is never an operand: it only makes the puzzle trivial ("98X0=0", "0+0+0=0").
    return range(max(1, 10 ** (length - 1)), 10 ** length)


def _apply(a, op, b):
    """a op b, or None when the division is not exact."""
    if op == "+":
        return a + b
    if op == "-":
        return a - b
    if op == "X":
        return a * b
    if b == 0 or a % b:
        return None
    return a // b


def _evaluate(a, op1, b, op2, c):
    if op2 in MUL_DIV and op1 in ADD_SUB:
        right = _apply(b, op2, c)
        return None if right is None else _apply(a, op1, right)
    left = _apply(a, op1, b)
    return None if left is None else _apply(left, op2, c)


def _keep(text, tiles, value):
    return value is not None and value >= 0 and len(text) + 1 + len(str(value)) == tiles


def one_operator(tiles, operators):
    """Every "a op b=r" of `tiles` characters."""
    found = []
    for la in range(1, tiles - 3):
        for lb in range(1, tiles - 2 - la):
            for a in _numbers(la):
                for b in _numbers(lb):
                    for op in operators:
                        text = f"{a}{op}{b}"
                        value = _apply(a, op, b)
                        if _keep(text, tiles, value):
                            found.append(f"{text}={value}")
    return found


def two_operator(tiles, operators):
    """Every "a op b op c=r" of `tiles` characters."""
    found = []
    budget = tiles - 3  # digits of a, b, c and r together
    for la in range(1, budget - 2):
        for lb in range(1, budget - 1 - la):
            for lc in range(1, budget - la - lb):
                for a in _numbers(la):
                    for b in _numbers(lb):
                        for c in _numbers(lc):
                            for op1 in operators:
                                for op2 in operators:
                                    text = f"{a}{op1}{b}{op2}{c}"
                                    value = _evaluate(a, op1, b, op2, c)
                                    if _keep(text, tiles, value):
                                        found.append(f"{text}={value}")
    return found


def equation_pool(tiles, operators):
    """The answers of one equation type: six tiles hold one operator, seven and eight hold two."""
    if tiles == 6:
        return one_operator(tiles, operators)
    return two_operator(tiles, operators)
