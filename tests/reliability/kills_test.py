# SPDX-License-Identifier: MIT
"""The command is killed at some of its writes; kills.py does it at all of them."""

import shutil
import tempfile
import unittest

import kills


class KilledAtAWrite(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.mkdtemp(prefix="zqn-kills-")
        cls.addClassCleanup(shutil.rmtree, folder)
        cls.campaign = kills.Campaign(folder)

    def check(self, name, every):
        runs, calls, findings, _ = self.campaign.run(name, every)
        self.assertEqual(findings, [])
        self.assertGreater(runs, 4, "nothing was killed")

    def test_init_leaves_a_whole_database_or_none(self):
        self.check("init", 17)

    def test_init_beside_tables_of_others_leaves_them_alone(self):
        self.check("init-beside-others", 23)

    def test_a_first_start_is_made_up_for(self):
        self.check("first-start", 19)

    def test_a_save_leaves_the_row_as_it_was_or_as_it_was_typed(self):
        self.check("save", 3)

    def test_a_save_of_two_tables_leaves_each_row_whole(self):
        self.check("save-of-two-tables", 4)


class ADatabaseThatIsBroken(unittest.TestCase):
    def test_is_found(self):
        class Halved(kills.Save):
            states = [[["Interesse geweckt und mehr"]]]

        with tempfile.TemporaryDirectory() as folder:
            kills.SUBJECTS["halved"] = Halved
            self.addCleanup(kills.SUBJECTS.pop, "halved")
            self.assertGreater(len(kills.Campaign(folder).run("halved", 5)[2]), 0)


if __name__ == "__main__":
    unittest.main()
