#!/usr/bin/env python3
"""A game evening with the finished program: it runs on a virtual screen, keys and clicks come from outside, and what
comes of them is seen in windows, pixels and files. Each scene has a program of its own that has never run.
The first scene that fails ends it and leaves a screenshot.
Usage: evening.py PROGRAM FOLDER [SCENE...]    FOLDER takes the screenshot; all scenes are played if none is named"""
import pathlib
import sys
import time
from unittest.mock import ANY

from driver import TITLE, Program, WaylandScreen, XScreen, end_by_itself, wait_for

TIME_LIMIT = 300  # seconds for all scenes
FIRST_ROLL, ROLLS = 83, 500  # of a game file
SETTINGS_LINES = 39
BLACK_DIE, RED_DIE = (601, 57), (601, 97)
START = 329, 384  # of a new game
KEY_4, KEY_3 = "13", "12"  # of the top row, whatever the layout
SHIP = "b"  # key of the event die
QUIT = "Quit"
RANDOM = (ANY, ANY)  # the dice of a roll by chance


def rolls(lines):
    """Both dice of each roll in a saved game."""
    dice = [int(line) for line in lines[FIRST_ROLL:FIRST_ROLL + 3 * ROLLS]]
    return [roll for roll in zip(dice[::3], dice[1::3]) if roll != (0, 0)]


def expect_rolls(program, *wanted):
    seen = rolls(program.save(program.folder / f"{len(wanted)}-rolls.obg"))
    assert seen == list(wanted), f"rolled {seen}, not {wanted}"


def quit_program(program, settings, *texts):
    """What it leaves is a whole settings file with these lines in it."""
    program.keys("ctrl+q")
    program.dialog(QUIT)
    program.keys("alt+y")
    assert program.wait_for_end() == 0
    lines = settings.read_bytes().decode("cp1252").split("\r\n")
    assert len(lines) == SETTINGS_LINES + 1 and lines[-1] == "" and set(texts) <= set(lines), lines


def the_seventh_ship_lands(program):
    for _ in range(6):
        program.roll("1", "1", SHIP)
    program.keys("6")
    program.dialog()
    program.keys("6", SHIP)
    program.answer("Return", dialog="Barbarian attack!")


def a_whole_evening_and_the_next(program):
    program.launch()
    program.choose_language("English")
    program.keys("ctrl+n")
    dialog = program.dialog()
    program.keys("Down")  # the first expansion
    program.screen.click(dialog, *START)
    program.wait_for_main()
    program.act(1, "0")
    program.wait_for_main()
    program.act(1, "0")
    program.answer("Return", dialog="No city to lay waste")
    program.keys("shift+F2")
    program.dialog()
    program.write("Zoe")
    program.answer("alt+F4")  # the close box keeps what was typed
    the_seventh_ship_lands(program)
    saved = program.save(program.folder / "friday.obg")
    assert rolls(saved) == [(1, 1)] * 6 + [(6, 6)] and "Zoe" in saved, saved[:200]
    program.print_report(program.folder / "friday.pdf")
    program.keys("ctrl+q")
    program.answer("Return", dialog=QUIT)  # No is the default
    assert not program.settings.exists()
    quit_program(program, program.settings, "English", "Zoe")

    program.start()
    program.give_file("ctrl+f", program.folder / "friday.obg")
    assert program.save(program.folder / "saturday.obg")[:-2] == saved[:-2]  # but for its clock
    settings = program.settings.read_bytes()
    program.keys("alt+F4")
    assert program.wait_for_end() == 0 and program.settings.read_bytes() == settings


def rolls_by_key_and_mouse(program):
    program.start()
    program.roll("4", "3")
    program.click(*BLACK_DIE)
    dialog = program.dialog()
    for place in ((224, 24), (184, 64), (280, 176)):  # black 6, red 5, OK
        program.screen.click(dialog, *place)
    program.wait_for_main()
    program.click(*RED_DIE, button=3)
    program.click(75, -9)  # opens Extra; its last entry rolls
    program.keys("Up", "Return")
    program.roll("1", "1")
    for answer in ("Return", "alt+y"):  # No is the default
        program.keys("alt+BackSpace")
        program.answer(answer)
    program.roll("2", "2")
    expect_rolls(program, (4, 3), (6, 5), RANDOM, RANDOM, (2, 2))


