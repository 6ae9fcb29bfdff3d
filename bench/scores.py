#!/usr/bin/env python3
"""The score display of 10,000: Calculate until the table is painted, against cat of the same files plus one repaint; and
dragging a heading until the sorted table is painted."""

import measure

arguments = measure.arguments(__doc__, rounds=21)
figures, reference = [], []
with measure.pool(arguments.players, arguments.folder) as folder:
    cat = measure.Cat(folder)
    with measure.Windows("scores", folder, arguments.platform) as windows:
        for _ in range(arguments.rounds):
            figures += windows.step(5)
            reference.append(cat.run())
calculate, repaint, drag = (measure.of(figures, what) for what in ("calculate", "repaint", "drag"))
measure.show("calculate", calculate)
measure.show("cat of the same files", reference)
measure.show("one repaint", repaint)
measure.tell_ratio("ratio of medians", (measure.median(calculate) - measure.median(repaint)) / measure.median(reference), 1.5)
measure.tell_ratio("... of processor time",
                   (measure.median(calculate, 1) - measure.median(repaint, 1)) / measure.median(reference, 1), 1.5)
measure.show("drag a heading", drag)
measure.tell_ratio("... milliseconds", measure.median(drag), 100)
