# SPDX-License-Identifier: MIT
"""The servers of the tests do what the tests count on: tried with servers in a state folder of this test's own.

    servers_test.py [unittest's arguments]      Cluster takes the longest: three nodes
"""

import ctypes
import os
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))
import database_servers
import server_processes
from server_processes import ServerFailure, status_of

LEAST = ("postgresql", "mariadb")


def servers(*arguments, expected=0):
    """Runs the command; what it says on standard output, or on standard error where a failure is expected."""
    done = subprocess.run([sys.executable, "-B", str(HERE / "servers.py"), *arguments], capture_output=True,
                          text=True, timeout=120)
    if done.returncode != expected:
        raise AssertionError(f"status {done.returncode} of {arguments}:\n{done.stdout}{done.stderr}")
    return done.stderr.strip() if expected else done.stdout.strip()


def connect(connection_string):
    """What the driver says when it connects; an empty text when it has connected."""
    odbc = ctypes.CDLL("libodbc.so.2")
    environment, connection = ctypes.c_void_p(), ctypes.c_void_p()
    odbc.SQLAllocHandle(1, None, ctypes.byref(environment))
    odbc.SQLSetEnvAttr(environment, 200, ctypes.c_void_p(3), 0)
    odbc.SQLAllocHandle(2, environment, ctypes.byref(connection))
    text = connection_string.encode("utf-8")
    answer = odbc.SQLDriverConnect(connection, None, text, ctypes.c_short(len(text)), None, 0, None, 0)
    message = ctypes.create_string_buffer(1000)
    if answer in (0, 1):
        odbc.SQLDisconnect(connection)
    else:
        odbc.SQLGetDiagRec(2, connection, 1, ctypes.create_string_buffer(6), ctypes.byref(ctypes.c_int()), message,
                           1000, None)
    odbc.SQLFreeHandle(2, connection)
    odbc.SQLFreeHandle(1, environment)
    return message.value.decode("utf-8", "replace")


CONNECT = f"import os, sys; sys.path.insert(0, {str(HERE)!r}); import servers_test; " \
          "sys.stdout.write(servers_test.connect(os.environ['ZQN_ODBC']))"


def odbc_failure(connection_string, server):
    """The same in a process of its own: the driver manager keeps what it has once read about its drivers."""
    environment = {**os.environ, **server.surroundings(), "ZQN_ODBC": connection_string}
    return subprocess.run([sys.executable, "-B", "-c", CONNECT], env=environment, capture_output=True, text=True,
                          check=True, timeout=60).stdout


def listening(port):
    """Addresses, as the system writes them, that somebody listens on at this port."""
    found = set()
    for table in ("tcp", "tcp6"):
        for line in Path(f"/proc/net/{table}").read_text().splitlines()[1:]:
            _, local, _, state, *_ = line.split()
            address, _, hexadecimal = local.rpartition(":")
            if int(hexadecimal, 16) == port and state == "0A":
                found.add(address)
    return found


LOOPBACK = "0100007F"


def state_folder(case):
    made = tempfile.TemporaryDirectory(prefix="zqn-servers-test-")
    case.addClassCleanup(made.cleanup)
    Path(made.name).chmod(0o755)
    case.addClassCleanup(servers, "stop", "--state", made.name)
    return made.name


