#!/usr/bin/env python3
"""Measures `kyr import` and prints one table.

Files of 1, 10 and 100 MB in three manners of writing are generated from a seed and imported. Beside each
import stands what raw expat with empty handlers needs for the same file: the ratio of the two is the
figure to watch, since it hardly depends on the machine. Peak memory is told as a multiple of the file's
size. The growth columns tell how often longer a file of ten times the bytes takes. Below stand files that
stress one thing each: they end in linear time or with a clear error.

A virtual machine may have handed free memory back to its host, and the first touch of such a page takes ten
times as long as of any other: what is measured then is the host. So memory is touched before every run.
"""

import argparse
import json
import mmap
import os
import subprocess
import sys
import tempfile
import time
from pathlib import Path

KINDS = ("plain", "ea", "magicdraw")
SIZES = (1, 10, 100)
MODIFICATION_TIME = "2026-01-01T00:00:00Z"

# (what it shows, arguments of the generator, which row it is ten times as much of)
SPECIAL = (
    ("10,000 classes in one package", ["--kind", "classes", "--count", "10000"], None),
    ("100,000 classes in one package", ["--kind", "classes", "--count", "100000"], "10,000 classes in one package"),
    ("10,000 classes of one name", ["--kind", "classes", "--count", "10000", "--same-name"], None),
    ("100,000 classes of one name", ["--kind", "classes", "--count", "100000", "--same-name"],
     "10,000 classes of one name"),
    ("1,000,000 classes of one name", ["--kind", "classes", "--count", "1000000", "--same-name"],
     "100,000 classes of one name"),
    ("1,000,000 classes in one package", ["--kind", "classes", "--count", "1000000"],
     "100,000 classes in one package"),
    ("10,000 links", ["--kind", "links", "--count", "10000"], None),
    ("100,000 links", ["--kind", "links", "--count", "100000"], "10,000 links"),
    ("1,000,000 links", ["--kind", "links", "--count", "1000000"], "100,000 links"),
    ("10,000 attributes, 500 types", ["--kind", "types", "--count", "10000", "--types", "500"], None),
    ("100,000 attributes, 5,000 types", ["--kind", "types", "--count", "100000", "--types", "5000"],
     "10,000 attributes, 500 types"),
    ("1,000,000 attributes, 50,000 types", ["--kind", "types", "--count", "1000000", "--types", "50000"],
     "100,000 attributes, 5,000 types"),
    ("50,000 uses of 1,000 literals", ["--kind", "enumeration", "--count", "50000", "--types", "1000"], None),
    ("500,000 uses of 10,000 literals", ["--kind", "enumeration", "--count", "500000", "--types", "10000"],
     "50,000 uses of 1,000 literals"),
    ("50,000 references to nothing", ["--kind", "unresolved", "--count", "50000"], None),
    ("500,000 references to nothing", ["--kind", "unresolved", "--count", "500000"], "50,000 references to nothing"),
    ("50,000 classes without ids", ["--kind", "no-ids", "--count", "50000"], None),
    ("500,000 classes without ids", ["--kind", "no-ids", "--count", "500000"], "50,000 classes without ids"),
    ("50,000 ids of one beginning", ["--kind", "prefixes", "--count", "25000"], None),
    ("500,000 ids of one beginning", ["--kind", "prefixes", "--count", "250000"], "50,000 ids of one beginning"),
    ("one class of 50,000 attributes", ["--kind", "one-class", "--count", "50000"], None),
    ("one class of 500,000 attributes", ["--kind", "one-class", "--count", "500000"],
     "one class of 50,000 attributes"),
    ("50,000 keys up to 500 deep", ["--kind", "deep-keys", "--count", "100"], None),
    ("500,000 keys up to 500 deep", ["--kind", "deep-keys", "--count", "1000"], "50,000 keys up to 500 deep"),
    ("1,000 diagrams", ["--kind", "diagrams", "--count", "1000"], None),
    ("10,000 diagrams", ["--kind", "diagrams", "--count", "10000"], "1,000 diagrams"),
    ("100 levels deep", ["--kind", "deep", "--depth", "100"], None),
    ("1,000 levels deep", ["--kind", "deep", "--depth", "1000"], "100 levels deep"),
    ("50,000 levels deep", ["--kind", "deep", "--depth", "50000"], None),
    ("an attribute of 6 MB", ["--kind", "attribute", "--size-mb", "6"], None),
    ("an attribute of 60 MB", ["--kind", "attribute", "--size-mb", "60"], "an attribute of 6 MB"),
    ("an attribute of 100 MB", ["--kind", "attribute", "--size-mb", "100"], None),
    ("an entity bomb", ["--kind", "bomb"], None),
)


