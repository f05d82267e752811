#!/usr/bin/env python3
"""Whole challenge matches between two match runners, each on its own data folder, passing every
share text from one device to the other the way a person would: reading the key or the guess off
it, or picking the choice it reports. Both devices must end the match with one result."""
import argparse
import os
import re
import shutil
import subprocess
import sys

SYNC = "@@sync@@"
MARKERS = ("guess is ", "Supongo que es ")


class Device:
    def __init__(self, cli, folder, seed, spanish=False, paste=False):
        self.cli, self.folder, self.seed, self.spanish, self.paste = cli, folder, seed, spanish, paste
        self.proc = None
        self.start()

    def start(self):
        args = [self.cli, "match", "--data", self.folder, "--today", "2024-01-10", "--seed", str(self.seed)]
        if self.spanish:
            args.append("--spanish")
        self.proc = subprocess.Popen(args, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)

    def restart(self):
        self.proc.stdin.close()
        self.proc.wait()
        self.start()

    def run(self, command, errors_ok=False):
        self.proc.stdin.write(command + "\necho " + SYNC + "\n")
        self.proc.stdin.flush()
        lines = []
        while True:
            line = self.proc.stdout.readline()
            if line == "":
                raise RuntimeError(f"{self.folder}: runner ended on '{command}'")
            if line.rstrip("\n") == SYNC:
                break
            lines.append(line.rstrip("\n"))
        if not errors_ok and any(l.startswith("error:") for l in lines):
            raise AssertionError(f"{self.folder}: '{command}' -> {lines}")
        return "\n".join(lines)

    def text(self, command):
        out = self.run(command)
        assert out.endswith("\n~~~") or out == "~~~", out
        return out[: -len("\n~~~")]

    def state(self, name):
        return self.run("state " + name).split("=", 1)[1]

    def close(self):
        self.proc.stdin.close()
        self.proc.wait()


def key_digits(text):
    digits = re.findall(r"(\d)\ufe0f\u20e3", text)
    assert len(digits) == 6, text
    return "".join(digits)


def guess_in(text):
    for marker in MARKERS:
        if marker in text:
            return text.split(marker, 1)[1].split("\n", 1)[0]
    return None


def paste(receiver, text):
    """The whole text pasted in, as the paste button reads it; the player still submits."""
    receiver.run("paste " + text.replace("\n", "\\n"))
    receiver.run("submit")


def deliver(sender, receiver):
    """The receiver reads the sender's share text and tells its own device what came back."""
    text = sender.text("share")
    if receiver.state("activeRow") == "-1":
        if receiver.paste:
            paste(receiver, text)  # the key
        else:
            receiver.run("key " + key_digits(text))
        assert receiver.state("invalidKeyEntry") == "false"
        if receiver.paste:
            paste(receiver, text)  # then the first guess, from the same text
        else:
            receiver.run("guess " + guess_in(text))
        return
    signals = {
        ("Found answer.", "Respuesta encontrada."): "found",
        ("I walked.", "Caminé."): "walked",
        ("I struck out.", "Me ponché."): "struck",
        ("I missed my final guess.", "Perdí mi conjetura final."): "missed",
    }
    head = re.search(r"\n\n(WIN|LOST|DRAW|GANAR|PERDIR|EMPATAR)\n", text)
    if head:
        # The sender's final text: it found the answer (won or drew by finding), or it did not.
        neither = "Neither player" in text or "Ningún jugador" in text
        found = head.group(1) in ("WIN", "GANAR") or (head.group(1) in ("DRAW", "EMPATAR") and not neither)
        last = text.rsplit("\n", 2)[-2]  # the sender's own line stands above "Answer was"
        if found:
            choice = "found"
        elif re.search("strikeout|un ponche", last):
            choice = "struck"
        elif re.search("walk|bolas|pasear", last):
            choice = "walked"
        else:
            choice = "missed"
        receiver.run("choose " + choice)
        receiver.run("submit")
        return
    for texts, choice in signals.items():
        if text.split("\n", 1)[0] in texts:
            receiver.run("choose " + choice)
            receiver.run("submit")
            return
    word = guess_in(text)
    assert word, text
    receiver.run("choose received")
    if receiver.paste:
        paste(receiver, text)
    else:
        receiver.run("guess " + word)


