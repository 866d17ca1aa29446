"""What the tests of the command share: running it, and a folder that goes with the test."""

import json
import os
import pathlib
import subprocess
import tempfile
import unittest

KYR = os.environ.get("KYR", "")
SAMPLES = pathlib.Path(os.environ.get("KYR_SAMPLES", ""))
DATA = pathlib.Path(__file__).resolve().parent / "data"
SMALL = DATA / "small.xmi"
COUNTS_COVERAGE = "KYR_COVERAGE" in os.environ
PLUGIN_NAME = "libKYROmgUml2XmiImport.so"
TIMEOUT = 60

DONE, FAILED, WRONG_USAGE = 0, 1, 2

NO_MODEL = '<?xml version="1.0" encoding="UTF-8"?>\n<shop><order/></shop>\n'
BROKEN = '<?xml version="1.0" encoding="UTF-8"?>\n<shop>\n  <order></shop>\n'


def model_text(name="Shop", content="", encoding="UTF-8"):
    """A model file with that content in its model."""
    return (
        f'<?xml version="1.0" encoding="{encoding}"?>\n'
        '<xmi:XMI xmlns:xmi="http://schema.omg.org/spec/XMI/2.1" '
        'xmlns:uml="http://schema.omg.org/spec/UML/2.1">\n'
        f'<uml:Model xmi:id="m" name="{name}">{content}</uml:Model>\n</xmi:XMI>\n'
    )


class Result:
    def __init__(self, process):
        self.code = process.returncode
        self.output = process.stdout.decode("utf-8")
        self.errors = process.stderr.decode("utf-8")
        self.error_lines = self.errors.splitlines()


def children_of(process):
    path = pathlib.Path(f"/proc/{process.pid}/task/{process.pid}/children")
    return [int(number) for number in path.read_text().split()]


class CommandTest(unittest.TestCase):
    """A test with a folder of its own, in which the command runs."""

    def setUp(self):
        self._folder = tempfile.TemporaryDirectory(prefix="kyr-host-test-")
        self.addCleanup(self._folder.cleanup)
        self.folder = pathlib.Path(self._folder.name)

    def kyr(self, *arguments, program=KYR, **options):
        """Runs the command to its end."""
        options.setdefault("cwd", self.folder)
        options.setdefault("stdin", subprocess.DEVNULL)
        options.setdefault("stdout", subprocess.PIPE)
        process = subprocess.run(
            [program, *map(str, arguments)], stderr=subprocess.PIPE, timeout=TIMEOUT, check=False, **options)
        if process.stdout is None:
            process.stdout = b""
        return Result(process)

    def write(self, name, content):
        path = self.folder / name
        path.write_bytes(content if isinstance(content, bytes) else content.encode("utf-8"))
        return path

    def names(self):
        """What stands in the folder."""
        return sorted(os.listdir(self.folder))

    def assertFails(self, result, code, message):
        """The exit code, nothing on the standard output, and one line that holds the message."""
        self.assertEqual(result.code, code, result.errors)
        self.assertEqual(result.output, "")
        self.assertIn(message, result.error_lines[-1] if result.error_lines else "")


def saved_objects(path):
    """All objects of a saved model."""
    stack, found = [json.loads(path.read_bytes())["model"]], []
    while stack:
        value = stack.pop()
        if isinstance(value, dict):
            if "class" in value:
                found.append(value)
            stack.extend(value.values())
        elif isinstance(value, list):
            stack.extend(value)
    return found
