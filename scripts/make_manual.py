#!/usr/bin/env python3
"""Makes the manual pages and the completions of the shells from the help of the command itself.

    make_manual.py KYR FOLDER

FOLDER gets man1/kyr.1 and man1/kyr-COMMAND.1, bash/kyr, zsh/_kyr and fish/kyr.fish. The help of the command is
the only source: what an option means is written once, in the command.
"""

import pathlib
import re
import subprocess
import sys

ENTRY = re.compile(r"  (\S.*?)(?:\s{2,}(\S.*))?$")
MORE = re.compile(r"\s{20,}(\S.*)$")
CHOICES = re.compile(r" not in \{(.*)\}")
# What CLI11 adds to the name of an option that depends on others.
CONDITIONS = re.compile(r" (Excludes|Needs|REQUIRED):?.*$")
LISTS = ("Arguments", "Options", "Commands")
PLACES = ("PATH", "FOLDER")
SETS = ("FORMAT", "LAYOUT")  # what stands for one of a few values, which the command names when it refuses another


class Entry:
    """An option, argument or command: its names, what stands for its value, and the text."""

    def __init__(self, left, text):
        left = CONDITIONS.sub("", left)
        words = left.split(" ")
        self.optional_value = words[0].endswith("]") and "[=" in words[0]
        names, _, value = words[0].partition("[=")
        self.names = names.split(",")
        self.value = value.rstrip("]") if self.optional_value else " ".join(words[1:])
        self.text = text
        self.choices = []

    def is_option(self):
        return self.names[0].startswith("-")

    def takes_value(self):
        return bool(self.value) and not self.optional_value


class Page:
    """The help of the command or of one of its commands."""

    def __init__(self, text):
        head, _, rest = text.partition("\nUsage: ")
        self.summary, _, self.description = head.strip().partition("\n")
        self.usage, _, rest = rest.partition("\n")
        self.lists = {name: [] for name in LISTS}
        self.examples, self.remarks = [], []
        self._read(rest.splitlines())

    def _read(self, lines):
        place = None
        for line in lines:
            if line.rstrip(":") in LISTS:
                place = self.lists[line.rstrip(":")]
            elif line in ("Example:", "Examples:"):
                place = self.examples
            elif line and not line.startswith(" "):
                place = self.remarks
                place.append(line)
            elif line and (place is self.examples or place is self.remarks):
                place.append(line)
            elif place is self.remarks:
                place.append("")
            elif line and place is not None:
                more = MORE.match(line)
                if more and place:
                    place[-1].text = f"{place[-1].text} {more.group(1)}".strip()
                else:
                    place.append(Entry(*ENTRY.match(line).groups(default="")))

    def options(self):
        return self.lists["Options"]


def help_of(kyr, *command):
    result = subprocess.run([kyr, *command, "--help"], stdout=subprocess.PIPE, text=True, check=True)
    return Page(result.stdout)


def find_choices(kyr, command, entry):
    """The values that an option may have, as the command names them when it refuses one."""
    result = subprocess.run([kyr, command, "-", entry.names[-1], "?"], stdin=subprocess.DEVNULL,
                            stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)
    found = CHOICES.search(result.stderr)
    return found.group(1).split(",") if found else []


# Manual pages.

def roff(text):
    escaped = text.replace("\\", "\\e").replace("-", "\\-")
    return "\n".join("\\&" + line if line.startswith((".", "'")) else line for line in escaped.splitlines())


def term(entry):
    names = ", ".join(f"\\fB{roff(name)}\\fR" for name in entry.names)
    if entry.optional_value:
        return f"{names}[={roff(entry.value)}]"
    return f"{names} \\fI{roff(entry.value)}\\fR" if entry.value else names


def manual(name, version, page, others):
    title = name.upper().replace("-", "\\-")
    lines = [f'.TH {title} 1 "" "{version}" "User Commands"', ".SH NAME",
             f"{roff(name)} \\- {roff(page.summary.rstrip('.'))}", ".SH SYNOPSIS", ".B " + roff(page.usage)]
    if page.description.strip():
        lines += [".SH DESCRIPTION", roff(page.description.strip()).replace("\n\n", "\n.PP\n")]
    for heading in ("Commands", "Arguments", "Options"):
        if page.lists[heading]:
            lines.append(f".SH {heading.upper()}")
            for entry in page.lists[heading]:
                lines += [".TP", term(entry), roff(entry.text)]
    if page.examples:
        lines += [".SH EXAMPLES", ".nf", *(roff(line) for line in page.examples), ".fi"]
    if page.remarks:
        lines += [".SH NOTES", *(roff(line) or ".PP" for line in page.remarks)]
    lines += [".SH SEE ALSO", "\n".join(f".BR {roff(other)} (1)" for other in others)]
    return "\n".join(lines) + "\n"


