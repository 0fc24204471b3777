#!/usr/bin/env python3
"""Plays a short evening on a virtual screen and leaves pictures of it: dice are entered by key, one roll is taken back,
and the chart fills.
Usage: demo.py PROGRAM FOLDER    FOLDER takes the screenshots"""
import pathlib
import sys

from virtual_screen import Program, Screen, end_by_itself

TIME_LIMIT = 120  # seconds
ROLLS = ("43 61 52 35 33 64 21 44 25 54 13 62 34 55 41 63 52 26 11 45 36 22 51 42 65 31 53 16 66 24 32 46 43 15 "
         "61 56").split()


def play(program):
    """Stops at each moment that is worth a picture, with its name and the window."""
    for first, second in ROLLS[:-1]:
        program.screen.keys(first, second, "Return")
        program.wait_for_main_alone()
    program.screen.keys(ROLLS[-1][0])
    dialog = program.wait_for_dialog()
    program.screen.keys(ROLLS[-1][1])
    yield "dice-dialog", dialog
    program.screen.keys("Return")
    program.wait_for_main_alone()
    program.screen.chord("alt", "BackSpace")
    yield "undo-question", program.wait_for_dialog()
    program.screen.chord("alt", "y")
    program.wait_for_main_alone()
    yield "main-window", program.main


def main():
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    executable, folder = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    end_by_itself(TIME_LIMIT)
    with Screen() as screen:
        program = Program(screen, executable)
        program.start()
        for name, window in play(program):
            program.save_when_calm(folder / f"{name}.png", window)
            print(folder / f"{name}.png")


if __name__ == "__main__":
    main()
