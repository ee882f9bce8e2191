"""Holds on small made-up trees that check_includes.py finds what it is there for, and finds nothing else."""

import tempfile
import unittest
from pathlib import Path

from check_includes import check


def problems_of(tree):
    """Checks a tree of files, each given as its path and what it includes in quotes."""
    with tempfile.TemporaryDirectory() as folder:
        for name, included in tree.items():
            path = Path(folder, name)
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text("".join(f'#include "{other}"\n' for other in included), encoding="utf-8")
        return check(Path(folder))[0]


class Modules(unittest.TestCase):
    def test_a_circle_through_sources_is_found(self):
        tree = {
            "engine/cost.h": [],
            "engine/cost.cpp": ["engine/cost.h", "engine/power.h"],
            "engine/power.h": ["engine/names.h"],
            "engine/names.h": [],
            "engine/names.cpp": ["engine/names.h", "engine/cost.h"],
        }
        problems = problems_of(tree)
        self.assertEqual(len(problems), 1)
        self.assertRegex(problems[0], "engine/cost -> engine/power -> engine/names -> engine/cost")
        tree["engine/names.cpp"].pop()
        self.assertEqual(problems_of(tree), [])

    def test_the_same_stem_in_another_folder_is_another_module(self):
        tree = {
            "base/names.h": [],
            "engine/study.h": [],
            "engine/names.cpp": ["base/names.h", "engine/study.h"],
            "engine/study.cpp": ["engine/study.h", "base/names.h"],
        }
        self.assertEqual(problems_of(tree), [])


class Floors(unittest.TestCase):
    def test_the_kit_includes_itself_alone(self):
        tree = {
            "base/names.h": [],
            "desktop/desk.h": ["base/names.h", "desktop/kit/card.h"],
            "desktop/menus.h": [],
            "desktop/kit/theme.h": [],
            "desktop/kit/card.h": ["desktop/kit/theme.h"],
        }
        self.assertEqual(problems_of(tree), [])
        for outside in ("base/names.h", "desktop/menus.h"):
            tree["desktop/kit/theme.h"] = [outside]
            self.assertEqual(problems_of(tree), [f"desktop/kit/theme.h:1: desktop/kit/ may not include {outside}"])

    def test_arrows_point_down(self):
        tree = {"validation/spans.h": [], "session/fields.h": ["validation/spans.h"], "screen/rows.h": ["session/fields.h"]}
        self.assertEqual(problems_of(tree), [])
        tree = {"screen/rows.h": [], "session/fields.h": ["screen/rows.h"]}
        self.assertEqual(problems_of(tree), ["session/fields.h:1: session/ may not include screen/"])


if __name__ == "__main__":
    unittest.main()
