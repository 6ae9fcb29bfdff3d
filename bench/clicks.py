#!/usr/bin/env python3
"""A click on the board, from the press to the repainted board."""

import measure

arguments = measure.arguments(__doc__, rounds=10, players=4)
with measure.pool(arguments.players, arguments.folder) as folder:
    with measure.Windows("clicks", folder, arguments.platform) as windows:
        for _ in range(arguments.rounds):
            windows.begin()
        clicks = measure.of(windows.rest(), "click")
measure.show("click to repaint", clicks)
measure.tell_ratio("median, milliseconds", measure.median(clicks), 5)
measure.tell_ratio("99th percentile", measure.percentile(clicks, 0.99), 16)
