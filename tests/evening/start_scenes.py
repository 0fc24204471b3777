"""Scenes that begin before the program runs: the first evening and the one after it, a missing language file, a program
folder that cannot be written, an installed program."""
import os
import shutil

from chart import expect_rolls
from steps import (POLITICS, QUIT, SHIP, act, begin_game, choose_language, enter, expect, expect_locked, give_file,
                   quit_program, roll, save)
from virtual_screen import wait_for

NAMES = ["Ada", "Bo", "Cleo"]
SETTINGS_LINES = 39
MAY_NOT_WRITE_ANYWHERE = ("setpriv", "--bounding-set=-all", "--inh-caps=-all")  # takes from root what makes it root


def expect_settings(path, *texts):
    """A whole settings file, with these lines in it."""
    lines = path.read_bytes().decode("cp1252").split("\r\n")
    expect(len(lines) == SETTINGS_LINES + 1 and lines[-1] == "" and not any("\n" in line for line in lines),
           f"{SETTINGS_LINES} lines that end in CR LF; they are {lines}")
    expect(all(text in lines for text in texts), f"{texts} among the settings; they are {lines}")


def first_start(program):
    """Enter on the prompt of the selection is refused, a language of the list is taken."""
    program.launch()
    selection = program.wait_for_dialog()
    program.screen.keys("Return")
    program.wait_for_title("Orvan Begleiter")
    program.screen.keys("Return")
    expect(program.wait_for_dialog() == selection, "the selection still there")
    choose_language(program, "English")


def actions_with_a_refusal(program):
    title = act(program, 1, "1")
    expect("Ada" in title, f"Ada in the title; it is {title!r}")
    program.wait_for_main_alone()
    act(program, 3, "0")
    program.wait_for_main_alone()
    act(program, 3, "0")
    program.wait_for_title("No city to lay waste")
    program.screen.keys("Return")
    program.wait_for_main_alone()


def seven_ships(program):
    roll(program, "4", "3", POLITICS)
    for _ in range(6):
        roll(program, "1", "1", SHIP)
    enter(program, "6", "6", SHIP)
    attack = program.wait_for_title("Barbarian attack!")
    expect_locked(program, attack)
    program.screen.keys("Return")
    program.wait_for_main_alone()
    expect_rolls(program, {2: 6, 7: 1, 12: 1})


def no_leaves_it_running(program):
    program.screen.chord("ctrl", "q")
    program.wait_for_title(QUIT)
    program.screen.keys("Return")
    program.wait_for_main_alone()
    expect(not program.settings.exists(), "no settings yet")


def a_whole_evening_and_the_next(program):
    first_start(program)
    begin_game(program, NAMES, expansion=True)
    program.screen.keys("Return")
    program.wait_for_main_alone()
    actions_with_a_refusal(program)
    seven_ships(program)
    program.screen.chord("ctrl", "t")
    program.wait_for_title("Standings")
    program.screen.keys("Return")
    program.wait_for_main_alone()
    saved = save(program, program.folder / "friday.obg")
    no_leaves_it_running(program)
    expect(quit_program(program) == 0, "status 0 at the end")
    expect_settings(program.settings, *NAMES)

    program.start()
    title = act(program, 2, "Escape")
    expect("Bo" in title, f"the name of the evening before in the title; it is {title!r}")
    program.wait_for_main_alone()
    expect_rolls(program, {})
    give_file(program, "f", program.folder / "friday.obg")
    expect_rolls(program, {2: 6, 7: 1, 12: 1})
    again = save(program, program.folder / "saturday.obg")
    lines, lines_again = saved.split(b"\r\n"), again.split(b"\r\n")
    expect(len(lines) == 1592 and lines[:-2] == lines_again[:-2], "the same game but for its clock in both files")


def a_missing_language_file_is_told(program):
    """Text cannot be read off the screen, but a longer path must make a wider box if the box names the file."""
    (program.folder / "language.ini").unlink()
    widths = []
    for longer in ("", "-and-so-on"):
        program.move(program.folder.with_name(program.folder.name + longer))
        program.launch()
        widths.append(program.box(program.wait_for_dialog())[2])
        program.screen.keys("Return")
        expect(program.wait_for_end() > 0, "a status that tells of a fault")
    expect(widths[1] > widths[0] + 40, f"the path in the message; the boxes are {widths} pixels wide")


def a_folder_that_cannot_be_written(program):
    own = program.screen.folder / "config" / "orvanbeg" / "orvanbeg.ini"
    program.folder.chmod(0o555)
    try:
        program.launch(MAY_NOT_WRITE_ANYWHERE if os.geteuid() == 0 else ())
        program.wait_for_dialog()
        choose_language(program, "English")
        expect(quit_program(program) == 0, "status 0 at the end")
        expect_settings(own, "English")
        expect(not program.settings.exists(), "nothing written beside the program")
    finally:
        program.folder.chmod(0o755)
        own.unlink(missing_ok=True)  # the scenes share the user's folder


def an_installed_program(program):
    """It is the user's: settings, saved game and a language file of their own lie in their folders, none in its own."""
    home = program.screen.folder
    own, documents = home / "config" / "orvanbeg", home / "Documents"
    documents.mkdir()
    program.install()
    installed = sorted(program.folder.parent.rglob("*"))
    program.launch()
    program.wait_for_dialog()
    choose_language(program, "English")
    give_file(program, "s", "friday.obg")
    wait_for((documents / "friday.obg").exists, "the game among the user's documents")
    expect(quit_program(program) == 0, "status 0 at the end")
    expect_settings(own / "orvanbeg.ini", "English")
    expect(sorted(program.folder.parent.rglob("*")) == installed, "nothing written where the program is installed")

    language = program.folder.parent / "share" / "orvanbeg" / "language.ini"
    (own / "language.ini").write_bytes(language.read_bytes().replace(b"\r\nStandings\r\n", b"\r\nOur table\r\n"))
    program.start()
    program.screen.chord("ctrl", "t")
    program.wait_for_title("Our table")
    shutil.rmtree(own)  # the scenes share the user's folder


SCENES = (a_whole_evening_and_the_next, a_missing_language_file_is_told, a_folder_that_cannot_be_written,
          an_installed_program)
