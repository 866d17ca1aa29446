#!/usr/bin/env python3
"""Runs the fuzzers one after the other and tells what they did.

    run_fuzzers.py BUILD [--seconds N] [--only NAME...] [--corpus FOLDER]

BUILD is the build folder of the preset `fuzz`. Each fuzzer starts from its seeds, its regressions and
the samples that fit it, and keeps what it learns in FOLDER (below BUILD by default). An input that broke
something is left in the folder `findings` beside the corpus, and the exit code is 1.
"""

import argparse
import os
import pathlib
import re
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
SAMPLES = ROOT / "samples"
MODELS = [SAMPLES, SAMPLES / "odd", ROOT / "tests/reliability/data"]
MEGABYTES = 2048
LONGEST_RUN = 300  # seconds for one input: a loop without end, and not a busy machine

# Name -> (folders whose files are seeds, largest input in bytes, whether the words of the tables help).
FUZZERS = {
    "xml": (MODELS, 16384, True),
    "import": (MODELS, 65536, True),
    "normalized": (MODELS, 65536, True),
    "href": ([], 512, False),
    "numbers": ([], 512, False),
    "types": ([], 256, True),
    "saved": ([ROOT / "tests/samples/golden", ROOT / "tests/repository/data"], 65536, False),
}


def fill_corpus(name, corpus):
    """Copies the seeds that fit into one folder."""
    folders, largest, _ = FUZZERS[name]
    seeds = corpus / "seeds"
    shutil.rmtree(seeds, ignore_errors=True)
    seeds.mkdir(parents=True)
    for folder in [*folders, ROOT / "fuzz/seeds" / name, ROOT / "fuzz/regressions" / name]:
        for path in sorted(folder.iterdir()) if folder.is_dir() else []:
            if path.is_file() and path.suffix not in (".md", ".svg", ".txt") and path.stat().st_size <= largest:
                shutil.copyfile(path, seeds / path.name)
    return seeds


def run(name, build, corpus, seconds):
    """The report of one fuzzer and whether it found nothing."""
    _, largest, has_words = FUZZERS[name]
    found = corpus / "findings" / name
    learned = corpus / name / "learned"
    for folder in (found, learned):
        folder.mkdir(parents=True, exist_ok=True)
    seeds = fill_corpus(name, corpus / name)
    command = [str(build / "fuzz" / f"fuzz_{name}"), f"-max_total_time={seconds}", f"-max_len={largest}",
               f"-rss_limit_mb={MEGABYTES}", f"-timeout={LONGEST_RUN}", f"-artifact_prefix={found}/",
               "-print_final_stats=1"]
    if has_words:
        command.append(f"-dict={build / 'fuzz' / 'kyr.dict'}")
    environment = dict(os.environ, UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1")
    log = corpus / name / "log.txt"
    with open(log, "wb") as output:
        code = subprocess.run([*command, str(learned), str(seeds)], stdout=output, stderr=subprocess.STDOUT,
                              env=environment, check=False).returncode
    text = log.read_text(errors="replace")
    executions = re.search(r"stat::number_of_executed_units:\s*(\d+)", text)
    coverage = re.findall(r"cov: (\d+)", text)
    counts = f"{executions.group(1) if executions else '?'} executions, {coverage[-1] if coverage else '?'} edges"
    print(f"{name}: {counts}, {'no finding' if code == 0 else f'FOUND something: {log}'}", flush=True)
    return code == 0


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--seconds", type=int, default=60)
    parser.add_argument("--only", nargs="*", choices=FUZZERS, default=list(FUZZERS))
    parser.add_argument("--corpus", type=pathlib.Path)
    arguments = parser.parse_args()
    build = arguments.build.resolve()
    corpus = (arguments.corpus or build / "corpus").resolve()
    results = [run(name, build, corpus, arguments.seconds) for name in arguments.only]
    return 0 if all(results) else 1


if __name__ == "__main__":
    sys.exit(main())
