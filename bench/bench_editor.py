#!/usr/bin/env python3
"""Measures what a user of the editor waits for: its start beside that of a Motif program with one label, and single
actions on documents of two sizes. Needs a display (make bench gives it one of its own).

Starts are means of many runs, since each takes but a few ticks of the system's clock, and the programs that are
compared take turns; actions are medians. The exit status tells whether the programs worked, not whether targets were
met.
"""

import argparse
import contextlib
import os
import re
import statistics
import subprocess
import tempfile
import time
from pathlib import Path

MOST_OVER_LABEL = {"nothing": 1.3, "1,000 widgets of 20": 3.0}  # documents, and times the label's cost
MOST_MILLISECONDS = 100
SIZES = {"tenth": (200, 2000, 200), "whole": (2000, 20000, 2000)}  # families, widgets, widgets of the largest family
LARGEST = "Benchmark"  # the name of that family


def make_document(tools, path, families, widgets, in_largest):
    """Writes a document, with a family of its own that has many of its widgets."""
    text = subprocess.run(
        [tools / "bench/make_document", "--families", str(families), "--widgets", str(widgets), "--resources", "20"],
        check=True, capture_output=True, text=True).stdout
    names = re.findall(r"^widget '([^']*)'", text, re.MULTILINE)[:in_largest]
    uses = "".join(f"\twidget='{name}'\n" for name in names)
    path.write_text(f"{text}family '{LARGEST}' {{\n{uses}}}\n")
    return path


@contextlib.contextmanager
def first_session():
    """The environment of a session that finds nothing that others have left, and leaves nothing to others."""
    with tempfile.TemporaryDirectory() as state:
        yield {**os.environ, "XDG_STATE_HOME": state}


def run(command):
    """CPU and elapsed seconds of a program."""
    with first_session() as environment:
        begin = time.perf_counter()
        process = subprocess.Popen(command, env=environment)
        _, status, usage = os.wait4(process.pid, 0)
        elapsed = time.perf_counter() - begin
    if status != 0:
        raise SystemExit(f"{command} ended with status {status}")
    return usage.ru_utime + usage.ru_stime, elapsed


def verdict(value, most):
    return f"at most {most:g}  {'ok' if value <= most else 'MISSED'}"


def report_start(tools, folder, rounds):
    thousand = make_document(tools, folder / "thousand.vqc", 20, 1000, 10)
    editor = [tools / "editor", "start"]
    programs = {"label": [tools / "bench/label"], "nothing": editor, "1,000 widgets of 20": [*editor, thousand]}
    taken = {name: [] for name in programs}
    for _ in range(rounds):
        for name, command in programs.items():
            taken[name].append(run(command))
    label = [statistics.mean(column) for column in zip(*taken["label"])]
    print("Start until the main window is mapped and filled, times what a Motif program with one label takes")
    for name, most in MOST_OVER_LABEL.items():
        for kind, column, base in zip(("CPU", "elapsed"), zip(*taken[name]), label):
            ratio = statistics.mean(column) / base
            print(f"  with {name}: {kind:<8} {ratio:5.2f}  {verdict(ratio, most)}")


def actions(tools, document, rounds):
    """Milliseconds of CPU time by action, and megabytes of memory."""
    taken = {}
    for _ in range(rounds):
        with first_session() as environment:
            command = [tools / "editor", "act", document, LARGEST]
            lines = subprocess.run(command, check=True, capture_output=True, text=True, env=environment)
        for line in lines.stdout.splitlines():
            action, milliseconds = line.split()
            taken.setdefault(action, []).append(float(milliseconds))
    return {action: statistics.median(values) for action, values in taken.items()}


def report_large_start(tools, folder, rounds):
    document = make_document(tools, folder / "large.vqc", *SIZES["whole"])
    cpu = statistics.median(run([tools / "editor", "start", document])[0] for _ in range(rounds))
    size = document.stat().st_size / 1e6
    print(f"\nStart with a document of {size:.0f} MB: {cpu:.2f} s of CPU time, nearly all of it for reading")


def report_actions(tools, folder, rounds):
    by_size = {
        size: actions(tools, make_document(tools, folder / f"{size}.vqc", *counts), rounds)
        for size, counts in SIZES.items()
    }
    families, widgets, in_largest = SIZES["whole"]
    print(f"\nActions with {families} families, {widgets} widgets and {in_largest} in one family,")
    print("in milliseconds of CPU time (beside it a tenth of all that)")
    for action, whole in by_size["whole"].items():
        name = action.replace("_", " ")
        tenth = by_size["tenth"][action]
        if action.startswith("memory"):
            print(f"  {name + ', MB':<22} {whole:7.0f}  ({tenth:.0f})")
            continue
        growth = "" if whole <= 10 * tenth else ", grows faster than the lists: MISSED"
        print(f"  {name:<22} {whole:7.2f}  ({tenth:.2f})  {verdict(whole, MOST_MILLISECONDS)}{growth}")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--tools", type=Path, required=True, help="the build folder")
    parser.add_argument("--rounds", type=int, default=41)
    options = parser.parse_args()
    with tempfile.TemporaryDirectory() as folder:
        report_start(options.tools, Path(folder), options.rounds)
        report_large_start(options.tools, Path(folder), 3)
        report_actions(options.tools, Path(folder), 3)


if __name__ == "__main__":
    main()
