#!/usr/bin/env python3
"""`tallyhoop-cli standings` of 1,000 selections as a whole process, against cat of the files and an empty process."""

import measure

arguments = measure.arguments(__doc__, rounds=41, players=1_000)
ours, reference = [], []
with measure.pool(arguments.players, arguments.folder) as folder:
    cat = measure.Cat(folder)
    standings = [measure.BUILD / "cli/tallyhoop-cli", "--folder", folder, "standings"]
    for _ in range(arguments.rounds):
        ours.append(measure.process(standings))
        reference.append(measure.added(cat.run(), measure.process(["true"])))
measure.show("standings", ours)
measure.show("cat and empty process", reference)
measure.tell_ratio("ratio of medians", measure.median(ours) / measure.median(reference), 2.0)
measure.tell_ratio("... of processor time", measure.median(ours, 1) / measure.median(reference, 1), 2.0)
