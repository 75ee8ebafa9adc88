#!/usr/bin/python3
"""Runs rows of measurements, ours and those of other libraries in turn, and prints them as one table.

Called by bench/run, which has built what is measured. See README.md.
"""

import argparse
import datetime
import json
import os
import platform
import re
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path
from typing import Callable, Dict, NamedTuple, Tuple

ROOT = Path(__file__).resolve().parent.parent
# Another build than that of bench/run, to try the rows.
BINARIES = Path(os.environ.get("TALMESH_BENCH_BIN", ROOT / "build" / "release" / "bin"))
PEERS = ROOT / "bench" / "peers.py"
TIMEOUT = 600  # seconds, of one measurement
CSV_BYTES = 240_000_000
STAGE = "stage: "  # names a part of a measurement, in milliseconds

QCP, PYTHON, START = "qcustomplot", "python", "start"
SIZES = {"500/200": "500 × 200", "5000/200": "5,000 × 200", "5000/1000": "5,000 × 1,000",
         "50000/200": "50,000 × 200"}


class Target(NamedTuple):
    """What a row shall reach: `reached` is given this row and all rows by name, and fails where one lacks a number."""

    text: str
    reached: Callable[["Measured", Dict[str, "Measured"]], bool]


def faster(peer, times):
    name = {QCP: "QCustomPlot", PYTHON: "Python"}[peer]
    text = f"no slower than {name}" if times == 1 else f"{times} times as fast as {name}"
    return Target(text, lambda row, _: row.ratio(peer) >= times)


def within(milliseconds):
    return Target(shown(milliseconds), lambda row, _: row.median() <= milliseconds)


def at_most(counter, limit, text):
    return Target(text, lambda row, _: row.counter(counter) <= limit)


def above_empty(milliseconds):
    return Target(f"{milliseconds} ms above the empty chart",
                  lambda row, all_rows: row.median() <= all_rows["emptyFrame"].median() + milliseconds)


def linear(other, growth):
    """The time grows no more than `growth`, which leaves a fifth for what every frame costs, allows."""
    return Target(f"linear: {growth} times {SIZES[other.split('/', 1)[1]]}",
                  lambda row, all_rows: row.median() <= 1.2 * growth * all_rows[other].median())


class Row(NamedTuple):
    name: str
    text: str
    peers: Tuple[str, ...] = ()
    targets: Tuple[Target, ...] = ()


def frames(kind, text, peers, targets=None):
    """The sizes of one kind of frame, with the peers of each."""
    return [Row(f"{kind}/{size}", f"{SIZES[size]}: {text}", names, (targets or {}).get(size, ()))
            for size, names in peers.items()]


def rows():
    """Peers that take minutes are left out where a smaller size says the same."""
    return [
        Row("emptyFrame", "empty chart", (QCP,)),
        *frames("firstFrame", "new data to painted frame",
                {"500/200": (QCP,), "5000/200": (QCP,), "5000/1000": (QCP, PYTHON), "50000/200": ()},
                {"5000/1000": (faster(QCP, 1),)}),
        *frames("steadyFrame", "steady frame",
                {"500/200": (QCP, PYTHON), "5000/200": (QCP,), "5000/1000": (QCP, PYTHON)}),
        *frames("unchangedFrame", "unchanged frame", {"5000/1000": (QCP,)}, {"5000/1000": (above_empty(10),)}),
        *frames("zoomedFrame", "frame after a zoom",
                {"500/200": (QCP,), "5000/200": (QCP,), "5000/1000": (QCP, PYTHON), "50000/200": (QCP,)},
                {"5000/1000": (faster(QCP, 4),), "50000/200": (within(500), linear("zoomedFrame/5000/200", 10))}),
        *frames("selectedFrame", "frame after another tenth is selected",
                {"500/200": (QCP,), "5000/200": (QCP,), "5000/1000": (QCP, PYTHON), "50000/200": ()},
                {"5000/1000": (faster(QCP, 10),)}),
        *frames("steadyFrameOfSelection", "steady frame, a tenth selected",
                {"500/200": (QCP,), "5000/1000": (QCP,)}),
        Row("comparisonFrame/5000", "5,000 × 200, 30 parameters, style 6: steady frame", (QCP,)),
        Row("comparisonFrameOfSelection/5000", "the same with 500 runs selected", (QCP,)),
        Row("comparisonOfSelection/5000", "the same: selection to picture"),
        Row("releaseToPicture/5000", "the same with the picking among all rows: release to picture", (),
            (within(250),)),
        Row("selectionStages/5000", "the same in stages, after a rectangle over all rows"),
        Row("selectionStatistics/5000", "ranks, densities and tests of 30 parameters, 500 of 5,000 runs", (PYTHON,),
            (faster(PYTHON, 10),)),
        Row("brush/603000", "a brush over 603,000 rows: release to picture"),
        *[Row(f"allSelectedOfExample/{style}", f"all rows of the example study selected, style {style}")
          for style in (0, 3, 5, 6)],
        Row("parallelCoordinatesOfExample", "parallel coordinates of the example study"),
        Row("parallelCoordinatesOfRows/1000000", "parallel coordinates of 1,000,000 rows, coloured"),
        Row("peakMemory/5000", "peak memory of 5,000 × 200 × 32 columns, in tables of 256 MB", (),
            (at_most("tables", 2.5, "2.5 tables"),)),
        Row("exportPdf/500", "PDF of 500 × 200, 50 selected", (QCP,)),
        Row("exportPdf/5000", "PDF of 5,000 × 200, 500 selected", (QCP,),
            (within(3000), at_most("bytes", 5e6, "5 MB"))),
        Row("gallery", "gallery of the example study, PNG and PDF; the sizes are those of the PDF", (),
            (at_most("bytes", 20e6, "20 MB"), at_most("largest", 1.5e6, "each but xyPlot-series 1.5 MB"))),
        Row("importFile", "a CSV of 240 MB; the other side is pandas", (PYTHON,),
            (faster(PYTHON, 1), at_most("tables", 2.5, "2.5 tables"))),
        Row("start", "start to picture of a small table; the other side is pandas and matplotlib", (START,),
            (within(1000),)),
    ]


