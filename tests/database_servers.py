# SPDX-License-Identifier: MIT
"""The database servers of the tests: PostgreSQL, MariaDB, and a Galera cluster of three nodes, on loopback alone.

    server = database_servers.server("postgresql", state)
    server.start()
    text = server.create("waren")          a fresh database; the connection string of ODBC that leads there
    server.stop()

A state folder holds, for each server, a folder with its data, its log and what is known about it. Ports and
passwords are new with each state. Two users: "admin", who makes databases, and "clerk", who owns them.
"""

import hashlib
import json
import os
import re
import secrets
import shutil
import signal
import subprocess
import tempfile
from pathlib import Path

from server_processes import EndedEarly, Process, ServerFailure, can_enter, free_port, give, program, run

HOST = "127.0.0.1"
NAME_LENGTH = 60
RESERVED = {"postgres", "template0", "template1", "mysql", "sys", "information_schema", "performance_schema"}
PORT_ATTEMPTS = 3
DRIVERS = Path(os.environ.get("ODBCSYSINI", "/etc"), "odbcinst.ini")


def database_name(text):
    """A name for the database of a test, whatever its own name is like."""
    readable = re.sub(r"[^a-z0-9]+", "_", text.lower()).strip("_")
    digest = hashlib.sha256(text.encode("utf-8")).hexdigest()[:8]
    return f"t_{readable[:NAME_LENGTH - 11]}_{digest}"


def checked(database):
    if not re.fullmatch(r"[a-z][a-z0-9_]*", database) or len(database) > NAME_LENGTH or database in RESERVED:
        raise ServerFailure(f"'{database}' is no name for a database; small letters without umlauts, digits and "
                            f"underscores are, {NAME_LENGTH} at most, and none of the servers' own")
    return database


def write_secret(path, text, user=None):
    """A file that only the user, ourselves unless said, can read. It is there as a whole or not at all."""
    made = path.with_name(path.name + ".made")
    made.unlink(missing_ok=True)
    with open(os.open(made, os.O_WRONLY | os.O_CREAT | os.O_EXCL, 0o600), "w", encoding="utf-8") as file:
        file.write(text)
    if user:
        give(made, user)
    return made.rename(path)


