#!/usr/bin/env python3
"""A short evening with the packages for Windows under wine, typed from outside on a virtual screen: the zip is unpacked
in a folder whose name is in no code page, the installer installs, and the program does in both what players do with it.
Leaves pictures of what was seen, also of where it failed.
Usage: windows_evening.py ZIP SETUP FOLDER    FOLDER takes the pictures"""
import os
import pathlib
import sys
import zipfile

from driver import Program, XScreen, end_by_itself, wait_for
from evening import quit_program, rolls

TIME_LIMIT = 300  # seconds for all scenes
INSTALLED = "Program Files/Orvan Begleiter"


class WineScreen(XScreen):
    """With a Windows of its own. Keys are held for a while: X gives a release to nobody while the keyboard passes from
    one window to another, and the toolkit for Windows takes the next press of that key for a repeat then."""

    stroke = 0.15

    def open(self):
        super().open()
        self.disk = self.folder / "wine" / "drive_c"
        self.environment.update(WINEPREFIX=str(self.disk.parent), WINEDEBUG="-all", WINEDLLOVERRIDES="mscoree,mshtml=",
                                QT_QPA_PLATFORM="windows")
        self.callback(self.run, "wineserver", "--kill", "--wait")
        self.layout("de")  # before wine looks at the keyboard
        self.run("wine", "wineboot", "--init")

    def of_user(self, folder):
        return next((self.disk / "users").glob(f"*/{folder}"))

    def write(self, text):
        """Of files the name alone: the dialogs begin where they shall be."""
        super().write(text.rpartition("/")[2])


class WindowsProgram(Program):
    """What was unpacked or installed, a folder on the disk of a Windows."""

    def __init__(self, screen, folder):
        self.screen, self.keys, self.write, self.folder = screen, screen.keys, screen.write, folder
        self.settings = folder / "orvanbeg.ini"
        self.executable = next(folder.rglob("orvanbeg.exe"))
        self.process = self.main = None

    def launch(self):
        self.main = None
        self.process = self.screen.start("wine", str(self.executable))


def unpacked(screen, archive):
    folder = screen.disk / "Grüße, Łódź und 雨"
    with zipfile.ZipFile(archive) as files:
        files.extractall(folder)
    return WindowsProgram(screen, next(folder.iterdir()))


def an_evening_from_the_zip(program, pictures):
    program.launch()
    program.choose_language("English")
    program.keys("shift+F2")
    program.dialog()
    program.write("Jörg")
    program.answer("alt+F4")
    program.roll("4", "3")
    program.act(1, "1")
    program.wait_for_main()
    saved = program.save(program.folder / "Größe.obg")
    assert rolls(saved) == [(4, 3)] and "Jörg" in saved, saved[:100]
    program.print_report(program.folder / "Größe.pdf")
    program.screen.picture(pictures / "main-window.png")
    words = program.screen.run("pdftotext", str(program.folder / "Größe.pdf"), "-").split()
    assert "Jörg" in words, words
    quit_program(program, program.settings, "English", "Jörg")

    program.start()
    program.give_file("ctrl+f", program.folder / "Größe.obg")
    assert program.save(program.folder / "again.obg")[:-2] == saved[:-2]  # but for its clock
    quit_program(program, program.settings, "English", "Jörg")


def an_installed_program_writes_into_its_users_folders(program):
    screen, installed = program.screen, sorted(program.folder.rglob("*"))
    program.launch()
    program.choose_language("English")
    program.give_file("ctrl+s", "Größe.obg")
    game = screen.of_user("Documents") / "Größe.obg"
    wait_for(game.exists, "the game among the user's documents")
    settings = screen.of_user("AppData/Roaming") / "orvanbeg" / "orvanbeg.ini"
    quit_program(program, settings, "English")
    assert list(screen.of_user("AppData/Local").glob("orvanbeg/*.obg"))
    assert sorted(program.folder.rglob("*")) == installed
    screen.run("wine", str(program.folder / "uninstall.exe"), "/S")
    wait_for(lambda: not program.folder.exists(), "the end of what was installed")
    assert game.exists() and settings.exists()


def main():
    if len(sys.argv) != 4:
        raise SystemExit(__doc__)
    archive, setup, pictures = map(pathlib.Path, sys.argv[1:])
    pictures.mkdir(parents=True, exist_ok=True)
    end_by_itself(TIME_LIMIT)
    with WineScreen() as screen:
        try:
            an_evening_from_the_zip(unpacked(screen, archive), pictures)
            screen.run("wine", str(setup), "/S")
            an_installed_program_writes_into_its_users_folders(WindowsProgram(screen, screen.disk / INSTALLED))
        except Exception:
            screen.picture(pictures / "failed.png")
            raise


if __name__ == "__main__":
    main()
