#!/usr/bin/env python3
"""Loads the SQL that `kyr import` writes into a real PostgreSQL server, and compares with SQLite.

    check_postgresql.py KYR SOURCE_FOLDER

The server is one of the test's own: in a folder of its own, without a port, gone with the test. Where
PostgreSQL is not installed, or has no user to run as, the test says so and ends with 77: skipped.
"""

import csv
import glob
import io
import os
import pathlib
import pwd
import shutil
import sqlite3
import subprocess
import sys
import tempfile

SKIPPED = 77
SAMPLES = ("plain.xmi", "enterprise-architect.xmi", "magicdraw.xmi", "eclipse-papyrus.uml")
SERVER_SETTINGS = "-c listen_addresses='' -c fsync=off -c shared_buffers=16MB"
# PostgreSQL tells TRUE and FALSE by letters, SQLite by numbers.
FLAGS = {"t": "1", "f": "0"}


class Skipped(Exception):
    pass


class Server:
    """A server that only this test can reach, over a socket in its folder."""

    def __init__(self, folder):
        binaries = sorted(glob.glob("/usr/lib/postgresql/*/bin")) or [os.path.dirname(shutil.which("initdb") or "")]
        self.binaries = binaries[-1]
        if not os.path.exists(os.path.join(self.binaries, "initdb")) or shutil.which("psql") is None:
            raise Skipped("PostgreSQL is not installed")
        self.data = os.path.join(folder, "data")
        self.folder = folder
        self.prefix = self.other_user(folder) if os.geteuid() == 0 else []

    @staticmethod
    def other_user(folder):
        """A server refuses to run as root."""
        try:
            user = pwd.getpwnam("postgres")
        except KeyError as error:
            raise Skipped("there is no user for a server of PostgreSQL") from error
        os.chown(folder, user.pw_uid, user.pw_gid)
        return ["setpriv", f"--reuid={user.pw_uid}", f"--regid={user.pw_gid}", "--clear-groups"]

    def tool(self, name, *arguments):
        result = subprocess.run([*self.prefix, os.path.join(self.binaries, name), *arguments], cwd=self.folder,
                                stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                                text=True, check=False)
        if result.returncode != 0:
            raise RuntimeError(f"{name}: {result.stdout}")

    def __enter__(self):
        self.tool("initdb", "-D", self.data, "-A", "trust", "-U", "kyr", "-E", "UTF8", "--locale=C", "--no-sync")
        self.tool("pg_ctl", "-D", self.data, "-w", "-l", os.path.join(self.folder, "log"),
                  "-o", f"{SERVER_SETTINGS} -k {self.folder}", "start")
        return self

    def __exit__(self, *_):
        self.tool("pg_ctl", "-D", self.data, "-m", "immediate", "-w", "stop")

    def psql(self, database, *arguments, text=b""):
        """What psql prints; it must succeed, and reads the text. The encoding of the terminal is a wrong one on
        purpose."""
        environment = dict(os.environ, PGCLIENTENCODING="LATIN1", PGOPTIONS="-c client_min_messages=warning")
        result = subprocess.run(["psql", "-X", "-q", "-h", self.folder, "-U", "kyr", "-d", database,
                                 "-v", "ON_ERROR_STOP=1", *arguments], env=environment, input=text,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)
        if result.returncode != 0:
            raise RuntimeError(f"psql: {result.stderr.decode('utf-8', 'replace')}")
        return result.stdout.decode("utf-8")

    def rows(self, database, name):
        """A table or view, as sorted tuples of texts under its column names."""
        text = self.psql(database, "--csv", "-c", "SET client_encoding = 'UTF8'", "-c", f"SELECT * FROM {name}")
        head, *rows = csv.reader(io.StringIO(text))
        return head, sorted(tuple(FLAGS.get(value, value) for value in row) for row in rows)


def sqlite_rows(connection, name):
    cursor = connection.execute(f"SELECT * FROM {name}")
    head = [column[0] for column in cursor.description]
    return head, sorted(tuple("" if value is None else str(value) for value in row) for row in cursor)


def compare(server, database, path):
    """Every table and view that both have holds the same."""
    connection = sqlite3.connect(path)
    names = [name for name, in connection.execute(
        "SELECT name FROM sqlite_master WHERE type IN ('table', 'view') AND name NOT LIKE 'search%'")]
    assert len(names) > 30, names
    filled = 0
    for name in names:
        expected, found = sqlite_rows(connection, name), server.rows(database, name)
        assert found[0] == expected[0], (name, found[0], expected[0])
        assert found[1] == expected[1], (name, found[1], expected[1])
        filled += bool(expected[1])
    assert filled > 10, filled
    connection.close()


def run_tests(kyr, source, server, folder):
    environment = {"cwd": source, "check": True, "stdin": subprocess.DEVNULL}
    for number, sample in enumerate(SAMPLES):
        database = f"sample{number}"
        server.psql("postgres", "-c", f"CREATE DATABASE {database}")
        for suffix in ("sql", "sqlite"):
            subprocess.run([kyr, "import", f"samples/{sample}", "--quiet", "--modification-time",
                            "2026-01-01T00:00:00Z", "-o", os.path.join(folder, f"{number}.{suffix}")],
                           stderr=subprocess.DEVNULL, **environment)
        server.psql(database, "-f", os.path.join(folder, f"{number}.sql"))
        compare(server, database, os.path.join(folder, f"{number}.sqlite"))
    # The same without a file between.
    piped = subprocess.run([kyr, "import", f"samples/{SAMPLES[0]}", "--modification-time", "2026-01-01T00:00:00Z",
                            "--format", "sql", "-o", "-"], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                           **environment).stdout
    server.psql("postgres", "-c", "CREATE DATABASE piped")
    server.psql("piped", "-f", "-", text=piped)
    compare(server, "piped", os.path.join(folder, "0.sqlite"))
    # A model that has every class, field and reference.
    server.psql("postgres", "-c", "CREATE DATABASE whole")
    server.psql("whole", "-f", os.path.join(source, "tests", "repository", "data", "full-model.sql"))
    head, rows = server.rows("whole", "class_attributes")
    assert len(rows) == 2 and "initial_value" in head, rows
    assert rows[1][head.index("initial_value")] == "\"quoted\"\\\n\t\x01 caf\u00e9", rows
    assert len(server.rows("whole", "key_columns")[1]) == 3
    keys = server.psql("whole", "-Atc", "SELECT count(*) FROM information_schema.table_constraints"
                                        " WHERE constraint_type = 'FOREIGN KEY'")
    assert int(keys) > 50, keys


def main(kyr, source):
    folder = tempfile.mkdtemp(prefix="kyr-pg-")
    try:
        server_folder = pathlib.Path(folder) / "server"
        server_folder.mkdir()
        os.chmod(folder, 0o755)
        with Server(str(server_folder)) as server:
            run_tests(os.path.abspath(kyr), os.path.abspath(source), server, folder)
    except Skipped as reason:
        print(f"skipped: {reason}")
        return SKIPPED
    finally:
        shutil.rmtree(folder, ignore_errors=True)
    print("PostgreSQL holds what SQLite holds")
    return 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