class OneServer:
    """What holds for each of them; a class below says which."""

    @classmethod
    def setUpClass(cls):
        cls.state = state_folder(cls)
        servers("start", "--state", cls.state, cls.name)

    def setUp(self):
        self.server = database_servers.server(self.name, self.state)

    def servers(self, action, *arguments, **expected):
        return servers(action, "--state", self.state, *arguments, **expected)

    def test_the_drivers_connect_with_the_connection_string(self):
        text = self.servers("connection", self.name, "--database", "verbunden")
        self.assertEqual(odbc_failure(text, self.server), "")

    def test_the_drivers_leave_no_log_behind(self):
        before = set(Path("/tmp").glob("psqlodbc_python*.log"))
        said = self.servers("serve", self.name, "--database", "leise", "--", sys.executable, "-B", "-c", CONNECT)
        self.assertEqual(said, "")
        self.assertEqual(set(Path("/tmp").glob("psqlodbc_python*.log")) - before, set())

    def test_a_wrong_password_is_refused(self):
        text = self.server.create("falsch")
        self.assertIn("PWD=", text)
        self.assertRegex(odbc_failure(text + "x", self.server), "authentication failed|Access denied")
        with self.assertRaisesRegex(ServerFailure, "authentication failed|Access denied"):
            self.server.query("SELECT 1", "falsch", user="clerk", password="x")

    def test_nobody_comes_in_without_a_password(self):
        for user in ("postgres", "root", "admin"):
            with self.assertRaises(ServerFailure):
                self.server.query("SELECT 1", user=user, password="")

    def test_databases_are_separate_and_made_afresh(self):
        self.server.create("eins")
        self.server.create("zwei")
        self.server.query("CREATE TABLE Größen (Schlüssel varchar(9) PRIMARY KEY); "
                     "INSERT INTO Größen VALUES ('Öse €')", "eins", user="clerk")
        self.assertEqual(self.server.query("SELECT Schlüssel FROM größen", "eins", user="clerk"), "Öse €")
        with self.assertRaises(ServerFailure):
            self.server.query("SELECT * FROM Größen", "zwei", user="clerk")
        self.server.create("eins")
        with self.assertRaises(ServerFailure):
            self.server.query("SELECT * FROM Größen", "eins", user="clerk")
        self.servers("drop", self.name, "--database", "eins")
        with self.assertRaises(ServerFailure):
            self.server.query("SELECT 1", "eins")

    def test_a_database_in_use_is_dropped(self):
        self.server.create("besetzt")
        self.server.query("CREATE TABLE t (a int)", "besetzt", user="clerk")
        command, variables = self.server.client(self.server.home / "clerk", "clerk", "besetzt", self.server.node(1)["port"])
        user = subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                                stderr=subprocess.DEVNULL, env={**os.environ, **variables})
        user.stdin.write(self.holds.encode())
        user.stdin.close()
        time.sleep(0.5)
        before = time.monotonic()
        self.server.drop("besetzt")
        self.assertLess(time.monotonic() - before, 10)
        self.assertNotEqual(user.wait(10), 0)

    def test_a_template_is_copied_as_it_is(self):
        self.server.create("urbild")
        self.server.query("CREATE TABLE a (b varchar(9)); INSERT INTO a VALUES ('ß€😀')", "urbild", user="clerk")
        self.assertFalse(self.server.remembers("muster"))
        self.server.remember("urbild", "muster")
        self.assertTrue(self.server.remembers("muster"))
        for database in ("abbild", "abbild", "abbild_zwei"):
            self.server.create(database, template="muster")
            self.assertEqual(self.server.query("SELECT b FROM a", database, user="clerk"), "ß€😀")
            self.server.query("INSERT INTO a VALUES ('neu')", database, user="clerk")

    def test_servers_listen_on_loopback_alone(self):
        self.assertEqual(listening(self.server.node(1)["port"]), {LOOPBACK})

    def test_settings_are_those_of_the_tests(self):
        question, answer = self.settings
        self.assertEqual(self.server.query(question), answer)

    def test_a_command_is_served_a_database_of_its_own(self):
        script = ("import os, sys; assert 'Database=bedient;' in os.environ['ZQN_ODBC']; "
                  f"assert os.environ['ZQN_ODBC_SERVER'] == '{self.name}'; "
                  f"assert os.environ['ZQN_ODBC_STATE'] == '{self.state}'; sys.exit(7)")
        self.servers("serve", self.name, "--database", "bedient", "--",
                sys.executable, "-c", script, expected=7)
        with self.assertRaises(ServerFailure):
            self.server.query("SELECT 1", "bedient")
        self.servers("serve", self.name, "--database", "bedient", "--",
                "sh", "-c", "kill -9 $$", expected=137)

    def test_a_killed_server_comes_back_at_its_port_with_its_data(self):
        self.server.create("bleibt")
        self.server.query("CREATE TABLE a (b int)", "bleibt", user="clerk")
        port, pid = self.server.node(1)["port"], self.server.process().pid()
        self.servers("kill", self.name)
        self.assertIsNone(status_of(pid))
        self.assertNotEqual(odbc_failure(self.server.connection("bleibt"), self.server), "")
        self.assertIn("is not running", self.servers("kill", self.name, expected=2))
        for _ in range(2):  # the second time a server that runs
            self.servers("restart", self.name)
            self.assertEqual(database_servers.server(self.name, self.state).node(1)["port"], port)
            self.assertEqual(self.server.query("SELECT count(*) FROM a", "bleibt", user="clerk"), "0")

    def test_what_cannot_be_is_said(self):
        said = self.servers("start", "orakel", expected=2)
        self.assertIn("'orakel' is no server of the tests; there are postgresql, mariadb, galera", said)
        said = self.servers("start", self.name, expected=2)
        self.assertIn("is running already", said)
        said = self.servers("connection", "galera", expected=2)
        self.assertIn("no galera has been started", said)
        for database in ("Groß", "a;b", "mysql", "postgres", "a" * 61, ""):
            with self.assertRaisesRegex(ServerFailure, "is no name for a database"):
                self.server.create(database)
        said = self.servers("connection", self.name, "--node", "2", expected=2)
        self.assertIn("has no node 2", said)
        said = self.servers("serve", self.name, "--database", "leer", "--", "gibt-es-nicht",
                       expected=2)
        self.assertIn("cannot run gibt-es-nicht", said)

    def test_names_of_databases_are_short_and_differ(self):
        names = [database_servers.database_name(text) for text in ("script.a", "script-a", "Ä" * 90, "a" * 90)]
        self.assertEqual(len(set(names)), len(names))
        for name in names:
            self.assertEqual(database_servers.checked(name), name)


