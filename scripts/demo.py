#!/usr/bin/env python3
"""Plays a short evening on a virtual screen, by keys, and leaves pictures of it, the saved game and its page: four players and
the first expansion, rolls and what was built in between, an attack, the standing, the settings, the winner.
Usage: demo.py PROGRAM FOLDER    FOLDER takes the screenshots, evening.obg and evening.pdf"""
import pathlib
import shutil
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "tests" / "evening"))
from driver import Program, XScreen, end_by_itself  # noqa: E402

TIME_LIMIT = 300  # seconds
SETTLED = 0.5  # seconds after which a window has been painted
NAMES = ["Mathilda", "Jonas", "Ingrid", "Pavel"]
POINTS_LESS = 2  # so that a short evening has a winner

# Two dice and the key of the event face, rolled one after the other; "2+1" lets seat 2 report its action 1. The seventh
# ship (b) comes last.
EVENING = ("43b 61p 2+1 52h 35w 33b 1+1 64p 21h 3+2 44b 25w 4+1 54p 13h 1+4 62b 34h 2+6 55w 3+1 41p 63b 52w 4+9 "
           "26h 1+2 11p 45w 36b 2+3 22p 51h 1+1 42w 65h 31p 3+8 53w 16h 4+4 66p 24h 32w 46p 53h").split()
ATTACK, AFTER = "62b", "2+4 52h 2+2"
WINS = ("2", "1")  # a seat and the action that brings the last point it needs


def begin_game(program, names, expansion=False, points_less=0):
    """Fills in a new game, from the program's first one: four players and the points of its kind. Enter starts it."""
    program.keys("ctrl+n")
    dialog = program.dialog()
    program.keys(*["Down"] * expansion, *["Tab"] * 3, *["space"] * points_less)
    program.keys(*["Tab"] * 3, *["space"] * (4 - len(names)), *["Tab"] * 2)
    for name in names:
        program.keys("Tab")
        program.write(name)
    program.keys(*["Tab"] * 3)
    return dialog


def play_turns(program, turns):
    for turn in turns:
        if "+" in turn:
            program.act(turn[0], turn[2])
            program.wait_for_main()
        else:
            program.roll(*turn)


def play(program):
    """Stops at each moment that is worth a picture, with its name and the window."""
    yield "new-game", begin_game(program, NAMES, expansion=True, points_less=POINTS_LESS)
    program.answer("Return")
    play_turns(program, EVENING)
    yield "main-window", program.main

    program.keys(ATTACK[0])
    dialog = program.dialog()
    program.keys(ATTACK[1])
    yield "dice-dialog", dialog
    program.keys(ATTACK[2])
    yield "barbarians", program.dialog("Barbarian attack!")
    program.answer("Return")

    for name, opens, closes in (("action-dialog", "F3", "0"), ("standing", "ctrl+t", "Return"),
                                ("settings", "F8", "Return")):
        program.keys(opens)
        yield name, program.dialog()
        program.answer(closes)
    program.save(program.folder / "evening.obg")
    program.print_report(program.folder / "evening.pdf")

    play_turns(program, AFTER.split())
    program.act(*WINS)
    yield "winner", program.dialog("Standings")
    program.answer("Return")


def main():
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    executable, folder = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    folder.mkdir(parents=True, exist_ok=True)
    end_by_itself(TIME_LIMIT)
    with XScreen() as screen:
        program = Program(screen, executable)
        program.start()
        for name, window in play(program):
            time.sleep(SETTLED)
            screen.picture(folder / f"{name}.png", window, "-frame")
            print(folder / f"{name}.png")
        for name in ("evening.obg", "evening.pdf"):
            print(shutil.copy(program.folder / name, folder))


if __name__ == "__main__":
    main()