def result_of(device):
    assert device.state("gameOver") == "true", device.run("board")
    return device.run("banner")


def agree(a, b, expected_a):
    ra, rb = result_of(a), result_of(b)
    mirror = {"WIN": "LOST", "LOST": "WIN", "DRAW": "DRAW", "GANAR": "PERDIR", "PERDIR": "GANAR", "EMPATAR": "EMPATAR"}
    english = {"GANAR": "WIN", "PERDIR": "LOST", "EMPATAR": "DRAW"}
    assert english.get(ra, ra) == expected_a, f"device A ended {ra}, expected {expected_a}"
    assert (ra in english) == a.spanish, ra
    assert "\nAnswer was " in a.text("final"), "the final text ends in English in both languages"
    assert mirror[ra] == rb, f"devices disagree: {ra} / {rb}"


class Match:
    def __init__(self, cli, work, gtype, seed=7, spanish=False, paste=False):
        shutil.rmtree(work, ignore_errors=True)
        self.cli = cli
        self.a = Device(cli, os.path.join(work, "a"), seed, spanish, paste)
        self.b = Device(cli, os.path.join(work, "b"), seed + 1, spanish, paste)
        self.a.run("open " + gtype)
        self.type = gtype
        self.answer = self.a.state("challengeAnswerWord")
        self.played = []
        self.first_guess = "CRANE"

    def candidates(self):
        out = subprocess.run([self.cli, "hints", self.type, self.answer] + self.played, capture_output=True,
                             text=True, check=True).stdout.split("\n")
        return [w for w in out[1:] if w and w not in self.played] if self.played else []

    def plain_guess(self, device, first=None):
        """A guess that keeps the colour code and is not the answer."""
        word = first or next(w for w in self.candidates() if w != self.answer)
        device.run("guess " + word)
        self.played.append(word)
        return word

    def win_guess(self, device):
        device.run("guess " + self.answer)

    def close(self):
        self.a.close()
        self.b.close()


def open_match(m, first=None):
    first = first or m.first_guess
    m.plain_guess(m.a, first)
    m.b.run("accept")
    assert m.b.run("title") == ("Introduce la clave del desafío" if m.b.spanish else "Enter Challenge Key")
    deliver(m.a, m.b)  # B accepts the key and enters A's first guess


def scenario_win(m):
    open_match(m)
    m.win_guess(m.b)  # B finds it on row 1
    deliver(m.b, m.a)  # A: found; A's final guess follows
    m.plain_guess(m.a)
    deliver(m.a, m.b)  # A's final text: B was waiting for found or missed
    agree(m.a, m.b, "LOST")
    assert m.b.state("numberOfWins") == "0"  # the scan is taken when the match opens
    assert m.b.run("stats").split("\n")[1].endswith(" Won: 1" if not m.b.spanish else " Ganado: 1")


def scenario_draw_both_found(m):
    open_match(m)
    m.win_guess(m.b)
    deliver(m.b, m.a)
    m.win_guess(m.a)  # the final guess finds it too
    deliver(m.a, m.b)
    agree(m.a, m.b, "DRAW")


def scenario_three_strikes(m):
    open_match(m)
    for word in ("QQQQQ", "QQQQQ", "XXXXX", "ZZZZZ"):
        m.b.run("guess " + word)
    assert m.b.state("youStruckOut") == "true"
    assert m.b.text("share").startswith("I struck out.\n")
    deliver(m.b, m.a)
    assert m.a.state("opponentStruckOut") == "true"
    m.win_guess(m.a)  # found after the opponent struck out: over at once
    deliver(m.a, m.b)
    agree(m.a, m.b, "WIN")