class PostgreSql(OneServer, unittest.TestCase):
    name = "postgresql"
    holds = "BEGIN; SELECT * FROM t; SELECT pg_sleep(60);"
    settings = ("SELECT current_setting(s) FROM (VALUES ('server_encoding'), ('lc_collate'), ('max_connections'), "
                "('fsync'), ('unix_socket_directories')) AS v(s)", "UTF8\nC.UTF-8\n200\noff")


class MariaDb(OneServer, unittest.TestCase):
    name = "mariadb"
    holds = "BEGIN; SELECT * FROM t; SELECT sleep(60);"
    settings = ("SELECT @@character_set_server; SELECT @@lower_case_table_names; SELECT @@max_connections; "
                "SELECT @@innodb_flush_log_at_trx_commit; SELECT @@tmpdir LIKE '%/mariadb/node1/temporary'",
                "utf8mb4\n1\n200\n2\n1")


class LifeTime(unittest.TestCase):
    """Each test starts servers and ends them."""

    def setUp(self):
        made = tempfile.TemporaryDirectory(prefix="zqn-servers-test-")
        self.addCleanup(made.cleanup)
        self.state = made.name
        Path(self.state).chmod(0o755)
        self.addCleanup(servers, "stop", "--state", self.state)

    def known(self, name):
        server = database_servers.server(name, self.state)
        return server, server.process().pid(), server.node(1)["port"]

    def test_nothing_is_left_of_a_stopped_server(self):
        servers("start", "--state", self.state, *LEAST)
        known = [self.known(name) for name in LEAST]
        families = [pid for _, pid, _ in known]
        servers("stop", "--state", self.state)
        for server, pid, port in known:
            self.assertIsNone(status_of(pid))
            self.assertEqual(listening(port), set())
        self.assertEqual(len(families), len(LEAST))
        self.assertEqual(os.listdir(self.state), [])

    def test_what_an_interrupted_run_has_left_is_cleared_away(self):
        for name in LEAST:
            with self.subTest(server=name):
                servers("start", "--state", self.state, name)
                server, pid, _ = self.known(name)
                server.create("alt")
                servers("start", "--anew", "--state", self.state, name)
                self.assertIsNone(status_of(pid))
                server, pid, _ = self.known(name)
                with self.assertRaises(ServerFailure):
                    server.query("SELECT 1", "alt")
                self.assertIsNotNone(pid)

    def test_a_start_that_is_ended_from_outside_leaves_nothing(self):
        for seconds, how in ((0.3, signal.SIGTERM), (0.8, signal.SIGINT)):
            start = subprocess.Popen([sys.executable, "-B", str(HERE / "servers.py"), "start", "--state", self.state,
                                      "mariadb"], stderr=subprocess.DEVNULL)
            time.sleep(seconds)
            start.send_signal(how)
            start.wait(60)
            server = database_servers.server("mariadb", self.state)
            self.assertFalse(server.known and start.returncode != 0, start.returncode)
            server.stop()

    def test_a_start_that_is_killed_is_cleared_away_by_the_next(self):
        start = subprocess.Popen([sys.executable, "-B", str(HERE / "servers.py"), "start", "--state", self.state,
                                  "postgresql"], stderr=subprocess.DEVNULL)
        process = server_processes.Process(Path(self.state) / "postgresql" / "node1", "postgres")
        while process.pid() is None and start.poll() is None:
            time.sleep(0.005)
        start.kill()
        start.wait()
        pid = process.pid()
        self.assertIsNotNone(pid)
        (process.folder / "pid").unlink(missing_ok=True)  # as if ended before it was written
        self.assertTrue(server_processes.until(process.pid, 20))
        servers("start", "--anew", "--state", self.state, "postgresql")
        self.assertIsNone(status_of(pid))
        self.assertNotEqual(self.known("postgresql")[1], pid)

    def test_another_process_with_the_same_id_is_left_alone(self):
        servers("start", "--keep", "--state", self.state, "postgresql")
        servers("stop", "--state", self.state)
        stranger = subprocess.Popen(["sleep", "60"])
        self.addCleanup(stranger.wait)
        self.addCleanup(stranger.kill)
        (Path(self.state) / "postgresql" / "node1" / "pid").write_text(f"{stranger.pid}\n")
        servers("stop", "--state", self.state)
        self.assertIsNotNone(status_of(stranger.pid))

    def test_data_are_kept_if_wanted(self):
        for name in LEAST:
            with self.subTest(server=name):
                servers("start", "--durable", "--state", self.state, name)
                server = self.known(name)[0]
                server.create("bleibt")
                server.query("CREATE TABLE a (b int)", "bleibt", user="clerk")
                servers("stop", "--keep", "--state", self.state, name)
                self.assertEqual(server.running(), [])
                servers("start", "--state", self.state, name)
                server = self.known(name)[0]
                self.assertEqual(server.query("SELECT count(*) FROM a", "bleibt", user="clerk"), "0")

    def test_a_server_that_does_not_come_up_says_why(self):
        for name, setting in (("postgresql", "data/postgresql.conf"), ("mariadb", "settings")):
            with self.subTest(server=name):
                servers("start", "--keep", "--state", self.state, name)
                servers("stop", "--state", self.state, name)
                with open(Path(self.state) / name / "node1" / setting, "a", encoding="utf-8") as file:
                    file.write("there_is_no_such_setting = 1\n")
                said = servers("start", "--state", self.state, name, expected=2)
                self.assertIn(f"{name} ended while it was starting", said)
                self.assertIn("there_is_no_such_setting", said.replace("-", "_"))

    def test_a_server_of_its_own_is_gone_with_its_command(self):
        script = ("set -e; python3 -B servers.py kill --state $ZQN_ODBC_STATE $ZQN_ODBC_SERVER; "
                  "python3 -B servers.py restart --state $ZQN_ODBC_STATE $ZQN_ODBC_SERVER; exit 5")
        for name in LEAST:
            servers("serve", "--own", name, "--state", self.state, "--database", "eigen", "--",
                    "sh", "-c", f"cd '{HERE}'; {script}", expected=5)
            self.assertEqual(os.listdir(self.state), [])


