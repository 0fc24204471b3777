"""Scenes of a game: winning it, printing it, and leaving the program without having saved anything."""
from chart import expect_one_roll, expect_rolls
from steps import act, ask_for_page, begin_game, expect, expect_locked, print_page, roll
from virtual_screen import wait_for


def the_winner_locks_the_main_window(program):
    begin_game(program, ["Ada", "Bo"], points_less=7)  # two points at the start, three to win
    program.screen.keys("Return")
    program.wait_for_main_alone()
    act(program, 2, "1")
    winner = program.wait_for_title("Standings")
    expect_locked(program, winner)
    program.screen.keys("Return")
    program.wait_for_main_alone()
    expect_rolls(program, {})
    program.screen.keys("F9")
    expect_one_roll(program)


def the_report_becomes_a_file_or_the_failure_is_told(program):
    begin_game(program, ["Ada", "Bo"])
    program.screen.keys("Return")
    program.wait_for_main_alone()
    roll(program, "4", "3")
    words = print_page(program, program.folder / "page.pdf")
    expect({"Orvan", "Ada", "Bo", "100.0%", "1x"} <= set(words), f"info line, names, share and total; there are {words}")
    nowhere = program.folder / "nowhere.pdf"
    nowhere.symlink_to(nowhere)
    ask_for_page(program, nowhere)
    wait_for(lambda: list(program.windows().values()).count("Orvan Begleiter") == 2, "the message that it failed")
    program.screen.keys("Return")
    program.wait_for_main_alone()
    roll(program, "4", "3")
    expect_rolls(program, {7: 2})


def the_close_box_ends_the_program(program):
    before = program.settings.read_bytes()
    begin_game(program, ["Ada", "Bo"])
    program.screen.keys("Return")
    program.wait_for_main_alone()
    program.screen.chord("alt", "F4")
    expect(program.wait_for_end() == 0, "status 0 at the end")
    expect(program.settings.read_bytes() == before, "the settings as they were")


SCENES = (the_winner_locks_the_main_window, the_report_becomes_a_file_or_the_failure_is_told,
          the_close_box_ends_the_program)
