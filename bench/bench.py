#!/usr/bin/env python3
"""Measures what vqconfig costs, beside other generators and beside the least that any generator could do.

Prints figures with the target that each should meet. CPU time (user and system) is counted, never elapsed time; every
figure is the median of several runs, and the programs that are compared take turns. Growth and cost per byte are
counted without what it takes to start an empty program with the same libraries.

The exit status tells whether the programs worked and wrote what they should, not whether targets were met.
"""

import argparse
import hashlib
import math
import os
import shutil
import statistics
import subprocess
import sys
import tempfile
from dataclasses import dataclass, field
from pathlib import Path

SIZES = {  # families, widgets, resources of each widget
    "small": (1, 25, 30),
    "medium": (20, 1000, 20),
    "large": (200, 20000, 20),
    "huge": (1000, 100000, 20),
}
ORDERS = ("sorted", "reversed", "shuffled")
SHAPES = {  # resources of each widget: few where it is the list of widgets that should be felt
    "one-family": 4, "all-shared": 4, "family-per-widget": 4, "headers": 20, "code-headers": 20, "config-headers": 20,
    "enumerations": 20, "enum-entries": 20, "aliases": 20, "converters": 20, "popups": 20, "pages": 20, "resources": 20,
}
COUNTS = (10000, 50000, 250000)
JUDGED_COUNT = 50000  # from here on a shape is long enough for its cost per byte to be compared

LEAST_OVER_PEERS = {"medium": 3.5, "large": 7.0}
MOST_GROWTH = 1.10
MOST_PER_BYTE = 2.0  # times the cost of a byte of the plain large document
MOST_MEMORY = 2.5  # bytes for each byte of input
MOST_SMALL = 1.0  # times the quickest peer
MOST_SMALL_BEFORE = 0.5  # times an earlier build
MOST_READING_WHOLE = 1.5  # times plain reading
MOST_CHECKING = 1.5  # times reading and generating
MOST_CHECKING_MEMORY = 4.0  # bytes for each byte of input
READING_ROUNDS = 15

START_ROUNDS = 101
PEER_ROUNDS = {"small": START_ROUNDS, "medium": 9, "large": 3}
PEERS = {  # name: language of the description, its file's ending, command
    "wayland-scanner private-code": ("wayland", ".xml", ["wayland-scanner", "private-code", "{input}", "{out}/b.c"]),
    "wayland-scanner client-header": ("wayland", ".xml", ["wayland-scanner", "client-header", "{input}", "{out}/b.h"]),
    "wayland-scanner server-header": ("wayland", ".xml", ["wayland-scanner", "server-header", "{input}", "{out}/b.h"]),
    "thrift --gen cpp": ("thrift", ".thrift", ["thrift", "-out", "{out}", "--gen", "cpp", "{input}"]),
    "thrift --gen c_glib": ("thrift", ".thrift", ["thrift", "-out", "{out}", "--gen", "c_glib", "{input}"]),
    "flatc --cpp": ("flatbuffers", ".fbs", ["flatc", "--cpp", "-o", "{out}", "{input}"]),
    "uil": ("uil", ".uil", ["uil", "-o", "{out}/b.uid", "{input}"]),
}


@dataclass
class Job:
    """A program to run on an input, and what its runs have taken. What it writes goes to a folder of its own."""

    name: str
    command: list
    out: Path
    read: int  # bytes
    rounds: int
    cpu: list = field(default_factory=list)  # seconds
    peak: int = 0  # bytes
    written: int = 0  # bytes
    status: int = 0

    @property
    def seconds(self):
        return statistics.median(self.cpu)

    @property
    def bytes(self):
        return self.read + self.written

    @property
    def throughput(self):
        return self.bytes / self.seconds


@dataclass
class Measured:
    """One document in every order of its definitions, and what was measured beside it."""

    name: str
    orders: dict  # order: job
    same_files: bool
    floor: Job = None
    peers: list = field(default_factory=list)

    @property
    def jobs(self):
        return [*self.orders.values(), *([self.floor] if self.floor else [])]

    @property
    def worked(self):
        return not any(job.status for job in self.jobs)


