"""A virtual screen with a window manager, and the program on it. Keys and clicks come from outside, as a user's do;
what is seen is read from the screen's pixels. Everything that is started here ends with its `with` block.
Needs Xvfb, openbox, xdotool, xprop, xwininfo, setpriv, setxkbmap and, to read a printed page, pdftotext."""
import mmap
import os
import pathlib
import re
import shutil
import signal
import struct
import subprocess
import tempfile
import time
import zlib

ROOT = pathlib.Path(__file__).resolve().parents[2]
WIDTH, HEIGHT = 1280, 900
START_PATIENCE = 30  # seconds until the main window has to be there
CLIENT_HEIGHT = 557  # pixels of the main window below its menu bar
FIRST_DISPLAY, LAST_DISPLAY = 81, 199


class Failure(Exception):
    """Something was not seen in time."""


def wait_for(condition, what, seconds=5.0):
    """The first true value of `condition`, asked again and again; a Failure with `what` (text, or a function that
    tells what is seen instead) if there is none in time."""
    deadline = time.monotonic() + seconds
    while not (value := condition()):
        if time.monotonic() > deadline:
            raise Failure(f"waited {seconds:g} s in vain for {what() if callable(what) else what}")
        time.sleep(0.01)
    return value


def _end(process):
    process.terminate()
    try:
        process.wait(timeout=5)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()