class Server:
    """One server in a state folder. A subclass says how its processes are made, started and spoken to."""

    name = driver = user = ""
    mild = signal.SIGTERM  # ends the server in good order
    nodes = 1
    ports = ("port",)      # what a node needs, by name

    def __init__(self, state):
        self.folder = Path(state).resolve() / self.name
        self.file = self.folder / "server.json"
        self.known = json.loads(self.file.read_text(encoding="utf-8")) if self.file.exists() else {}

    # What is known of it

    def save(self):
        write_secret(self.file, json.dumps(self.known, indent=1) + "\n")

    @property
    def home(self):
        """Where the data stand: in the state folder, or elsewhere if the server's user cannot get there."""
        return Path(self.known["home"])

    def process(self, node=1):
        return Process(self.home / f"node{node}", self.user)

    def running(self):
        return [node for node in self.every_node() if self.process(node).pid()] if self.known else []

    def every_node(self):
        return range(1, self.nodes + 1)

    def node(self, number):
        """What is known of one node, after a look whether there is such a node."""
        if not self.known:
            raise ServerFailure(f"no {self.name} has been started in {self.folder.parent}")
        if number not in self.every_node():
            raise ServerFailure(f"{self.name} has no node {number}; its nodes are 1 to {self.nodes}")
        return self.known["nodes"][str(number)]

    def title(self, node):
        return self.name if self.nodes == 1 else f"node {node} of {self.name}"

    # Starting and stopping

    def start(self, anew=False, durable=False, keep=False):
        if anew:
            self.stop(keep=False)
        if self.running():
            raise ServerFailure(f"{self.name} is running already in {self.folder.parent}; stop it, or say --anew")
        try:
            if not self.known.get("complete"):
                self.remove()
                self.make(durable)
            for node in self.every_node():
                self.start_node(node, new_ports=True)
            if not self.known.get("complete"):
                self.prepare()
            self.known.update(complete=True, keep=keep)
            self.save()
        except BaseException:
            self.stop(keep=self.known.get("complete", False))
            raise

    def make(self, durable):
        """Folders, passwords and data of a new server."""
        self.folder.mkdir(parents=True)
        home = self.folder
        if not can_enter(home, self.user):
            home = Path(tempfile.mkdtemp(prefix="zqn-server-"))
            home.chmod(0o755)
        self.known = {"home": str(home), "durable": durable, "admin": secrets.token_hex(12),
                      "clerk": secrets.token_hex(12), "nodes": {str(node): {} for node in self.every_node()}}
        self.save()
        if DRIVERS.exists():
            quiet = re.sub(r"(?m)^CommLog\s*=.*$", "CommLog=0", DRIVERS.read_text(encoding="utf-8"))
            (self.folder / DRIVERS.name).write_text(quiet, encoding="utf-8")
        for user in ("admin", "clerk"):
            self.write_credentials(user, self.known[user])
        for node in self.every_node():
            folder = self.home / f"node{node}"
            folder.mkdir()
            give(folder, self.user)
            self.make_node(node, folder)

    def prepare(self):
        """What a new server still needs when it runs."""

    def start_node(self, node, new_ports=False):
        """Starts a node and waits for it. A port that was free can be taken before the server has it."""
        process = self.process(node)
        for attempt in range(PORT_ATTEMPTS if new_ports else 1):
            if new_ports:
                self.node(node).update({port: free_port() for port in self.ports})
                self.save()
            seen = process.log.stat().st_size if process.log.exists() else 0
            process.start(self.command(node))
            try:
                return process.wait_until(lambda: self.ready(node), self.title(node))
            except EndedEarly:
                with open(process.log, "rb") as log:
                    log.seek(seen)
                    taken = b"Address already in use" in log.read()
                if not taken or attempt + 1 == PORT_ATTEMPTS or not new_ports:
                    raise

    def stop(self, keep=None):
        """Stops what runs; the data go unless they are to be kept."""
        for node in reversed(self.running()):
            self.process(node).stop(self.mild)
        if self.known and not (self.known.get("keep") if keep is None else keep):
            self.remove()

    def remove(self):
        if self.known:
            shutil.rmtree(self.home, ignore_errors=True)
        if self.folder.exists():
            shutil.rmtree(self.folder)
        self.known = {}

    def kill(self, node=1):
        self.node(node)
        if not self.process(node).kill():
            raise ServerFailure(f"{self.title(node)} is not running")

    def restart(self, node=1):
        """Starts a node again, at its old port; stops it first if it runs."""
        self.node(node)
        self.process(node).stop(self.mild)
        self.start_node(node)

    # Databases

    def connection(self, database=None, node=1):
        """The connection string of ODBC for the clerk."""
        pairs = {"Driver": "{" + self.driver + "}", "Server": HOST, "Port": self.node(node)["port"],
                 "Database": database or self.first_database, "UID": "clerk", "PWD": self.known["clerk"]}
        return ";".join(f"{key}={value}" for key, value in pairs.items() if value)

    def surroundings(self):
        """What a program that connects is to find in its environment: as installed, PostgreSQL's driver leaves a
        log of each process in the folder for temporary files."""
        return {"ODBCSYSINI": str(self.folder)} if (self.folder / DRIVERS.name).exists() else {}

    def query(self, sql, database=None, user="admin", node=1, password=None):
        """Runs statements with the server's own client; rows as lines, columns parted by tabs."""
        self.node(node)
        if password is None:
            return self.run_client(self.home / user, user, database, node, sql)
        with tempfile.TemporaryDirectory(prefix="zqn-client-") as folder:
            credentials = self.write_credentials(user, password, Path(folder))
            return self.run_client(credentials, user, database, node, sql)

    def run_client(self, credentials, user, database, node, sql):
        command, variables = self.client(credentials, user, database or self.first_database,
                                         self.node(node)["port"])
        done = subprocess.run(command, input=sql, capture_output=True, text=True, encoding="utf-8", cwd="/",
                              errors="replace", env={"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", **variables})
        if done.returncode != 0:
            raise ServerFailure(f"{self.title(node)}: {done.stderr.strip()}")
        return done.stdout.rstrip("\n")

    def answers(self, sql, expected, node):
        try:
            return self.query(sql, node=node) == expected
        except ServerFailure:
            return False

    def template_file(self, template):
        return self.home / f"{checked(template)}.template"

    def remembers(self, template):
        return self.template_file(template).exists()

    def write_credentials(self, user, password, folder=None):
        return write_secret((folder or self.home) / user, self.credentials(user, password))


