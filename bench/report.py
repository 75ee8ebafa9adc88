"""The comparison as a document."""

import datetime
import os
import platform
import subprocess


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
