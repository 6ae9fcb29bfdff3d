#!/usr/bin/env python3
"""1,000 entries handed in as files, texts and mails: reviewed, and imported with safe writes, against cp of the same files."""

import pathlib
import statistics
import subprocess
import tempfile
import time

import measure


def once(folder, entries):
    """Seconds of the review, of the import, and of cp."""
    figures = subprocess.run([measure.BUILD / "bench/tallyhoop_bench_import", folder, str(entries)], check=True,
                             text=True, stdout=subprocess.PIPE).stdout.split()
    files = sorted((folder / "pool").glob("*.THC"))
    (folder / "copies").mkdir()
    begin = time.perf_counter()
    subprocess.run(["cp", "--", *files, folder / "copies"], check=True)
    return [*map(float, figures), time.perf_counter() - begin]


arguments = measure.arguments(__doc__, rounds=7, players=1000)
rounds = []
for _ in range(arguments.rounds):
    with tempfile.TemporaryDirectory(prefix="tallyhoop-bench-", dir=arguments.folder) as folder:
        rounds.append(once(pathlib.Path(folder), arguments.players))
review, written, copied = map(statistics.median, zip(*rounds))
print(f"{arguments.players:,} entries: cp of the files {copied * 1000:.0f} ms   ({len(rounds)} rounds)")
for name, seconds, most in (("review", review, 2), ("import", written, 5)):
    print(f"{name:<10} {seconds * 1000:8.0f} ms   ratio to cp {seconds / copied:6.1f}   "
          f"(at most {most} s: {'yes' if seconds <= most else 'NO'})")
