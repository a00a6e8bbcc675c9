"""Every class and file of functions has a test of its name, or CONTRIBUTING names the tests that cover it.

Every test is built, and every dialog elides its texts.
"""

import fnmatch
import os
import re
import unittest
from pathlib import Path

SOURCE = Path(os.environ["TARN_SOURCE_DIR"]).resolve()
TESTS = SOURCE / "tests"
# The tests mirror these folders; those of the model libraries are in one folder.
DIALOGS = ("common", "design", "analysis", "geometry", "solver")
MIRRORED = (*DIALOGS, "host/core", "host/window")
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
        self.assertEqual(missing, [], "write their tests, or list them in CONTRIBUTING.md with the tests that cover them")

    def test_TheListNamesTestsThatExist(self):
        tests = {path.stem for path in TESTS.rglob("tst_*") if path.suffix in (".cpp", ".py")}
        without = WithoutTest()
        for row, covering in CoveredElsewhere().items():
            with self.subTest(row):
                self.assertTrue(covering, "name the tests that cover it")
                self.assertEqual(set(covering) - tests, set(), "name tests that exist")
                self.assertTrue(fnmatch.filter(without, row), "remove the row: no source without a test has this name")

    def test_NoTestFileIsTooLong(self):
        long = {}
        for path in TESTS.rglob("*.cpp"):
            lines = len(path.read_text().splitlines())
            if lines > LONGEST_TEST:
                long[path.relative_to(SOURCE).as_posix()] = lines
        self.assertEqual(long, {}, f"split them by subject into files of at most {LONGEST_TEST} lines")

    def test_EveryTestIsBuilt(self):
        lists = {}
        for path in TESTS.rglob("tst_*.cpp"):
            lists.setdefault(path.parent / "CMakeLists.txt", []).append(path.stem.removeprefix("tst_"))
        for path, names in sorted(lists.items()):
            with self.subTest(path.relative_to(SOURCE).as_posix()):
                words = set(re.findall(r"\w+", path.read_text()))
                self.assertEqual(set(names) - words, set(), "add them with tarn_test()")

    def test_EveryDialogElidesItsTexts(self):
        forgotten = []
        for folder in DIALOGS:
            for path in (SOURCE / folder).glob("*.cpp"):
                text = path.read_text()
                if "setupUi(" in text and "tarn::ElideTexts(" not in text:
                    forgotten.append(path.relative_to(SOURCE).as_posix())
        self.assertEqual(forgotten, [], "call tarn::ElideTexts() after setupUi()")


if __name__ == "__main__":
    unittest.main()