def file_lengths(folder):
    return {path.name: path.stat().st_size for path in sorted(folder.iterdir())}


def digests(folder):
    """What the files in a folder hold, to be compared with another folder's."""
    return [hashlib.sha256(path.read_bytes()).digest() for path in sorted(folder.iterdir())]


class Bench:
    """Makes documents, runs programs on them in a folder of its own, and knows what an empty program takes."""

    def __init__(self, options, folder):
        self.tools = options.tools.resolve()
        self.vqconfig = str(options.vqconfig.resolve())
        self.vqc = str(options.vqconfig.resolve().with_name("vqc"))
        self.folder = Path(folder)
        self.environment = {name: value for name, value in os.environ.items() if name != "DISPLAY"}
        self.empty = self.job("empty", Path(os.devnull), [str(options.empty.resolve())], START_ROUNDS)
        self.before = options.before and str(options.before.resolve())

    def job(self, name, source, command, rounds):
        """A job whose command may say {out} for its folder and {input} for what it reads."""
        out = self.folder / "out" / name.replace(" ", "_")
        filled = [word.format(out=out, input=source) for word in command]
        return Job(name, filled, out, source.stat().st_size, rounds)

    def tool_job(self, name, document, rounds, program=None):
        files = ["-C", "{out}/config.c", "-c", "{out}/code.c", "-s", "{out}/stubs.c"]
        return self.job(name, document, [program or self.vqconfig, *files, "{input}"], rounds)

    def floor_job(self, document, lengths, rounds):
        """The floor writes files as long as the generated ones."""
        files = [word for name, length in lengths.items() for word in ("{out}/" + name, str(length))]
        return self.job("floor", document, [str(self.tools / "floor"), "{input}", *files], rounds)

    def make(self, tool, name, options):
        path = self.folder / name
        words = [word for option, value in options.items() for word in ("--" + option, str(value))]
        subprocess.run([self.tools / tool, *words, "--output", path], check=True)
        return path

    def run(self, job):
        """One run, in an empty folder."""
        shutil.rmtree(job.out, ignore_errors=True)
        job.out.mkdir(parents=True)
        result = self.folder / "result"
        subprocess.run([self.tools / "measure", result, *job.command], cwd=job.out, env=self.environment, check=True,
                       stderr=subprocess.DEVNULL)
        status, seconds, kilobytes = result.read_text().split()
        job.status = int(status)
        job.cpu.append(float(seconds))
        job.peak = max(job.peak, int(kilobytes) * 1024)
        job.written = sum(file_lengths(job.out).values())

    def take_turns(self, jobs):
        """Runs all jobs a round at a time, so that a busy moment of the machine hits all of them alike."""
        for turn in range(max(job.rounds for job in jobs)):
            for job in jobs:
                if turn < job.rounds and not job.status:
                    self.run(job)

    def discard(self, paths):
        """Removes inputs and outputs: those of a huge document are large."""
        for path in paths:
            path.unlink()
        shutil.rmtree(self.folder / "out", ignore_errors=True)

    def net(self, job):
        return max(job.seconds - self.empty.seconds, 1e-6)

    def per_byte(self, job):
        return self.net(job) / job.bytes

    def memory(self, job):
        return max(job.peak - self.empty.peak, 0) / job.read

    def growth(self, less, more):
        """The exponent with which cost grows: 1 when twice the bytes cost twice as much."""
        return math.log(self.net(more) / self.net(less)) / math.log(more.bytes / less.bytes)


# Measuring.


def plain(size):
    families, widgets, resources = SIZES[size]
    return {"families": families, "widgets": widgets, "resources": resources}


def rounds_for(job):
    """Enough rounds for a steady median without taking all day: about two seconds of CPU time."""
    return int(min(25, max(5, 2.0 / max(job.cpu[0], 1e-3))))