# Completions.

def bash(pages):
    cases = []
    for command, page in pages.items():
        values = "".join(
            f'      {"|".join(entry.names)})\n'
            f'        COMPREPLY=($(compgen -W "{" ".join(entry.choices)}" -- "$current"))\n        return ;;\n'
            for entry in page.options() if entry.choices)
        words = " ".join(name for entry in page.options() for name in entry.names)
        cases.append(f"    {command})\n      case $previous in\n{values}      esac\n"
                     f'      words="{words}" ;;\n')
    return ("# Completion of kyr for bash.\n"
            "_kyr() {\n"
            '  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]} words=\n'
            "  if [ \"$COMP_CWORD\" -eq 1 ]; then\n"
            f'    COMPREPLY=($(compgen -W "{" ".join(pages)} --help --version" -- "$current"))\n'
            "    return\n  fi\n"
            "  case ${COMP_WORDS[1]} in\n" + "".join(cases) + "  esac\n"
            '  if [[ $current == -* ]]; then\n'
            '    COMPREPLY=($(compgen -W "$words" -- "$current"))\n'
            "  else\n    COMPREPLY=($(compgen -f -- \"$current\"))\n  fi\n}\n"
            "complete -o filenames -F _kyr kyr\n")


def first_sentence(text):
    return re.split(r"[.:;] ", text)[0].rstrip(".")


def short(entry):
    return ", ".join(entry.choices) if entry.choices else first_sentence(entry.text)


def zsh(pages):
    def text(value):
        return re.sub(r"([\[\]:])", r"\\\1", value).replace("'", "'\\''")

    cases = []
    for command, page in pages.items():
        lines = []
        for entry in page.options():
            places = "_files" if entry.value in PLACES else " "
            action = f"({' '.join(entry.choices)})" if entry.choices else places
            value = f":{entry.value.lower()}:{action}" if entry.takes_value() else ""
            lines += [f"'{name}[{text(short(entry))}]{value}'" for name in entry.names]
        cases.append(f"    {command})\n      _arguments \\\n        " + " \\\n        ".join([*lines, "'*:file:_files'"])
                     + " ;;\n")
    commands = " ".join(f"'{command}:{text(first_sentence(page.summary))}'" for command, page in pages.items())
    return ("#compdef kyr\n# Completion of kyr for zsh.\n"
            "_kyr() {\n  local -a commands\n"
            f"  commands=({commands})\n"
            "  if (( CURRENT == 2 )); then\n    _describe command commands\n    return\n  fi\n"
            "  case $words[2] in\n" + "".join(cases) + "  esac\n}\n_kyr \"$@\"\n")


def fish(pages):
    def text(value):
        return value.replace("\\", "\\\\").replace("'", "\\'")

    lines = ["# Completion of kyr for fish."]
    for command, page in pages.items():
        lines.append(f"complete -c kyr -n __fish_use_subcommand -f -a {command} -d '{text(first_sentence(page.summary))}'")
        for entry in page.options():
            names = " ".join(f"-s {name[1:]}" if len(name) == 2 else f"-l {name[2:]}" for name in entry.names)
            value = ""
            if entry.takes_value():
                value = f" -x -a '{' '.join(entry.choices)}'" if entry.choices else " -r"
            lines.append(f"complete -c kyr -n '__fish_seen_subcommand_from {command}' {names}{value}"
                         f" -d '{text(short(entry))}'")
    return "\n".join(lines) + "\n"


def write(path, text):
    path.parent.mkdir(parents=True, exist_ok=True)
    path.write_text(text, encoding="utf-8")


def main(kyr, target):
    folder = pathlib.Path(target)
    version = subprocess.run([kyr, "--version"], stdout=subprocess.PIPE, text=True, check=True).stdout.strip()
    whole = help_of(kyr)
    pages = {entry.names[0]: help_of(kyr, entry.names[0]) for entry in whole.lists["Commands"]}
    for command, page in pages.items():
        for entry in page.options():
            if entry.value in SETS:
                entry.choices = find_choices(kyr, command, entry)
    names = [f"kyr-{command}" for command in pages]
    write(folder / "man1" / "kyr.1", manual("kyr", version, whole, names))
    for name, page in zip(names, pages.values()):
        write(folder / "man1" / f"{name}.1", manual(name, version, page, ["kyr"]))
    write(folder / "bash" / "kyr", bash(pages))
    write(folder / "zsh" / "_kyr", zsh(pages))
    write(folder / "fish" / "kyr.fish", fish(pages))


if __name__ == "__main__":
    main(*sys.argv[1:])
