"""Scenes of corrections and of the help: where typed text goes as soon as a window opens, what a close box does, and
windows that stand beside each other."""
from chart import expect_one_roll
from steps import expect, expect_locked, save
from virtual_screen import wait_for

PANEL_OF_SEAT_2 = (8, 100, 185, 57)
HELP = "Orvan Begleiter Readme"


def close_by_its_box(program):
    program.screen.chord("alt", "F4")
    program.wait_for_main_alone()


def corrections_reach_the_panel_and_the_saved_game(program):
    """The keyboard begins in the name and in the title; Tab selects what the next field holds."""
    keys, write = program.screen.keys, program.screen.type
    before = program.pixels(*PANEL_OF_SEAT_2)
    program.screen.chord("shift", "F2")
    expect_locked(program, program.wait_for_dialog())
    write("Zoe")
    keys("Tab", "7")
    close_by_its_box(program)
    wait_for(lambda: program.pixels(*PANEL_OF_SEAT_2) != before, "another panel of seat 2")
    program.screen.chord("ctrl", "i")
    expect_locked(program, program.wait_for_dialog())
    write("Friday")
    keys("Tab")
    write("at home")
    close_by_its_box(program)
    lines = save(program, program.folder / "friday.obg").decode("cp1252").split("\r\n")
    seen = lines[12:14] + lines[1588:1590]
    expect(seen == ["Zoe", "7", "Friday", "at home"], f"what was typed in the saved game; it holds {seen}")


def help_stands_beside_the_game_and_above_the_about_window(program):
    keys = program.screen.keys
    keys("F11")
    program.wait_for_title(HELP)
    program.force_keyboard(program.main)
    keys("F9", "F11")  # a roll beside the help, which comes to the front again
    program.wait_for_title(HELP)
    close_by_its_box(program)
    expect_one_roll(program)
    keys("F12")
    about = program.wait_for_dialog()
    program.screen.chord("alt", "F4")  # does nothing here
    keys("Tab", "Return")
    program.wait_for_title(HELP)
    expect(about in program.windows(), "the about window below the help")
    keys("Return")
    expect_locked(program, program.wait_for_dialog())
    keys("Tab", "Return")
    program.wait_for_main_alone()


SCENES = (corrections_reach_the_panel_and_the_saved_game, help_stands_beside_the_game_and_above_the_about_window)