def peer_jobs(bench, size):
    """Every installed peer, on the same widgets described in its own language; with the descriptions' paths."""
    jobs, inputs = [], {}
    for name, (language, ending, command) in PEERS.items():
        if shutil.which(command[0]) is None:
            continue
        if language not in inputs:
            options = {"language": language, **plain(size)}
            del options["families"]
            inputs[language] = bench.make("make_peers", size + ending, options)
        jobs.append(bench.job(name, inputs[language], command, rounds=PEER_ROUNDS[size]))
    return jobs, list(inputs.values())


def measure(bench, name, options, beside_floor=False, beside_peers=False):
    """A document in every order, beside the floor and the peers when asked for."""
    documents = [bench.make("make_document", f"{name}-{order}.vqc", {"order": order, **options}) for order in ORDERS]
    probe = bench.tool_job("probe", documents[0], rounds=1)
    bench.run(probe)
    rounds = rounds_for(probe)
    orders = {order: bench.tool_job(order, document, rounds) for order, document in zip(ORDERS, documents)}
    floor = bench.floor_job(documents[0], file_lengths(probe.out), rounds) if beside_floor else None
    peers, inputs = peer_jobs(bench, name) if beside_peers else ([], [])
    measured = Measured(name, orders, False, floor, peers)
    bench.take_turns([*measured.jobs, *peers])
    contents = [digests(job.out) for job in orders.values()]
    measured.same_files = all(content == contents[0] for content in contents)
    bench.discard([*documents, *inputs])
    return measured


# Reporting.


class Report:
    """Prints figures with their targets; counts the targets missed and the runs that went wrong."""

    def __init__(self):
        self.missed = 0
        self.wrong = 0

    def heading(self, text):
        print(f"\n{text}\n{'-' * len(text)}", flush=True)

    def figure(self, what, figure, relation, target):
        good = figure <= target if relation == "at most" else figure >= target
        self.missed += not good
        print(f"  {what:<64} {figure:7.2f}   {relation:<8} {target:.2f}   {'ok' if good else 'MISSED'}", flush=True)

    def worked(self, measured):
        """Whether a document was read and written as it should in every order; says so if not."""
        for job in measured.jobs:
            if job.status:
                print(f"  {measured.name}, {job.name}: FAILED with status {job.status}", flush=True)
        if measured.worked and not measured.same_files:
            print(f"  {measured.name}: the orders DIFFER in the files generated", flush=True)
        self.wrong += not (measured.worked and measured.same_files)
        return measured.worked


def report_small(bench, report):
    """Measures the empty program as well, which the other parts need: it must come first."""
    report.heading("A small document: CPU milliseconds and peak megabytes of a run, from its start to its end")
    document = bench.make("make_document", "small.vqc", plain("small"))
    tool = bench.tool_job("vqconfig", document, START_ROUNDS)
    before = bench.tool_job("earlier vqconfig", document, START_ROUNDS, bench.before) if bench.before else None
    peers, inputs = peer_jobs(bench, "small")
    jobs = [bench.empty, tool, *([before] if before else []), *peers]
    bench.take_turns(jobs)
    for job in jobs:
        print(f"  {job.name:<36} {job.seconds * 1e3:8.2f} {job.peak / 1e6:8.1f}")
    report.wrong += bool(tool.status or bench.empty.status)
    if before:
        report.figure("small: CPU time, times that of the earlier build", tool.seconds / before.seconds, "at most",
                      MOST_SMALL_BEFORE)
    if survivors := [peer for peer in peers if not peer.status]:
        quickest = min(survivors, key=lambda peer: peer.seconds)
        report.figure(f"small: CPU time, times that of {quickest.name}", tool.seconds / quickest.seconds, "at most",
                      MOST_SMALL)
    bench.discard([document, *inputs])


