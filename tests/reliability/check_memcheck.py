#!/usr/bin/env python3
"""Runs the command under valgrind's memcheck: no report, and nothing that is lost at the end.

    check_memcheck.py KYR SAMPLE...

Each sample is imported into every format, with the normalising step, a trace and a limit that ends it in the
middle, and what comes of it is loaded, drawn, compared and made a page of. What sanitizers cannot see is a
value that was never set; memcheck does. Ends with 77 where valgrind is not installed.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

REPORTED = 99  # the exit code of a run with a report
TIMEOUT = 600
# The program brings an allocator of its own, which is to be replaced like that of the C library.
VALGRIND = ["valgrind", "--quiet", f"--error-exitcode={REPORTED}", "--leak-check=full",
            "--errors-for-leak-kinds=definite,possible", "--show-leak-kinds=definite,possible", "--num-callers=30",
            "--trace-children=no", "--child-silent-after-fork=yes", "--soname-synonyms=somalloc=*jemalloc*"]


def commands_for(sample):
    """The runs of one sample, in a folder of its own."""
    return [["import", sample, "-o", "model.json", "--trace", "trace.json", "--timing"],
            ["import", sample, "-o", "model.sqlite"],
            ["import", sample, "-o", "model.sqlite", "--append"],
            ["import", sample, "-o", "model.sql"],
            ["import", sample, "-o", "normal.json", "--normalize=all"],
            ["import", sample, "-o", "none.json", "--max-depth", "3"],
            ["inspect", sample, "--objects"],
            ["normalize", sample, "-o", "normal.xmi"],
            ["diff", "model.json", "normal.json"],
            ["diagram", "model.json"],
            ["report", "model.json"]]


def run(kyr, words, folder, findings):
    """One run; a report of memcheck, or an end by a signal, is a finding."""
    process = subprocess.run([*VALGRIND, kyr, *map(str, words)], cwd=folder, stdin=subprocess.DEVNULL,
                             stdout=subprocess.PIPE, stderr=subprocess.PIPE, timeout=TIMEOUT, check=False)
    errors = process.stderr.decode(errors="replace")
    if process.returncode == REPORTED or process.returncode < 0 or re.search("^==[0-9]+==", errors, re.MULTILINE):
        findings.append(f"{' '.join(map(str, words))}: ended with {process.returncode}\n{errors}")


def main(arguments):
    if shutil.which("valgrind") is None:
        print("valgrind is not installed")
        return 77
    kyr = os.path.abspath(arguments[1])
    findings = []
    runs = 0
    for sample in map(os.path.abspath, arguments[2:]):
        with tempfile.TemporaryDirectory(prefix="kyr-memcheck-") as folder:
            for words in commands_for(sample):
                run(kyr, words, folder, findings)
                runs += 1
        print(f"{pathlib.Path(sample).name}: {len(findings)} reports so far", flush=True)
    print(f"{runs} runs, {len(findings)} with a report")
    for finding in findings:
        print(f"FOUND: {finding}")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
