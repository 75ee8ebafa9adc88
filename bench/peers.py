#!/usr/bin/python3
"""Measures one row with pandas, SciPy, matplotlib or R: peers.py ROW, where ROW is a name of talmesh_bench.

Prints the milliseconds of one go, or what is not installed with status 77. The data are those of BenchRuns.h.
"""

import os
import shutil
import subprocess
import sys
import tempfile
import time
from pathlib import Path

import numpy as np

TIME_SPAN = 20.0
NOISE = 0.05
WINDOW = (800, 600)
DENSITY_LOCATIONS = 200
NOT_INSTALLED = 77


def fraction(run, number):
    """splitmix64, as in BenchRuns.h."""
    with np.errstate(over="ignore"):
        bits = (np.uint64(run) << np.uint64(32)) + number.astype(np.uint64) + np.uint64(0x9E3779B97F4A7C15)
        bits = (bits ^ (bits >> np.uint64(30))) * np.uint64(0xBF58476D1CE4E5B9)
        bits = (bits ^ (bits >> np.uint64(27))) * np.uint64(0x94D049BB133111EB)
        return ((bits ^ (bits >> np.uint64(31))) >> np.uint64(11)) / 9007199254740992.0


def parameters(runs, count):
    return np.array([fraction(run, np.arange(count)) for run in range(runs)])


def waves(runs, points):
    times = TIME_SPAN * np.arange(points) / points
    shape = parameters(runs, 3)
    noise = np.array([fraction(run, 1000 + np.arange(points)) for run in range(runs)])
    wave = (1 + shape[:, 1:2]) * np.sin((1 + 0.3 * shape[:, 0:1]) * times + 6 * shape[:, 2:3]) + NOISE * noise
    return times, wave


class Picture:
    """All runs as one collection of lines, which is matplotlib's fastest way."""

    def __init__(self, runs, points):
        import matplotlib

        matplotlib.use("Agg")
        from matplotlib import pyplot

        self.figure, self.axes = pyplot.subplots(figsize=(WINDOW[0] / 100, WINDOW[1] / 100), dpi=100)
        self.times, self.waves = waves(runs, points)
        self.axes.set_xlim(0, TIME_SPAN)
        self.axes.set_ylim(-2.1, 2.1)

    def show(self):
        from matplotlib.collections import LineCollection

        segments = np.empty(self.waves.shape + (2,))
        segments[:, :, 0] = self.times
        segments[:, :, 1] = self.waves
        self.axes.add_collection(LineCollection(segments, colors="black", linewidths=0.72), autolim=False)

    def select(self, choice):
        from matplotlib.collections import LineCollection

        chosen = self.waves[choice % 10 :: 10]
        segments = np.empty(chosen.shape + (2,))
        segments[:, :, 0] = self.times
        segments[:, :, 1] = chosen
        if len(self.axes.collections) > 1:
            self.axes.collections[-1].remove()
        self.axes.add_collection(LineCollection(segments, colors=[(1, 50 / 255, 0, 150 / 255)], linewidths=3.7 * 0.72),
                                 autolim=False)

    def zoom(self):
        self.axes.set_xlim(1, 19)
        self.axes.set_ylim(-1.8, 1.8)

    def paint(self):
        self.figure.canvas.draw()


def milliseconds(job):
    before = time.perf_counter()
    job()
    return 1000 * (time.perf_counter() - before)


def both(*jobs):
    def run():
        for job in jobs:
            job()

    return run


def frame(row, runs, points):
    picture = Picture(runs, points)
    if row == "firstFrame":
        return milliseconds(both(picture.show, picture.paint))
    picture.show()
    picture.paint()
    if row in ("selectedFrame", "steadyFrameOfSelection"):
        picture.select(0)
        picture.paint()
    if row == "selectedFrame":
        return milliseconds(both(lambda: picture.select(1), picture.paint))
    if row == "zoomedFrame":
        picture.zoom()
    return milliseconds(picture.paint)


def statistics(runs):
    """The tests and densities of 30 parameters of every tenth run and of the others."""
    from scipy.stats import gaussian_kde, ks_2samp

    values = parameters(runs, 30)
    chosen = np.arange(runs) % 10 == 0

    def compare():
        for column in values.T:
            for part in (column[chosen], column[~chosen]):
                gaussian_kde(part)(np.linspace(part.min(), part.max(), DENSITY_LOCATIONS))
            ks_2samp(column[chosen], column[~chosen])

    return milliseconds(compare)


def read_table():
    import pandas

    return milliseconds(lambda: pandas.read_csv(os.environ["TALMESH_BENCH_CSV"], engine="c"))


def clusters(runs, points):
    """k-means of the runs by R."""
    program = shutil.which("Rscript")
    if not program:
        print("R is not installed")
        sys.exit(NOT_INSTALLED)
    with tempfile.NamedTemporaryFile(suffix=".runs") as file:
        waves(runs, points)[1].tofile(file.name)
        script = Path(__file__).with_name("peers.R")
        ended = subprocess.run([program, str(script), file.name, str(runs), str(points)], stdout=subprocess.PIPE,
                               text=True, check=True)
    return float(ended.stdout)


def main():
    name, *numbers = sys.argv[1].split("/")
    sizes = [int(number) for number in numbers]
    if name == "selectionStatistics":
        print(statistics(sizes[0]))
    elif name == "importFile":
        print(read_table())
    elif name == "clusterRuns":
        print(clusters(*sizes))
    else:
        print(frame(name, *sizes))


if __name__ == "__main__":
    main()
