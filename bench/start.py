#!/usr/bin/env python3
"""The program's start, from exec to the painted board, against a Qt program that has nothing but an empty main window. A
window with one word in it is measured beside them: how much of the difference any text costs."""

import os
import pathlib
import shutil
import subprocess
import tempfile
import time

import measure


def start(command, painted, platform):
    """Milliseconds to the first paint of a widget, and the peak memory in MiB."""
    environment = os.environ | {
        "QT_QPA_PLATFORM": platform, "QT_PLUGIN_PATH": str(measure.BUILD / "bench/plugins"),
        "QT_QPA_GENERIC_PLUGINS": "tallyhoopfirstpaint", "TALLYHOOP_FIRST_PAINT_OF": painted}
    begin = time.monotonic()
    run = subprocess.run(command, env=environment, stdout=subprocess.PIPE, text=True, check=True, timeout=60)
    end, peak = run.stdout.split()
    return (float(end) - begin) * 1000, int(peak) / 1024


arguments = measure.arguments(__doc__, rounds=41, players=4)
EMPTY = measure.BUILD / "bench/tallyhoop_empty_window"
ours, empty, word = [], [], []
with measure.pool(arguments.players, arguments.folder) as folder, tempfile.TemporaryDirectory() as installed:
    # The program folder as people have it: stripped, beside its pool.
    subprocess.run(["cmake", "--install", measure.BUILD, "--strip", "--prefix", installed, "--component", "program"],
                   check=True, stdout=subprocess.DEVNULL)
    for file in pathlib.Path(installed).iterdir():
        shutil.copy2(file, folder / file.name)
    for _ in range(arguments.rounds):
        ours.append(start([folder / "tallyhoop"], "bracketCanvas", arguments.platform))
        empty.append(start([EMPTY], "emptyContent", arguments.platform))
        word.append(start([EMPTY, "word"], "emptyContent", arguments.platform))
for name, figures in (("painted board", ours), ("empty window", empty), ("window with one word", word)):
    print(f"{name:<24} median {measure.median(figures):8.1f} ms   least {min(figures)[0]:8.1f} ms   "
          f"peak memory {measure.median(figures, 1):6.1f} MiB")
measure.tell_ratio("time", measure.median(ours) / measure.median(empty), 2.5)
measure.tell_ratio("... least of all rounds", min(ours)[0] / min(empty)[0], 2.5)
measure.tell_ratio("peak memory", measure.median(ours, 1) / measure.median(empty, 1), 1.3)
