#!/usr/bin/env python3
"""From a key to changed pixels while the evening keeps itself: with copies, without any, and with copies on a disk that
takes half a second for each sync, all in turn.
Usage: slow_disk.py PROGRAM [ROUNDS]    of 30 rolls each, 4 if not told; wants strace"""
import statistics
import subprocess
import sys
import time

from compare import Hands, Side, XScreen, end_by_itself, wait_for

ROLLS = 30
NO_FOLDER = "/dev/null/copies"
SLOW = ["-e", "inject=fsync:delay_enter=500000"]  # microseconds


def times_of_keys(side, hands, slow):
    side.launch()
    side.main = wait_for(lambda: next(iter(side.windows()), None), "the window")
    wait_for(lambda: side.screen.has_keyboard(side.main), "the keyboard to come to the window")
    if slow:
        tracer = side.screen.start("strace", "-f", "-p", str(side.process.pid), "-o", "/dev/null", "-e", "trace=fsync",
                                   *SLOW, stderr=subprocess.PIPE, text=True)
        assert "attached" in tracer.stderr.readline(), "strace may not look at the program here"
    time.sleep(1)
    times = []
    for i in range(ROLLS):
        time.sleep(0.15 + 0.007 * (i % 6))
        before, began = side.chart(), time.perf_counter()
        hands.put("F9", True)
        times.append(side.time_of_change(began, before))
        hands.put("F9", False)
    if slow:
        side.screen.stop(tracer)
    side.end()
    return times


def main():
    end_by_itself(3600)
    figures = {"copies": [], "no copies": [], "copies, slow disk": []}
    with XScreen() as screen:
        side, hands = Side(screen, sys.argv[1], True), Hands(screen.environment["DISPLAY"])
        side.learn_place()
        for number in range(int((sys.argv + ["4"])[2])):
            for name, times in figures.items():
                folder = NO_FOLDER if name == "no copies" else f"{screen.folder}/{number}{name}"
                screen.environment["XDG_STATE_HOME"] = folder
                times += times_of_keys(side, hands, "slow" in name)
    for name, times in figures.items():
        times.sort()
        highest = times[len(times) * 95 // 100]
        print(f"{name:18} median {statistics.median(times):.2f} ms, 95 in 100 within {highest:.2f} ms")


if __name__ == "__main__":
    main()