def keys_held_overlapping_and_in_a_hurry(program):
    hands = program.screen.hands

    def hold(key):
        hands("keydown", key, "sleep", 0.8, "keyup", key)

    program.start()
    hold("F9")
    hold("4")
    program.dialog()
    hold("3")
    program.answer("Return")
    program.keys("5")
    program.dialog()
    hands("keydown", "2", "Return", "keyup", "2", "Return")
    program.wait_for_main()
    program.keys(*["4", "3", "Return", "1", "1", "Return"] * 3)
    program.wait_for_main()
    expect_rolls(program, RANDOM, (4, 3), (5, 2), *[(4, 3), (1, 1)] * 3)


def the_top_row_counts_whatever_the_layout(program):
    """Had another key entered a digit, the two of the top row would not both count."""
    program.start()
    program.keys("KP_4", "shift+4", "ctrl+4", "alt+4", "5", "KP_4")
    program.answer("shift+2", "Return")
    for layout in ("de", "fr"):
        program.screen.layout(layout)
        program.roll(KEY_4, KEY_3)
    program.screen.layout("us")
    expect_rolls(program, (5, 2), (4, 3), (4, 3))


def a_locked_main_window_takes_nothing(program):
    program.start()
    program.click(*BLACK_DIE)
    dialog = program.dialog()
    for key in ("5", "F9", "F8", "alt+BackSpace", "ctrl+q"):
        program.screen.force_keyboard(program.main, key)
    if not isinstance(program.screen, WaylandScreen):  # where the dialog has the keyboard back before the key comes
        program.screen.force_keyboard(program.main, "alt+F4")
    program.click(20, -9)  # a menu
    program.click(*BLACK_DIE, button=3)
    assert program.dialog() == dialog
    program.answer("alt+F4")
    program.keys("F9")
    expect_rolls(program, RANDOM)


def an_installed_program_writes_into_its_users_folders(program):
    documents, prefix = program.screen.folder / "Documents", program.folder / "prefix"
    documents.mkdir()
    program.screen.run("cmake", "--install", str(program.build), "--prefix", str(prefix))
    program.executable = prefix / "bin" / "orvanbeg"
    installed = sorted(prefix.rglob("*"))
    program.launch()
    program.choose_language("English")
    program.give_file("ctrl+s", "friday.obg")
    wait_for((documents / "friday.obg").exists, "the game among the user's documents")
    quit_program(program, program.screen.folder / "config" / "orvanbeg" / "orvanbeg.ini", "English")
    assert sorted(prefix.rglob("*")) == installed


def a_start_without_a_language_file_is_refused(program):
    (program.folder / "language.ini").unlink()
    program.launch()
    program.dialog(TITLE)
    program.keys("Return")
    assert program.wait_for_end() > 0


def a_killed_evening_is_found_again(program):
    """The copy lies at the side of the open dialog."""
    program.start()
    program.roll("4", "3")
    program.roll("6", "5")
    time.sleep(1)
    program.process.kill()
    program.start()
    program.keys("ctrl+f")
    program.screen.click(program.dialog(), 60, 108)  # the third place at the side
    program.keys("alt+n")
    copies = (program.screen.folder / ".local/state/orvanbeg").glob("*.obg")  # also those of other scenes
    program.write(max(copies, key=lambda copy: copy.stat().st_mtime).name)
    program.keys("Return")
    program.wait_for_main()
    expect_rolls(program, (4, 3), (6, 5))


SCENES = {XScreen: (a_whole_evening_and_the_next, rolls_by_key_and_mouse, keys_held_overlapping_and_in_a_hurry,
                    the_top_row_counts_whatever_the_layout, a_locked_main_window_takes_nothing,
                    an_installed_program_writes_into_its_users_folders, a_start_without_a_language_file_is_refused,
                    a_killed_evening_is_found_again),
          WaylandScreen: (rolls_by_key_and_mouse, keys_held_overlapping_and_in_a_hurry,
                          the_top_row_counts_whatever_the_layout, a_locked_main_window_takes_nothing)}


def play(scene, program, folder):
    try:
        scene(program)
    except BaseException:
        program.screen.picture(folder / f"{scene.__name__}.png")
        raise
    finally:
        program.stop()
    print("ok", scene.__name__, flush=True)


def main():
    if len(sys.argv) < 3:
        raise SystemExit(__doc__)
    executable, folder, wanted = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), sys.argv[3:]
    folder.mkdir(parents=True, exist_ok=True)
    end_by_itself(TIME_LIMIT)
    assert set(wanted) <= set(globals()), f"unknown scene among {wanted}"
    for kind, scenes in SCENES.items():
        with kind() as screen:
            for scene in scenes:
                if not wanted or scene.__name__ in wanted:
                    play(scene, Program(screen, executable), folder)


if __name__ == "__main__":
    main()
