#!/usr/bin/env python3
"""The standings of 10,000 selections to file, from the button's press to the file written, against cat of the files."""

import measure

arguments = measure.arguments(__doc__, rounds=21)
ours, reference = [], []
with measure.pool(arguments.players, arguments.folder) as folder:
    cat = measure.Cat(folder)
    with measure.Windows("standings", folder, arguments.platform) as windows:
        for _ in range(arguments.rounds):
            ours += windows.step(1)
            reference.append(cat.run())
ours = measure.of(ours, "standings")
measure.show("standings to file", ours)
measure.show("cat of the same files", reference)
measure.tell_ratio("ratio of medians", measure.median(ours) / measure.median(reference), 1.2)
measure.tell_ratio("... of processor time", measure.median(ours, 1) / measure.median(reference, 1), 1.2)
