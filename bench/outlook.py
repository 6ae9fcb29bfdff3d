#!/usr/bin/env python3
"""The pool outlook: who is first in how many outcomes, counted exactly; time and peak memory for pools of several sizes,
against scoring every outcome, and against the plain split of the regions into two halves with vector instructions.

Each figure is of a process of its own. What is compared takes turns, round by round; the medians of the processor time
are compared, which other programs on the machine disturb less than the time on the clock.
"""

import statistics
import subprocess

import measure

OPEN = [15, 20, 24, 28, 31]
PLAYERS = [10, 50, 200, 1000]
LIMIT_KIB = 300 * 1024


def once(way, players, games, kind):
    """Seconds, seconds of the processor, peak KiB, longest slice, and a figure that all ways must agree on."""
    run = subprocess.run([measure.BUILD / "bench/tallyhoop_bench_outlook", way, str(players), str(games), kind],
                         check=True, text=True, stdout=subprocess.PIPE)
    return tuple(map(float, run.stdout.split()))


def medians(runs):
    alone = {run[4] for run in runs}
    if len(alone) != 1:
        raise SystemExit(f"different figures for one pool: {alone}")
    return [statistics.median(figures) for figures in zip(*runs)]


def in_turns(rounds, *cases):
    """Medians for each of the cases."""
    runs = [[once(*case) for case in cases] for _ in range(rounds)]
    return [medians(of_case) for of_case in zip(*runs)]


def tell(what, value, most, unit=""):
    print(f"{what:<64} {value:9.3f}{unit:<4} (at most {most}: {'yes' if value <= most else 'NO'})")


arguments = measure.arguments(__doc__, rounds=3, players=max(PLAYERS))
players = [number for number in PLAYERS if number <= arguments.players]
is_small = arguments.players < 50
games = OPEN[:1] if is_small else OPEN

print(f"{'open':>4} {'players':>7}  {'pool':<9} {'seconds':>9} {'processor':>9} {'outcomes a second':>18} "
      f"{'MiB':>6} {'longest slice':>13}")
peak = 0
for count in games:
    for number in players:
        for kind in ("realistic", "random"):
            [(seconds, processor, kib, longest, _)] = in_turns(1 if count > 24 else arguments.rounds,
                                                               ("count", number, count, kind))
            peak = max(peak, kib)
            print(f"{count:>4} {number:>7}  {kind:<9} {seconds:9.4f} {processor:9.4f} "
                  f"{2 ** count / max(processor, 1e-9):18,.0f} {kib / 1024:6.1f} {longest * 1000:10.2f} ms", flush=True)
tell("peak memory, MiB", peak / 1024, LIMIT_KIB // 1024)

number = min(50, arguments.players)
counted, scored = in_turns(arguments.rounds, ("count", number, 15, "realistic"), ("score", number, 15, "realistic"))
assert counted[4] == scored[4], "the count and the scoring of every outcome differ"
print(f"15 open, {number} players: scoring every outcome takes {scored[1] / counted[1]:.0f} times as long")
tell(f"15 open, {number} players, ms", counted[1] * 1000, 16)
if not is_small:
    most = arguments.players
    [thousand] = in_turns(arguments.rounds, ("count", most, 15, "realistic"))
    tell(f"15 open, {most} players, ms", thousand[1] * 1000, 100)
    for kind in ("realistic", "random"):
        counted, split, fewer = in_turns(arguments.rounds, ("count", 50, 31, kind), ("split", 50, 31, kind),
                                         ("count", 50, 24, kind))
        assert counted[4] == split[4], "the count and the split into halves differ"
        print(f"31 open, 50 players, {kind}: {counted[1]:.2f} s, split into halves {split[1]:.2f} s; "
              f"24 open {fewer[1] * 1000:.0f} ms")
        tell(f"31 open, 50 players, {kind}: against the halves", counted[1] / split[1], 0.5)
        tell(f"24 open, 50 players, {kind}: against the halves of 31", fewer[1] / split[1], 0.01)

print(f"forecast of 200,000 samples: {'players':>7} {'open':>4}  {'pool':<9} {'processor':>9} {'samples a second':>17} "
      f"{'errors against plain':>20} {'off the exact share':>19}")
for number in players:
    for count in (games[:1] if is_small else (31, 63)):
        for kind in ("realistic", "random"):
            run = subprocess.run([measure.BUILD / "bench/tallyhoop_bench_forecast", str(number), str(count), kind],
                                 check=True, text=True, stdout=subprocess.PIPE)
            processor, ratio, off = map(float, run.stdout.split())
            print(f"{number:>36} {count:>4}  {kind:<9} {processor:9.3f} {200_000 / processor:17,.0f} {ratio:20.2f} "
                  f"{off * 100 if count <= 31 else float('nan'):17.3f} %", flush=True)

counted, samples = (15, 100) if is_small else (31, 200_000)
print(f"the tournament of 2000, game by game: the share of first place of the winner of a pool of 100 players, counted with "
      f"up to {counted} open games, else forecast with {samples:,} samples")
run = subprocess.run([measure.BUILD / "bench/tallyhoop_bench_replay", str(counted), str(samples)], check=True, text=True,
                     stdout=subprocess.PIPE)
print(f"{'round':>5} {'open':>4} {'share':>7} {'error':>6} {'alive':>5} {'out':>3} {'neither':>7} {'processor':>9}")
for line in run.stdout.splitlines():
    latest, count, share, error, alive, out, neither, processor = map(float, line.split())
    print(f"{latest:>5.0f} {count:>4.0f} {share * 100:6.2f}% {error * 100:5.2f}% {alive:>5.0f} {out:>3.0f} {neither:>7.0f} "
          f"{processor:9.3f} {'#' * round(share * 50)}")
