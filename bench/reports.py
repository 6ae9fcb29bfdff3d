#!/usr/bin/env python3
"""Each report on 1,000 and on 10,000 players, each in a process of its own: time and peak memory, and how they grow."""

import statistics
import subprocess

import measure

REPORTS = ["Tournament Standings", "Player Listing", "Team Selection Summary", "Team Selection Detail",
           "Player Selection Detail", "Results by Player", "Results by Team"]


def once(folder, report):
    """Seconds, seconds of the processor, and KiB of one run."""
    run = subprocess.run([measure.BUILD / "bench/tallyhoop_bench_report", folder, str(report)], check=True, text=True,
                         stdout=subprocess.PIPE)
    first, *messages = run.stdout.splitlines()
    if messages:
        raise SystemExit("\n".join(messages))
    seconds, processor, peak = first.split()
    return float(seconds), float(processor), int(peak)


def medians(runs):
    return [statistics.median(figures) for figures in zip(*runs)]


arguments = measure.arguments(__doc__, rounds=7)
few, many = arguments.players // 10, arguments.players
with measure.pool(few, arguments.folder) as small, measure.pool(many, arguments.folder) as large:
    bare = {pool: once(pool, "none")[2] for pool in (small, large)}
    print(f"{'':<24} {few:>7,} {many:>10,}  growth of{'':<15}{few:>7,} {many:>10,}  growth\n"
          f"{'':<24} players    players  processor time{'':<10}players    players  beyond the bare process")
    for report, name in enumerate(REPORTS):
        runs = {small: [], large: []}
        for _ in range(arguments.rounds):
            for pool, figures in runs.items():
                figures.append(once(pool, report))
        (time, processor, peak), (more_time, more_processor, more_peak) = map(medians, runs.values())
        growth = (more_peak - bare[large]) / max(1, peak - bare[small])
        print(f"{name:<24}{time * 1000:>6.0f} ms {more_time * 1000:>7.0f} ms {more_processor / processor:>10.1f}"
              f"{'':<10}{peak / 1024:>8.1f} MiB{more_peak / 1024:>7.1f} MiB {growth:>7.1f}")
    print(f"{'bare process':<52}{bare[small] / 1024:>8.1f} MiB{bare[large] / 1024:>7.1f} MiB")
