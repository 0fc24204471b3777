#!/usr/bin/env python3
"""Sets the program beside the bare window, from outside, on a virtual screen with a window manager: both in turn (A B,
then B A), medians, and the ratio of the program to the bare window. Measured are the start of the process to the first
frame, memory, a key to the changed pixels, and what idling costs while the clock runs.
Usage: compare.py PROGRAM BARE_WINDOW [PAIRS [IDLE_PAIRS]]"""
import ctypes
import mmap
import pathlib
import re
import statistics
import struct
import sys
import time

ROOT = pathlib.Path(__file__).resolve().parents[1]
sys.path.insert(0, str(ROOT / "tests" / "evening"))
from driver import CLIENT_HEIGHT, Program, XScreen, end_by_itself, wait_for  # noqa: E402

KEYS = 6            # pressed in each run
SETTLED = 0.5       # seconds without a change after which a frame was the last one
FIRST_DIGITS = 12   # seconds until each digit of the clock has been drawn once
IDLE_SECONDS = 10
CHART_ROWS = range(170, 400, 12)  # of the client area
CHART_LEFT, CHART_WIDTH = 8, 609
GOALS = {"first frame, ms": 1.15, "anonymous memory, KiB": 1.30, "resident memory, KiB": 1.10,
         "idle processor time, ms/s": 1.10, "idle wake-ups, 1/s": 1.10, "key to pixels, ms": 1.00}
TYPED_ROLL = "typed roll, ms"  # of the program alone


class Hands:
    """Presses keys on a screen without starting a process for it."""

    def __init__(self, display):
        self.x11, self.xtst = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXtst.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XStringToKeysym.restype = ctypes.c_ulong
        self.x11.XKeysymToKeycode.argtypes = [ctypes.c_void_p, ctypes.c_ulong]
        self.display = ctypes.c_void_p(self.x11.XOpenDisplay(display.encode()))

    def put(self, name, down):
        code = self.x11.XKeysymToKeycode(self.display, self.x11.XStringToKeysym(name.encode()))
        self.xtst.XTestFakeKeyEvent(self.display, code, int(down), 0)
        self.x11.XFlush(self.display)

    def tap(self, name):
        self.put(name, True)
        self.put(name, False)


class Pixels:
    """What a screen shows, read from the file in which its server keeps it, without asking the server."""

    def __init__(self, folder):
        with open(folder / "Xvfb_screen0", "rb") as file:
            self._bytes = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        header = struct.unpack(">25I", self._bytes[:100])  # an X window dump
        self._pitch, self._first = header[12], header[0] + 12 * header[19]

    def row(self, x, y, count):
        """The bytes of `count` pixels from (x, y) to the right, four each."""
        start = self._first + y * self._pitch + 4 * x
        return self._bytes[start:start + 4 * count]


