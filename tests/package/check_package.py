#!/usr/bin/env python3
"""Installs a build below a fresh prefix and uses it as a stranger would.

The installed `kyr` imports a sample with the installed plug-in, also after the whole tree has been
moved; a small program finds the package by find_package(kyr), loads the saved model and saves it
again with the same bytes; and the example of a host is built and run in the same way.

    check_package.py CMAKE BUILD_FOLDER SOURCE_FOLDER COMPILER [COMPILER_FLAG...]
"""

import os
import subprocess
import sys
import tempfile


def run(*command):
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
    if result.returncode != 0:
        sys.exit(f"{' '.join(command)}\n{result.stdout}\nended with {result.returncode}")
    return result.stdout


def expect(condition, message):
    if not condition:
        sys.exit(message)


def main(cmake, build, source, compiler, *flags):
    with tempfile.TemporaryDirectory() as scratch:
        first = os.path.join(scratch, "first")
        run(cmake, "--install", build, "--prefix", first)
        # Nothing of an installed tree may know where it was built or installed.
        prefix = os.path.join(scratch, "moved")
        os.rename(first, prefix)

        saved = os.path.join(scratch, "plain.json")
        kyr = os.path.join(prefix, "bin", "kyr")
        run(kyr, "import", os.path.join(source, "samples", "plain.xmi"), "-o", saved)
        expect(os.path.getsize(saved) > 0, "the installed kyr saved an empty model")

        def build_against_it(project, name):
            folder = os.path.join(scratch, name)
            run(
                cmake, "-S", os.path.join(source, project), "-B", folder, f"-DCMAKE_PREFIX_PATH={prefix}",
                f"-DCMAKE_CXX_COMPILER={compiler}", f"-DCMAKE_CXX_FLAGS={' '.join(flags)}",
            )
            run(cmake, "--build", folder)
            return os.path.join(folder, name)

        consumer = build_against_it(os.path.join("tests", "package", "consumer"), "consumer")
        again = os.path.join(scratch, "again.json")
        output = run(consumer, saved, again)
        with open(saved, "rb") as file, open(again, "rb") as other:
            expect(file.read() == other.read(), "a loaded model was saved with other bytes")
        plugins = output.removeprefix("plug-ins: ").strip()
        expect(
            os.path.isfile(os.path.join(plugins, "libKYROmgUml2XmiImport.so")),
            f"the package names {plugins} as the folder of plug-ins, and the plug-in is not there",
        )

        example = build_against_it(os.path.join("examples", "host"), "list_classes")
        output = run(example, os.path.join(source, "samples", "plain.xmi"), os.path.join(scratch, "example.json"))
        expect("lost: 65\n" in output, f"the example counts other losses:\n{output}")
        expect("\nSky/CelestialBody\n  name: String\n" in output, f"the example lists other classes:\n{output}")


if __name__ == "__main__":
    main(*sys.argv[1:])
