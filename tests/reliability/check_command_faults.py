#!/usr/bin/env python3
"""Runs the command while its system calls and allocations fail, one after the other.

    check_command_faults.py KYR LIBRARY SAMPLE...

LIBRARY is what tests/support/fault_preload.cpp becomes. Each run ends with exit code 0 and a whole model, or
with 1, a message, the old file as it was and nothing beside it; never by a signal. Of the allocations a part
fails; with KYR_SOAK in the environment, all.
"""

import errno
import json
import os
import pathlib
import subprocess
import sys
import tempfile

FAULTS = [("open", errno.EIO), ("read", errno.EIO), ("write", errno.ENOSPC), ("write", errno.EIO),
          ("sync", errno.EIO), ("rename", errno.ENOSPC)]
OLD = b"what was there before"
NO_MEMORY = b"There is not enough memory\n"  # without a code: not even a message could be made
CASES = 60  # failing allocations of one file
TIMEOUT = 120
# In memory, where there is such a file system: what is saved is synced, and thousands of saves would wait for a disk.
FOLDER = "/dev/shm" if os.access("/dev/shm", os.W_OK | os.X_OK) else None


def is_model(content):
    try:
        return json.loads(content)["format"] == "kyr-store-model"
    except ValueError:
        return False


class Command:
    def __init__(self, kyr, library, sample, folder):
        self.kyr, self.library, self.folder = kyr, library, folder
        self.sample = os.path.abspath(sample)
        self.report = folder / "report"
        self.output = folder / "out" / "model.json"

    def run(self, fault):
        """Exit code, what it said, and whether the fault came."""
        self.output.parent.mkdir(exist_ok=True)
        for path in self.output.parent.iterdir():
            path.unlink()
        self.output.write_bytes(OLD)
        self.report.unlink(missing_ok=True)
        environment = dict(os.environ, LD_PRELOAD=self.library, KYR_FAULT=fault, KYR_FAULT_REPORT=str(self.report))
        process = subprocess.run([self.kyr, "import", self.sample, "-o", str(self.output)], env=environment,
                                 stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE,
                                 timeout=TIMEOUT, check=False)
        # A program that ends before its main function makes no report.
        has_failed = self.report.exists() or process.stderr == NO_MEMORY
        return process.returncode, process.stderr, has_failed

    def problem(self, code, errors, cannot_tell):
        """What is wrong with the way that a run ended; None when nothing is."""
        names = [path.name for path in self.output.parent.iterdir()]
        if names != [self.output.name]:
            return f"left {names}"
        content = self.output.read_bytes()
        if code == 0:
            return None if is_model(content) else "saved no model"
        if code != 1:
            return f"ended with {code}"
        if content != OLD:
            # Memory that is used up behind the import, by the summary, undoes no model.
            return None if is_model(content) and b"memory" in errors else "failed and changed the file"
        return None if errors or cannot_tell else "failed without a message"


def numbers_of(name):
    """The numbers of the calls to fail: all, or of allocations a part that thins out."""
    number = 0
    while True:
        yield number
        thinned = name == "memory" and "KYR_SOAK" not in os.environ
        number += 1 + (number // 12 if thinned and number >= CASES // 4 else 0)


def check(command, name, error, findings):
    survived = 0
    for extent in ("", ":all"):
        for number in numbers_of(name):
            fault = f"{name}:{number}:{error}{extent}"
            code, errors, has_failed = command.run(fault)
            problem = command.problem(code, errors, cannot_tell=fault.startswith("write:") and extent)
            # A log line that cannot be written is no failure of the import.
            if not has_failed and problem is None and code != 0:
                problem = f"failed for no reason: {errors.decode(errors='replace')}"
            if problem is not None:
                findings.append(f"{os.path.basename(command.sample)}, {fault}: {problem}")
            survived += has_failed
            was_killed = code < 0  # and could not report
            if not has_failed and not was_killed:
                break
    return survived


def main(arguments):
    kyr, library, *samples = arguments[1:]
    findings = []
    for sample in samples:
        counts = []
        with tempfile.TemporaryDirectory(prefix="kyr-faults-", dir=FOLDER) as folder:
            command = Command(os.path.abspath(kyr), os.path.abspath(library), sample, pathlib.Path(folder))
            for name, error in [*FAULTS, ("memory", 0)]:
                counts.append(f"{name} {check(command, name, error, findings)}")
        print(f"{os.path.basename(sample)}: faults: {', '.join(counts)}", flush=True)
    for finding in findings:
        print(f"FOUND: {finding}")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv))