class Side(Program):
    """The program, or the bare window, in a folder of its own; its figures are gathered run by run."""

    def __init__(self, screen, executable, rolls_by_keys):
        super().__init__(screen, pathlib.Path(executable))
        self.settings.write_bytes(b"#LANGUAGE\r\nEnglish\r\n")
        self.pixels = Pixels(screen.folder)
        self.figures = {name: [] for name in (*GOALS, TYPED_ROLL)}
        self.rolls_by_keys = rolls_by_keys
        self.corner = None  # of the client area on the screen

    def learn_place(self):
        """The window manager puts a window that stands alone to the same place each time."""
        self.open_window(CLIENT_HEIGHT)
        self.end()

    def open_window(self, client_height):
        """Launches; the client area, so many pixels high, is the lower part of the window. Its height as a whole."""
        self.launch()
        self.main = wait_for(lambda: next(iter(self.windows()), None), "the window")
        wait_for(lambda: self.screen.has_keyboard(self.main), "the keyboard to come to the window")
        told = self.screen.run("xwininfo", "-id", self.main)
        left, top, height = (int(re.search(edge + r":\s+(-?\d+)", told)[1])
                             for edge in ("Absolute upper-left X", "Absolute upper-left Y", "Height"))
        self.corner = left, top + height - client_height
        return height

    def end(self):
        self.stop()
        time.sleep(0.1)

    def chart(self):
        left, top = self.corner
        return [self.pixels.row(left + CHART_LEFT, top + y, CHART_WIDTH) for y in CHART_ROWS]

    def time_of_change(self, began, before, settled=0.0):
        """Milliseconds from `began` to the change of the chart; with `settled` to the last of its changes."""
        changed = None
        while changed is None or time.perf_counter() - changed < settled:
            now = self.chart()
            if now != before:
                before, changed = now, time.perf_counter()
            assert time.perf_counter() - began < 10, "no change of the chart"
        return 1000 * (changed - began)

    def add(self, name, figure):
        self.figures[name].append(figure)

    def run_once(self, hands):
        before, began = self.chart(), time.perf_counter()
        self.launch()
        self.add("first frame, ms", self.time_of_change(began, before, SETTLED))
        self.add_memory()
        for i in range(KEYS):
            time.sleep(0.05 + 0.007 * i)
            before, began = self.chart(), time.perf_counter()
            hands.put("F9", True)
            self.add("key to pixels, ms", self.time_of_change(began, before))
            hands.put("F9", False)
        if self.rolls_by_keys:
            self.roll_by_keys(hands)
        self.end()

    def roll_by_keys(self, hands):
        """Two digits and Enter: from the release of Enter, which closes the dialog, to the last change of the chart."""
        for key in ("3", "4"):
            hands.tap(key)
            time.sleep(0.25)
        hands.put("Return", True)
        time.sleep(0.05)
        before, began = self.chart(), time.perf_counter()
        hands.put("Return", False)
        self.add(TYPED_ROLL, self.time_of_change(began, before, SETTLED / 2))

    def add_memory(self):
        told = pathlib.Path(f"/proc/{self.process.pid}/smaps_rollup").read_text(encoding="ascii")
        for name, line in (("resident memory, KiB", "Rss"), ("anonymous memory, KiB", "Anonymous")):
            self.add(name, int(re.search(line + r":\s+(\d+)", told)[1]))

    def idle_once(self, hands):
        self.launch()
        time.sleep(1)
        hands.tap("F7")  # the clock of the program; to the bare window a key like any other
        time.sleep(FIRST_DIGITS)
        before = self.spent()
        time.sleep(IDLE_SECONDS)
        spent, wakeups = (after - start for after, start in zip(self.spent(), before))
        self.add("idle processor time, ms/s", spent / 1e6 / IDLE_SECONDS)
        self.add("idle wake-ups, 1/s", wakeups / IDLE_SECONDS)
        self.end()

    def spent(self):
        """Nanoseconds on a processor and times of waking up, of all threads."""
        spent = wakeups = 0
        for task in pathlib.Path(f"/proc/{self.process.pid}/task").iterdir():
            spent += int((task / "schedstat").read_text(encoding="ascii").split()[0])
            status = (task / "status").read_text(encoding="ascii")
            wakeups += int(re.search(r"\nvoluntary_ctxt_switches:\s+(\d+)", status)[1])
        return spent, wakeups


def in_turn(pairs, sides, run):
    for pair in range(pairs):
        for side in sides if pair % 2 == 0 else reversed(sides):
            run(side)


def report(program, bare):
    print(f"{'':28}{'program':>10}{'bare':>10}{'ratio':>8}{'goal':>7}{'runs':>6}")
    for name, goal in GOALS.items():
        own, other = program.figures[name], bare.figures[name]
        if not own:
            continue
        medians = statistics.median(own), statistics.median(other)
        print(f"{name:28}{medians[0]:10.2f}{medians[1]:10.2f}{medians[0] / medians[1]:8.2f}{goal:7.2f}{len(own):6}")
    for name in ("key to pixels, ms", TYPED_ROLL):
        times = sorted(program.figures[name])
        print(f"{name} of the program: median {statistics.median(times):.2f}, 95 in 100 within "
              f"{times[len(times) * 95 // 100]:.2f}; a frame at 60 Hz is 16.67")


def main():
    end_by_itself(3600)
    pairs, idle_pairs = (int(text) for text in (sys.argv[3:] + ["60", "6"][len(sys.argv) - 3:]))
    with XScreen() as screen:
        hands = Hands(screen.environment["DISPLAY"])
        program, bare = sides = [Side(screen, sys.argv[1], True), Side(screen, sys.argv[2], False)]
        for side in sides:
            side.learn_place()
            side.run_once(hands)  # warms up
            for figures in side.figures.values():
                figures.clear()
        in_turn(pairs, sides, lambda side: side.run_once(hands))
        in_turn(idle_pairs, sides, lambda side: side.idle_once(hands))
        report(program, bare)


if __name__ == "__main__":
    main()
