# SPDX-License-Identifier: MIT
"""The check of folders finds what it is there to find: tried with a tree of a few folders."""

import sys
import tempfile
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[1] / "tools"))
import folders

FLOORS = {"text": 1, "forms": 2, "sales": 3, "stock": 3, "windows": 4, "pages": 4, "desktop/shared": 4, "command": 5}
TREE = {
    "text/CMakeLists.txt": "zqn_library(text SOURCES text.cpp HEADERS text.h)",
    "text/text.h": "",
    "text/text.cpp": '#include "text/text.h"\n#include <string>\n',
    "forms/CMakeLists.txt": "zqn_library(forms SOURCES form.cpp HEADERS form.h USES text)",
    "forms/form.h": '#include "text/text.h"\n',
    "sales/CMakeLists.txt": "# The USES of a comment do not count.\nzqn_library(sales SOURCES sales.cpp USES forms)",
    "sales/sales.h": "",
    "sales/sales.cpp": '#include "sales/sales.h"\n\n#include "forms/form.h"\n',
    "stock/CMakeLists.txt": "zqn_library(stock SOURCES stock.cpp USES forms)",
    "stock/stock.h": '#include "forms/form.h"\n',
    "windows/CMakeLists.txt": "zqn_library(windows SOURCES window.cpp USES forms)",
    "windows/window.h": '#include "forms/form.h"\n',
    "command/CMakeLists.txt": "zqn_program(command SOURCES main.cpp USES sales)",
    "command/main.cpp": '#include "sales/sales.h"\n',
}


class Folders(unittest.TestCase):
    def setUp(self):
        made = tempfile.TemporaryDirectory()
        self.addCleanup(made.cleanup)
        self.source = Path(made.name)
        for name, text in TREE.items():
            self.write(name, text)

    def write(self, name, text):
        file = self.source / name
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(text, encoding="utf-8")

    def tree(self):
        files = [(file, file.read_text(encoding="utf-8")) for file in sorted(self.source.rglob("*")) if file.is_file()]
        return folders.Tree(self.source, files, FLOORS)

    def complaints(self):
        return [f"{path.relative_to(self.source)}:{line}: {what}" for path, line, what in self.tree().complaints()]

    def assert_complaint(self, complaint):
        self.assertEqual(self.complaints(), [complaint])

    def test_a_tree_that_keeps_to_its_statements_passes(self):
        self.assertEqual(self.complaints(), [])

    def test_a_sideways_include_that_is_not_stated_fails(self):
        self.write("sales/sales.cpp", '#include "forms/form.h"\n#include "stock/stock.h"\n')
        self.assert_complaint('sales/sales.cpp:2: "stock/stock.h" is of stock, which sales does not say it uses')

    def test_what_a_used_folder_uses_must_be_stated_too(self):
        self.write("command/main.cpp", '#include "sales/sales.h"\n#include "text/text.h"\n')
        self.assert_complaint('command/main.cpp:2: "text/text.h" is of text, which command does not say it uses')

    def test_a_stated_use_without_an_include_fails(self):
        self.write("command/CMakeLists.txt", "zqn_program(command\n  SOURCES main.cpp\n  USES sales\n  stock)")
        self.assert_complaint("command/CMakeLists.txt:4: says it uses stock, and includes nothing of stock")

    def test_a_circle_fails_and_is_shown(self):
        self.write("sales/CMakeLists.txt", "zqn_library(sales SOURCES sales.cpp USES forms stock)")
        self.write("sales/sales.cpp", '#include "forms/form.h"\n#include "stock/stock.h"\n')
        self.write("stock/CMakeLists.txt", "zqn_library(stock SOURCES stock.cpp USES forms sales)")
        self.write("stock/stock.h", '#include "forms/form.h"\n#include "sales/sales.h"\n')
        self.assert_complaint("sales/CMakeLists.txt:1: a circle of folders: sales -> stock -> sales")

    def test_nothing_runs_back_up(self):
        self.write("forms/CMakeLists.txt", "zqn_library(forms SOURCES form.cpp HEADERS form.h USES text)\nzqn_library(more USES sales)")
        self.write("forms/form.cpp", '#include "sales/sales.h"\n')
        self.assertIn("forms/CMakeLists.txt:2: sales stands on floor 3, this is floor 2", self.complaints())

    def test_toolkits_use_each_other_by_no_way_but_what_they_share(self):
        self.write("desktop/shared/CMakeLists.txt", "zqn_library(shared SOURCES tip.cpp USES forms)")
        self.write("desktop/shared/tip.h", '#include "forms/form.h"\n')
        self.write("pages/CMakeLists.txt", "zqn_library(pages SOURCES page.cpp USES shared)")
        self.write("pages/page.h", '#include "desktop/shared/tip.h"\n')
        self.assertEqual(self.complaints(), [])
        self.write("pages/CMakeLists.txt", "zqn_library(pages SOURCES page.cpp USES shared windows)")
        self.write("pages/page.h", '#include "desktop/shared/tip.h"\n#include "windows/window.h"\n')
        self.assert_complaint(
            "pages/CMakeLists.txt:1: windows stands beside this folder, where each is one toolkit or one database")

    def test_a_folder_without_a_floor_or_without_a_library_fails(self):
        self.write("loft/CMakeLists.txt", "zqn_library(loft SOURCES loft.cpp)")
        self.write("attic/box.h", "")
        self.assertEqual(self.complaints(), ["attic/box.h:1: stands in no folder with a library",
                                             "loft/CMakeLists.txt:1: stands on no floor; give the folder a row in tools/folders.py"])

    def test_a_use_that_names_no_library_fails(self):
        self.write("command/CMakeLists.txt", "zqn_program(command SOURCES main.cpp USES sales salse)")
        self.assert_complaint("command/CMakeLists.txt:1: salse is no library of a folder")

    def test_an_include_is_written_from_the_root_on(self):
        self.write("text/text.cpp", '#include "text.h"\n')
        self.assert_complaint('text/text.cpp:1: "text.h" is not written from src/ on')

    def test_a_public_header_includes_public_headers_alone(self):
        self.write("forms/form.h", '#include "text/text.h"\n#include "forms/keys.h"\n')
        self.write("forms/keys.h", "")
        self.assert_complaint('forms/form.h:2: a public header includes "forms/keys.h", which is not stated as public')
        self.write("forms/CMakeLists.txt", "zqn_library(forms SOURCES form.cpp HEADERS form.h keys.h USES text)")
        self.assertEqual(self.complaints(), [])

    def test_a_public_header_that_is_gone_fails(self):
        self.write("text/CMakeLists.txt", "zqn_library(text SOURCES text.cpp HEADERS text.h word.h)")
        self.assert_complaint("text/CMakeLists.txt:1: the public header text/word.h does not exist")

    def test_tests_look_anywhere(self):
        self.write("text/text_test.cpp", '#include "command/command.h"\n')
        self.write("testing/clerk.h", '#include "sales/sales.h"\n')
        self.assertEqual(self.complaints(), [])

    def test_the_picture_shows_an_arrow_that_no_longer_road_stands_for(self):
        self.write("command/CMakeLists.txt", "zqn_program(command SOURCES main.cpp USES sales forms)")
        picture = self.tree().arrows()
        self.assertIn("  command --> sales\n", picture)
        self.assertNotIn("command --> forms", picture)
        self.assertIn('  subgraph floor3["floor 3"]\n    sales["sales"]\n    stock["stock"]\n  end\n', picture)


if __name__ == "__main__":
    unittest.main()
