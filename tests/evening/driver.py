"""Drives the finished program from outside: a screen that nobody sees, keys and clicks as a user's, and the windows that
come of them. All that is started here ends with the `with` block of the screen."""
import contextlib
import json
import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
PATIENCE = 30  # seconds; the machine may have other things to do
CLIENT_HEIGHT = 557  # pixels of the main window below its menu bar
TITLE = "Orvan Begleiter"  # of the main window and of messages


def wait_for(condition, what):
    """The first true value of `condition`, which is asked again and again; an AssertionError if none comes."""
    deadline = time.monotonic() + PATIENCE
    while not (value := condition()):
        assert time.monotonic() < deadline, f"waited in vain for {what}"
        time.sleep(0.02)
    return value


def end_by_itself(seconds):
    """The script ends, with all that it started, after `seconds` or when it is told to."""
    for number in (signal.SIGTERM, signal.SIGALRM):
        signal.signal(number, lambda number, _: sys.exit(f"ended by {signal.Signals(number).name}"))
    signal.alarm(seconds)


class XScreen(contextlib.ExitStack):
    """A user's home, an X server and a window manager. Keys have the names of xdotool; a number is a key by its place."""

    size = "1280x900"  # pixels
    stroke = 0.012  # seconds that a key is down

    def __enter__(self):
        folder = self.enter_context(tempfile.TemporaryDirectory(prefix="orvanbeg-", ignore_cleanup_errors=True))
        self.folder = pathlib.Path(folder)
        self.environment = {"PATH": os.environ["PATH"], "LANG": "C.UTF-8", "HOME": folder, "XDG_RUNTIME_DIR": folder,
                            "XDG_CONFIG_HOME": f"{folder}/config", "CUPS_SERVER": f"{folder}/no-printers"}
        try:
            self.open()
        except BaseException:
            self.close()
            raise
        return self

    def start(self, *command, **options):
        process = subprocess.Popen(command, env=self.environment, stdin=subprocess.DEVNULL, **options)
        self.callback(self.stop, process)
        return process

    def stop(self, process):
        process.terminate()
        process.wait()

    def run(self, *command):
        """What a short command prints; nothing where it fails."""
        return subprocess.run(command, env=self.environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, text=True, check=False).stdout

    def open(self):
        self._open_server()
        managed = self.folder / "managed"
        self.start("openbox", "--startup", f"touch {managed}", stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for(managed.exists, "a window manager")

    def _open_server(self):
        ready, tell = os.pipe()
        self.start("Xvfb", "-displayfd", str(tell), "-screen", "0", f"{self.size}x24", "-fbdir", str(self.folder),
                   "-ardelay", "300", "-arinterval", "25", "-noreset", "-nolisten", "tcp",
                   pass_fds=[tell], stderr=subprocess.DEVNULL)
        os.close(tell)
        with os.fdopen(ready) as pipe:
            self.environment.update(DISPLAY=f":{pipe.readline().strip()}", QT_QPA_PLATFORM="xcb")

    def hands(self, *command):
        """What hands do by the verbs of xdotool, and see."""
        return self.run("xdotool", *map(str, command)).splitlines()

    def keys(self, *keys):
        """Presses and releases keys; in "ctrl+s" the modifier goes up last, as with fingers."""
        for key in keys:
            *modifiers, last = key.split("+")
            down, up = ([word for modifier in modifiers for word in (way, modifier)] for way in ("keydown", "keyup"))
            self.hands(*down, "keydown", last, "sleep", self.stroke, "keyup", last, *up)

    def write(self, text):
        """Puts a text in the place of what the field in focus holds."""
        self.keys("ctrl+a")
        self.hands("type", "--delay", 12, text)

    def click(self, window, x, y, button=1):
        """At (x, y) from the corner of a window; buttons are 1 left, 2 middle, 3 right."""
        self.hands("mousemove", "--window", window, x, y, "click", button)

    def height(self, window):
        return int(self.hands("getwindowgeometry", "--shell", window)[4].removeprefix("HEIGHT="))

    def windows(self, process):
        """The windows of a process that can be seen, with their titles."""
        found = self.hands("search", "--all", "--onlyvisible", "--pid", process.pid, "--name", "")
        return dict(zip(found, self.hands(*(word for window in found for word in ("getwindowname", window)))))

    def has_keyboard(self, window):
        """The window manager has to have taken note; until then it may still give the keyboard away."""
        return all(self.hands(ask) == [window] for ask in ("getwindowfocus", "getactivewindow"))

    def force_keyboard(self, window, *keys):
        """Types at a window, whatever the program thinks of it."""
        self.hands("windowfocus", "--sync", window)
        self.keys(*keys)

    def layout(self, name):
        self.run("setxkbmap", name)

    def picture(self, path, window="root", *options):
        self.run("import", "-silent", "-window", window, *options, str(path))


class WaylandScreen(XScreen):
    """A Wayland compositor, as the one window of an X server, which hands it keys by their places, and clicks."""

    def open(self):
        self._open_server()
        config = self.folder / "sway"
        config.write_text("default_floating_border none\nfocus_on_window_activation focus\ninput * repeat_delay 300\n"
                          "bindsym Mod1+F4 kill\nxwayland disable\n")
        self.environment.update(WLR_BACKENDS="x11", WLR_RENDERER="pixman", SWAYSOCK=str(self.folder / "sway.sock"))
        as_user = []
        if os.geteuid() == 0:  # as whom it does not run
            shutil.chown(self.folder, "nobody")
            as_user = ["setpriv", "--reuid", "nobody", "--regid", "nogroup", "--clear-groups"]
        self.start(*as_user, "sway", "--config", str(config), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        wait_for(self._views, "a compositor")
        self.environment.update(WAYLAND_DISPLAY=next(self.folder.glob("wayland-?")).name, QT_QPA_PLATFORM="wayland-egl")

    def _views(self):
        """All that the compositor shows, from the root on, by their numbers."""
        views = [json.loads(self.run("swaymsg", "-t", "get_tree") or "null")]
        for view in views:
            views += [*view["nodes"], *view["floating_nodes"]] if view else []
        return {str(view["id"]): view for view in views if view}

    def click(self, window, x, y, button=1):
        place = self._views()[window]["rect"]
        self.hands("mousemove", place["x"] + x, place["y"] + y, "click", button)

    def height(self, window):
        return self._views()[window]["rect"]["height"]

    def windows(self, process):
        return {window: view["name"] for window, view in self._views().items() if view.get("pid") == process.pid}

    def has_keyboard(self, window):
        return self._views().get(window, {}).get("focused", False)  # it may have closed meanwhile

    def force_keyboard(self, window, *keys):
        self.run("swaymsg", f"[con_id={window}] focus")
        self.keys(*keys)

    def layout(self, name):
        self.run("swaymsg", "input", "*", "xkb_layout", name)


class Program:
    """The program as it is shipped, in a folder of its own, and what a player does with it again and again."""

    def __init__(self, screen, executable):
        self.screen, self.keys, self.write = screen, screen.keys, screen.write
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="program-", dir=screen.folder))
        shutil.copytree(ROOT / "run", self.folder, dirs_exist_ok=True)
        self.executable, self.build = shutil.copy(executable, self.folder), executable.parent
        self.settings = self.folder / "orvanbeg.ini"
        self.process = self.main = None

    def launch(self):
        """Starts the process; what it shows first is up to the program."""
        self.main = None
        self.process = self.screen.start(self.executable)

    def start(self):
        """Starts the program of a user who has chosen a language before, English if not told otherwise."""
        if not self.settings.exists():
            self.settings.write_bytes(b"#LANGUAGE\r\nEnglish\r\n")
        self.launch()
        self.wait_for_main()

    def stop(self):
        if self.process:
            self.screen.stop(self.process)

    def wait_for_end(self):
        """The exit status, once the process has ended by itself."""
        wait_for(lambda: self.process.poll() is not None, "the end of the program")
        return self.process.returncode

    def windows(self):
        assert self.process.poll() is None, f"the program has ended with status {self.process.returncode}"
        return self.screen.windows(self.process)

    def wait_for_main(self):
        """The main window alone, with the keyboard."""
        def alone():
            windows = self.windows()
            self.main = self.main or next((one for one, title in windows.items() if title == TITLE), None)
            return list(windows) == [self.main] and self.screen.has_keyboard(self.main)

        wait_for(alone, "the main window alone, with the keyboard")

    def dialog(self, title=None):
        """The one window above the main window, or of this title above others too, with the keyboard."""
        def found():
            wanted = [one for one, its in self.windows().items() if one != self.main and title in (None, its)]
            return wanted[0] if len(wanted) == 1 and self.screen.has_keyboard(wanted[0]) else None

        return wait_for(found, f"a dialog {title or ''} with the keyboard")

    def answer(self, *keys, dialog=None):
        """Types in the dialog of this title what closes it."""
        self.dialog(dialog)
        self.keys(*keys)
        self.wait_for_main()

    def click(self, x, y, button=1):
        """Into the main window; (0, 0) is the corner below its menu bar."""
        self.screen.click(self.main, x, y + self.screen.height(self.main) - CLIENT_HEIGHT, button)

    def choose_language(self, name):
        """In the selection of the first run, which has the keyboard in its list."""
        self.dialog()
        self.write(name)
        self.answer("Return")

    def roll(self, first, second, close="Return"):
        """Types a roll; in the first expansion the key of an event face closes the dialog."""
        self.keys(first)
        self.answer(second, close)

    def act(self, seat, key):
        """Tells what a seat, 1 to 6, has done. What comes of it may open another window."""
        self.keys(f"F{seat}")
        self.dialog()
        self.keys(key)

    def give_file(self, command, path):
        """The command opens the file dialog, which takes a whole path."""
        self.keys(command)
        self.dialog()
        self.write(str(path))
        self.keys("Return")
        self.wait_for_main()

    def save(self, path):
        """Saves the game under a new name; the lines of its file."""
        self.give_file("ctrl+s", path)
        return wait_for(lambda: path.exists() and path.read_bytes(), f"the file {path}").decode("cp1252").split("\r\n")

    def print_report(self, path):
        """Into a PDF file, as there is no printer; its name is asked for in a second dialog."""
        self.keys("ctrl+p")
        self.dialog()
        self.keys("Return")
        wait_for(lambda: len(self.windows()) == 3, "the file dialog")
        self.write(str(path))
        self.keys("Return")
        self.wait_for_main()
