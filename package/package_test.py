#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The package as a host and a person meet it: installed into a clean folder, built against, and unpacked."""
import os
import pathlib
import shutil
import subprocess
import unittest
from concurrent.futures import ThreadPoolExecutor

BUILD = pathlib.Path(os.environ["ZQN_BUILD"])
SOURCE = pathlib.Path(os.environ["ZQN_SOURCE"])
# A compiler cache, or nothing.
LAUNCHER = [part for part in os.environ.get("ZQN_LAUNCHER", "").split(" ") if part]


def run(*command, **options):
    done = subprocess.run([str(part) for part in command], capture_output=True, text=True, check=False, **options)
    if done.returncode != 0:
        raise AssertionError(f"{' '.join(map(str, command))}\nended with {done.returncode}\n{done.stdout}{done.stderr}")
    return done.stdout


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        # Always the same place: a compiler cache then knows what was compiled before.
        cls.folder = BUILD / "package-test"
        shutil.rmtree(cls.folder, ignore_errors=True)
        cls.folder.mkdir()
        cls.prefix = cls.folder / "prefix"
        run("cmake", "--install", BUILD, "--prefix", cls.prefix)
        cls.library = next(cls.prefix.glob("lib*/**/libzqnComDlg.so")).parent

    def environment(self):
        return os.environ | {"LD_LIBRARY_PATH": str(self.library), "QT_QPA_PLATFORM": "offscreen"}

    def configure(self, project, built):
        run("cmake", "-G", "Ninja", "-S", project, "-B", built, f"-DCMAKE_PREFIX_PATH={self.prefix}",
            f"-DCMAKE_CXX_COMPILER={os.environ['CXX']}", f"-DCMAKE_CXX_COMPILER_LAUNCHER={';'.join(LAUNCHER)}")

    def test_a_host_builds_against_it(self):
        """The examples, configured as a project of their own."""
        built = self.folder / "examples"
        self.configure(SOURCE / "examples", built)
        run("cmake", "--build", built)
        host = subprocess.run([built / "pick_status", "nowhere/waren.sqlite"], capture_output=True, text=True,
                              env=self.environment(), check=False)
        self.assertEqual(host.returncode, 1)
        self.assertIn("nowhere/waren.sqlite", host.stderr)

    def test_a_host_opens_a_server(self):
        """With the component alone; no server is needed to be told that the driver is missing."""
        project = self.folder / "server"
        project.mkdir()
        (project / "host.cpp").write_text(
            "#include <iostream>\n#include \"ado/odbc/odbc.h\"\n#include \"runtime/error.h\"\n"
            "int main() {\n  try {\n    zqn::ado::openOdbc(u\"Driver={Nirgends};Server=db\");\n"
            "  } catch (const zqn::RuntimeError& failure) {\n    std::cout << failure.number();\n  }\n}\n")
        (project / "CMakeLists.txt").write_text(
            "cmake_minimum_required(VERSION 3.25)\nproject(server LANGUAGES CXX)\n"
            "find_package(zqnComDlg REQUIRED COMPONENTS odbc)\n"
            "add_executable(host host.cpp)\ntarget_link_libraries(host PRIVATE zqnComDlg::odbc)\n")
        self.configure(project, project / "build")
        run("cmake", "--build", project / "build")
        self.assertEqual(run(project / "build" / "host", env=self.environment()), "-2147467259")

    def test_every_header_stands_by_itself(self):
        include = self.prefix / "include" / "zqnComDlg"
        headers = sorted(include.glob("**/*.h"))
        self.assertGreater(len(headers), 20)

        def compile_alone(header):
            name = header.relative_to(include).as_posix()
            source = self.folder / (name.replace("/", "_") + ".cpp")
            source.write_text(f'#include "{name}"\n')
            run(*LAUNCHER, os.environ["CXX"], "-std=c++20", "-Wall", "-Wextra", "-Wpedantic", "-Werror", f"-I{include}", "-c",
                source, "-o", source.with_suffix(".o"))

        with ThreadPoolExecutor(os.cpu_count()) as together:
            for _ in together.map(compile_alone, [header for header in headers if "desktop/qt" not in str(header)]):
                pass

    def test_an_unknown_component_is_named(self):
        project = self.folder / "unknown"
        project.mkdir()
        (project / "CMakeLists.txt").write_text(
            "cmake_minimum_required(VERSION 3.25)\nproject(unknown LANGUAGES CXX)\n"
            "find_package(zqnComDlg REQUIRED COMPONENTS core gtk)\n")
        done = subprocess.run(["cmake", "-S", project, "-B", project / "build", f"-DCMAKE_PREFIX_PATH={self.prefix}"],
                              capture_output=True, text=True, check=False)
        self.assertNotEqual(done.returncode, 0)
        self.assertIn("no component 'gtk'", done.stderr)

    def test_a_component_that_is_only_wished_for_may_be_missing(self):
        project = self.folder / "wished"
        project.mkdir()
        (project / "CMakeLists.txt").write_text(
            "cmake_minimum_required(VERSION 3.25)\nproject(wished LANGUAGES CXX)\n"
            "find_package(zqnComDlg REQUIRED COMPONENTS sqlite OPTIONAL_COMPONENTS qt gtk)\n"
            "foreach(component core sqlite qt gtk)\n  message(\"${component}: ${zqnComDlg_${component}_FOUND}\")\nendforeach()\n")
        configure = ["cmake", "-S", project, f"-DCMAKE_PREFIX_PATH={self.prefix}"]
        for qt, options in (("TRUE", []), ("FALSE", ["-DCMAKE_DISABLE_FIND_PACKAGE_Qt6=ON"])):
            done = subprocess.run([*configure, "-B", project / qt, *options], capture_output=True, text=True, check=False)
            self.assertEqual(done.returncode, 0, done.stderr)
            said = [line for line in done.stderr.splitlines() if ": " in line]
            self.assertEqual(said, ["core: TRUE", "sqlite: TRUE", f"qt: {qt}", "gtk: FALSE"])

    def test_the_headers_are_those_that_are_stated(self):
        """Each of them, and none besides."""
        include = self.prefix / "include" / "zqnComDlg"
        installed = {header.relative_to(include).as_posix() for header in include.glob("**/*.h")}
        stated = run("python3", "-B", SOURCE / "tools" / "project_check.py", "--public").split()
        self.assertGreater(len(stated), 20)
        self.assertEqual(installed, {name.removeprefix("src/") for name in stated})

    def test_only_our_names_leave_the_libraries(self):
        for library in sorted(self.library.glob("libzqnComDlg*.so")):
            names = run("nm", "--dynamic", "--defined-only", "--demangle", "--format=posix", library).splitlines()
            self.assertGreater(len(names), 5, library.name)
            foreign = [name for name in names if "zqn::" not in name]
            self.assertEqual(foreign, [], library.name)
            self.assertTrue((library.parent / f"{library.name}.0").is_symlink(), "the library has a version")

    def test_pkg_config_tells_how_to_build(self):
        if shutil.which("pkg-config") is None:
            self.skipTest("pkg-config is not installed")
        path = os.environ | {"PKG_CONFIG_PATH": str(self.library / "pkgconfig")}
        for module in ("zqnComDlg", "zqnComDlg-qt", "zqnComDlg-sqlite", "zqnComDlg-odbc"):
            self.assertIn("-lzqnComDlg", run("pkg-config", "--libs", module, env=path))

    def test_the_manual_names_every_option(self):
        manual = next(self.prefix.glob("share/man/man1/zqn-dialog.1")).read_text().replace("\\-", "-")
        for command in ("kinds", "init", "sql", "show"):
            usage = run(self.prefix / "bin" / "zqn-dialog", command, "--help")
            options = {word.strip("[],") for word in usage.split() if word.startswith("--")} - {"--help"}
            self.assertTrue(options or command == "sql", usage)
            for option in options:
                self.assertIn(option, manual, f"{command} {option}")

    def test_the_debian_package_runs_the_command(self):
        out = self.folder / "deb"
        run("cpack", "--config", BUILD / "CPackConfig.cmake", "-G", "DEB", "-B", out)
        package = next(out.glob("*.deb"))
        fields = run("dpkg-deb", "--field", package)
        for needed in ("libsqlite3-0", "libodbc2"):
            self.assertRegex(fields, f"Depends: .*{needed}")
        root = self.folder / "root"
        run("dpkg-deb", "--extract", package, root)
        for place in ("usr/share/man/man1/zqn-dialog.1", "usr/share/applications/zqn-dialog.desktop",
                      "usr/share/icons/hicolor/scalable/apps/zqn-dialog.svg",
                      "usr/share/bash-completion/completions/zqn-dialog"):
            self.assertTrue((root / place).exists(), place)
        database = f"sqlite:{self.folder / 'waren.sqlite'}"
        command = root / "usr/bin/zqn-dialog"
        run(command, "init", "--db", database, "--sample")
        for desktop in ("headless", "qt"):
            script = '{"select":"TDBList1","row":0}\n{"key":"F9"}\n'
            key = run(command, "show", "21", "--db", database, "--ui", desktop, "--script", "-", "--transcript", self.folder / "t",
                      input=script, env=self.environment())
            self.assertNotEqual(key.strip(), "")


if __name__ == "__main__":
    unittest.main()