class Failed(Exception):
    pass


def run(command):
    try:
        ended = subprocess.run(command, capture_output=True, text=True, timeout=TIMEOUT, check=False)
    except subprocess.TimeoutExpired:
        raise Failed(f"> {TIMEOUT} s") from None
    if ended.returncode != 0:
        raise Failed(f"failed: {ended.stderr.strip().splitlines()[-1:] or ended.returncode}")
    return ended.stdout


def measure_program(program, name):
    """One process per measurement: (milliseconds, counters)."""
    text = run([str(BINARIES / program), f"--benchmark_filter=^{re.escape(name)}(/iterations:[0-9]+)?(/real_time)?$",
                "--benchmark_format=json"])
    result = json.loads(text)["benchmarks"][0]
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

    def once(self):
        if self.failure:
            return
        try:
            elapsed, counters = self.measure()
            self.times.append(elapsed)
            self.counters.append(counters)
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
        return self.failure or " ".join(filter(None, [shown(self.median), f"({details(self.medians)})"
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


HEADER = ["What", "Talmesh Plot", "QCustomPlot", "ratio", "Python", "ratio", "to be reached"]


def line(cells):
    return "| " + " | ".join(cells) + " |"


def machine():
    with open("/proc/cpuinfo", encoding="utf-8") as info:
        model = next((entry.split(":")[1].strip() for entry in info if entry.startswith("model name")), "unknown")
    system = platform.freedesktop_os_release()["PRETTY_NAME"]
    return f"{model}, {os.cpu_count()} cores, {system}, OpenGL in software (Mesa)"


def versions():
    packages = ["libvtk9-dev", "qtbase5-dev", "libgl1-mesa-dri", "libqcustomplot-dev", "python3-matplotlib",
                "python3-pandas", "python3-scipy"]
    found = subprocess.run(["dpkg-query", "-W", "-f=${Package} ${Version}\n", *packages], capture_output=True,
                           text=True, check=False)
    return ", ".join(found.stdout.split("\n")).strip(", ")


def summary(measured):
    """How many targets are reached, and which are not."""
    verdicts = [(row, target, row.verdict(target, measured)) for row in measured.values() for target in row.row.targets]
    reached = sum(verdict == "reached" for _, _, verdict in verdicts)
    text = f"{reached} of {len(verdicts)} targets are reached."
    for row, target, verdict in verdicts:
        if verdict != "reached":
            text += f"\n- {verdict}: {row.row.text}, {target.text}; {row.sides['ours'].text()}"
    return text


def document(measured, repetitions, commit):
    table = [line(row.cells(measured)) for row in measured.values()]
    return f"""# Performance

Written by `bench/run`: medians of {repetitions}, both sides in turn. A window of 800 × 600 pixels; sizes are runs ×
points. Ratios are the time of the other side over ours: above 1 we are faster. How to read and repeat this is in
[bench/README.md](../bench/README.md).

{datetime.date.today().isoformat()}, commit {commit}, on {machine()}.
{versions()}.

{summary(measured)}

{line(HEADER)}
{line(["---"] * len(HEADER))}
""" + "\n".join(table) + "\n"


def parsed():
    parser = argparse.ArgumentParser(prog="bench/run", description="Measures Talmesh Plot beside other libraries.")
    parser.add_argument("--only", metavar="REGEX", default="", help="only rows with such a name, see --list")
    parser.add_argument("--quick", action="store_true", help="one go per row; writes no document")
    parser.add_argument("--repetitions", type=int, default=5, help="gos per row, 5 by default")
    parser.add_argument("--list", action="store_true", help="print the names of the rows")
    parser.add_argument("--output", type=Path, help="where the table goes, docs/performance.md by default for all rows")
    return parser.parse_args()


def main():
    options = parsed()
    chosen = [row for row in rows() if re.search(options.only, row.name)]
    if options.list:
        print("\n".join(row.name for row in chosen))
        return
    if not chosen or options.repetitions < 1:
        sys.exit(f"bench/run: no row is called {options.only}" if not chosen else "bench/run: at least one repetition")
    repetitions = 1 if options.quick else options.repetitions
    print(line(HEADER), line(["---"] * len(HEADER)), sep="\n", flush=True)
    measured = {}
    with tempfile.TemporaryDirectory(prefix="talmesh-bench-") as folder:
        bench = Bench(folder)
        for row in chosen:
            began = time.monotonic()
            measured[row.name] = Measured(bench, row).go(repetitions)
            print(line(measured[row.name].cells(measured)), flush=True)
            print(f"{row.name}: {time.monotonic() - began:.0f} s", file=sys.stderr, flush=True)
    if any(row.targets for row in chosen):
        print(summary(measured))
    complete = not options.quick and not options.only and repetitions >= 5
    output = options.output or (ROOT / "docs" / "performance.md" if complete else None)
    if output:
        commit = subprocess.run(["git", "-C", str(ROOT), "describe", "--always", "--dirty"], capture_output=True,
                                text=True, check=False).stdout.strip()
        output.write_text(document(measured, repetitions, commit or "unknown"), encoding="utf-8")
        print(f"Wrote {output}", file=sys.stderr)
    failed = [row.row.name for row in measured.values() if any(side.failure for side in row.sides.values())]
    if failed:
        sys.exit(f"bench/run: no number for {', '.join(failed)}")


if __name__ == "__main__":
    main()