def report_throughput(report, measured):
    tool, size = measured.orders["sorted"], measured.name
    peers = [peer for peer in measured.peers if not peer.status]
    rows = [("vqconfig", tool), ("floor", measured.floor), *((peer.name, peer) for peer in peers)]
    print(f"  {size:<38} {'in MB':>8} {'out MB':>8} {'CPU s':>9} {'MB/s':>8} {'peak MB':>8}")
    for name, job in rows:
        print(f"    {name:<36} {job.read / 1e6:8.2f} {job.written / 1e6:8.2f} {job.seconds:9.4f} "
              f"{job.throughput / 1e6:8.1f} {job.peak / 1e6:8.1f}")
    for peer in measured.peers:
        if peer.status:
            print(f"    {peer.name:<36} {peer.read / 1e6:8.2f} did not survive (status {peer.status})")
    report_ratios(report, size, tool, measured.floor, peers)


def report_ratios(report, size, tool, floor, peers):
    if peers:
        fastest = max(peers, key=lambda peer: peer.throughput)
        report.figure(f"{size}: throughput, times that of {fastest.name}", tool.throughput / fastest.throughput,
                      "at least", LEAST_OVER_PEERS[size])
    print(f"  {size + ': CPU time, times that of the floor':<64} {tool.seconds / floor.seconds:7.2f}")


def report_sizes(bench, report, sizes):
    """The plain documents beside peers and floor; returns what was measured of those that worked, by size."""
    report.heading("Throughput: megabytes of input and output per second of CPU time (definitions sorted)")
    for command in sorted({command[0] for _, _, command in PEERS.values()}):
        if shutil.which(command) is None:
            print(f"  {command} is not installed")
    result = {}
    for size in sizes:
        measured = measure(bench, size, plain(size), beside_floor=True, beside_peers=size in LEAST_OVER_PEERS)
        if report.worked(measured):
            report_throughput(report, measured)
            result[size] = measured
    return result


def report_reading(bench, report, sizes):
    report.heading("Reading alone: plainly, and so that all faults are found and where everything stands")
    for size in sizes:
        document = bench.make("make_document", f"{size}.vqc", plain(size))
        ways = {way: bench.job(way, document, [str(bench.tools / "read"), way, "{input}"], READING_ROUNDS)
                for way in ("plain", "whole")}
        bench.take_turns(list(ways.values()))
        for way, job in ways.items():
            report.wrong += bool(job.status)
            print(f"  {size + ', ' + way:<36} {job.seconds * 1e3:8.2f} ms {job.peak / 1e6:8.1f} MB")
        report.figure(f"{size}: CPU time, times that of plain reading", ways["whole"].seconds / ways["plain"].seconds,
                      "at most", MOST_READING_WHOLE)
        bench.discard([document])


def report_checking(bench, report, sizes):
    report.heading("Checking, beside reading and generating")
    for size in sizes:
        document = bench.make("make_document", f"{size}.vqc", plain(size))
        generating = bench.tool_job("vqconfig", document, READING_ROUNDS)
        checking = bench.job("vqc check", document, [bench.vqc, "check", "{input}"], READING_ROUNDS)
        bench.take_turns([generating, checking])
        report.wrong += bool(generating.status or checking.status)
        report.figure(f"{size}: CPU time, times that of reading and generating", checking.seconds / generating.seconds,
                      "at most", MOST_CHECKING)
        report.figure(f"{size}: memory for each byte", bench.memory(checking), "at most", MOST_CHECKING_MEMORY)
        bench.discard([document])


def report_growth(bench, report, by_size):
    report.heading("Growth and memory of the plain documents, in every order of definitions")
    sizes = list(by_size)
    for order in ORDERS:
        jobs = {size: by_size[size].orders[order] for size in sizes}
        for less, more in zip(sizes, sizes[1:]):
            report.figure(f"{order}: growth from {less} to {more}", bench.growth(jobs[less], jobs[more]), "at most",
                          MOST_GROWTH)
        for size, job in jobs.items():
            report.figure(f"{order}: memory for each byte of the {size} document", bench.memory(job), "at most",
                          MOST_MEMORY)