def touch_memory(megabytes):
    """Has the system hold so much free memory ready. In a process of its own, which gives it back at once."""
    if megabytes <= 0:
        return
    child = os.fork()
    if child == 0:
        code = 1
        try:
            chunk = bytes(1 << 20)
            with mmap.mmap(-1, megabytes << 20) as memory:
                for _ in range(megabytes):
                    memory.write(chunk)
            code = 0
        finally:
            os._exit(code)
    if os.waitpid(child, 0)[1] != 0:
        print(f"{megabytes} MB of memory could not be touched", file=sys.stderr)


class Run:
    """How one command ended: exit code, seconds on the wall or of the processor, peak memory in bytes,
    what it said on stderr."""

    def __init__(self, command, cpu=False):
        with tempfile.TemporaryFile() as errors:
            started = time.perf_counter()
            process = subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=errors)
            _, status, usage = os.wait4(process.pid, 0)
            self.seconds = time.perf_counter() - started
            process.returncode = os.waitstatus_to_exitcode(status)
            errors.seek(0)
            self.stderr = errors.read().decode("utf-8", "replace")
        if cpu:
            self.seconds = usage.ru_utime + usage.ru_stime
        self.code = process.returncode
        self.peak = usage.ru_maxrss * 1024


class Bench:
    def __init__(self, arguments, folder):
        build = Path(arguments.build)
        self.kyr = arguments.kyr or str(build / "bin" / "kyr")
        self.generator = arguments.generator or str(build / "bench" / "kyr-generate")
        self.baseline = arguments.baseline or str(build / "bench" / "kyr-expat-baseline")
        self.import_only = str(build / "bench" / "kyr-import-only")
        self.plugin = str(build / "lib" / "kyr" / "libKYROmgUml2XmiImport.so")
        self.folder = Path(folder)
        # A child's peak starts at what this interpreter had when it forked.
        self.floor = Run(["true"]).peak
        self.repeat = arguments.repeat
        self.seed = str(arguments.seed)
        self.cpu = arguments.cpu
        self.touched = arguments.touch

    def generate(self, options):
        path = self.folder / "input.xmi"
        subprocess.run([self.generator, *options, "--seed", self.seed, "-o", str(path)], check=True)
        return path

    def expat_seconds(self, path):
        """The best of some runs; None when expat refuses the file."""
        best = None
        for _ in range(self.repeat):
            touch_memory(self.touched)
            result = subprocess.run([self.baseline, str(path)], capture_output=True, text=True, check=False)
            if result.returncode != 0:
                return None
            wall = float(result.stdout)
            seconds = Run([self.baseline, str(path)], cpu=True).seconds if self.cpu else wall
            best = seconds if best is None else min(best, seconds)
        return best

    def peak_text(self, run, unit, digits):
        """The peak in some unit, marked as an upper bound where the floor hides it."""
        mark = "<" if run.peak <= self.floor * 1.02 else ""
        return f"{mark}{run.peak / unit:.{digits}f}"

    def import_run(self, path, output="output.json"):
        """The best of some imports; one that fails is not repeated."""
        target = self.folder / output
        return self.best_of([self.kyr, "import", str(path), "-o", str(target),
                             "--modification-time", MODIFICATION_TIME, "--quiet"], target)

    def import_only_run(self, path):
        """An import that saves nothing."""
        return self.best_of([self.import_only, self.plugin, str(path)])

    def inspect_run(self, path):
        return self.best_of([self.kyr, "inspect", "--quick", str(path)])

    def phases(self, path):
        """Seconds of processor time by phase, of one import."""
        touch_memory(self.touched)
        result = subprocess.run([self.kyr, "import", str(path), "-o", str(self.folder / "output.json"), "--timing",
                                 "--log-format", "json"], capture_output=True, text=True, check=True)
        return json.loads(result.stdout)["phases"]

    def best_of(self, command, target=None):
        """`target` is not there when the command begins: taking an old one away is no part of an import."""
        best = None
        for _ in range(self.repeat):
            if target is not None:
                target.unlink(missing_ok=True)
            touch_memory(self.touched)
            run = Run(command, self.cpu)
            if run.code != 0:
                return run
            if best is None or run.seconds < best.seconds:
                best = run
        return best


def print_row(cells, widths):
    first, *rest = cells
    print(f"{first:<{widths[0]}}" + "".join(f"  {cell:>{width}}" for cell, width in zip(rest, widths[1:])),
          flush=True)


def error_of(run):
    """The message of a failed import, on one line."""
    lines = [line.strip() for line in run.stderr.splitlines() if line.strip()]
    return f"exit {run.code}: " + (lines[-1] if lines else "no message")


