#!/usr/bin/env python3
"""A roll at the largest size of windows, 300 in 100, on a virtual screen of 3840 by 2160 pixels: from the key to the first
and to the last change of the chart's pixels.
Usage: large_roll.py PROGRAM [ROLLS]"""
import statistics
import sys
import time

from compare import CHART_LEFT, CHART_ROWS, CHART_WIDTH, CLIENT_HEIGHT, Hands, Side, XScreen, end_by_itself

TIMES = 3


class LargeScreen(XScreen):
    size = "3840x2160"


class LargeSide(Side):
    def open(self):
        (self.folder / "orvanbeg-view.ini").write_bytes(b"300\r\n")
        height = self.open_window(TIMES * CLIENT_HEIGHT)
        assert height > TIMES * CLIENT_HEIGHT, "the window is not as large as it was told"

    def chart(self):
        left, top = self.corner
        return [self.pixels.row(left + TIMES * CHART_LEFT, top + TIMES * y, TIMES * CHART_WIDTH) for y in CHART_ROWS]

    def roll(self, hands, settled):
        before, began = self.chart(), time.perf_counter()
        hands.put("F9", True)
        self.add("key to pixels, ms", self.time_of_change(began, before, settled))
        hands.put("F9", False)
        time.sleep(0.05)


def main():
    end_by_itself(600)
    rolls = int(sys.argv[2]) if len(sys.argv) > 2 else 200
    with LargeScreen() as screen:
        hands = Hands(screen.environment["DISPLAY"])
        program = LargeSide(screen, sys.argv[1], True)
        program.open()
        program.roll(hands, 0)
        for word, settled in (("first", 0), ("last", 0.1)):
            program.figures["key to pixels, ms"].clear()
            for _ in range(rolls):
                program.roll(hands, settled)
            times = sorted(program.figures["key to pixels, ms"])
            print(f"key to the {word} change, ms: median {statistics.median(times):.2f}, 95 in 100 within "
                  f"{times[len(times) * 95 // 100]:.2f}; a frame at 60 Hz is 16.67")
        program.stop()


if __name__ == "__main__":
    main()