def scenario_four_balls_then_strikeout(m):
    """A walk by four balls and a strikeout on the next turn by the same player: two lost turns."""
    open_match(m)
    board_words = subprocess.run([m.cli, "hints", m.type, m.answer, "CRANE"], capture_output=True,
                                 text=True).stdout.split("\n")
    bad = [w for w in ("GHOST", "PLUMB", "DIVOT", "JUMPY", "FIGHT") if w not in board_words][:4]
    for word in bad:
        m.b.run("guess " + word)
    assert m.b.state("youWalked") == "true", m.b.run("board")
    deliver(m.b, m.a)
    m.plain_guess(m.a)
    deliver(m.a, m.b)
    for word in ("QQQQQ", "XXXXX", "ZZZZZ"):
        m.b.run("guess " + word)
    deliver(m.b, m.a)
    agree(m.a, m.b, "WIN")


def scenario_intentional_walk(m):
    open_match(m)
    m.plain_guess(m.b)
    deliver(m.b, m.a)
    m.a.run("walk")
    m.a.run("cancelwalk")
    m.a.run("walk")
    m.a.run("submit")
    assert m.a.text("share").startswith("I walked.\n")
    deliver(m.a, m.b)
    m.b.run("walk")
    m.b.run("submit")  # both lost a turn on the same row: neither won
    deliver(m.b, m.a)
    agree(m.a, m.b, "DRAW")
    assert "My final guess was an intentional walk\n" in m.a.text("final")


def scenario_loss_by_two_walks(m):
    open_match(m)
    m.plain_guess(m.b)
    deliver(m.b, m.a)
    m.a.run("walk")
    m.a.run("submit")
    deliver(m.a, m.b)
    m.plain_guess(m.b)
    deliver(m.b, m.a)
    m.a.run("walk")
    m.a.run("submit")  # the second lost turn in a row
    deliver(m.a, m.b)
    agree(m.a, m.b, "LOST")


def scenario_eighth_guess(m):
    open_match(m, first=m.first_guess)
    turn = [m.b, m.a]
    for row in range(1, 8):
        device, other = turn[(row - 1) % 2], turn[row % 2]
        m.plain_guess(device)
        deliver(device, other)
    # B's eighth guess was never sent: A plays its own final row on what it has seen.
    assert m.b.state("youMissedFinalGuess") == "true"
    assert m.b.text("share").startswith("I missed my final guess.\n")
    assert m.a.run("status") == "Enter Your Final Guess"
    m.played.pop()
    m.plain_guess(m.a)
    deliver(m.a, m.b)
    agree(m.a, m.b, "DRAW")


def scenario_saved_and_continued(m):
    open_match(m)
    m.plain_guess(m.b)
    m.b.run("save  Friday  ")
    m.b.restart()
    m.b.run("open " + m.type)
    assert m.b.run("saved") == "Friday"
    m.b.run("continue 0")
    assert m.b.state("waitingForGuess") == "true"
    deliver(m.b, m.a)
    m.win_guess(m.a)
    deliver(m.a, m.b)
    m.plain_guess(m.b)
    deliver(m.b, m.a)
    agree(m.a, m.b, "WIN")
    m.b.run("open " + m.type)
    assert m.b.run("saved") == "", "the finished match replaced its saved record"


SCENARIOS = {name[len("scenario_"):]: f for name, f in globals().items() if name.startswith("scenario_")}


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("--cli", required=True)
    parser.add_argument("--work", required=True)
    parser.add_argument("--type", default="C")
    parser.add_argument("--seed", type=int, default=7)
    parser.add_argument("--spanish", action="store_true")
    parser.add_argument("--first", help="the opening guess")
    parser.add_argument("--paste", action="store_true", help="receive keys and guesses by pasting the texts")
    parser.add_argument("scenario", choices=sorted(SCENARIOS))
    args = parser.parse_args()
    m = Match(args.cli, args.work, args.type, args.seed, args.spanish, args.paste)
    if args.first:
        m.first_guess = args.first
    try:
        SCENARIOS[args.scenario](m)
    finally:
        m.close()
    print(f"{args.scenario}: ok")


if __name__ == "__main__":
    sys.exit(main())