def bench_sizes(bench, kinds, sizes):
    """The table of kinds and sizes, and where the time goes; the number of failed imports."""
    heads = ("file", "MB", "expat s", "import s", "ratio", "MB/s", "peak/size", "growth expat", "growth import",
             "sqlite s", "ratio", "unsaved s", "ratio", "inspect s", "ratio")
    widths = (12, 7, 8, 8, 6, 7, 9, 12, 13, 8, 6, 9, 6, 9, 6)
    print_row(heads, widths)
    failed = 0
    phases = []
    for kind in kinds:
        before = None
        for size in sizes:
            path = bench.generate(["--kind", kind, "--size-mb", str(size)])
            megabytes = path.stat().st_size / 1e6
            expat, run = bench.expat_seconds(path), bench.import_run(path)
            if run.code != 0 or expat is None:
                failed += 1
                print_row((kind, f"{megabytes:.1f}", "-" if expat is None else f"{expat:.3f}"), widths)
                print("    " + (error_of(run) if run.code != 0 else "expat refuses the file"))
                before = None
                continue
            growth = ("", "")
            if before:
                # Of ten times the size, however far the two files are from it exactly.
                factor = (megabytes / before[0]) / 10
                growth = (f"{expat / before[1] / factor:.1f}", f"{run.seconds / before[2] / factor:.1f}")
            others = []
            for other in (bench.import_run(path, "output.sqlite"), bench.import_only_run(path),
                          bench.inspect_run(path)):
                others += [f"{other.seconds:.3f}", f"{other.seconds / expat:.2f}"]
            print_row((kind, f"{megabytes:.1f}", f"{expat:.3f}", f"{run.seconds:.3f}",
                       f"{run.seconds / expat:.2f}", f"{megabytes / run.seconds:.1f}",
                       bench.peak_text(run, megabytes * 1e6, 2), *(growth or ("", "")), *others), widths)
            before = (megabytes, expat, run.seconds)
            phases.append((kind, megabytes, bench.phases(path)))
    if phases:
        print("\nprocessor seconds by phase; tokenising runs beside the making of objects")
        names = list(phases[0][2])
        widths = (12, 7) + tuple(max(8, len(name)) for name in names)
        print_row(("file", "MB", *names), widths)
        for kind, megabytes, times in phases:
            print_row((kind, f"{megabytes:.1f}", *(f"{times[name]:.3f}" for name in names)), widths)
    return failed


def bench_special(bench):
    widths = (34, 7, 8, 8, 6, 9, 13, 13)
    print()
    heads = ("special file", "MB", "expat s", "import s", "ratio", "peak MB", "growth import", "growth memory")
    print_row(heads, widths)
    before = {}
    for title, options, tenth in SPECIAL:
        path = bench.generate(options)
        expat, run = bench.expat_seconds(path), bench.import_run(path)
        megabytes = path.stat().st_size / 1e6
        before[title] = (megabytes, run.seconds, run.peak)
        growth = ("", "")
        if tenth and run.code == 0:
            factor = megabytes / before[tenth][0] / 10  # of ten times the bytes, as above
            growth = tuple(f"{now / then / factor:.1f}" for now, then in
                           zip((run.seconds, run.peak), before[tenth][1:]))
        print_row((title, f"{megabytes:.1f}", "-" if expat is None else f"{expat:.3f}",
                   f"{run.seconds:.3f}",
                   f"{run.seconds / expat:.2f}" if expat and run.code == 0 else "-",
                   bench.peak_text(run, 1e6, 0), *growth), widths)
        if run.code != 0:
            print("    " + error_of(run))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build", nargs="?", default="build/release", help="build folder (default: %(default)s)")
    parser.add_argument("--kyr", help="the kyr command (default: BUILD/bin/kyr)")
    parser.add_argument("--generator", help="default: BUILD/bench/kyr-generate")
    parser.add_argument("--baseline", help="default: BUILD/bench/kyr-expat-baseline")
    parser.add_argument("--kinds", nargs="+", choices=KINDS, default=KINDS)
    parser.add_argument("--sizes", nargs="+", type=int, default=SIZES, metavar="MB", help="default: 1 10 100")
    parser.add_argument("--repeat", type=int, default=3, help="the best of so many runs counts (default: 3)")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--cpu", action="store_true",
                        help="seconds of the processor instead of the wall, for a machine that is busy")
    parser.add_argument("--touch", type=int, default=2500, metavar="MB",
                        help="memory that is touched before each run (default: %(default)s)")
    parser.add_argument("--no-special", action="store_true", help="leave out the special files")
    arguments = parser.parse_args()
    with tempfile.TemporaryDirectory(prefix="kyr-bench-") as folder:
        bench = Bench(arguments, folder)
        missing = [path for path in (bench.kyr, bench.generator, bench.baseline) if not os.access(path, os.X_OK)]
        if missing:
            print("not built: " + ", ".join(missing), file=sys.stderr)
            return 2
        failed = bench_sizes(bench, arguments.kinds, arguments.sizes)
        if not arguments.no_special:
            bench_special(bench)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