class PostgreSql(Server):
    name, driver, user = "postgresql", "PostgreSQL Unicode", "postgres"
    mild = signal.SIGINT
    first_database = "postgres"
    programs = "/usr/lib/postgresql/*/bin"

    SETTINGS = {"listen_addresses": f"'{HOST}'", "unix_socket_directories": "''", "max_connections": "200",
                "shared_buffers": "'64MB'", "dynamic_shared_memory_type": "mmap"}
    # What is committed outlives the process, as on a real server, but not the machine. Passwords are compared
    # with md5, where a real server has either side of each connection work on it for milliseconds.
    FAST = {"fsync": "off", "full_page_writes": "off", "wal_level": "minimal",
            "max_wal_senders": "0"}

    def make_node(self, node, folder):
        secret = write_secret(folder / "password", self.known["admin"], self.user)
        run([program("initdb", self.programs), "-D", str(folder / "data"), "-U", "admin", f"--pwfile={secret}",
             "--auth=" + ("scram-sha-256" if self.known["durable"] else "md5"), "--encoding=UTF8", "--locale=C.UTF-8",
             "--no-sync"],
            self.user, folder, "initdb")
        secret.unlink()
        settings = {**self.SETTINGS, **({} if self.known["durable"] else self.FAST)}
        with open(folder / "data" / "postgresql.conf", "a", encoding="utf-8") as file:
            file.writelines(f"{key} = {value}\n" for key, value in settings.items())

    def command(self, node):
        # A killed server whose parent has not yet asked for its end counts as alive with the next one.
        (self.home / f"node{node}" / "data" / "postmaster.pid").unlink(missing_ok=True)
        return [program("postgres", self.programs), "-D", str(self.home / f"node{node}" / "data"),
                "-p", str(self.node(node)["port"])]

    def ready(self, node):
        return self.answers("SELECT 1", "1", node)

    def prepare(self):
        self.query(f"CREATE ROLE clerk LOGIN PASSWORD '{self.known['clerk']}'")

    def credentials(self, user, password):
        return f"*:*:*:{user}:{password}\n"

    def client(self, credentials, user, database, port):
        command = [program("psql", self.programs), "-X", "-q", "-A", "-t", "-w", "-F", "\t",
                   "-v", "ON_ERROR_STOP=1", "-h", HOST, "-p", str(port), "-U", user, "-d", database, "-f", "-"]
        return command, {"PGPASSFILE": str(credentials), "PGCONNECT_TIMEOUT": "5"}

    def create(self, database, node=1, template=None):
        """Makes a database, dropped first if there is one, as a copy of another if wanted."""
        self.query(f'DROP DATABASE IF EXISTS "{checked(database)}" WITH (FORCE);\n'
                   f'CREATE DATABASE "{database}" OWNER clerk TEMPLATE "{template or "template0"}";', node=node)
        return self.connection(database, node)

    def drop(self, database, node=1):
        self.query(f'DROP DATABASE IF EXISTS "{checked(database)}" WITH (FORCE);', node=node)

    def remember(self, database, as_template):
        """Makes a database, which nobody uses now, a template for others."""
        self.drop(as_template)
        self.query(f'ALTER DATABASE "{checked(database)}" RENAME TO "{checked(as_template)}";')
        self.template_file(as_template).touch()


