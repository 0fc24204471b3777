"""What a player does again and again, as keys: choose a language, begin a game, roll, report an action, save, quit."""
from virtual_screen import Failure, wait_for

TABS_TO_FEWER_POINTS, TABS_TO_FEWER_PLAYERS, TABS_TO_FIRST_NAME = 3, 3, 3  # each from the stop before
TABS_TO_START = 3  # from the last name, past title and info line
SHIP, POLITICS = "b", "p"  # keys of the event die
QUIT = "Quit"


def expect(is_so, what):
    if not is_so:
        raise Failure(what)


def choose_language(program, name):
    """In the selection of the first run, which has the keyboard in its list."""
    program.screen.type(name)
    program.screen.keys("Return")
    program.wait_for_main()


def begin_game(program, names, expansion=False, points_less=0):
    """A new game, from the program's first one: four players and the points of its kind. Gives back the dialog with all
    filled in; Enter starts the game."""
    keys = program.screen.keys
    program.screen.chord("ctrl", "n")
    dialog = program.wait_for_dialog()
    keys(*["Down"] * expansion, *["Tab"] * TABS_TO_FEWER_POINTS, *["space"] * points_less)
    keys(*["Tab"] * (TABS_TO_FEWER_PLAYERS), *["space"] * (4 - len(names)), *["Tab"] * TABS_TO_FIRST_NAME)
    for name in names[:-1]:
        program.screen.type(name)
        keys("Tab")
    program.screen.type(names[-1])
    keys(*["Tab"] * TABS_TO_START)
    return dialog


def enter(program, first, second, event=None):
    """Enters a roll; the key of an event face records it by itself."""
    program.screen.keys(first)
    program.wait_for_dialog()
    program.screen.keys(second, event or "Return")


def roll(program, first, second, event=None):
    enter(program, first, second, event)
    program.wait_for_main_alone()


def act(program, seat, digit):
    """Reports an action of a seat, 1 to 6. Gives back the title of the dialog, which names the player."""
    program.screen.keys(f"F{seat}")
    dialog = program.wait_for_dialog()
    title = program.windows()[dialog]
    program.screen.keys(digit)
    return title


def expect_locked(program, dialog):
    """Nothing that is typed at the main window reaches it while the dialog is open; F9 would roll, F8 open settings."""
    for key in ("F9", "F8"):
        program.force_keyboard(program.main)
        program.screen.keys(key)
    program.force_keyboard(dialog)
    expect(set(program.windows()) == {program.main, dialog}, f"the dialog alone; there are {program.windows()}")


def give_file(program, command, path):
    """Ctrl with a letter opens the file dialog, which takes a whole path."""
    program.screen.chord("ctrl", command)
    program.wait_for_dialog()
    program.screen.type(str(path))
    program.screen.keys("Return")
    program.wait_for_main_alone()


def save(program, path):
    give_file(program, "s", path)
    return wait_for(lambda: path.exists() and path.read_bytes(), f"the file {path}")


def ask_for_page(program, path):
    """Without a printer the report goes into a PDF file, whose name is asked for."""
    program.screen.chord("ctrl", "p")
    program.wait_for_dialog()
    program.screen.keys("Return")
    wait_for(lambda: len(program.windows()) == 3, "the file dialog above the print dialog")
    program.screen.type(str(path))
    program.screen.keys("Return")


def print_page(program, path):
    """Gives back the words on the page."""
    ask_for_page(program, path)
    program.wait_for_main_alone()
    return program.screen.run("pdftotext", str(path), "-").split()


def quit_program(program):
    """Through the menu's command and its question; gives back the exit status."""
    program.screen.chord("ctrl", "q")
    program.wait_for_title(QUIT)
    program.screen.chord("alt", "y")
    return program.wait_for_end()
