#!/usr/bin/env python3
"""A game evening with the program itself: it is started on a virtual screen, keys and clicks come from outside, and the
dice chart is measured on the screen. Each scene starts the program anew. A scene that fails leaves a screenshot.
Usage: evening.py PROGRAM FOLDER [SCENE...]    FOLDER takes the screenshots; all scenes are played if none is named"""
import pathlib
import sys
import time
import traceback

from virtual_screen import Failure, Program, Screen, end_by_itself, wait_for

TIME_LIMIT = 200  # seconds for all scenes

# The chart on the main window, in pixels from the corner below its menu bar.
CHART_X, CHART_Y, BARS_X, BARS_WIDTH, ROW = 8, 168, 80, 320, 20
MARKER = bytes((0x41, 0x69, 0xE1))
BARS = (bytes((0, 255, 0)), bytes((255, 0, 0)))
SHARES = {2: 2.77, 3: 5.55, 4: 8.33, 5: 11.11, 6: 13.88, 7: 16.66, 8: 13.88, 9: 11.11, 10: 8.33, 11: 5.55, 12: 2.77}

BLACK_DIE = (584 + 17, 40 + 17)
RED_DIE = (584 + 17, 80 + 17)
KEY_4, KEY_3 = "13", "12"  # the top row by position, whatever the layout


