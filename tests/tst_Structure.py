"""Every class and file of functions has a test of its name, or CONTRIBUTING names the tests that cover it."""

import fnmatch
import os
import re
import unittest
from pathlib import Path

SOURCE = Path(os.environ["TARN_SOURCE_DIR"]).resolve()
TESTS = SOURCE / "tests"
# The tests mirror these folders; those of the model libraries are in one folder.
MIRRORED = ("common", "design", "analysis", "geometry", "solver", "host/core", "host/window")
LONGEST_TEST = 500


def Sources():
    """The files of ours without their suffix, as their folder and their name."""
    found = set()
    for folder in (*MIRRORED, "model"):
        for path in (SOURCE / folder).rglob("*"):
            if path.suffix in (".h", ".cpp"):
                found.add((path.parent.relative_to(SOURCE).as_posix(), path.stem))
    return found


def CoveredElsewhere():
    """The table of CONTRIBUTING: the source, and the tests that cover it."""
    chapter = (SOURCE / "CONTRIBUTING.md").read_text().split("## Sources without a test of their own\n")[1].split("\n## ")[0]
    rows = re.findall(r"^\| `([^`]+)` \| (.*) \|$", chapter, flags=re.M)
    return {source: re.findall(r"`(tst_\w+)`", tests) for source, tests in rows}


def Test(folder, name):
    folder = "model" if folder.startswith("model/") else folder
    return TESTS / folder / f"tst_{name}.cpp"


def WithoutTest():
    return sorted(f"{folder}/{name}" for folder, name in Sources() if not Test(folder, name).is_file())


class Structure(unittest.TestCase):
    def test_EverySourceHasATestOfItsNameOrIsListed(self):
        missing = [source for source in WithoutTest() if not any(fnmatch.fnmatch(source, row) for row in CoveredElsewhere())]
        self.assertEqual(missing, [], "write their tests, or list them in CONTRIBUTING.md")

    def test_TheListNamesTestsThatExist(self):
        tests = {path.stem for path in TESTS.rglob("tst_*") if path.suffix in (".cpp", ".py")}
        for row, covering in CoveredElsewhere().items():
            with self.subTest(row):
                self.assertTrue(covering)
                self.assertEqual(set(covering) - tests, set())

    def test_NoTestFileIsTooLong(self):
        long = {}
        for path in TESTS.rglob("*.cpp"):
            lines = len(path.read_text().splitlines())
            if lines > LONGEST_TEST:
                long[path.relative_to(SOURCE).as_posix()] = lines
        self.assertEqual(long, {})


if __name__ == "__main__":
    unittest.main()
