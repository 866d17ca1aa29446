#!/usr/bin/env python3
"""Makes the manual pages and completions and uses them.

    check_manual.py KYR SOURCE_FOLDER

Every option that `kyr COMMAND --help` tells of is in the page and in each completion; man has nothing to say
against the pages; bash completes commands, options, values and files by them. zsh and fish check the syntax of
theirs where they are installed.
"""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

OPTION = re.compile(r"(?<![\w-])--[a-z][a-z-]*")


def run(*command, **options):
    return subprocess.run(list(map(str, command)), stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                          check=False, **options)


def commands_of(kyr):
    text = run(kyr, "--help").stdout
    return re.findall(r"^  ([a-z]+) ", text.split("\nCommands:\n")[1].split("\n\n")[0], re.MULTILINE)


def options_of(kyr, command):
    """The option of each line of the list of options."""
    lines = run(kyr, command, "--help").stdout.split("\nOptions:\n")[1].split("\n\n")[0].splitlines()
    return [OPTION.search(line).group() for line in lines if line.startswith("  -")]


def complete(script, *words):
    """What bash offers for the last of those words."""
    array = " ".join(f"'{word}'" for word in words)
    result = run("bash", "-c", f'source "{script}"; COMP_WORDS=({array}); COMP_CWORD={len(words) - 1}; _kyr; '
                               'printf "%s\\n" "${COMPREPLY[@]}"', cwd=script.parent)
    return result.stdout.split() if not result.stderr else [result.stderr]


def problems_of(kyr, folder):
    commands = commands_of(kyr)
    yield from check_texts(kyr, folder, commands)
    script = folder / "bash" / "kyr"
    for words, expected in ((("kyr", "im"), ["import"]), (("kyr", "import", "--tra"), ["--trace"]),
                            (("kyr", "import", "--format", "sql"), ["sqlite", "sql"]),
                            (("kyr", "report", "--layout", ""), ["auto", "graphviz", "simple"]),
                            (("kyr", "inspect", "ky"), ["kyr"]), (("kyr", ""), [*commands, "--help", "--version"])):
        if complete(script, *words) != expected:
            yield f"bash completes {words} to {complete(script, *words)}"
    for shell, path in (("zsh", "zsh/_kyr"), ("fish", "fish/kyr.fish")):
        if shutil.which(shell) is None:
            print(f"skipped: {shell} is not installed")
        elif run(shell, "-n", folder / path).returncode != 0:
            yield f"{shell} refuses {path}: {run(shell, '-n', folder / path).stderr}"


def check_texts(kyr, folder, commands):
    pages = sorted(path.name for path in (folder / "man1").iterdir())
    if pages != sorted(["kyr.1", *(f"kyr-{command}.1" for command in commands)]):
        yield f"other pages than expected: {pages}"
    completions = {shell: (folder / path).read_text(encoding="utf-8")
                   for shell, path in (("bash", "bash/kyr"), ("zsh", "zsh/_kyr"), ("fish", "fish/kyr.fish"))}
    for command in commands:
        page = (folder / "man1" / f"kyr-{command}.1").read_text(encoding="utf-8").replace("\\-", "-")
        for option in options_of(kyr, command):
            if f"\\fB{option}\\fR" not in page:
                yield f"the page of {command} does not tell of {option}"
            for shell, text in completions.items():
                if not re.search(rf"(?<![\w-])({option}|-l {option[2:]})(?![\w-])", text):
                    yield f"{shell} does not complete {option}"
    if shutil.which("man") is None:
        print("skipped: man is not installed")
        return
    for page in pages:
        result = run("man", "--warnings", "-E", "UTF-8", "-l", folder / "man1" / page, env={"MANWIDTH": "100", "PATH": "/usr/bin:/bin"})
        if result.returncode != 0 or "warning" in result.stderr:
            yield f"man says of {page}: {result.stderr}"


def main(kyr, source):
    with tempfile.TemporaryDirectory() as folder:
        made = run(sys.executable, "-B", pathlib.Path(source) / "scripts" / "make_manual.py", kyr, folder)
        problems = list(problems_of(kyr, pathlib.Path(folder))) if made.returncode == 0 else [made.stderr]
    print("".join(f"{problem}\n" for problem in problems), end="")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
