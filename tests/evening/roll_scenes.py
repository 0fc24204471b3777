"""Scenes of rolls: by keys, by mouse, by the program itself, in a hurry and at the wrong moment."""
from chart import expect_one_roll, expect_rolls
from steps import roll
from virtual_screen import Failure

BLACK_DIE = (584 + 17, 40 + 17)
RED_DIE = (584 + 17, 80 + 17)
KEY_4, KEY_3 = "13", "12"  # the top row by position, whatever the layout


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


SCENES = (a_roll_by_keys, a_roll_by_mouse, undo_asks_and_no_is_the_default, f9_rolls_once_however_long_it_is_held,
          right_click_on_a_die_rolls, the_menu_rolls, number_pad_enters_nothing, modifiers_with_a_digit_open_nothing,
          a_held_digit_counts_once, quick_typing_loses_no_roll, quick_typing_through_several_rolls,
          a_french_top_row_enters_dice, a_locked_main_window_takes_nothing, the_close_box_of_the_dialog_cancels)