@unittest.skipIf(os.geteuid() != 0, "runs as root, whose folders the servers' users cannot enter")
class Root(unittest.TestCase):
    def test_a_state_folder_that_the_server_cannot_enter_holds_no_data(self):
        with tempfile.TemporaryDirectory() as state:  # for its owner alone
            servers("start", "--state", state, "postgresql")
            server = database_servers.server("postgresql", state)
            home = server.home
            try:
                self.assertFalse(home.is_relative_to(state))
                self.assertEqual(odbc_failure(server.connection(), server), "")
            finally:
                servers("stop", "--state", state)
            self.assertFalse(home.exists())


class Cluster(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.state = state_folder(cls)
        servers("start", "--state", cls.state, "galera")

    def test_a_row_is_seen_on_every_node_and_a_node_may_fall_out(self):
        server = database_servers.server("galera", self.state)
        self.assertEqual(len({server.node(node)["port"] for node in (1, 2, 3)}), 3)
        text = servers("connection", "galera", "--state", self.state, "--node", "2", "--database", "verbund")
        self.assertEqual(odbc_failure(text, server), "")
        server.query("CREATE TABLE a (b varchar(9) PRIMARY KEY)", "verbund", user="clerk", node=1)
        servers("kill", "galera", "--state", self.state, "--node", "3")
        server.query("SET SESSION wsrep_sync_wait=1; INSERT INTO a VALUES ('Öse')", "verbund", user="clerk", node=2)
        servers("restart", "galera", "--state", self.state, "--node", "3")
        for node in (1, 2, 3):
            rows = server.query("SET SESSION wsrep_sync_wait=1; SELECT b FROM a", "verbund", user="clerk", node=node)
            self.assertEqual(rows, "Öse")
            self.assertEqual(server.query("SHOW STATUS LIKE 'wsrep_cluster_size'", node=node), "wsrep_cluster_size\t3")
            for port in server.ports:
                self.assertLessEqual(listening(server.node(node)[port]), {LOOPBACK})


if __name__ == "__main__":
    unittest.main()