class Screen:
    """The screen, 1280 by 900 pixels, on a display number that was free."""

    def __enter__(self):
        self._processes = []
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="orvanbeg-screen-"))
        try:
            self._start_server()
            self._start_window_manager()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for process in reversed(self._processes):
            _end(process)
        shutil.rmtree(self.folder, ignore_errors=True)

    def _start_server(self):
        """The server keeps its picture in a file, which is how pixels are read without asking it."""
        for number in range(FIRST_DISPLAY, LAST_DISPLAY):
            ready, tell = os.pipe()
            server = subprocess.Popen(
                ["Xvfb", f":{number}", "-displayfd", str(tell), "-screen", "0", f"{WIDTH}x{HEIGHT}x24",
                 "-fbdir", str(self.folder), "-noreset", "-nolisten", "tcp"],
                pass_fds=[tell], stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            os.close(tell)
            with os.fdopen(ready) as pipe:
                if pipe.readline().strip():
                    self._processes.append(server)
                    break
            _end(server)
        else:
            raise Failure("a free display number")
        self.environment = dict(os.environ, DISPLAY=f":{number}", HOME=str(self.folder), LANG="en_US.UTF-8",
                                XDG_CONFIG_HOME=str(self.folder / "config"), XDG_RUNTIME_DIR=str(self.folder),
                                QT_QPA_PLATFORM="xcb", CUPS_SERVER=str(self.folder / "no-printers"))
        for name in ("LC_ALL", "LANGUAGE", "WAYLAND_DISPLAY", "XAUTHORITY", "XDG_SESSION_TYPE"):
            self.environment.pop(name, None)
        with open(self.folder / "Xvfb_screen0", "rb") as file:
            self._picture = mmap.mmap(file.fileno(), 0, access=mmap.ACCESS_READ)
        header = struct.unpack(">25I", self._picture[:100])  # an X window dump
        self._pitch, self._first = header[12], header[0] + 12 * header[19]

    def _start_window_manager(self):
        self.start(["openbox"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for(lambda: "window id" in self.run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), "the window manager")

    def start(self, command, **options):
        process = subprocess.Popen(command, env=self.environment, stdin=subprocess.DEVNULL, **options)
        self._processes.append(process)
        return process

    def stop(self, process):
        self._processes.remove(process)
        _end(process)

    def run(self, *command):
        """What a short command prints; nothing if it fails."""
        return subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True, check=False).stdout

    def keys(self, *keys, delay=12):
        """Presses and releases keys: names as "Return", "4", or numbers of keys as "13" (milliseconds between them)."""
        self.run("xdotool", "key", "--delay", str(delay), *keys)

    def chord(self, modifier, key):
        """The modifier stays down until the key has come up, as fingers do it."""
        self.run("xdotool", "keydown", modifier, "key", key, "keyup", modifier)

    def type(self, text):
        """Writes a text in place of what the field in focus holds."""
        self.chord("ctrl", "a")
        self.run("xdotool", "type", "--delay", "12", text)

    def hold(self, key, seconds):
        self.run("xdotool", "keydown", key)
        time.sleep(seconds)
        self.run("xdotool", "keyup", key)

    def raw_row(self, x, y, count):
        """The bytes of `count` pixels from (x, y) to the right as the server keeps them, four each."""
        start = self._first + y * self._pitch + 4 * x
        return self._picture[start:start + 4 * count]

    def row(self, x, y, count):
        """The bytes red, green, blue of `count` pixels from (x, y) to the right."""
        data = self.raw_row(x, y, count)
        colours = bytearray(3 * count)
        colours[0::3], colours[1::3], colours[2::3] = data[2::4], data[1::4], data[0::4]
        return bytes(colours)

    def pixels(self, box):
        """The rows of a box (left, top, width, height)."""
        left, top, width, height = box
        return [self.row(left, y, width) for y in range(top, top + height)]

    def save(self, path, box=(0, 0, WIDTH, HEIGHT)):
        """Writes a PNG of the box."""
        def chunk(kind, data):
            return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

        rows = b"".join(b"\0" + row for row in self.pixels(box))
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(b"\x89PNG\r\n\x1a\n" +
                         chunk(b"IHDR", struct.pack(">IIBBBBB", *box[2:], 8, 2, 0, 0, 0)) +
                         chunk(b"IDAT", zlib.compress(rows, 9)) + chunk(b"IEND", b""))


class Program:
    """The program as it is shipped, in a folder of its own: the executable and what stands beside it."""

    def __init__(self, screen, executable, language="English"):
        """With a language it is the program of a user who has chosen one before, without one it has never run."""
        self.screen = screen
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="program-", dir=screen.folder))
        shutil.copytree(ROOT / "run", self.folder, dirs_exist_ok=True)
        shutil.copy(executable, self.folder)
        self._executable, self._build = pathlib.Path(executable).name, pathlib.Path(executable).parent
        self.process = self.main = None
        if language:
            self.settings.write_bytes(f"#LANGUAGE\r\n{language}\r\n".encode("cp1252"))

    @property
    def settings(self):
        return self.folder / "orvanbeg.ini"

    def install(self):
        """From here on the program is an installed one; the place of the installation is none that it was built for."""
        prefix = self.folder / "prefix"
        self.screen.run("cmake", "--install", str(self._build), "--prefix", str(prefix))
        self.folder = prefix / "bin"

    def move(self, folder):
        self.folder = self.folder.rename(folder)

    def start(self):
        self.launch()
        self.wait_for_main()

    def launch(self, prefix=()):
        """Starts the process, through another command if one is given; what it shows first is up to the program."""
        self.main = None
        self.process = self.screen.start([*prefix, str(self.folder / self._executable)])

    def wait_for_main(self):
        """The main window, once it stands alone."""
        def alone():
            windows = self.windows()
            return list(windows.values()) == ["Orvan Begleiter"] and next(iter(windows))

        self.main = wait_for(alone, lambda: f"the main window; there are {self.windows()}", START_PATIENCE)
        self.wait_for_keyboard(self.main)

    def stop(self):
        if self.process:
            self.screen.stop(self.process)
            self.process = None

    def wait_for_end(self):
        """The exit status, once the process has ended by itself."""
        wait_for(lambda: self.process.poll() is not None, "the end of the program")
        status = self.process.returncode
        self.stop()
        return status

    def windows(self):
        """The windows that can be seen, with their titles."""
        if self.process.poll() is not None:
            raise Failure(f"the program: it has ended with status {self.process.returncode}")
        found = self.screen.run("xdotool", "search", "--all", "--onlyvisible", "--pid", str(self.process.pid), "--name", "")
        return {int(window): self.screen.run("xdotool", "getwindowname", window).strip() for window in found.split()}

    def wait_for_dialog(self):
        """The one window beside the main window."""
        def dialog():
            others = [window for window in self.windows() if window != self.main]
            return others[0] if len(others) == 1 else None

        window = wait_for(dialog, lambda: f"one dialog; there are {self.windows()}", START_PATIENCE)
        self.wait_for_keyboard(window)
        return window

    def wait_for_title(self, title):
        """The window with this title, whatever others there are."""
        window = wait_for(lambda: next((one for one, name in self.windows().items() if name == title), None),
                          lambda: f"a window {title!r}; there are {self.windows()}")
        self.wait_for_keyboard(window)
        return window

    def wait_for_main_alone(self):
        wait_for(lambda: list(self.windows()) == [self.main], lambda: f"the dialogs to go; there are {self.windows()}")
        self.wait_for_keyboard(self.main)

    def wait_for_keyboard(self, window):
        wait_for(lambda: self.has_keyboard(window), f"the keyboard to come to the window {self.windows().get(window)!r}")

    def has_keyboard(self, window):
        """For the screen, and the window manager has taken note: until then it may still give the keyboard away."""
        return all(self.screen.run("xdotool", ask).strip() == str(window) for ask in ("getwindowfocus", "getactivewindow"))

    def force_keyboard(self, window):
        """Gives a window the keyboard whatever the program thinks of it."""
        self.screen.run("xdotool", "windowfocus", str(window))
        self.wait_for_keyboard(window)

    def box(self, window):
        """The place of a window on the screen without its frame: left, top, width, height."""
        edges = ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")

        def told():
            answer = self.screen.run("xwininfo", "-id", str(window))
            found = [re.search(edge + r":\s+(-?\d+)", answer) for edge in edges]
            return all(found) and tuple(int(edge.group(1)) for edge in found)

        return wait_for(told, f"the place of the window {window}")

    def frame(self, window):
        told = self.screen.run("xprop", "-id", str(window), "_NET_FRAME_EXTENTS")
        left, right, top, bottom = (int(edge) for edge in re.findall(r"\d+", told))
        x, y, width, height = self.box(window)
        return x - left, y - top, width + left + right, height + top + bottom

    def menu_height(self):
        return self.box(self.main)[3] - CLIENT_HEIGHT

    def pixels(self, x, y, width, height):
        """A part of the main window, as Screen.pixels; (0, 0) is the corner below the menu bar."""
        left, top, _, own_height = self.box(self.main)
        return self.screen.pixels((left + x, top + own_height - CLIENT_HEIGHT + y, width, height))

    def click(self, x, y, button=1, window=None):
        """Clicks (1 left, 2 middle, 3 right) into a window; in the main window (0, 0) is the corner below the menu."""
        if window is None:
            window, y = self.main, y + self.menu_height()
        self.screen.run("xdotool", "mousemove", "--window", str(window), str(x), str(y), "click", str(button))

    def save_when_calm(self, path, window):
        """Writes a PNG of a window with its frame, once its picture has stopped changing."""
        box = self.frame(window)
        before = None
        deadline = time.monotonic() + 3
        while time.monotonic() < deadline and before != (now := self.screen.pixels(box)):
            before = now
            time.sleep(0.15)
        self.screen.save(path, box)


def end_by_itself(seconds):
    """From here on the script ends in an orderly way, with all that it started, when it is told to or takes too long."""
    def end(number, _):
        raise SystemExit("ended by the time limit" if number == signal.SIGALRM else 128 + number)

    for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGALRM):
        signal.signal(number, end)
    signal.alarm(seconds)
