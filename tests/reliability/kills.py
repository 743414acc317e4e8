#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Kills the command at its writes and looks at what is left of the database.

    kills.py [--every N] [--rounds N] [SUBJECT ...]

Each subject (all unless named) is a run of the command that changes a database. It is done once for each call by which it
changes a file, and killed there (kill -9); every call comes up twice, once undone and once, where it is a write, half done.
Afterwards the database must be whole: what was to be done stands there as a whole or not at all, it can be opened, its
pages are in order, and the same can be done again. `--every N` takes each Nth call alone, `--rounds N` does all of it
N times.

The environment names the command, ZQN_DIALOG, and the library that kills, ZQN_KILL_AT_WRITE; both are found in build/
unless set.
"""

import argparse
import json
import os
import shutil
import signal
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
COMMAND = os.environ.get("ZQN_DIALOG", str(ROOT / "build" / "zqn-dialog"))
KILLER = os.environ.get("ZQN_KILL_AT_WRITE", str(ROOT / "build" / "libkill_at_write.so"))

# More calls than any subject has: a run that never comes to its end is a defect, too.
MOST_CALLS = 5000


class Broken(Exception):
    """Something is left that must not be."""


class Place:
    """An empty folder with what one run needs."""

    def __init__(self, folder):
        self.folder = Path(folder)
        self.environment = {"PATH": os.environ["PATH"], "HOME": str(self.folder), "LOGNAME": "anna", "LC_ALL": "C.UTF-8",
                            "XDG_DATA_HOME": str(self.folder / "data")}

    def run(self, arguments, stdin="", kill_at=0, torn=False):
        environment = dict(self.environment)
        if kill_at:
            environment |= {"LD_PRELOAD": KILLER, "ZQN_KILL_AT": str(kill_at), "ZQN_KILL_TORN": str(int(torn))}
        return subprocess.run([COMMAND, *arguments], input=stdin, capture_output=True, text=True, cwd=self.folder,
                              env=environment, timeout=60)

    def done(self, arguments, stdin=""):
        result = self.run(arguments, stdin)
        if result.returncode != 0 or result.stderr:
            raise Broken(f"{' '.join(arguments)} ends with {result.returncode}: {result.stderr}")
        return result.stdout

    def rows(self, file, statement):
        return json.loads(self.done(["sql", "--db", f"sqlite:{file}"], statement + ";\n"))

    def require_whole(self, file):
        found = self.rows(file, "PRAGMA integrity_check")
        if found != [["ok"]]:
            raise Broken(f"{file}: {found}")

    def require_only(self, *names):
        left = {path.name for path in self.folder.iterdir()} - set(names)
        if left:
            raise Broken(f"left behind: {', '.join(sorted(left))}")


def row_counts(place, file):
    tables = [name for name, in place.rows(file, "SELECT name FROM sqlite_master WHERE type='table' ORDER BY name")]
    counts = place.done(["sql", "--db", f"sqlite:{file}"], "".join(f'SELECT COUNT(*) FROM "{table}";\n' for table in tables))
    return {table: json.loads(line)[0][0] for table, line in zip(tables, counts.splitlines(), strict=True)}


class Init:
    """`init` of a new file: it is there and complete, or it is not there."""

    arguments = ["init", "--db", "sqlite:a.sqlite", "--sample"]
    script = ""

    def __init__(self, model):
        self.counts = row_counts(model, "sample.sqlite")

    def prepare(self, place):
        pass

    def check(self, place, ended):
        if (place.folder / "a.sqlite").exists():
            self.require_complete(place)
            if place.run(self.arguments).returncode != 3:
                raise Broken("init takes a database that is complete for an empty one")
        elif ended:
            raise Broken("init has ended without a database")
        else:
            place.done(self.arguments)
            self.require_complete(place)
            place.require_only("a.sqlite")

    def require_complete(self, place):
        place.require_whole("a.sqlite")
        if row_counts(place, "a.sqlite") != self.counts:
            raise Broken("rows are missing")


class InitBesideOthers(Init):
    """`init` in a file with somebody else's table: all tables of the system are there, or none."""

    def prepare(self, place):
        shutil.copy(place.model / "others.sqlite", place.folder / "a.sqlite")

    def check(self, place, ended):
        result = place.run(["sql", "--db", "sqlite:a.sqlite"], "SELECT a FROM fremd;\n")
        if result.returncode == 0:
            if json.loads(result.stdout) != [[7]]:
                raise Broken("the table of somebody else has changed")
        elif ended or "no table of the system" not in result.stderr:
            raise Broken(f"the file cannot be read: {result.stderr}")
        else:
            place.done(self.arguments)
        counts = row_counts(place, "a.sqlite")
        if counts.pop("fremd", 0) != 1 or counts != self.counts:
            raise Broken("rows are missing")
        place.require_whole("a.sqlite")


class FirstStart(Init):
    """The first start without a database: the next one comes to the database, the sample and the layout files."""

    arguments = ["show", "21", "10", "--ui", "headless"]

    def check(self, place, ended):
        place.done(self.arguments)
        folder = place.folder / "data" / "zqn-dialog"
        file = folder / "zqn-dialog.sqlite"
        place.require_whole(file)
        if row_counts(place, file) != self.counts:
            raise Broken("rows are missing")
        layouts = {path.name: path.stat().st_size for path in folder.iterdir() if path != file}
        source = ROOT / "examples" / "application"
        if layouts != {path.name: path.stat().st_size for path in source.iterdir() if path.suffix.lower() == ".omr"}:
            raise Broken(f"beside the database stand {layouts}")


