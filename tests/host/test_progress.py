"""The progress line of long work on a terminal."""

import fcntl
import os
import pty
import re
import signal
import struct
import subprocess
import termios
import time
import unittest

from support import DONE, KYR, CommandTest, children_of, model_text

WIPED = "\r\x1b[K"
READING = re.compile(r"reading \d+\.\d of (\d+\.\d) MB, (\d+) %")
LATER = ("making objects", "resolving references", "converting", "finishing the model", "saving", "releasing memory")
# Longer than the command waits before it shows a line.
PATIENCE = 0.6
CLASSES = 12000


def large_text():
    attributes = "".join(f'<ownedAttribute xmi:type="uml:Property" xmi:id="%s{n}" name="a{n}"/>' for n in range(4))
    return model_text("Large", "".join(
        f'<packagedElement xmi:type="uml:Class" xmi:id="C{n}" name="C{n}">{attributes.replace("%s", f"C{n}_")}'
        "</packagedElement>" for n in range(CLASSES)))


class Screen:
    """What a terminal shows after some output: its lines, the last of them unfinished."""

    def __init__(self, output):
        self.lines = [""]
        for part in re.split(r"(\r\x1b\[K|\r\n)", output):
            if part == WIPED:
                self.lines[-1] = ""
            elif part == "\r\n":
                self.lines.append("")
            else:
                self.lines[-1] += part


