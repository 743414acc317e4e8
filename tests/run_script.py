#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Scripts of user actions and their approved transcripts.

    run_script.py check [OPTION ...] [NAME ...]     holds each transcript against its approved one
    run_script.py approve [OPTION ...] [NAME ...]   accepts the present transcripts
    run_script.py show [OPTION ...] NAME            prints a transcript

    --ui headless|qt            on this desktop alone
    --server NAME --state DIR   on a database server that servers.py has started in DIR, instead of SQLite
    --part N/M                  the Nth of M parts of the scripts

A script is scripts/NAME.jsonl, its approved transcript scripts/NAME.approved.jsonl; without names all scripts
are meant. Comment lines at the top of a script say how the command is called:

    # args: show 21 10 --today 2026-11-21     arguments of the command (needed)
    # init: --rows 1000                       how the database is made; --sample unless said
    # application: examples/application       a folder whose files the application folder holds at first
    # server: sqlite postgresql               the databases it is about; all of them unless said

Each run has a new database, and a folder of its own as its application folder. Without --ui a script runs on both
desktops, and on every desktop and every database it must come to the same transcript; SQLite's is the one to
approve where a script runs there. Whatever the command writes to standard error fails the run. The environment variable
ZQN_DIALOG names the command, build/zqn-dialog unless set; ZQN_CASES a file for the count of the runs, see cases.py.
"""

import argparse
import atexit
import contextlib
import difflib
import fcntl
import functools
import hashlib
import json
import os
import shlex
import shutil
import subprocess
import sys
import tempfile
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))
import cases
import database_servers
from server_processes import ServerFailure

SCRIPTS = HERE / "scripts"
DESKTOPS = ("headless", "qt")
DATABASES = ("sqlite", "postgresql", "mariadb", "galera")
SAMPLE = ["--sample"]
TIMEOUT = 120

# What Qt's platform without a display says about itself, whatever a program does.
HARMLESS = "This plugin does not support"


class Failure(Exception):
    """The run of a script is not in order; the text says why."""


def command():
    return os.environ.get("ZQN_DIALOG", str(HERE.parent / "build" / "zqn-dialog"))


def script_file(name):
    return SCRIPTS / f"{name}.jsonl"


def approved_file(name):
    return SCRIPTS / f"{name}.approved.jsonl"


def all_names():
    return sorted(file.stem for file in SCRIPTS.glob("*.jsonl") if not file.name.endswith(".approved.jsonl"))


def header(name, key, otherwise=None):
    """The arguments after `# key:` among the comment lines at the top of a script."""
    for line in script_file(name).read_text(encoding="utf-8-sig").splitlines():
        if not line.startswith("#"):
            break
        if line.startswith(f"# {key}:"):
            return shlex.split(line.split(":", 1)[1])
    if otherwise is None:
        raise Failure(f'{name}.jsonl says nowhere how the command is called; begin it with "# {key}: ..."')
    return otherwise


def environment(folder):
    return {
        "PATH": os.environ["PATH"],
        "HOME": str(folder),
        "XDG_DATA_HOME": str(folder / "data"),
        "XDG_CONFIG_HOME": str(folder / "config"),
        "XDG_RUNTIME_DIR": str(folder),
        "LOGNAME": "anna",
        "LC_ALL": "C.UTF-8",
        "QT_QPA_PLATFORM": os.environ.get("QT_QPA_PLATFORM", "offscreen"),
        **{name: os.environ[name] for name in ("DISPLAY", "XAUTHORITY", "ASAN_OPTIONS") if name in os.environ},
    }


def call(folder, arguments, server=None):
    surroundings = {**environment(folder), **(server.surroundings() if server else {})}
    try:
        done = subprocess.run([command(), *arguments], cwd=folder, env=surroundings,
                              capture_output=True, timeout=TIMEOUT)
    except subprocess.TimeoutExpired:
        raise Failure(f"no end after {TIMEOUT} seconds: {shlex.join(arguments)}") from None
    errors = done.stderr.decode("utf-8", "replace").splitlines()
    errors = [line for line in errors if not line.startswith(HARMLESS)]
    if errors:
        raise Failure("standard error says:\n" + "\n".join(errors))
    return done


def status_of(transcript):
    """The exit status that a transcript stands for."""
    lines = transcript.splitlines()
    last = json.loads(lines[-1]) if lines else {}
    if "scriptError" in last:
        return 4
    returned = last.get("result", {}).get("return")
    return 1 if returned in (None, "", {"empty": True}) else 0


def runs_on(name, server):
    database = server.name if server else "sqlite"
    wanted = header(name, "server", DATABASES)
    for unknown in set(wanted) - set(DATABASES):
        raise Failure(f"there is no database '{unknown}'; there are {', '.join(DATABASES)}")
    return database in wanted


def init(folder, database, arguments, server=None):
    if call(folder, ["init", "--db", database, *arguments], server).returncode != 0:
        raise Failure("the database cannot be made")


@functools.cache
def sample_file(command):
    """The file with the sample that a command makes, made when it is first asked for."""
    made = Path(tempfile.mkdtemp(prefix="zqn-sample-"))
    atexit.register(shutil.rmtree, made)
    init(made, "sqlite:sample.sqlite", SAMPLE)
    return made / "sample.sqlite"


def sample_on(server, folder):
    """The template with the sample that this command makes, made when it is first asked for."""
    file = os.stat(command())
    digest = hashlib.sha256(f"{command()} {file.st_mtime_ns} {file.st_size}".encode()).hexdigest()[:16]
    template = f"sample_{digest}"
    with open(server.home / "sample.lock", "w", encoding="utf-8") as lock:
        fcntl.flock(lock, fcntl.LOCK_EX)
        if not server.remembers(template):
            init(folder, "odbc:" + server.create("sample_being_made"), SAMPLE, server)
            server.remember("sample_being_made", template)
    return template


@contextlib.contextmanager
def database_for(name, desktop, server, folder):
    """Makes the database of one run; the address that the command takes."""
    wanted = header(name, "init", SAMPLE)
    if server is None:
        if wanted == SAMPLE:
            shutil.copy(sample_file(command()), folder / "stage.sqlite")
        else:
            init(folder, "sqlite:stage.sqlite", wanted)
        yield "sqlite:stage.sqlite"
        return
    database = database_servers.database_name(f"{name}.{desktop}")
    template = sample_on(server, folder) if wanted == SAMPLE else None
    try:
        address = "odbc:" + server.create(database, template=template)
        if template is None:
            init(folder, address, wanted, server)
        yield address
    finally:
        server.drop(database)


def transcript_of(name, desktop, server):
    arguments = header(name, "args")
    with tempfile.TemporaryDirectory(prefix="zqn-script-") as made:
        folder = Path(made)
        for source in header(name, "application", []):
            shutil.copytree(HERE.parent / source, folder, dirs_exist_ok=True)
            folder.chmod(0o700)  # the copied folder's mode came along
        with database_for(name, desktop, server, folder) as address:
            done = call(folder, [*arguments, "--db", address, "--app-path", str(folder), "--ui", desktop,
                                 "--script", str(script_file(name)), "--transcript", "transcript.jsonl"], server)
        file = folder / "transcript.jsonl"
        transcript = file.read_text(encoding="utf-8") if file.exists() else ""
    if done.returncode != status_of(transcript):
        raise Failure(f"exit status {done.returncode} after\n{transcript}")
    return transcript


def difference(before, after, before_name, after_name):
    return "\n".join(difflib.unified_diff(before.splitlines(), after.splitlines(), before_name, after_name,
                                          lineterm="", n=2))


def check(name, desktops, server):
    """Holds the transcript of each desktop against the approved one."""
    if not approved_file(name).exists():
        raise Failure(f"nobody has approved a transcript; see it with 'show {name}', accept it with 'approve {name}'")
    approved = approved_file(name).read_bytes().decode("utf-8")
    for desktop in desktops:
        transcript = transcript_of(name, desktop, server)
        if transcript != approved:
            where = f"{desktop} on {server.name}" if server else desktop
            raise Failure(difference(approved, transcript, "approved", where))


def approve(name, desktops, server):
    if server and runs_on(name, None):
        raise Failure("runs on SQLite, too; its transcript there is the one to approve")
    transcripts = {desktop: transcript_of(name, desktop, server) for desktop in desktops}
    first, *others = transcripts
    for other in others:
        if transcripts[other] != transcripts[first]:
            raise Failure("the desktops differ:\n" + difference(transcripts[first], transcripts[other], first, other))
    approved_file(name).write_bytes(transcripts[first].encode("utf-8"))


def show(name, desktops, server):
    sys.stdout.write(transcript_of(name, desktops[0], server))


def part(text):
    number, _, parts = text.partition("/")
    if not 1 <= int(number) <= int(parts):
        raise ValueError
    return int(number), int(parts)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("action", choices=("check", "approve", "show"))
    parser.add_argument("names", metavar="NAME", nargs="*")
    parser.add_argument("--ui", choices=DESKTOPS)
    parser.add_argument("--server", metavar="NAME", choices=DATABASES[1:])
    parser.add_argument("--state", metavar="DIR")
    parser.add_argument("--part", metavar="N/M", type=part, default=(1, 1))
    options = parser.parse_intermixed_args()
    if (options.server is None) != (options.state is None):
        parser.error("--server and --state belong together")
    act = {"check": check, "approve": approve, "show": show}[options.action]
    desktops = (options.ui,) if options.ui else DESKTOPS
    server = database_servers.server(options.server, options.state) if options.server else None

    number, parts = options.part
    passed = failed = 0
    for name in (options.names or all_names())[number - 1::parts]:
        try:
            if not script_file(name).exists():
                raise Failure(f"there is no script {script_file(name)}")
            if runs_on(name, server):
                act(name, desktops, server)
                passed += 1
            elif options.names:
                raise Failure(f"does not run on {options.server or 'sqlite'}, as it says itself")
        except (Failure, ServerFailure) as failure:
            failed += 1
            print(f"{name}: {failure}\n", file=sys.stderr)
    cases.leave(passed, failed)
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
