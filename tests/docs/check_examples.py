#!/usr/bin/env python3
"""Runs the examples of the docs and compares what they print with what the docs show.

An example is a block marked ```console: lines that begin with "$ " are commands, the lines below one are
what it prints on either output. A command goes on over lines as long as a double quote is open. A line "..." stands for any number of lines. Seconds may differ. The
commands run with `kyr` on the path, in a folder that holds nothing but the samples.

    check_examples.py KYR SOURCE_FOLDER FILE...
"""

import os
import re
import shutil
import subprocess
import sys
import tempfile

BLOCK = re.compile(r"^```console\n(.*?)^```$", re.MULTILINE | re.DOTALL)
SECONDS = re.compile(r"\b\d+\.\d+ s\b")


def examples(text):
    """Pairs of a command and the lines that it is said to print."""
    for block in BLOCK.findall(text):
        command, lines = None, []
        for line in block.splitlines():
            if line.startswith("$ "):
                if command is not None:
                    yield command, lines
                command, lines = line[2:], []
            elif command is not None and command.count('"') % 2:
                command += "\n" + line
            else:
                lines.append(line)
        if command is not None:
            yield command, lines


def matches(expected, printed):
    """Whether the printed lines are the expected ones, "..." standing for any of them."""
    pattern = "".join(r"(?:.*\n)*?" if line == "..." else re.escape(line) + "\n" for line in expected)
    return re.fullmatch(pattern, "".join(line + "\n" for line in printed)) is not None


def main(kyr, source, *documents):
    failures = count = 0
    environment = dict(os.environ, PATH=os.path.dirname(kyr) + os.pathsep + os.environ["PATH"])
    for document in documents:
        with open(os.path.join(source, document), encoding="utf-8") as file:
            text = file.read()
        with tempfile.TemporaryDirectory() as folder:
            shutil.copytree(os.path.join(source, "samples"), os.path.join(folder, "samples"))
            for command, expected in examples(text):
                count += 1
                result = subprocess.run(
                    ["bash", "-c", command], cwd=folder, env=environment, text=True, check=False,
                    stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
                shown = [SECONDS.sub("0.00 s", line) for line in expected]
                printed = [SECONDS.sub("0.00 s", line) for line in result.stdout.splitlines()]
                if result.returncode != 0 or not matches(shown, printed):
                    failures += 1
                    print(f"{document}: `{command}` ended with {result.returncode} and printed")
                    print("".join(f"    {line}\n" for line in printed))
    print(f"{count} examples, {failures} failures")
    return 0 if count and not failures else 1


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
