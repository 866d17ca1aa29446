#!/usr/bin/env python3
"""Installs a build below a fresh prefix and uses it as a stranger would.

The installed `kyr` imports a sample with the installed plug-in, also after the whole tree has been
moved; a small program finds the package by find_package(kyr), loads the saved model and saves it
again with the same bytes.

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

        consumer = os.path.join(scratch, "consumer")
        run(
            cmake, "-S", os.path.join(source, "tests", "package", "consumer"), "-B", consumer,
            f"-DCMAKE_PREFIX_PATH={prefix}", f"-DCMAKE_CXX_COMPILER={compiler}", f"-DCMAKE_CXX_FLAGS={' '.join(flags)}",
        )
        run(cmake, "--build", consumer)
        again = os.path.join(scratch, "again.json")
        output = run(os.path.join(consumer, "consumer"), saved, again)
        with open(saved, "rb") as file, open(again, "rb") as other:
            expect(file.read() == other.read(), "a loaded model was saved with other bytes")
        plugins = output.removeprefix("plug-ins: ").strip()
        expect(
            os.path.isfile(os.path.join(plugins, "libKYROmgUml2XmiImport.so")),
            f"the package names {plugins} as the folder of plug-ins, and the plug-in is not there",
        )


if __name__ == "__main__":
    main(*sys.argv[1:])
