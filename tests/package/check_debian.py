#!/usr/bin/env python3
"""Builds the Debian packages of a build folder, and installs them with dpkg below a root of their own.

The installed `kyr` imports a sample, the development package has what find_package(kyr) needs, the soname of
the library has its version, every file belongs to one package, and when all are removed nothing is left.

    check_debian.py CPACK BUILD_FOLDER SOURCE_FOLDER OUTPUT_FOLDER
"""

import os
import pathlib
import subprocess
import sys
import tempfile

PACKAGES = ("libkyr10", "kyr-plugin-uml2xmi", "kyr", "libkyr-dev")


def run(*command):
    result = subprocess.run(list(map(str, command)), stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                            check=False)
    if result.returncode != 0:
        sys.exit(f"{' '.join(map(str, command))}\n{result.stdout}\nended with {result.returncode}")
    return result.stdout


def expect(condition, message):
    if not condition:
        sys.exit(message)


def files_below(folder):
    return sorted(path.relative_to(folder).as_posix() for path in folder.rglob("*") if not path.is_dir())


def build(cpack, build_folder, output):
    """The package files by name of package."""
    output.mkdir(parents=True, exist_ok=True)
    for old in output.glob("*.deb"):
        old.unlink()
    run(cpack, "--config", build_folder / "CPackConfig.cmake", "-B", output)
    found = {run("dpkg-deb", "-f", path, "Package").strip(): path for path in output.glob("*.deb")}
    expect(sorted(found) == sorted(PACKAGES), f"other packages than expected: {sorted(found)}")
    return found


def check_contents(found):
    owners = {}
    for name, path in found.items():
        for line in run("dpkg-deb", "-c", path).splitlines():
            entry = line.split(maxsplit=5)[5].split(" -> ")[0]
            if not entry.endswith("/"):
                expect(entry not in owners, f"{entry} is in {name} and in {owners.get(entry)}")
                owners[entry] = name
    depends = run("dpkg-deb", "-f", found["kyr"], "Depends")
    expect("libkyr10 (=" in depends and "kyr-plugin-uml2xmi (=" in depends, f"kyr depends on {depends}")
    expect("libexpat1" in run("dpkg-deb", "-f", found["libkyr10"], "Depends"), "libkyr10 does not need expat")


def check_installed(root, source):
    usr = root / "usr"
    library = usr / "lib" / "libkyr.so.10"
    expect("libkyr.so.10" in run("readelf", "-d", library), "the library has no soname with its version")
    saved = root / "plain.json"
    output = run(usr / "bin" / "kyr", "import", source / "samples" / "plain.xmi", "-o", saved)
    expect("classes 6" in output, f"the installed kyr says {output}")
    saved.unlink()
    for part in ("lib/libkyr.so", "lib/cmake/kyr/kyrConfig.cmake", "include/kyr/foundation/KYRString.h",
                 "lib/kyr/libKYROmgUml2XmiImport.so", "share/doc/kyr/guide.md",
                 "share/man/man1/kyr-import.1", "share/bash-completion/completions/kyr",
                 "share/doc/kyr/examples/host/list_classes.cpp"):
        expect((usr / part).exists(), f"{part} is not installed")


def main(cpack, build_folder, source, output):
    found = build(cpack, pathlib.Path(build_folder), pathlib.Path(output).resolve())
    check_contents(found)
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder)
        state = root / "var" / "lib" / "dpkg"
        for part in ("info", "updates", "triggers"):
            (state / part).mkdir(parents=True)
        (state / "status").touch()
        as_root = [] if os.getuid() == 0 else ["fakeroot"]
        dpkg = [*as_root, "dpkg", f"--root={root}", "--force-script-chrootless", "--force-depends", "--log=/dev/null"]
        run(*dpkg, "--install", *(found[name] for name in PACKAGES))
        check_installed(root, pathlib.Path(source).resolve())
        run(*dpkg, "--purge", *reversed(PACKAGES))
        usr = root / "usr"
        left = files_below(usr) if usr.exists() else []
        expect(not left, f"left behind: {left}")
    for name in PACKAGES:
        print(f"{found[name].name}: {found[name].stat().st_size} bytes")


if __name__ == "__main__":
    main(*sys.argv[1:])
