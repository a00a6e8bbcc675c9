"""Tests the manual: its Markdown sources in docs/, and the pages that Doxygen generates."""

import os
import re
import subprocess
import tempfile
import unittest
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote

SOURCE = Path(os.environ["TARN_SOURCE_DIR"]).resolve()
MANUAL = SOURCE / "docs" / "manual"
IMAGES = SOURCE / "docs" / "images"
EXAMPLE = SOURCE / "docs" / "examples" / "small_host"
# Pictures that do not show a dialog.
OWN_WINDOWS = {"BuildLimitsDialog", "MainWindow", "ParameterPanel", "PositionDock", "ProjectProperties",
               "ResultsDock", "SetupCheckDock", "ShapePicker", "SolveDock", "StudyMainEffects", "StudyOptimum",
               "StudyPanel", "StudyResults", "StudyScatter"}
ELSEWHERE = re.compile(r"^(https?|mailto|javascript):")


def MarkdownFiles():
    return sorted(SOURCE.glob("*.md")) + sorted((SOURCE / "docs").rglob("*.md"))


def WithoutCode(text):
    return re.sub(r"`[^`\n]*`", "", re.sub(r"^```.*?^```", "", text, flags=re.M | re.S))


def Links(page):
    """Returns the link and picture targets of a Markdown page."""
    return re.findall(r"\]\(([^)\s]+)\)", WithoutCode(page.read_text()))


def Headings(page):
    """Returns the anchors of the headings of a Markdown page."""
    titles = re.findall(r"^#+ (.*)$", re.sub(r"^```.*?^```", "", page.read_text(), flags=re.M | re.S), flags=re.M)
    return {re.sub(r"[^\w\- ]", "", title).lower().replace(" ", "-") for title in titles}


def IsBroken(page, link):
    path, _, anchor = link.partition("#")
    target = (page.parent / path) if path else page
    return not target.exists() or bool(anchor and anchor not in Headings(target))


def ReachableFrom(first):
    reached = {first}
    waiting = [first]
    while waiting:
        page = waiting.pop()
        for link in Links(page):
            target = (page.parent / link.partition("#")[0]).resolve()
            if target.suffix == ".md" and target.is_file() and target not in reached:
                reached.add(target)
                waiting.append(target)
    return reached


class BuiltPage(HTMLParser):
    def __init__(self, page):
        super().__init__()
        self.targets = set()
        self.anchors = set()
        self.feed(page.read_text())

    def handle_starttag(self, tag, attrs):
        values = dict(attrs)
        self.targets.update(values[name] for name in ("href", "src") if values.get(name))
        self.anchors.update(values[name] for name in ("id", "name") if values.get(name))


