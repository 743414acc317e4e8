#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The library as a part of somebody else's build: it brings what is asked for, and changes nothing else.

The folder of the build stays, so that a second run compiles what has changed alone.
"""
import os
import pathlib
import subprocess
import unittest

BUILD = pathlib.Path(os.environ["ZQN_BUILD"]) / "embedded"
SOURCE = pathlib.Path(os.environ["ZQN_SOURCE"])


def run(*command):
    done = subprocess.run([str(part) for part in command], capture_output=True, text=True, check=False)
    if done.returncode != 0:
        raise AssertionError(f"{' '.join(map(str, command))}\nended with {done.returncode}\n{done.stdout}{done.stderr}")
    return done.stdout


class Embedded(unittest.TestCase):
    def configure(self, how):
        run("cmake", "-G", "Ninja", "-S", SOURCE / "package" / "embedded", "-B", BUILD, f"-DHOW={how}", f"-DLIBRARY={SOURCE}",
            f"-DCMAKE_CXX_COMPILER={os.environ['CXX']}", "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O0",
            f"-DCMAKE_CXX_COMPILER_LAUNCHER={os.environ.get('ZQN_LAUNCHER', '').replace(' ', ';')}")

    def test_a_host_builds_it_in(self):
        for how in ("add_subdirectory", "FetchContent"):
            with self.subTest(how):
                self.configure(how)
                run("cmake", "--build", BUILD, "--target", "host")
                self.assertRegex(run(BUILD / "host"), "^failed with -?[0-9]+\n$")

    def test_what_nobody_asked_for_stays_away(self):
        self.configure("add_subdirectory")
        self.assertFalse((BUILD / "CTestTestfile.cmake").exists())
        targets = run("ninja", "-C", BUILD, "-t", "targets", "all")
        for name in ("libzqnComDlg.so", "libzqnComDlgSqlite.so"):
            self.assertIn(name, targets)
        for name in ("libzqnComDlgQt.so", "libzqnComDlgOdbc.so", "zqn-dialog", "forms_test", "load"):
            self.assertNotRegex(targets, rf"(?m)^(?:\S*/)?{name}:")
        installing = [file for file in BUILD.rglob("cmake_install.cmake") if "file(INSTALL" in file.read_text()]
        self.assertEqual(installing, [BUILD / "cmake_install.cmake"])
        cache = (BUILD / "CMakeCache.txt").read_text()
        self.assertRegex(cache, r"(?m)^CMAKE_BUILD_TYPE:\w+=Debug$")
        self.assertNotIn("Werror", (BUILD / "build.ninja").read_text())


if __name__ == "__main__":
    unittest.main()