class Progress(CommandTest):
    def setUp(self):
        super().setUp()
        self.large = self.write("large.xmi", large_text())

    def start(self, *arguments, **options):
        """The command with a terminal for both outputs."""
        self.master, terminal = pty.openpty()
        fcntl.ioctl(terminal, termios.TIOCSWINSZ, struct.pack("HHHH", 24, options.pop("columns", 80), 0, 0))
        self.addCleanup(os.close, self.master)
        environment = {**os.environ, "TERM": options.pop("term", "xterm")}
        process = subprocess.Popen([KYR, *map(str, arguments)], cwd=self.folder, stdin=subprocess.DEVNULL,
                                   stdout=terminal, stderr=terminal, env=environment, **options)
        os.close(terminal)
        self.addCleanup(process.kill)
        self.shown = ""
        return process

    def read_some(self):
        """False at the end of all output."""
        try:
            block = os.read(self.master, 65536)
        except OSError:  # the other end is closed
            return False
        self.shown += block.decode()
        return bool(block)

    def read_all(self):
        while self.read_some():
            pass

    def reader_of_large(self, process, least, most):
        """The process, this one or a child of it, that has read a part of the large file; None if there is none."""
        size = os.path.getsize(self.large)
        for number in (process.pid, *children_of(process)):
            try:
                for descriptor in os.listdir(f"/proc/{number}/fd"):
                    if os.readlink(f"/proc/{number}/fd/{descriptor}") != str(self.large.resolve()):
                        continue
                    with open(f"/proc/{number}/fdinfo/{descriptor}", encoding="ascii") as info:
                        position = int(info.readline().split()[1])
                    if least * size < position <= most * size:
                        return number
            except OSError:  # it has ended, or closed the file, meanwhile
                continue
        return None

    def run_slowly(self, *arguments, least=0.1, most=0.7, **options):
        """The command on a machine on which its work takes so long that it is worth a line: it is stopped when it has
        read that part of the file, and goes on when the time is over."""
        process = self.start(*arguments, **options)
        while process.poll() is None:
            if (reader := self.reader_of_large(process, least, most)) is not None:
                os.kill(reader, signal.SIGSTOP)
                time.sleep(PATIENCE)
                os.kill(reader, signal.SIGCONT)
                break
        return process

    def shown_slowly(self, *arguments, wanted, **options):
        """All that is shown. A process that was not met in the middle of its work is followed by another."""
        for _ in range(20):
            process = self.run_slowly(*arguments, **options)
            self.read_all()
            self.assertEqual(process.wait(), DONE, self.shown)
            if wanted(self.shown):
                return self.shown
        return self.fail(f"no such line was shown: {self.shown!r}")

    def test_one_file_is_told_in_bytes_and_then_by_phase(self):
        shown = self.shown_slowly("import", "large.xmi", wanted=READING.search)
        size = f"{os.path.getsize(self.large) / 1e6:.1f}"
        for total, percent in READING.findall(shown):
            self.assertEqual(total, size)
            self.assertLess(int(percent), 100)
        self.shown_slowly("import", "large.xmi", least=0.99, most=1,
                          wanted=lambda shown: any(name in shown for name in LATER))

    def test_the_line_is_gone_before_anything_else_is_printed_and_at_the_end(self):
        shown = self.shown_slowly("import", "large.xmi", wanted=lambda shown: WIPED in shown)
        lines = Screen(shown).lines
        self.assertEqual(lines.pop(), "")
        for line in lines:
            self.assertRegex(line, "^(STATUS KBI_|Wrote 'large.json'|packages )")
        self.assertEqual(len([line for line in lines if line.startswith("Wrote")]), 1)

    def test_other_commands_that_read_a_file_have_it_too(self):
        for arguments in (["inspect", "large.xmi"], ["normalize", "large.xmi", "-o", "out.xmi"]):
            with self.subTest(command=arguments[0]):
                shown = self.shown_slowly(*arguments, wanted=lambda shown: WIPED in shown)
                self.assertFalse([line for line in Screen(shown).lines if READING.search(line)])

    def test_many_files_are_counted_and_each_that_is_at_work_told(self):
        self.write("other.xmi", self.large.read_bytes())
        wanted = re.compile(r"\d of 2 files done; (large|other)\.xmi: \w+")
        shown = self.shown_slowly("import", "large.xmi", "other.xmi", "-j", "1", wanted=wanted.search)
        lines = Screen(shown).lines
        self.assertEqual(lines[-1], "")
        self.assertFalse([line for line in lines if "files done" in line])
        self.assertEqual(len([line for line in lines if line.startswith("Wrote")]), 2)

    def test_short_work_has_none(self):
        small = self.write("small.xmi", model_text())
        for _ in range(20):
            start = time.monotonic()
            process = self.start("import", small, small, "--append", "-o", "all.sqlite")
            self.read_all()
            self.assertEqual(process.wait(), DONE)
            if time.monotonic() - start < PATIENCE - 0.1:
                self.assertNotIn(WIPED, self.shown)
                return
        self.skipTest("the machine is too busy for short work")

    def test_nobody_is_shown_a_line_who_cannot_see_it_or_does_not_want_it(self):
        for arguments, options in ((["-q"], {}), (["--log-format", "json"], {}), ([], {"term": "dumb"})):
            with self.subTest(arguments=arguments):
                process = self.run_slowly("import", "large.xmi", *arguments, **options)
                self.read_all()
                self.assertEqual(process.wait(), DONE)
                self.assertNotIn("\x1b", self.shown)
        self.assertNotIn("\x1b", self.kyr("import", "large.xmi").errors)

    def test_a_signal_wipes_it(self):
        for _ in range(20):
            process = self.run_slowly("import", "large.xmi")
            while WIPED not in self.shown and self.read_some():
                pass
            process.send_signal(signal.SIGINT)
            self.read_all()
            if process.wait() == -signal.SIGINT:
                break
        self.assertEqual(process.returncode, -signal.SIGINT)
        self.assertEqual(Screen(self.shown).lines[-1], "")

    def test_it_does_not_run_into_the_next_line(self):
        shown = self.shown_slowly("import", "large.xmi", wanted=re.compile(f"{re.escape(WIPED)}(reading|saving)").search,
                                  columns=12)
        lines = re.findall(f"{re.escape(WIPED)}([a-z][^\r\n]*)", shown)
        self.assertLess(max(map(len, lines)), 12)


if __name__ == "__main__":
    unittest.main()
