"""The dice chart of the main window, measured in the pixels of the screen: how often each sum was rolled."""
from virtual_screen import wait_for

# In pixels from the corner below its menu bar.
CHART_X, CHART_Y, BARS_X, BARS_WIDTH, ROW = 8, 168, 80, 320, 20
MARKER = bytes((0x41, 0x69, 0xE1))
BARS = (bytes((0, 255, 0)), bytes((255, 0, 0)))
SHARES = {2: 2.77, 3: 5.55, 4: 8.33, 5: 11.11, 6: 13.88, 7: 16.66, 8: 13.88, 9: 11.11, 10: 8.33, 11: 5.55, 12: 2.77}


def expected_chart(counts):
    """For each sum the lengths in pixels of bar and marker, from the number of rolls by sum."""
    total, most = sum(counts.values()), max(counts.values(), default=0)
    unit = 300 // most if most else 300
    if 80 + round(total * unit * 16.66) // 100 > 300:
        unit = 22000 // round(total * 16.66)
    return {s: (counts.get(s, 0) * unit, round(total * unit * share) // 100) for s, share in SHARES.items()}


def seen_chart(program):
    rows = program.pixels(CHART_X + BARS_X, CHART_Y, BARS_WIDTH, 12 * ROW)

    def length(row, colours):
        return max((x for x in range(BARS_WIDTH) if row[3 * x:3 * x + 3] in colours), default=0)

    return {s: (length(rows[(s - 1) * ROW + 8], BARS), length(rows[(s - 1) * ROW + 1], (MARKER,))) for s in SHARES}


def same(one, other):
    """A bar that ends at its marker is covered by the marker's edge: one pixel more or less is the same."""
    return all(abs(a - b) <= 1 for s in SHARES for a, b in zip(one[s], other[s]))


def expect_rolls(program, counts):
    """Waits until the chart shows exactly these rolls: how often each sum was rolled."""
    wanted = expected_chart(counts)
    wait_for(lambda: same(seen_chart(program), wanted),
             lambda: f"the rolls {counts}; (bar, marker) should be {wanted}, are {seen_chart(program)}")


def expect_one_roll(program):
    """Waits for the chart of a single roll, of whatever sum."""
    charts = [expected_chart({s: 1}) for s in SHARES]
    wait_for(lambda: any(same(seen_chart(program), chart) for chart in charts),
             lambda: f"a single roll; (bar, marker) are {seen_chart(program)}")