def shape_row(bench, report, shape, order, jobs, plain_large):
    """One row of the table of shapes: cost per byte at each count, growth between them, memory."""
    counts = list(jobs)
    judged = [job for count, job in jobs.items() if count >= JUDGED_COUNT]
    growth = [bench.growth(jobs[less], jobs[more]) for less, more in zip(counts, counts[1:])]
    ratio = max(bench.per_byte(job) for job in judged) / bench.per_byte(plain_large)
    memory = max(bench.memory(job) for job in judged)
    misses = [what for what, missed in (("growth", max(growth) > MOST_GROWTH), ("per byte", ratio > MOST_PER_BYTE),
                                        ("memory", memory > MOST_MEMORY)) if missed]
    costs = "".join(f"{bench.per_byte(job) * 1e9:9.2f}" for job in jobs.values())
    exponents = "".join(f"{exponent:8.2f}" for exponent in growth)
    report.missed += len(misses)
    verdict = "MISSED " + ", ".join(misses) if misses else "ok"
    print(f"  {shape:<18} {order:<9}{costs}{exponents}{ratio:8.2f}{memory:8.2f}   {verdict}", flush=True)


def report_shapes(bench, report, counts, large):
    report.heading("Shapes: one kind of list with many elements")
    print(f"  Targets: growth at most {MOST_GROWTH:.2f}. From a count of {JUDGED_COUNT}, a byte costs at most "
          f"{MOST_PER_BYTE:.2f} times what one of the\n  plain large document costs (x plain), and takes at most "
          f"{MOST_MEMORY:.2f} bytes of memory.")
    costs = "".join(f"{count:>9}" for count in counts)
    exponents = "".join(f"{'growth':>8}" for _ in counts[1:])
    print(f"  {'ns per byte, with a count of':<28}{costs}{exponents}{'x plain':>8}{'memory':>8}")
    for shape, resources in SHAPES.items():
        options = {"shape": shape, "resources": resources}
        by_count = {count: measure(bench, f"{shape} {count}", {**options, "count": count}) for count in counts}
        if all([report.worked(measured) for measured in by_count.values()]):
            for order in ORDERS:
                jobs = {count: measured.orders[order] for count, measured in by_count.items()}
                shape_row(bench, report, shape, order, jobs, large.orders[order])


def parse_options():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--vqconfig", type=Path, required=True, help="the program to measure")
    parser.add_argument("--tools", type=Path, required=True,
                        help="folder with make_document, make_peers, floor, measure, read and empty")
    parser.add_argument("--empty", type=Path, help="an empty program with vqconfig's libraries, if not in that folder")
    parser.add_argument("--before", type=Path, help="an earlier build of vqconfig, to compare the small document with")
    parser.add_argument("--quick", action="store_true", help="leave out the huge document and the longest lists")
    parser.add_argument("--temp", help="where to make the temporary folder, which needs about 3 GB")
    options = parser.parse_args()
    options.empty = options.empty or options.tools / "empty"
    return options


def main():
    options = parse_options()
    report = Report()
    with tempfile.TemporaryDirectory(prefix="vqconfig-bench-", dir=options.temp) as folder:
        bench = Bench(options, folder)
        report_small(bench, report)
        by_size = report_sizes(bench, report, ("medium", "large") if options.quick else ("medium", "large", "huge"))
        report_reading(bench, report, ("medium", "large"))
        report_checking(bench, report, ("medium", "large"))
        report_growth(bench, report, by_size)
        if "large" in by_size:
            report_shapes(bench, report, COUNTS[:2] if options.quick else COUNTS, by_size["large"])
    print(f"\n{report.missed} targets missed, {report.wrong} documents not treated as they should be.")
    print(f"The load was {os.getloadavg()[1]:.1f} on {os.cpu_count()} processors: beyond 1, other work disturbed.")
    return 1 if report.wrong else 0


if __name__ == "__main__":
    sys.exit(main())
