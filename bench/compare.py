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

ROOT = Path(__file__).resolve().parent.parent
# Another build than that of bench/run, to try the rows.
BINARIES = Path(os.environ.get("TALMESH_BENCH_BIN", ROOT / "build" / "release" / "bin"))
PEERS = ROOT / "bench" / "peers.py"
TIMEOUT = 600  # seconds, of one measurement
CSV_BYTES = 240_000_000

FRAMES = [("500/200", "500 × 200"), ("5000/200", "5,000 × 200"), ("5000/1000", "5,000 × 1,000"),
          ("50000/200", "50,000 × 200")]
KINDS = [
    ("firstFrame", "new data to painted frame", "no slower than QCustomPlot"),
    ("steadyFrame", "steady frame", ""),
    ("unchangedFrame", "unchanged frame", "5,000 × 1,000: at most 10 ms above the empty chart"),
    ("zoomedFrame", "frame after a zoom", "5,000 × 1,000: 4 times as fast as QCustomPlot; 50,000 × 200: 500 ms"),
    ("selectedFrame", "frame after another tenth is selected", "5,000 × 1,000: 10 times as fast as QCustomPlot"),
    ("steadyFrameOfSelection", "steady frame, a tenth selected", ""),
]


def rows():
    """(name of the benchmark, what it is, peers, what shall be reached) of each row.

    A peer is "qcustomplot", "python" or, for the start of a whole program, "start".
    """
    found = [("emptyFrame", "empty chart", ("qcustomplot",), "")]
    for kind, text, reach in KINDS:
        for size, shown in FRAMES:
            # A collection of 10 million points takes matplotlib a minute.
            peers = ("qcustomplot",) if size == "50000/200" else ("qcustomplot", "python")
            found.append((f"{kind}/{size}", f"{shown}: {text}", peers, reach))
    return found + [
        ("comparisonFrame/5000", "5,000 × 200, 30 parameters, style 6: steady frame", ("qcustomplot",), ""),
        ("comparisonFrameOfSelection/5000", "the same with 500 runs selected", ("qcustomplot",), ""),
        ("comparisonOfSelection/5000", "the same: selection to picture", (), "250 ms"),
        ("selectionStatistics/5000", "ranks, densities and tests of 30 parameters, 500 of 5,000 runs", ("python",),
         "10 times as fast as SciPy"),
        ("brush/603000", "a brush over 603,000 rows: release to picture", (), ""),
        ("parallelCoordinatesOfExample", "parallel coordinates of the example study", (), ""),
        ("peakMemory/5000", "peak memory of 5,000 × 200 × 32 columns, in tables of 262 MB", (), "2.5 tables"),
        ("exportPdf/500", "PDF of 500 × 200, 50 selected", ("qcustomplot",), ""),
        ("exportPdf/5000", "PDF of 5,000 × 200, 500 selected", ("qcustomplot",), "3 s, 5 MB"),
        ("gallery", "gallery of the example study, all PDF", (), "20 MB"),
        ("importFile", "a CSV of 240 MB; the other side is pandas", ("python",), "no slower than pandas"),
        ("start", "start to picture of a small table; the other side is pandas and matplotlib", ("start",), "1 s"),
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
    return result["real_time"], {key: result[key] for key in ("bytes", "tables") if key in result}


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
            sizes = [file.stat().st_size for file in target.glob("*.pdf")]
            return elapsed, {"bytes": sum(sizes), "largest": max(sizes)}
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
        return milliseconds_of([sys.executable, "-c", script, str(table), str(self.folder / "b.png")]), {}

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
        parts.append(f"{counters['bytes'] / 1e6:.1f} MB")
    if "largest" in counters:
        parts.append(f"largest {counters['largest'] / 1e6:.1f} MB")
    return ", ".join(parts)


class Side:
    """Repeated measurements of one row by one side."""

    def __init__(self, measure):
        self.measure = measure
        self.times = []
        self.counters = {}
        self.failure = ""

    def once(self):
        if self.failure:
            return
        try:
            elapsed, self.counters = self.measure()
            self.times.append(elapsed)
        except (Failed, KeyError, IndexError, ValueError) as problem:
            self.failure = str(problem)

    @property
    def median(self):
        return statistics.median(self.times) if self.times and not self.failure else None

    def text(self):
        return self.failure or " ".join(filter(None, [shown(self.median), f"({details(self.counters)})"
                                                      if self.counters else ""]))


def compare(bench, row, repetitions):
    name, text, peers, reach = row
    sides = {"ours": Side(lambda: bench.ours(name))}
    for peer in peers:
        sides[peer] = Side(lambda peer=peer: bench.peer(peer, name))
    for _ in range(repetitions):
        for side in sides.values():
            side.once()

    def ratio(peer):
        side = sides.get(peer)
        if not side or not side.median or not sides["ours"].median:
            return ""
        times = side.median / sides["ours"].median
        return f"{times:.2f}" if times < 10 else f"{times:.0f}"

    other = "start" if "start" in sides else "python"
    return [text, sides["ours"].text(), sides["qcustomplot"].text() if "qcustomplot" in sides else "",
            ratio("qcustomplot"), sides[other].text() if other in sides else "", ratio(other), reach]


HEADER = ["What", "Talmesh Plot", "QCustomPlot", "ratio", "Python", "ratio", "to be reached"]


def line(cells):
    return "| " + " | ".join(cells) + " |"


def machine():
    with open("/proc/cpuinfo", encoding="utf-8") as info:
        model = next((entry.split(":")[1].strip() for entry in info if entry.startswith("model name")), "unknown")
    system = platform.freedesktop_os_release()["PRETTY_NAME"]
    return f"{model}, {os.cpu_count()} cores, {system}, OpenGL in software (Mesa)"


def versions():
    packages = ["libqcustomplot-dev", "python3-matplotlib", "python3-pandas", "python3-scipy", "libvtk9-dev"]
    found = subprocess.run(["dpkg-query", "-W", "-f=${Package} ${Version}\n", *packages], capture_output=True,
                           text=True, check=False)
    return ", ".join(found.stdout.split("\n")).strip(", ")


def document(table, repetitions, commit):
    return f"""# Performance

Written by `bench/run`: medians of {repetitions}, both sides in turn. A window of 800 × 600 pixels; sizes are runs × points.
Ratios are the time of the other side over ours: above 1 we are faster. How to read and repeat this is in
[bench/README.md](../bench/README.md).

{datetime.date.today().isoformat()}, commit {commit}, on {machine()}.
{versions()}.

{line(HEADER)}
{line(["---"] * len(HEADER))}
""" + "\n".join(line(cells) for cells in table) + "\n"


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
    chosen = [row for row in rows() if re.search(options.only, row[0])]
    if options.list:
        print("\n".join(row[0] for row in chosen))
        return
    repetitions = 1 if options.quick else options.repetitions
    print(line(HEADER), line(["---"] * len(HEADER)), sep="\n", flush=True)
    table = []
    with tempfile.TemporaryDirectory(prefix="talmesh-bench-") as folder:
        bench = Bench(folder)
        for row in chosen:
            table.append(compare(bench, row, repetitions))
            print(line(table[-1]), flush=True)
    complete = not options.quick and not options.only and repetitions >= 5
    output = options.output or (ROOT / "docs" / "performance.md" if complete else None)
    if output:
        commit = subprocess.run(["git", "-C", str(ROOT), "describe", "--always", "--dirty"], capture_output=True,
                                text=True, check=False).stdout.strip()
        output.write_text(document(table, repetitions, commit or "unknown"), encoding="utf-8")
        print(f"Wrote {output}", file=sys.stderr)


if __name__ == "__main__":
    main()