class MariaDb(Server):
    name, driver, user = "mariadb", "MariaDB Unicode", "mysql"
    first_database = None

    SETTINGS = ["skip-name-resolve", f"bind-address={HOST}", "socket=socket", "character-set-server=utf8mb4",
                "lower_case_table_names=1", "max_connections=200", "performance_schema=0",
                "innodb_buffer_pool_size=96M", "innodb_log_file_size=48M"]
    FAST = ["innodb_flush_log_at_trx_commit=2", "innodb_flush_method=nosync", "innodb_doublewrite=0", "sync_binlog=0",
            "innodb_file_per_table=0"]
    USERS = """FLUSH PRIVILEGES;
DELETE FROM mysql.global_priv WHERE User IN ('root', '');
FLUSH PRIVILEGES;
CREATE USER 'admin'@'127.0.0.1' IDENTIFIED BY '{admin}';
GRANT ALL PRIVILEGES ON *.* TO 'admin'@'127.0.0.1' WITH GRANT OPTION;
CREATE USER 'clerk'@'127.0.0.1' IDENTIFIED BY '{clerk}';
GRANT PROCESS ON *.* TO 'clerk'@'127.0.0.1';
"""
    # The server has no means to drop a database that is in use; who holds a lock on its tables would be waited for.
    DROP = """DELIMITER //
BEGIN NOT ATOMIC
  DECLARE CONTINUE HANDLER FOR 1094 BEGIN END;
  FOR session IN (SELECT id FROM information_schema.processlist WHERE db = '{0}') DO
    KILL session.id;
  END FOR;
END//
DELIMITER ;
DROP DATABASE IF EXISTS `{0}`;
"""

    def make_node(self, node, folder):
        # A server that starts clears temporary tables away in its folder, another server's among them.
        (folder / "temporary").mkdir()
        give(folder / "temporary", self.user)
        lines = ["[mysqld]", f"datadir={folder / 'data'}", f"tmpdir={folder / 'temporary'}", *self.SETTINGS,
                 *([] if self.known["durable"] else self.FAST)]
        (folder / "settings").write_text("\n".join(lines) + "\n", encoding="utf-8")
        users = write_secret(folder / "users", self.USERS.format(**self.known), self.user)
        run([program("mariadb-install-db"), f"--defaults-file={folder / 'settings'}", "--skip-test-db",
             f"--datadir={folder / 'data'}", "--auth-root-authentication-method=normal", f"--extra-file={users}"],
            self.user, folder, "mariadb-install-db")
        users.unlink()

    def command(self, node):
        folder = self.home / f"node{node}"
        return [program("mariadbd"), f"--defaults-file={folder / 'settings'}", f"--datadir={folder / 'data'}",
                f"--port={self.node(node)['port']}", f"--pid-file={folder / 'data' / 'server.pid'}"]

    def ready(self, node):
        return self.answers("SELECT 1", "1", node)

    def credentials(self, user, password):
        return f"[client]\nuser={user}\npassword={password}\nprotocol=tcp\nhost={HOST}\n" \
               "default-character-set=utf8mb4\n"

    def client(self, credentials, user, database, port, name="mariadb"):
        flags = ["--batch", "--skip-column-names", "--connect-timeout=5"] if name == "mariadb" else []
        return [program(name), f"--defaults-file={credentials}", f"--port={port}", *flags,
                *([database] if database else [])], {}

    def create(self, database, node=1, template=None):
        """Makes a database, dropped first if there is one, as a copy of another if wanted."""
        manner = content = ""
        if template:
            dump = self.template_file(template)
            manner = dump.with_suffix(".manner").read_text(encoding="utf-8")
            content = f"USE `{database}`;\n" + dump.read_text(encoding="utf-8")
        self.query(self.DROP.format(checked(database)) + f"CREATE DATABASE `{database}` {manner};\n"
                   f"GRANT ALL PRIVILEGES ON `{database}`.* TO 'clerk'@'127.0.0.1';\n" + content, node=node)
        return self.connection(database, node)

    def drop(self, database, node=1):
        self.query(self.DROP.format(checked(database)), node=node)

    def remember(self, database, as_template):
        """Makes a database, which nobody uses now, a template for others: its dump, for a database has one name."""
        dump = self.template_file(as_template)
        manner = self.query("SELECT concat('CHARACTER SET ', default_character_set_name, ' COLLATE ', "
                            "default_collation_name) FROM information_schema.schemata "
                            f"WHERE schema_name = '{checked(database)}'")
        dump.with_suffix(".manner").write_text(manner, encoding="utf-8")
        command, _ = self.client(self.home / "admin", "admin", database, self.node(1)["port"], "mariadb-dump")
        done = subprocess.run([*command, "--hex-blob", "--skip-comments"], capture_output=True)
        if done.returncode != 0:
            raise ServerFailure(f"mariadb-dump: {done.stderr.decode('utf-8', 'replace').strip()}")
        made = dump.with_suffix(".made")
        made.write_bytes(done.stdout)
        made.rename(dump)
        self.drop(database)


class Galera(MariaDb):
    name, nodes = "galera", 3
    ports = ("port", "group", "transfer", "increment")
    PROVIDERS = ("/usr/lib/galera/libgalera_smm.so", "/usr/lib64/galera-4/libgalera_smm.so")

    def command(self, node):
        mine = self.node(node)
        others = [other for other in self.running() if other != node]
        members = ",".join(f"{HOST}:{self.node(other)['group']}" for other in others)
        if not others:
            self.let_begin(node)
        library = next((path for path in self.PROVIDERS if Path(path).exists()), None)
        if library is None:
            raise ServerFailure(f"there is no {self.PROVIDERS[0]}; tools/setup.sh installs galera-4")
        return super().command(node) + [
            "--wsrep-on=ON", f"--wsrep-provider={library}", "--wsrep-cluster-name=zqn", f"--wsrep-node-name=node{node}",
            f"--wsrep-node-address={HOST}", "--wsrep-sst-method=rsync", "--binlog-format=ROW",
            "--innodb-autoinc-lock-mode=2",
            f"--wsrep-cluster-address=gcomm://{members}",
            f"--wsrep-sst-receive-address={HOST}:{mine['transfer']}",
            f"--wsrep-provider-options=gmcast.listen_addr=tcp://{HOST}:{mine['group']};"
            f"ist.recv_addr={HOST}:{mine['increment']};gcache.size=32M"]

    def let_begin(self, node):
        """A cluster that was down is begun by the node that is started first."""
        file = self.home / f"node{node}" / "data" / "grastate.dat"
        if file.exists():
            text = file.read_text(encoding="utf-8")
            file.write_text(text.replace("safe_to_bootstrap: 0", "safe_to_bootstrap: 1"), encoding="utf-8")

    def ready(self, node):
        return self.answers("SHOW STATUS LIKE 'wsrep_local_state_comment'", "wsrep_local_state_comment\tSynced", node)


SERVERS = {kind.name: kind for kind in (PostgreSql, MariaDb, Galera)}


def server(name, state):
    if name not in SERVERS:
        raise ServerFailure(f"'{name}' is no server of the tests; there are {', '.join(SERVERS)}")
    return SERVERS[name](state)
