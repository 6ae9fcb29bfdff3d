#!/usr/bin/env python3
"""1,000 entries handed in as files, texts and mails: reviewed, and imported with safe writes, against cp of the same files.

Ticking all of them, and ten times as many, is compared with their review.
"""

import pathlib
import statistics
import subprocess
import tempfile
import time

import measure


def once(folder, entries):
    """Seconds of the review, of ticking all entries, of the import, and of cp."""
    figures = subprocess.run([measure.BUILD / "bench/tallyhoop_bench_import", folder, str(entries)], check=True,
                             text=True, stdout=subprocess.PIPE).stdout.split()
    files = sorted((folder / "pool").glob("*.THC"))
    (folder / "copies").mkdir()
    begin = time.perf_counter()
    subprocess.run(["cp", "--", *files, folder / "copies"], check=True)
    return [*map(float, figures), time.perf_counter() - begin]


def medians(entries, rounds):
    figures = []
    for _ in range(rounds):
        with tempfile.TemporaryDirectory(prefix="tallyhoop-bench-", dir=arguments.folder) as folder:
            figures.append(once(pathlib.Path(folder), entries))
    return map(statistics.median, zip(*figures))


arguments = measure.arguments(__doc__, rounds=7, players=1000)
review, ticked, written, copied = medians(arguments.players, arguments.rounds)
print(f"{arguments.players:,} entries: cp of the files {copied * 1000:.0f} ms   ({arguments.rounds} rounds)")
for name, seconds, most in (("review", review, 2), ("import", written, 5)):
    print(f"{name:<10} {seconds * 1000:8.0f} ms   ratio to cp {seconds / copied:6.1f}   "
          f"(at most {most} s: {'yes' if seconds <= most else 'NO'})")
many = 10 * arguments.players
many_review, many_ticked, *_ = medians(many, rounds=1)
for entries, ticking, reviewing in ((arguments.players, ticked, review), (many, many_ticked, many_review)):
    print(f"tick all   {ticking * 1000:8.3f} ms   ratio to the review of {entries:,} entries {ticking / reviewing:.4f}")
