#!/usr/bin/env python3
"""The disk fails under the program as it is shipped: each system call by which it saves a game, and its settings at the
quit, is made to fail in turn, by strace from outside; then the program is killed at each in turn. Afterwards the old file
or the new one is there, whole, and nothing beside it; the user is told of settings that were not stored; the program
goes on, and starts again where it was killed.
Usage: faults.py PROGRAM FOLDER    FOLDER takes a screenshot of a failure. Ends with status 77 where nothing may be traced."""
import contextlib
import pathlib
import re
import shutil
import subprocess
import sys
import time

from steps import QUIT, act, expect
from virtual_screen import Failure, Program, Screen, end_by_itself, wait_for

TIME_LIMIT = 150  # seconds
SKIPPED = 77
ERRORS = ("ENOSPC", "EINTR")  # no room, and a signal that comes in between
GO_ON_AFTER_A_SIGNAL = ("openat", "write", "fsync", "close")
LOOK_ONLY = ("newfstatat", "access")  # change nothing: no need to be killed there
KILLED = -9
OLD_GAME = b"the game of last week\r\n"
YES = ("alt", "y")


class MayNotTrace(Exception):
    """The system lets nobody look at the program's calls."""


class Calls:
    """The system calls of the running program on a file, its folder and the new file beside it."""

    def __init__(self, program, file):
        self._log = program.screen.folder / "calls"
        new = program.folder / f".orvanbeg-{program.process.pid}-0.new"
        self._command = ["strace", "-p", str(program.process.pid), "-o", str(self._log)]
        for path in (program.folder, file, new):
            self._command += ["-P", str(path)]

    @contextlib.contextmanager
    def watched(self, fault=None):
        """With a fault, (call, which of that name, what happens), the block ends once it has occurred."""
        self._log.unlink(missing_ok=True)
        inject = ["-e", "inject={0}:{2}:when={1}".format(*fault)] if fault else []
        if not shutil.which("strace"):
            raise MayNotTrace("it is not installed")
        with subprocess.Popen(self._command + inject, stderr=subprocess.PIPE, text=True) as tracer:
            told = tracer.stderr.readline()
            if "attached" not in told:
                raise MayNotTrace(told.strip())
            try:
                yield
                wait_for(lambda: not fault or re.search(r"\(INJECTED\)|killed by SIGKILL", self._log.read_text()),
                         f"the fault {fault}")
            finally:
                tracer.terminate()

    def seen(self):
        """(call, which of that name) in their order, without the first look that the file dialog takes at the folder."""
        names = re.findall(r"^(\w+)\(", self._log.read_text(), re.MULTILINE)
        return [(name, names[:i + 1].count(name)) for i, name in enumerate(names) if name != "statx"]


def changing(calls):
    return [call for call in calls if call[0] not in LOOK_ONLY]


def ask_to_overwrite(program, file):
    program.screen.chord("ctrl", "s")
    dialog = program.wait_for_dialog()
    program.screen.type(file.name)  # the dialog opens in the program's folder
    program.screen.keys("Return")
    wait_for(lambda: len(program.windows()) == 3, "the question whether to overwrite")
    program.wait_for_keyboard(next(one for one in program.windows() if one not in (program.main, dialog)))


def go_on(program):
    """Once the program has opened another dialog and closed it, the save is behind it."""
    program.wait_for_main_alone()
    act(program, 1, "Escape")
    program.wait_for_main_alone()


def save(program, file, fault=None):
    """Over an old file; gives back what is there afterwards, and the calls that were seen."""
    file.write_bytes(OLD_GAME)
    ask_to_overwrite(program, file)
    calls = Calls(program, file)
    with calls.watched(fault):
        program.screen.chord(*YES)
        if not fault:
            go_on(program)
    if fault and "KILL" in fault[2]:
        expect(program.wait_for_end() == KILLED, "the program killed")
    else:
        go_on(program)
    return file.read_bytes(), calls.seen()


