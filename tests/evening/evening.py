#!/usr/bin/env python3
"""A game evening with the program itself: it is started on a virtual screen, keys and clicks come from outside, and
what comes of it is seen in windows, pixels and files. Each scene has the program to itself, started by a user who has
chosen a language before; those of start_scenes are given a program that has never run, and start it themselves.
A scene that fails leaves a screenshot.
Usage: evening.py PROGRAM FOLDER [SCENE...]    FOLDER takes the screenshots; all scenes are played if none is named"""
import pathlib
import sys
import time
import traceback

import dialog_scenes
import game_scenes
import roll_scenes
import start_scenes
from virtual_screen import Failure, Program, Screen, end_by_itself

TIME_LIMIT = 200  # seconds for all scenes

SCENES = (*roll_scenes.SCENES, *game_scenes.SCENES, *dialog_scenes.SCENES, *start_scenes.SCENES)


def play(scene, screen, executable, folder):
    """True if the scene went as it should."""
    started = time.monotonic()
    picture = folder / f"{scene.__name__}.png"
    picture.unlink(missing_ok=True)
    never_run = scene in start_scenes.SCENES
    program = Program(screen, executable, language=None if never_run else "English")
    try:
        if not never_run:
            program.start()
        scene(program)
    except Exception as error:
        screen.save(picture)
        why = error if isinstance(error, Failure) else traceback.format_exc()
        print(f"FAILED  {scene.__name__}: {why}\n        screenshot: {picture}", flush=True)
        return False
    finally:
        program.stop()
    print(f"ok      {scene.__name__} ({time.monotonic() - started:.1f} s)", flush=True)
    return True


def main():
    if len(sys.argv) < 3:
        raise SystemExit(__doc__)
    executable, folder, wanted = pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]), sys.argv[3:]
    end_by_itself(TIME_LIMIT)
    scenes = [scene for scene in SCENES if not wanted or scene.__name__ in wanted]
    with Screen() as screen:
        screen.run("xset", "r", "on")
        screen.run("xset", "r", "rate", "300", "40")
        good = [play(scene, screen, executable, folder) for scene in scenes].count(True)
    print(f"{good} passed, {len(scenes) - good} failed")
    return 0 if scenes and good == len(scenes) else 1


if __name__ == "__main__":
    sys.exit(main())
