#!/usr/bin/env python3
"""Builds the Debian packages of a build folder, and installs them with dpkg below a root of their own.

Every file belongs to one package, to root, and is writable for root alone; packages need each other in their own
version and of the system what their binaries are linked with. The installed `kyr` imports a sample and knows no
folder of the build, the development package has what find_package(kyr) needs, the soname of the library has its
version, and when all are removed nothing is left. With that root as the only one, and what the binaries need of the
system, every command runs. Ends with 77 where the tools of Debian are missing.

    check_debian.py CPACK BUILD_FOLDER SOURCE_FOLDER OUTPUT_FOLDER
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile

PACKAGES = ("libkyr10", "kyr-plugin-uml2xmi", "kyr", "libkyr-dev")
# What each needs: of these packages in its own version, and of the system.
NEEDS = {
    "libkyr10": ((), ("libc6", "libexpat1", "libsqlite3-0", "libstdc++6")),
    "kyr-plugin-uml2xmi": (("libkyr10",), ("libc6", "libstdc++6")),
    "kyr": (("libkyr10", "kyr-plugin-uml2xmi"), ("libc6", "libjemalloc2", "libstdc++6")),
    "libkyr-dev": (("libkyr10",), ()),
}
TOOLS = ("dpkg", "dpkg-deb", "dpkg-shlibdeps", "file", "readelf", "strip")
SKIPPED = 77


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
            mode, owner, *_, entry = line.split(maxsplit=5)
            expect(owner == "root/root", f"{entry} in {name} belongs to {owner}")
            expect(mode[0] == "l" or mode[5] + mode[8] == "--", f"{entry} in {name} is {mode}")
            entry = entry.split(" -> ")[0]
            if not entry.endswith("/"):
                expect(entry not in owners, f"{entry} is in {name} and in {owners.get(entry)}")
                owners[entry] = name


def check_dependencies(found):
    version = run("dpkg-deb", "-f", found["kyr"], "Version").strip()
    for name, (own, system) in NEEDS.items():
        depends = run("dpkg-deb", "-f", found[name], "Depends").strip()
        exact = {f"{other} (= {version})" for other in own}
        others = {re.sub(r" \(.*", "", part) for part in set(depends.split(", ")) - exact if part}
        expect(exact <= set(depends.split(", ")), f"{name} depends on {depends}")
        expect(others >= set(system) and not others & set(PACKAGES), f"{name} depends on {depends}")
        expect(system or not others, f"{name} depends on {depends}")
    suggests = run("dpkg-deb", "-f", found["kyr"], "Suggests").strip()
    expect(suggests == "graphviz", f"kyr suggests {suggests}")


def check_installed(root, source):
    usr = root / "usr"
    library = usr / "lib" / "libkyr.so.10"
    expect("libkyr.so.10" in run("readelf", "-d", library), "the library has no soname with its version")
    for binary in (library, usr / "bin" / "kyr", usr / "lib" / "kyr" / "libKYROmgUml2XmiImport.so"):
        paths = re.findall(r"R(?:UN)?PATH.*\[(.*)\]", run("readelf", "-d", binary))
        expect(all(part.startswith("$ORIGIN") for path in paths for part in path.split(":")),
               f"{binary} looks for libraries in {paths}")
    saved = root / "plain.json"
    output = run(usr / "bin" / "kyr", "import", source / "samples" / "plain.xmi", "-o", saved)
    expect("classes 6" in output, f"the installed kyr says {output}")
    saved.unlink()
    for part in ("lib/libkyr.so", "lib/cmake/kyr/kyrConfig.cmake", "include/kyr/foundation/KYRString.h",
                 "lib/kyr/libKYROmgUml2XmiImport.so", "share/doc/kyr/guide.md",
                 "share/man/man1/kyr-import.1", "share/bash-completion/completions/kyr",
                 "share/doc/kyr/examples/host/list_classes.cpp"):
        expect((usr / part).exists(), f"{part} is not installed")


def check_chroot(root, source):
    """The same with that root as the only one: nothing is there but the packages and what their binaries need."""
    change = ["chroot"] if os.getuid() == 0 else ["unshare", "--map-root-user", "chroot"]
    binaries = [root / "usr" / part for part in ("bin/kyr", "lib/libkyr.so.10", "lib/kyr/libKYROmgUml2XmiImport.so")]
    needed = {path for binary in binaries for path in re.findall(r"(/\S+) \(0x", run("ldd", binary))}
    copies = [(pathlib.Path(path), root / path.lstrip("/")) for path in needed if not path.startswith(str(root))]
    copies.append((source / "samples" / "plain.xmi", root / "plain.xmi"))
    for path, copy in copies:
        copy.parent.mkdir(parents=True, exist_ok=True)
        shutil.copy(path, copy)
    trial = subprocess.run([*change, root, "/usr/bin/kyr", "--version"], capture_output=True, text=True, check=False)
    if "not permitted" in trial.stderr or "not found" in trial.stderr:
        print(f"not tried with a root of its own: {trial.stderr.strip()}")
    else:
        for command, wanted in ((["import", "plain.xmi", "-o", "a.json"], "classes 6"),
                                (["import", "plain.xmi", "-o", "a.sqlite"], "classes 6"),
                                (["inspect", "plain.xmi"], "UMLProperty"), (["info", "--json"], "KBI_UML2XMI"),
                                (["report", "a.json"], "Wrote 'a.html'"), (["diff", "a.json", "a.json"], "equal")):
            output = run(*change, root, "/usr/bin/kyr", *command)
            expect(wanted in output, f"kyr {command[0]} in a root of its own says {output}")
    for _, copy in copies:
        copy.unlink()


def main(cpack, build_folder, source, output):
    as_root = [] if os.getuid() == 0 else ["fakeroot"]
    missing = [tool for tool in (*TOOLS, *as_root) if shutil.which(tool) is None]
    if missing:
        print(f"skipped: not installed: {', '.join(missing)}; scripts/install-deps.sh packages installs them")
        sys.exit(SKIPPED)
    found = build(cpack, pathlib.Path(build_folder), pathlib.Path(output).resolve())
    check_contents(found)
    check_dependencies(found)
    with tempfile.TemporaryDirectory() as folder:
        root = pathlib.Path(folder)
        state = root / "var" / "lib" / "dpkg"
        for part in ("info", "updates", "triggers"):
            (state / part).mkdir(parents=True)
        (state / "status").touch()
        dpkg = [*as_root, "dpkg", f"--root={root}", "--force-script-chrootless", "--force-depends", "--log=/dev/null"]
        run(*dpkg, "--install", *(found[name] for name in PACKAGES))
        check_installed(root, pathlib.Path(source).resolve())
        check_chroot(root, pathlib.Path(source).resolve())
        run(*dpkg, "--purge", *reversed(PACKAGES))
        usr = root / "usr"
        left = files_below(usr) if usr.exists() else []
        expect(not left, f"left behind: {left}")
    for name in PACKAGES:
        print(f"{found[name].name}: {found[name].stat().st_size} bytes")


if __name__ == "__main__":
    main(*sys.argv[1:])
