#!/usr/bin/env python3
"""Checks that the documentation hangs together.

    check_links.py SOURCE_FOLDER

No page is empty, every link leads to a file that is there, and every page of docs/ is named in README.md.
"""

import pathlib
import re
import sys

LINK = re.compile(r"\]\(([^)#\s]+)(?:#[^)]*)?\)")


def problems(source):
    pages = [source / "README.md", source / "CHANGELOG.md", *sorted(source.glob("docs/*.md")), *sorted(source.glob("*/README.md"))]
    for page in pages:
        text = page.read_text(encoding="utf-8")
        if len(text.split()) < 10:
            yield f"{page.relative_to(source)} is empty"
        for target in LINK.findall(text):
            if "://" not in target and not (page.parent / target).exists():
                yield f"{page.relative_to(source)} leads to {target}, which is not there"
    overview = (source / "README.md").read_text(encoding="utf-8")
    for page in sorted(source.glob("docs/*.md")):
        if f"docs/{page.name}" not in overview:
            yield f"README.md does not name docs/{page.name}"


def main(source):
    found = list(problems(pathlib.Path(source)))
    print("\n".join(found))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
