"""What the scripts share: a large pool in a folder of its own, the reference, rounds in turn, and how the figures are printed.

On a busy machine only figures of one run can be compared: what is measured and what it is measured against take turns,
round by round, and the medians are compared. The processor time beside the wall time shows how much of it was waiting.
"""

import argparse
import contextlib
import os
import pathlib
import statistics
import subprocess
import tempfile
import time

# Without a folder of its own for running programs Qt prints a complaint at every start.
_runtime = tempfile.TemporaryDirectory(prefix="tallyhoop-bench-runtime-")  # only its owner may read it, as Qt wants
os.environ["XDG_RUNTIME_DIR"] = _runtime.name
os.environ["QT_LOGGING_RULES"] = "qt.qpa.*=false;default.warning=false"  # offscreen windows have no size hints

BUILD = pathlib.Path(os.environ.get("TALLYHOOP_BUILD", pathlib.Path(__file__).parents[1] / "build"))


def arguments(description, rounds, players=10_000):
    parser = argparse.ArgumentParser(description=description)
    parser.add_argument("--rounds", type=int, default=rounds)
    parser.add_argument("--players", type=int, default=players)
    parser.add_argument("--folder", help="where the pool is made and removed again; the system's own if not given")
    parser.add_argument("--platform", default="offscreen", help="Qt's platform, such as offscreen or xcb")
    return parser.parse_args()


@contextlib.contextmanager
def pool(players, parent=None):
    """A folder with a pool of this many players; gone at the end."""
    with tempfile.TemporaryDirectory(prefix="tallyhoop-bench-", dir=parent) as folder:
        subprocess.run([BUILD / "bench/tallyhoop_bench_pool", folder, str(players)], check=True)
        yield pathlib.Path(folder)


class Windows:
    """The real screens in a process of its own that takes one step at a time."""

    def __init__(self, kind, folder, platform):
        environment = os.environ | {"QT_QPA_PLATFORM": platform}
        self._process = subprocess.Popen([BUILD / "bench/tallyhoop_windows_bench", kind, str(folder)], text=True,
                                         env=environment, stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    def __enter__(self):
        return self

    def __exit__(self, kind, error, trace):
        self._process.stdin.close()
        self._process.wait()

    def step(self, figures):
        """One round that is known to print this many figures; each is (what, milliseconds, of the processor)."""
        self.begin()
        return [self.figure() for _ in range(figures)]

    def begin(self):
        print(file=self._process.stdin, flush=True)

    def figure(self):
        line = self._process.stdout.readline()
        if not line:
            raise SystemExit("the windows have ended early")
        what, wall, processor = line.split()
        return what, float(wall), float(processor)

    def rest(self):
        """Asks for no more rounds; every figure until the end."""
        self._process.stdin.close()
        return [(what, float(wall), float(cpu)) for what, wall, cpu in map(str.split, self._process.stdout)]


class Cat:
    """The reference: cat prints the same selections to nowhere, started as a shell would."""

    def __init__(self, folder):
        self._list = folder / ".files"
        self._list.write_bytes(b"\0".join(os.fsencode(file) for file in sorted(folder.glob("*.THC"))))

    def run(self):
        """Milliseconds and milliseconds of the processor."""
        return process(["xargs", "-0", "-a", self._list, "cat"])


def process(words):
    """A process from its start to its end, its output to nowhere: milliseconds and milliseconds of the processor."""
    with open(os.devnull, "wb") as nowhere:
        begin = time.perf_counter()
        started = subprocess.Popen(words, stdout=nowhere)
        _, status, used = os.wait4(started.pid, 0)
        took = time.perf_counter() - begin
    started.returncode = os.waitstatus_to_exitcode(status)
    if started.returncode != 0:
        raise SystemExit(f"{words[0]} failed")
    return took * 1000, (used.ru_utime + used.ru_stime) * 1000


def added(*pairs):
    """The figures of several processes, one after the other."""
    return tuple(map(sum, zip(*pairs)))


def of(figures, what):
    """The pairs (milliseconds, of the processor) of one kind of figure."""
    return [(wall, processor) for name, wall, processor in figures if name == what]


def median(pairs, which=0):
    return statistics.median(pair[which] for pair in pairs)


def percentile(pairs, share):
    walls = sorted(wall for wall, _ in pairs)
    return walls[min(len(walls) - 1, int(len(walls) * share))]


def show(name, pairs):
    walls = [wall for wall, _ in pairs]
    print(f"{name:<24} median {median(pairs):8.2f} ms   least {min(walls):8.2f} ms   "
          f"processor {median(pairs, 1):8.2f} ms   ({len(pairs)} rounds)")


def tell_ratio(name, ratio, most):
    print(f"{name:<24} {ratio:.2f}   (at most {most}: {'yes' if ratio <= most else 'NO'})")
