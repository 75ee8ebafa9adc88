#!/usr/bin/python3
"""Runs rows of measurements, ours and those of other libraries in turn, and prints them as one table.

Called by bench/run, which has built what is measured. See README.md.
"""

import argparse
import re
import subprocess
import sys
import tempfile
import time
from pathlib import Path

from report import HEADER, document, line, summary
from rows import rows
from sides import ROOT, Bench, Measured


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