def expected_chart(counts):
    """For each sum the lengths in pixels of bar and marker, from the number of rolls by sum."""
    total, most = sum(counts.values()), max(counts.values(), default=0)
    unit = 300 // most if most else 300
    if 80 + round(total * unit * 16.66) // 100 > 300:
        unit = 22000 // round(total * 16.66)
    return {s: (counts.get(s, 0) * unit, round(total * unit * share) // 100) for s, share in SHARES.items()}


def seen_chart(program):
    def length(y, colours):
        row = program.row(CHART_X + BARS_X, CHART_Y + y, BARS_WIDTH)
        return max((x for x in range(BARS_WIDTH) if row[3 * x:3 * x + 3] in colours), default=0)

    return {s: (length((s - 1) * ROW + 8, BARS), length((s - 1) * ROW + 1, (MARKER,))) for s in SHARES}


def same(one, other):
    """A bar that ends at its marker is covered by the marker's edge: one pixel more or less is the same."""
    return all(abs(a - b) <= 1 for s in SHARES for a, b in zip(one[s], other[s]))


def expect_rolls(program, counts):
    """Waits until the chart shows exactly these rolls: how often each sum was rolled."""
    wanted = expected_chart(counts)
    wait_for(lambda: same(seen_chart(program), wanted),
             lambda: f"the rolls {counts}; (bar, marker) should be {wanted}, are {seen_chart(program)}")


def expect_one_roll(program):
    """Waits for the chart of a single roll, of whatever sum."""
    charts = [expected_chart({s: 1}) for s in SHARES]
    wait_for(lambda: any(same(seen_chart(program), chart) for chart in charts),
             lambda: f"a single roll; (bar, marker) are {seen_chart(program)}")


def roll(program, first, second):
    program.screen.keys(first)
    program.wait_for_dialog()
    program.screen.keys(second, "Return")
    program.wait_for_main_alone()


def ask_for_undo(program):
    program.screen.chord("alt", "BackSpace")
    program.wait_for_dialog()


def a_roll_by_keys(program):
    roll(program, "4", "3")
    expect_rolls(program, {7: 1})
    roll(program, "1", "1")
    expect_rolls(program, {2: 1, 7: 1})


def a_roll_by_mouse(program):
    program.click(*BLACK_DIE)
    dialog = program.wait_for_dialog()
    program.click(8 + 5 * 40 + 16, 8 + 16, window=dialog)
    program.click(8 + 4 * 40 + 16, 48 + 16, window=dialog)
    program.click(220 + 60, 164 + 12, window=dialog)
    program.wait_for_main_alone()
    expect_rolls(program, {11: 1})


def undo_asks_and_no_is_the_default(program):
    roll(program, "4", "3")
    roll(program, "1", "1")
    for no in ("Return", "Escape"):
        ask_for_undo(program)
        program.screen.keys(no)
        program.wait_for_main_alone()
    expect_rolls(program, {2: 1, 7: 1})
    ask_for_undo(program)
    program.screen.chord("alt", "y")
    program.wait_for_main_alone()
    expect_rolls(program, {7: 1})


def f9_rolls_once_however_long_it_is_held(program):
    program.screen.hold("F9", 0.8)
    expect_one_roll(program)


def right_click_on_a_die_rolls(program):
    program.click(*RED_DIE, button=3)
    expect_one_roll(program)


def the_menu_rolls(program):
    program.click(75, -9)  # opens Extra; its last entry rolls
    program.screen.keys("Up", "Return")
    expect_one_roll(program)


def number_pad_enters_nothing(program):
    """Had a key of the pad counted, the two digits of the top row would not both."""
    for keys in (["KP_4", "5", "2"], ["5", "KP_4", "KP_Left", "2"]):
        program.screen.keys(*keys)
        program.wait_for_dialog()
        program.screen.keys("Return")
        program.wait_for_main_alone()
    expect_rolls(program, {7: 2})


def modifiers_with_a_digit_open_nothing(program):
    for modifier in ("shift", "ctrl", "alt"):
        program.screen.chord(modifier, "4")
    program.screen.keys("5")
    program.wait_for_dialog()
    program.screen.chord("shift", "2")  # inside the dialog they do not matter
    program.screen.keys("Return")
    program.wait_for_main_alone()
    expect_rolls(program, {7: 1})


def a_held_digit_counts_once(program):
    program.screen.hold("4", 0.8)
    program.wait_for_dialog()
    program.screen.hold("3", 0.8)
    program.screen.keys("Return")
    expect_rolls(program, {7: 1})


def quick_typing_loses_no_roll(program):
    roll(program, "1", "1")
    for rolls in range(1, 11):
        program.screen.keys("4", "3", "Return", delay=0)
        expect_rolls(program, {2: 1, 7: rolls})
        program.wait_for_main_alone()


def quick_typing_through_several_rolls(program):
    program.screen.keys(*["4", "3", "Return", "1", "1", "Return"] * 3, delay=10)
    expect_rolls(program, {2: 3, 7: 3})


def a_french_top_row_enters_dice(program):
    program.screen.run("setxkbmap", "fr")
    try:
        program.screen.keys(KEY_4)
        program.wait_for_dialog()
        program.screen.keys(KEY_3, "Return")
        program.wait_for_main_alone()
        expect_rolls(program, {7: 1})
    finally:
        program.screen.run("setxkbmap", "us")


def a_locked_main_window_takes_nothing(program):
    program.click(*BLACK_DIE)
    dialog = program.wait_for_dialog()
    for key in ("5", "F9", "F8"):
        program.force_keyboard(program.main)
        program.screen.keys(key)
    for modifier, key in (("alt", "BackSpace"), ("ctrl", "q"), ("alt", "F4")):
        program.force_keyboard(program.main)
        program.screen.chord(modifier, key)
    program.click(20, -9)
    program.click(*BLACK_DIE, button=3)
    program.force_keyboard(dialog)
    if program.wait_for_dialog() != dialog:
        raise Failure(f"the dice dialog alone; there are {program.windows()}")
    program.screen.keys("Escape")
    program.wait_for_main_alone()
    expect_rolls(program, {})
    program.screen.keys("F9")
    expect_one_roll(program)


def the_close_box_of_the_dialog_cancels(program):
    program.screen.keys("4")
    program.wait_for_dialog()
    program.screen.chord("alt", "F4")
    program.wait_for_main_alone()
    roll(program, "5", "2")
    expect_rolls(program, {7: 1})


def the_close_box_ends_the_program(program):
    program.screen.chord("alt", "F4")
    wait_for(lambda: program.process.poll() is not None, "the end of the program")
    if program.process.returncode != 0:
        raise Failure(f"status 0 at the end; it is {program.process.returncode}")


SCENES = (a_roll_by_keys, a_roll_by_mouse, undo_asks_and_no_is_the_default, f9_rolls_once_however_long_it_is_held,
          right_click_on_a_die_rolls, the_menu_rolls, number_pad_enters_nothing, modifiers_with_a_digit_open_nothing,
          a_held_digit_counts_once, quick_typing_loses_no_roll, quick_typing_through_several_rolls,
          a_french_top_row_enters_dice, a_locked_main_window_takes_nothing, the_close_box_of_the_dialog_cancels,
          the_close_box_ends_the_program)


def play(scene, screen, executable, folder):
    """True if the scene went as it should."""
    started = time.monotonic()
    picture = folder / f"{scene.__name__}.png"
    picture.unlink(missing_ok=True)
    program = Program(screen, executable)
    try:
        program.start()
        scene(program)
    except Exception as error:
        screen.save(picture)
        why = error if isinstance(error, Failure) else traceback.format_exc()
        print(f"FAILED  {scene.__name__}: {why}\n        screenshot: {picture}", flush=True)
        return False
    finally:
        program.stop()
    print(f"ok      {scene.__name__} ({time.monotonic() - started:.1f} s)", flush=True)
    return True


def main():
    if len(sys.argv) < 3:
        raise SystemExit(__doc__)
    executable, folder, wanted = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), sys.argv[3:]
    end_by_itself(TIME_LIMIT)
    scenes = [scene for scene in SCENES if not wanted or scene.__name__ in wanted]
    with Screen() as screen:
        screen.run("xset", "r", "on")
        screen.run("xset", "r", "rate", "300", "40")
        good = [play(scene, screen, executable, folder) for scene in scenes].count(True)
    print(f"{good} passed, {len(scenes) - good} failed")
    return 0 if scenes and good == len(scenes) else 1


if __name__ == "__main__":
    sys.exit(main())
