#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Database servers for the tests, on loopback alone.

    servers.py start [--anew] [--durable] [--keep] --state DIR NAME ...   starts servers
    servers.py stop [--keep] --state DIR [NAME ...]                       stops them, and removes their data
    servers.py connection --state DIR [--database D] [--node N] NAME      prints a connection string of ODBC
    servers.py drop --state DIR --database D NAME                         drops a database
    servers.py serve --state DIR --database D [--own] NAME -- COMMAND ... runs a command with a database of its own
    servers.py kill|restart --state DIR [--node N] NAME                   for tests of a dropped connection

A NAME is postgresql, mariadb or galera, a cluster of three nodes. All that is known of the servers stands in
the state folder DIR.

start       --anew stops what an earlier run has left in DIR and makes new data; --durable keeps the safety of a
            real server, which is slower; --keep keeps the data when the server stops, and a later start takes them.
connection  --database makes this database, and drops it first if there is one.
serve       the command finds the connection string in ZQN_ODBC, the server's name in ZQN_ODBC_SERVER and DIR in
            ZQN_ODBC_STATE; its exit status is handed on. --own starts the server for this command alone, so that
            it may be killed.
"""

import argparse
import os
import signal
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

import database_servers
from server_processes import ServerFailure


def start(options):
    servers = [database_servers.server(name, options.state) for name in options.names]
    started = []

    def start_one(server):
        server.start(options.anew, options.durable, options.keep)
        started.append(server)

    try:
        with ThreadPoolExecutor(len(servers)) as together:
            for attempt in [together.submit(start_one, server) for server in servers]:
                attempt.result()
    except BaseException:
        for server in started:
            server.stop()
        raise


def stop(options):
    for name in options.names or database_servers.SERVERS:
        database_servers.server(name, options.state).stop(keep=options.keep or None)


def connection(options):
    server = database_servers.server(options.name, options.state)
    make = server.create if options.database else server.connection
    print(make(options.database, node=options.node))


def drop(options):
    database_servers.server(options.name, options.state).drop(options.database)


def serve(options):
    server = database_servers.server(options.name, options.state)
    if options.own:
        server.start(anew=True)
    try:
        environment = {**os.environ, **server.surroundings(), "ZQN_ODBC": server.create(options.database), "ZQN_ODBC_SERVER": options.name, "ZQN_ODBC_STATE": str(server.folder.parent)}
        status = subprocess.run(options.command, env=environment).returncode
        if not options.own:
            server.drop(options.database)
    except FileNotFoundError as failure:
        raise ServerFailure(f"cannot run {options.command[0]}: {failure.strerror}") from None
    finally:
        if options.own:
            server.stop()
    return status if status >= 0 else 128 - status


def kill(options):
    database_servers.server(options.name, options.state).kill(options.node)


def restart(options):
    database_servers.server(options.name, options.state).restart(options.node)


def arguments():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    actions = parser.add_subparsers(dest="action", required=True, metavar="ACTION")

    def action(act, *, flags=(), names=None, database=None, node=False):
        chosen = actions.add_parser(act.__name__)
        chosen.set_defaults(act=act)
        chosen.add_argument("--state", metavar="DIR", required=True)
        for flag in flags:
            chosen.add_argument(flag, action="store_true")
        if database is not None:
            chosen.add_argument("--database", metavar="D", required=database)
        if node:
            chosen.add_argument("--node", metavar="N", type=int, default=1)
        if names:
            chosen.add_argument("names", metavar="NAME", nargs=names)
        else:
            chosen.add_argument("name", metavar="NAME")

    action(start, flags=("--anew", "--durable", "--keep"), names="+")
    action(stop, flags=("--keep",), names="*")
    action(connection, database=False, node=True)
    action(drop, database=True)
    action(serve, flags=("--own",), database=True)
    action(kill, node=True)
    action(restart, node=True)

    given = sys.argv[1:]
    command = given[given.index("--") + 1:] if "--" in given else []
    options = parser.parse_args(given[:given.index("--")] if "--" in given else given)
    if (options.act is serve) != bool(command):
        parser.error("serve, and nothing else, takes a command behind --")
    options.command = command
    return options


def main():
    # Ended from outside, a half-started server is cleared away as after any failure.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(128 + signal.SIGTERM))
    options = arguments()
    try:
        return options.act(options)
    except ServerFailure as failure:
        print(f"servers.py: {failure}", file=sys.stderr)
        return 2


if __name__ == "__main__":
    sys.exit(main())
