#!/usr/bin/env python3
"""The player names and the e-mail screen with 10,000 players: opening until painted, and one key until painted."""

import measure

arguments = measure.arguments(__doc__, rounds=11)
with measure.pool(arguments.players, arguments.folder) as folder:
    for screen in ("names", "email"):
        with measure.Windows(screen, folder, arguments.platform) as windows:
            for _ in range(arguments.rounds):
                windows.begin()
            figures = windows.rest()
        for what, most in (("open", 100), ("key", 20)):
            pairs = measure.of(figures, what)
            measure.show(f"{screen}: {what}", pairs)
            measure.tell_ratio("... median, milliseconds", measure.median(pairs), most)
