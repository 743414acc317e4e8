#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The package as a host and a person meet it: installed into a clean folder, built against, and unpacked."""
import os
import pathlib
import shutil
import subprocess
import tempfile
import unittest

BUILD = pathlib.Path(os.environ["ZQN_BUILD"])
SOURCE = pathlib.Path(os.environ["ZQN_SOURCE"])


def run(*command, **options):
    done = subprocess.run([str(part) for part in command], capture_output=True, text=True, check=False, **options)
    if done.returncode != 0:
        raise AssertionError(f"{' '.join(map(str, command))}\nended with {done.returncode}\n{done.stdout}{done.stderr}")
    return done.stdout


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = pathlib.Path(tempfile.mkdtemp())
        cls.addClassCleanup(shutil.rmtree, cls.folder)
        cls.prefix = cls.folder / "prefix"
        run("cmake", "--install", BUILD, "--prefix", cls.prefix)
        cls.library = next(cls.prefix.glob("lib*/**/libzqnComDlg.so")).parent

    def environment(self):
        return os.environ | {"LD_LIBRARY_PATH": str(self.library), "QT_QPA_PLATFORM": "offscreen"}

    def test_a_host_builds_against_it(self):
        """The examples, configured as a project of their own."""
        built = self.folder / "examples"
        run("cmake", "-G", "Ninja", "-S", SOURCE / "examples", "-B", built, f"-DCMAKE_PREFIX_PATH={self.prefix}")
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
        run("cmake", "-G", "Ninja", "-S", project, "-B", project / "build", f"-DCMAKE_PREFIX_PATH={self.prefix}")
        run("cmake", "--build", project / "build")
        self.assertEqual(run(project / "build" / "host", env=self.environment()), "-2147467259")

    def test_every_header_stands_by_itself(self):
        include = self.prefix / "include" / "zqnComDlg"
        headers = sorted(include.glob("**/*.h"))
        self.assertGreater(len(headers), 20)
        core = [h for h in headers if "desktop/qt" not in str(h)]
        everything = self.folder / "every_header.cpp"
        for header in core:
            everything.write_text(f'#include "{header.relative_to(include)}"\n')
            run(os.environ["CXX"], "-std=c++20", "-Wall", "-Wextra", "-Wpedantic", "-Werror", "-fsyntax-only", f"-I{include}",
                everything)

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
