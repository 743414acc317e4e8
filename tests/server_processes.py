# SPDX-License-Identifier: MIT
"""Processes of servers that tests run for themselves: started as the user that the server wants to be, found
again by their process ids, ended for certain. Which servers there are, and how to speak to them, stands in
database_servers.py.
"""

import os
import pwd
import shutil
import signal
import socket
import subprocess
import time
from pathlib import Path

# How long a server may take to come up, and to go down before it is killed.
START_SECONDS = 60
GRACE_SECONDS = 20


class ServerFailure(Exception):
    """A server is not as it should be; the text says what is wrong, and what helps."""


class EndedEarly(ServerFailure):
    """The process ended before it was ready."""


def free_port():
    """A port of the loopback that nobody listens on, chosen by the system."""
    with socket.socket() as probe:
        probe.bind(("127.0.0.1", 0))
        return probe.getsockname()[1]


def program(name, *folders):
    """The path of an installed program: the last fitting folder wins, so that 15 comes before 13."""
    found = [str(path) for pattern in folders for path in sorted(Path("/").glob(pattern.lstrip("/")))]
    path = shutil.which(name, path=os.pathsep.join(list(reversed(found)) + [os.environ["PATH"], "/usr/sbin"]))
    if path is None:
        raise ServerFailure(f"there is no program '{name}'; tools/setup.sh installs what the tests need")
    return path


def identity(user):
    """Arguments of subprocess that make a process run as this user; when we are not root, it runs as ourselves."""
    if os.geteuid() != 0:
        return {}
    try:
        entry = pwd.getpwnam(user)
    except KeyError:
        raise ServerFailure(f"there is no user '{user}'; tools/setup.sh installs the servers' packages") from None
    return {"user": entry.pw_uid, "group": entry.pw_gid, "extra_groups": []}


def give(path, user):
    """Makes a file or a folder the user's own."""
    owner = identity(user)
    if owner:
        os.chown(path, owner["user"], owner["group"])


def can_enter(folder, user):
    return subprocess.run(["test", "-x", str(folder)], cwd="/", **identity(user)).returncode == 0


def surroundings(folder):
    return {"PATH": os.environ["PATH"] + ":/usr/sbin", "LC_ALL": "C.UTF-8", "HOME": str(folder)}


def run(command, user, folder, what):
    """Runs a program to its end as a server's user."""
    done = subprocess.run(command, cwd=folder, env=surroundings(folder), stdin=subprocess.DEVNULL,
                          capture_output=True, text=True, errors="replace", **identity(user))
    if done.returncode != 0:
        raise ServerFailure(f"{what} failed with status {done.returncode}:\n{done.stdout}{done.stderr}".rstrip())


def tail(log, lines=15):
    try:
        text = log.read_text(encoding="utf-8", errors="replace")
    except OSError:
        return "(there is no log)"
    return "\n".join(text.splitlines()[-lines:]) or "(the log is empty)"


def status_of(pid):
    """State and parent of a process; nothing when there is none, or when only its entry is left."""
    try:
        fields = Path(f"/proc/{pid}/stat").read_text(errors="replace").rpartition(")")[2].split()
    except OSError:
        return None
    return None if fields[0] in "ZX" else (fields[0], int(fields[1]))


def children_of(pid):
    every = (int(entry.name) for entry in Path("/proc").iterdir() if entry.name.isdigit())
    return [child for child in every if (status := status_of(child)) and status[1] == pid]


def until(condition, seconds, pause=0.02):
    """Asks again and again; false when the time is over."""
    end = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > end:
            return False
        time.sleep(pause)
    return True


class Process:
    """A server's process in a folder of its own, known by the id in a file there. The id counts only while
    the process it names was started with this folder in its arguments: ids are given away again."""

    started = {}  # what this program itself has started, to be waited for

    def __init__(self, folder, user):
        self.folder = Path(folder)
        self.user = user
        self.log = self.folder / "log"

    def pid(self):
        """The process id; nothing when it does not run."""
        for child in list(self.started.values()):
            child.poll()
        # The server's own note serves if whoever started it was ended before making this one.
        for note in (self.folder / "pid", *sorted((self.folder / "data").glob("*.pid"))):
            try:
                pid = int(note.read_text().split()[0])
                arguments = Path(f"/proc/{pid}/cmdline").read_bytes().decode("utf-8", "replace").split("\0")
            except (OSError, ValueError, IndexError):
                continue
            data = str(self.folder / "data")
            if (data in arguments or f"--datadir={data}" in arguments) and status_of(pid):
                return pid
        return None

    def start(self, command):
        with open(self.log, "ab") as log:
            child = subprocess.Popen(command, cwd=self.folder, env=surroundings(self.folder),
                                     stdin=subprocess.DEVNULL, stdout=log, stderr=log,
                                     start_new_session=True, **identity(self.user))
        self.started[child.pid] = child
        (self.folder / "pid").write_text(f"{child.pid}\n")

    def wait_until(self, ready, what, seconds=START_SECONDS):
        """Waits for a started server; if it does not come up, says so with the end of its log."""
        def answered():
            if self.pid() is None:
                raise EndedEarly(f"{what} ended while it was starting; its log ends with:\n{tail(self.log)}")
            return ready()
        if not until(answered, seconds, pause=0.05):
            self.kill()
            raise ServerFailure(f"{what} is not ready after {seconds} seconds; its log ends with:\n{tail(self.log)}")

    def stop(self, mild, grace=GRACE_SECONDS):
        """Ends the process with a mild signal, or after the grace time with the strongest."""
        pid = self.pid()
        if pid is None:
            return
        os.kill(pid, mild)
        if not until(lambda: self.pid() is None, grace):
            self.kill()
        (self.folder / "pid").unlink(missing_ok=True)

    def kill(self):
        """Ends the process, and what it has started, as a failing machine would."""
        pid = self.pid()
        if pid is None:
            return False
        family = [pid, *children_of(pid)]
        for member in family:
            try:
                os.kill(member, signal.SIGKILL)
            except ProcessLookupError:
                pass  # went with its parent
        gone = until(lambda: self.pid() is None and not any(map(status_of, family)), GRACE_SECONDS)
        if not gone:
            raise ServerFailure(f"process {pid} does not end, not even when it is killed")
        return True