class Save:
    """One row is saved in a dialog: it stands as it was, or as it was typed."""

    arguments = ["show", "21", "10", "--db", "sqlite:a.sqlite", "--ui", "headless", "--script", "-"]
    script = '{"focus":"Kurztext"}\n{"key":"End"}\n{"type":" und mehr"}\n{"key":"F9"}\n'
    question = "SELECT Bezeichnung FROM Vertriebsstati WHERE Status='10'"
    states = [[["Interesse geweckt"]], [["Interesse geweckt und mehr"]]]

    def __init__(self, model):
        pass

    def prepare(self, place):
        shutil.copy(place.model / "sample.sqlite", place.folder / "a.sqlite")

    def check(self, place, ended):
        found = place.rows("a.sqlite", self.question)
        if found not in self.states or (ended and found != self.states[-1]):
            raise Broken(f"the rows are {found}")
        place.require_whole("a.sqlite")
        self.seen[json.dumps(found, ensure_ascii=False)] = self.seen.get(json.dumps(found, ensure_ascii=False), 0) + 1
        place.done(["sql", "--db", "sqlite:a.sqlite"], "DELETE FROM Keywords;\n")


class SaveOfTwoTables(Save):
    """A payment type with its text: two writes in this order, each whole; they are no transaction."""

    arguments = ["show", "1", "BAR", "--db", "sqlite:a.sqlite", "--ui", "headless", "--script", "-"]
    script = ('{"click":"btnNew"}\n{"type":"ZZ1"}\n{"key":"Enter"}\n{"type":"Ratenzahlung"}\n'
              '{"focus":"txtLangtext"}\n{"type":"In drei Raten."}\n{"key":"F9"}\n')
    question = ("SELECT Kurztext, (SELECT Langtext FROM Textbausteine WHERE TextNummer='ZZ1') FROM Zahlungsarten"
                " WHERE Zahlungsart='ZZ1'")
    states = [[], [["Ratenzahlung", None]], [["Ratenzahlung", "In drei Raten."]]]


SUBJECTS = {"init": Init, "init-beside-others": InitBesideOthers, "first-start": FirstStart, "save": Save,
            "save-of-two-tables": SaveOfTwoTables}


class Campaign:
    """A model of the databases, made once, and the runs against it."""

    def __init__(self, folder):
        self.folder = Path(folder)
        self.model = Place(self.folder / "model")
        self.model.folder.mkdir()
        self.model.done(["init", "--db", "sqlite:sample.sqlite", "--sample"])
        self.model.done(["init", "--db", "sqlite:others.sqlite"])
        tables = self.model.rows("others.sqlite", "SELECT name FROM sqlite_master WHERE type='table'")
        self.model.done(["sql", "--db", "sqlite:others.sqlite"], "CREATE TABLE fremd(a);\nINSERT INTO fremd VALUES (7);\n"
                        + "".join(f'DROP TABLE "{table}";\n' for table, in tables if table != "sqlite_sequence"))

    def once(self, subject, call, torn):
        """Gives whether the command was killed, and what is wrong afterwards; None where nothing is."""
        place = Place(self.folder / "run")
        place.folder.mkdir()
        place.model = self.model.folder
        try:
            subject.prepare(place)
            result = place.run(subject.arguments, subject.script, call, torn)
            killed = result.returncode == -signal.SIGKILL
            if not killed and result.returncode != 0:
                return False, f"ends with {result.returncode}: {result.stderr}"
            subject.check(place, ended=not killed)
            return killed, None
        except Broken as broken:
            return killed, str(broken)
        finally:
            shutil.rmtree(place.folder)

    def run(self, name, every=1):
        """Kills at each `every`th call; gives runs, calls of the subject and findings."""
        subject = SUBJECTS[name](self.model)
        subject.seen = {}
        findings, runs, call = [], 0, 1
        while call < MOST_CALLS:
            for torn in (False, True):
                killed, finding = self.once(subject, call, torn)
                runs += 1
                if finding is not None:
                    findings.append(f"{name}, call {call}{' (half)' if torn else ''}: {finding}")
            if not killed:
                return runs, call - 1, findings, subject.seen
            call += every
        return runs, call, [*findings, f"{name} comes to no end"], subject.seen


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--every", type=int, default=1)
    parser.add_argument("--rounds", type=int, default=1)
    parser.add_argument("subjects", nargs="*", metavar="SUBJECT", choices=[*SUBJECTS, []])
    options = parser.parse_args()
    broken = 0
    with tempfile.TemporaryDirectory(prefix="zqn-kills-", dir="/dev/shm" if Path("/dev/shm").is_dir() else None) as folder:
        campaign = Campaign(folder)
        for name in options.subjects or SUBJECTS:
            runs = calls = 0
            findings, states = [], {}
            for _ in range(options.rounds):
                more, calls, found, seen = campaign.run(name, options.every)
                runs += more
                findings += found
                states = {state: states.get(state, 0) + seen.get(state, 0) for state in {**states, **seen}}
            print(f"{name}: {runs} runs over {calls} calls, {len(findings)} findings"
                  + (f"; left: {states}" if states else ""), flush=True)
            for finding in findings:
                print(f"  {finding}", flush=True)
            broken += len(findings)
    return 1 if broken else 0


if __name__ == "__main__":
    sys.exit(main())