class MarkdownPages(unittest.TestCase):
    # The sections of the page of a dialog.
    SECTIONS = ["What it asks", "What the host gets back", "What surprises users", "What surprises programmers"]

    @classmethod
    def setUpClass(cls):
        with tempfile.TemporaryDirectory() as folder:
            subprocess.run([os.environ["TARN_HOST_PROGRAM"], "--screenshots", folder], check=True)
            cls.pictured = {picture.stem for picture in Path(folder).glob("*.png")}

    def test_EveryLinkAndPictureExists(self):
        broken = [f"{page.relative_to(SOURCE)}: {link}" for page in MarkdownFiles() for link in Links(page)
                  if not ELSEWHERE.match(link) and IsBroken(page, link)]
        self.assertEqual(broken, [])

    def test_EveryWindowHasAPicture(self):
        self.assertGreater(len(self.pictured), 20)
        self.assertEqual(self.pictured - {picture.stem for picture in IMAGES.iterdir()}, set(),
                         "copy their pictures from ./run --screenshots out/pictures --lang en to docs/images")

    def test_EveryOtherPictureIsOnAPage(self):
        shown = {Path(link).stem for page in MarkdownFiles() for link in Links(page) if link.endswith((".png", ".svg"))}
        self.assertEqual({picture.stem for picture in IMAGES.iterdir()} - self.pictured - shown, set(),
                         "show them on a page, or remove them")

    def test_EveryDialogHasAPageWithItsPictureAndTheSameSections(self):
        for dialog in sorted(self.pictured - OWN_WINDOWS):
            with self.subTest(dialog):
                page = MANUAL / f"{dialog}.md"
                self.assertTrue(page.is_file(), f"write {page.relative_to(SOURCE)} with the sections {self.SECTIONS}")
                self.assertIn(f"../images/{dialog}.png", Links(page))
                self.assertRegex(page.read_text(), rf"^# .*\b{dialog}\n")
                chapters = re.findall(r"^## (.*)$", page.read_text(), flags=re.M)
                self.assertEqual(chapters, self.SECTIONS)

    def test_EveryPageIsReachableFromTheFirst(self):
        pages = {page.name for page in set(MANUAL.glob("*.md")) - ReachableFrom(MANUAL / "README.md")}
        self.assertEqual(pages, set(), "link them from the pages of their areas")

    def test_TheManPageHasEveryOptionOfTheProgram(self):
        told = subprocess.run([os.environ["TARN_HOST_PROGRAM"], "--help"], check=True, capture_output=True, text=True).stdout
        page = (SOURCE / "host" / "desktop" / "tarnhost.1").read_text().replace("\\-", "-")
        options = re.findall(r"^  (?:-\w, )?(--[\w-]+)", told, flags=re.M)
        self.assertIn("--study", options)
        self.assertEqual([option for option in options if not re.search(rf"^\.\w+ .*{option}\b", page, flags=re.M)], [])

    def test_ThePageShowsTheSmallHostThatIsBuilt(self):
        page = (MANUAL / "host-programmers.md").read_text()
        for name, language in (("CMakeLists.txt", "cmake"), ("main.cpp", "cpp")):
            with self.subTest(name):
                shown = f"`{name}`:\n\n```{language}\n{(EXAMPLE / name).read_text()}```\n" in page
                self.assertTrue(shown, "copy the example into the page")

    def test_TheChecklistShowsTheFunctionsThatAreTested(self):
        page = (MANUAL / "host-programmers.md").read_text()
        checklist = re.search(r"^## Checklist$(.*?)^## ", page, flags=re.M | re.S).group(1)
        shown = "\n".join(re.findall(r"^```cpp\n(.*?)^```$", checklist, flags=re.M | re.S))
        header = (SOURCE / "docs" / "examples" / "checklist" / "Checklist.h").read_text()
        self.assertEqual(shown, header[header.index("inline "):])


class GeneratedPages(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.folder = Path(folder.name)
        doxyfile = Path(os.environ["TARN_DOXYFILE"]).read_text() + f'\nOUTPUT_DIRECTORY = "{cls.folder}"\n'
        cls.doxygen = subprocess.run([os.environ["TARN_DOXYGEN"], "-"], input=doxyfile, text=True, cwd=cls.folder,
                                     stdout=subprocess.PIPE, stderr=subprocess.STDOUT, check=False)
        cls.pages = {page.name: BuiltPage(page) for page in cls.folder.glob("*.html")}

    def test_EveryPublicNameIsDocumentedAndDoxygenIsSilent(self):
        self.assertEqual((self.doxygen.stdout, self.doxygen.returncode), ("", 0))

    def test_EveryPageOfTheManualIsGenerated(self):
        self.assertIn("index.html", self.pages)
        for page in MANUAL.glob("*.md"):
            if page.name != "README.md":
                self.assertIn(f"md_docs_manual_{page.stem.replace('-', '_')}.html", list(self.pages),
                              f"run CMake again, so that it finds {page.name}")
        self.assertIn("classParameterEditor.html", self.pages)

    def test_EveryLinkAndPictureExists(self):
        broken = [f"{name}: {target}" for name, page in self.pages.items() for target in page.targets
                  if not ELSEWHERE.match(target) and self.IsBroken(name, target)]
        self.assertEqual(broken, [])

    def test_NoPageShowsMarkup(self):
        # A line break in the text of a link makes Doxygen show the rest of the section as source.
        markup = re.compile(r"@(code|endcode|verbatim|endverbatim|ref)\b|&lt;/?(tt|h\d)&gt;")
        self.assertEqual([name for name in self.pages if markup.search((self.folder / name).read_text())], [])

    def IsBroken(self, name, target):
        path, _, anchor = unquote(target).partition("#")
        path = path or name
        if not (self.folder / path).is_file():
            return True
        return bool(anchor) and path in self.pages and anchor not in self.pages[path].anchors


if __name__ == "__main__":
    unittest.main()
