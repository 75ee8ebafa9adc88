"""Measures rows of the comparison by each side."""

import json
import os
import re
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
# Another build than that of bench/run, to try the rows.
BINARIES = Path(os.environ.get("TALMESH_BENCH_BIN", ROOT / "build" / "release" / "bin"))
PEERS = ROOT / "bench" / "peers.py"
TIMEOUT = 600  # seconds, of one measurement
CSV_BYTES = 240_000_000
STAGE = "stage: "  # names a part of a measurement, in milliseconds
NOT_INSTALLED = 77  # status of peers.py

QCP, PYTHON, START = "qcustomplot", "python", "start"


class Failed(Exception):
    pass


class NotInstalled(Exception):
    """There is no number, and no fault either."""


def run(command):
    try:
        ended = subprocess.run(command, capture_output=True, text=True, timeout=TIMEOUT, check=False)
    except subprocess.TimeoutExpired:
        raise Failed(f"> {TIMEOUT} s") from None
    if ended.returncode == NOT_INSTALLED:
        raise NotInstalled(ended.stdout.strip())
    if ended.returncode != 0:
        raise Failed(f"failed: {ended.stderr.strip().splitlines()[-1:] or ended.returncode}")
    return ended.stdout


def measure_program(program, name):
    """One process per measurement: (milliseconds, counters)."""
    # The library has lines of its own on the standard output.
    with tempfile.NamedTemporaryFile(suffix=".json") as file:
        run([str(BINARIES / program), f"--benchmark_filter=^{re.escape(name)}(/iterations:[0-9]+)?(/real_time)?$",
             f"--benchmark_out={file.name}", "--benchmark_out_format=json"])
        result = json.loads(Path(file.name).read_text(encoding="utf-8"))["benchmarks"][0]
    if result.get("error_occurred"):
        raise Failed(result["error_message"])
    return result["real_time"], {key: value for key, value in result.items()
                                 if key in ("bytes", "tables") or key.startswith(STAGE)}


def milliseconds_of(command):
    before = time.perf_counter()
    run(command)
    return 1000 * (time.perf_counter() - before)


class Bench:
    def __init__(self, folder):
        self.folder = Path(folder)

    def ours(self, name):
        viewer = str(BINARIES / "talmesh-plot")
        if name == "gallery":
            target = self.folder / "gallery"
            elapsed = milliseconds_of([viewer, "--gallery", str(target)])
            sizes = {file.stem: file.stat().st_size for file in target.glob("*.pdf")}
            total = sum(sizes.values())
            # Three pictures of all runs, see docs/architecture.md.
            del sizes["xyPlot-series"]
            return elapsed, {"bytes": total, "largest": max(sizes.values())}
        if name == "start":
            return milliseconds_of([viewer, str(self.small_table()), "--export", str(self.folder / "a.png")]), {}
        self.prepare(name)
        return measure_program("talmesh_bench", name)

    def peer(self, peer, name):
        if peer == "qcustomplot":
            return measure_program("qcustomplot_bench", name)
        self.prepare(name)
        if peer == "python":
            return float(run([sys.executable, str(PEERS), name])), {}
        script = ("import sys, pandas, matplotlib; matplotlib.use('Agg'); from matplotlib import pyplot;"
                  "t = pandas.read_csv(sys.argv[1]); pyplot.plot(t['time'], t['X']); pyplot.savefig(sys.argv[2])")
        table = self.small_table()
        return milliseconds_of(["/usr/bin/python3", "-c", script, str(table), str(self.folder / "b.png")]), {}

    def small_table(self):
        path = self.folder / "small.csv"
        if not path.exists():
            lines = [f"{r},{t},{r * 0.5},{(r + 1) * t % 7}" for r in range(50) for t in range(100)]
            path.write_text("run,time,k,X\n" + "\n".join(lines) + "\n")
        return path

    def prepare(self, name):
        """The table of 240 MB, ten columns, is written once."""
        if name != "importFile":
            return
        path = self.folder / "import.csv"
        os.environ["TALMESH_BENCH_CSV"] = str(path)
        if path.exists():
            return
        with path.open("w") as file:
            file.write("run,time,X,Y,k1,k2,k3,k4,k5,k6\n")
            number = 0
            while file.tell() < CSV_BYTES:
                values = ",".join(f"{(number * factor % 9973) / 9973 + 1:.9f}" for factor in (1, 2, 3, 5, 7, 11))
                file.writelines(f"{number},{t / 10},{number % 97 + t * 0.123456:.6f},{t * 1.987654321 - number % 89:.9f},"
                                f"{values}\n" for t in range(200))
                number += 1


def shown(milliseconds):
    if milliseconds is None:
        return ""
    return f"{milliseconds / 1000:.2f} s" if milliseconds >= 1000 else f"{milliseconds:.3g} ms"


def details(counters):
    parts = []
    if "tables" in counters:
        parts.append(f"{counters['tables']:.2f} tables")
    if "bytes" in counters:
        parts.append(f"{counters['bytes'] / 1e6:.2f} MB")
    if "largest" in counters:
        parts.append(f"largest {counters['largest'] / 1e6:.2f} MB")
    parts += [f"{name[len(STAGE):]} {shown(value)}" for name, value in counters.items() if name.startswith(STAGE)]
    return ", ".join(parts)


class Side:
    """Repeated measurements of one row by one side."""

    def __init__(self, measure):
        self.measure = measure
        self.times = []
        self.counters = []
        self.failure = ""
        self.missing = ""

    def once(self):
        if self.failure or self.missing:
            return
        try:
            elapsed, counters = self.measure()
            self.times.append(elapsed)
            self.counters.append(counters)
        except NotInstalled as problem:
            self.missing = str(problem)
        except (Failed, KeyError, IndexError, ValueError, OSError) as problem:
            self.failure = str(problem) or type(problem).__name__

    @property
    def median(self):
        return statistics.median(self.times) if self.times and not self.failure else None

    @property
    def medians(self):
        """Of the counters."""
        first = self.counters[0] if self.counters else {}
        return {name: statistics.median(counters[name] for counters in self.counters) for name in first}

    def text(self):
        return self.failure or self.missing or " ".join(filter(None, [shown(self.median), f"({details(self.medians)})"
                                                      if self.medians else ""]))


class Measured:
    """One row with its sides. What has no number raises a TypeError or KeyError where it is compared."""

    def __init__(self, bench, row):
        self.row = row
        self.sides = {"ours": Side(lambda: bench.ours(row.name))}
        for peer in row.peers:
            self.sides[peer] = Side(lambda peer=peer: bench.peer(peer, row.name))

    def go(self, repetitions):
        for _ in range(repetitions):
            for side in self.sides.values():
                side.once()
        return self

    def median(self):
        return self.sides["ours"].median

    def counter(self, name):
        return self.sides["ours"].medians[name]

    def ratio(self, peer):
        return self.sides[peer].median / self.median()

    def verdict(self, target, all_rows):
        try:
            return "reached" if target.reached(self, all_rows) else "MISSED"
        except (KeyError, TypeError):
            return "not measured"

    def cells(self, all_rows):
        def ratio(peer):
            try:
                times = self.ratio(peer)
            except (KeyError, TypeError):
                return ""
            return f"{times:.2f}" if times < 10 else f"{times:.0f}"

        def text(peer):
            return self.sides[peer].text() if peer in self.sides else ""

        other = START if START in self.sides else PYTHON
        verdicts = [f"{target.text}: {self.verdict(target, all_rows)}" for target in self.row.targets]
        return [self.row.text, text("ours"), text(QCP), ratio(QCP), text(other), ratio(other), "; ".join(verdicts)]