def quit_program(program, fault=None):
    """Gives back whether the user was told of a failure, the exit status, and the calls that were seen."""
    def ended_or_told():
        if program.process.poll() is not None:
            return "ended"
        with contextlib.suppress(Failure):  # it ends while it is looked at
            return list(program.windows().values()) == ["Orvan Begleiter"] * 2 and "told"

    program.screen.chord("ctrl", "q")
    program.wait_for_title(QUIT)
    calls = Calls(program, program.settings)
    with calls.watched(fault):
        program.screen.chord(*YES)
        told = wait_for(ended_or_told, "the end, or a message") == "told"
        if told:
            program.wait_for_dialog()
            program.screen.keys("Return")
        status = program.wait_for_end()
    return told, status, calls.seen()


def no_leftover(program, where):
    left = [path.name for path in program.folder.glob(".orvanbeg-*")]
    expect(not left, f"nothing left beside the file {where}; there are {left}")


def a_failing_call_of_a_save(program):
    file = program.folder / "friday.obg"
    program.start()
    new, calls = save(program, file)
    expect(new.startswith(b"OBGV31\r\n"), "a saved game")
    expect({"openat", "write", "fsync", "renameat"} <= {name for name, _ in calls}, f"a save; it is {calls}")
    file.chmod(0o622)  # rights that the new file has to be given
    _, calls = save(program, file)
    for call in calls:
        for error in ERRORS:
            where = f"after {error} from {call}"
            left, _ = save(program, file, (*call, f"error={error}"))
            expect(left in (OLD_GAME, new), f"a whole game {where}; it is {left}")
            expect(left == new or error != "EINTR" or call[0] not in GO_ON_AFTER_A_SIGNAL, f"the new game {where}")
            no_leftover(program, where)
    expect(save(program, file)[0] == new, "a save that succeeds after all")
    print(f"        {len(calls)} calls, {len(ERRORS)} errors")
    for call in changing(calls):
        left, _ = save(program, file, (*call, "signal=KILL"))
        expect(left in (OLD_GAME, new), f"a whole game after a kill at {call}; it is {left}")
        program.start()
    expect(save(program, file)[0] == new, "a save after a kill")


def a_failing_call_of_the_quit(program):
    old = program.settings.read_bytes()
    program.start()
    told, status, calls = quit_program(program)
    new = program.settings.read_bytes()
    expect(not told and status == 0 and new.count(b"\r\n") == 39, "the settings stored")
    for call in calls:
        where = f"after EIO from {call}"
        program.settings.write_bytes(old)
        program.start()
        told, status, _ = quit_program(program, (*call, "error=EIO"))
        left = program.settings.read_bytes()
        expect(status == 0 and left in (old, new), f"status 0 and whole settings {where}; {status}, {left}")
        expect(told or left == new, f"the settings stored, or the user told, {where}")
        no_leftover(program, where)
    print(f"        {len(calls)} calls")
    for call in changing(calls):
        program.settings.write_bytes(old)
        program.start()  # with the language of the settings, or it would ask for one
        _, status, _ = quit_program(program, (*call, "signal=KILL"))
        left = program.settings.read_bytes()
        expect(status == KILLED and left in (old, new), f"whole settings after a kill at {call}; they are {left}")
    program.start()


def main():
    if len(sys.argv) != 3:
        raise SystemExit(__doc__)
    executable, folder = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2])
    end_by_itself(TIME_LIMIT)
    failed = 0
    with Screen() as screen:
        for scene in (a_failing_call_of_a_save, a_failing_call_of_the_quit):
            program = Program(screen, executable)
            started = time.monotonic()
            try:
                scene(program)
                print(f"ok      {scene.__name__} ({time.monotonic() - started:.1f} s)", flush=True)
            except MayNotTrace as why:
                print(f"SKIPPED: strace may not look at the program here: {why}", flush=True)
                return SKIPPED
            except Failure as why:
                failed += 1
                picture = folder / f"{scene.__name__}.png"
                screen.save(picture)
                print(f"FAILED  {scene.__name__}: {why}\n        screenshot: {picture}", flush=True)
            finally:
                program.stop()
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
