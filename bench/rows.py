"""The rows of the comparison and what they shall reach."""

from typing import Callable, Dict, NamedTuple, Tuple

from sides import PYTHON, QCP, START, Measured, shown

SIZES = {"500/200": "500 × 200", "5000/200": "5,000 × 200", "5000/1000": "5,000 × 1,000",
         "50000/200": "50,000 × 200", "16000": "5 × 16,000", "64000": "5 × 64,000"}


class Target(NamedTuple):
    """What a row shall reach: `reached` is given this row and all rows by name, and fails where one lacks a number."""

    text: str
    reached: Callable[[Measured, Dict[str, Measured]], bool]


def faster(peer, times):
    name = {QCP: "QCustomPlot", PYTHON: "Python"}[peer]
    text = f"no slower than {name}" if times == 1 else f"{times} times as fast as {name}"
    return Target(text, lambda row, _: row.ratio(peer) >= times)


def at_most_times(peer, times, name):
    text = f"at most {times} times the time of {name}"
    return Target(text, lambda row, _: row.ratio(peer) >= 1 / times)


def within(milliseconds):
    return Target(shown(milliseconds), lambda row, _: row.median() <= milliseconds)


def at_most(counter, limit, text):
    return Target(text, lambda row, _: row.counter(counter) <= limit)


def above_empty(milliseconds):
    return Target(f"{milliseconds} ms above the empty chart",
                  lambda row, all_rows: row.median() <= all_rows["emptyFrame"].median() + milliseconds)


def linear(other, growth):
    """The time grows no more than `growth`, which leaves a fifth for what every go costs, allows."""
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


def long_runs(kind, text):
    """Few runs of many points, four times as many in the second row."""
    short, long = f"{kind}/16000", f"{kind}/64000"
    return [Row(short, f"{SIZES['16000']}: {text}"),
            Row(long, f"{SIZES['64000']}: {text}", (), (linear(short, 4),))]


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
        Row("clusterRuns/5000/1000", "5,000 × 1,000 in five clusters by shape; the other side is R's kmeans", (PYTHON,),
            (at_most_times(PYTHON, 2, "R"),)),
        *long_runs("clusterLongRuns", "in two clusters by shape"),
        *long_runs("quartilesOfLongRuns", "quartiles"),
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
