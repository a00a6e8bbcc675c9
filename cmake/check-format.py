#!/usr/bin/env python3
"""Checks the format of the C++, CMake and form files; --fix applies the formatters.

Forms must be as Designer writes them: well-formed XML, LF line ends, one blank per level, no
trailing blanks. They are named after their class and contain no absolute paths.
"""
import pathlib
import re
import subprocess
import sys
import xml.parsers.expat

ROOT = pathlib.Path(__file__).resolve().parent.parent


def files(*patterns):
    """Returns the matching files, except build output and hidden files."""
    found = []
    for path in ROOT.rglob("*"):
        parts = path.relative_to(ROOT).parts
        if parts[0] in ("build", "out") or any(part.startswith(".") for part in parts):
            continue
        if any(path.match(pattern) for pattern in patterns) and path.is_file():
            found.append(path)
    return sorted(found)


def format_with(command, check, fix, apply):
    run = subprocess.run([*command, *(fix if apply else check)], cwd=ROOT, capture_output=True, text=True)
    if run.returncode == 0:
        return []
    # Both tools report every place; the file names are enough.
    said = run.stdout + run.stderr
    names = sorted({str(ROOT / name) for name in re.findall(r"(?:^|\s)(/?[\w./-]+\.(?:cpp|h|cmake|txt))\b", said)})
    return [f"{name}: not formatted with {command[0]}" for name in names] or [said]


def check_form(path):
    data = path.read_bytes()
    findings = []
    if b"\r" in data:
        findings.append("has line ends other than LF")
    if not data.endswith(b"</ui>\n"):
        findings.append("does not end with </ui> and one LF")
    lines = data.decode("utf-8").split("\n")
    findings += [f"{number}: trailing blanks" for number, line in enumerate(lines, 1) if line != line.rstrip()]

    depth, class_text, root = 0, None, None
    open_elements = []
    parser = xml.parsers.expat.ParserCreate()

    def start(name, attributes):
        nonlocal depth, root
        line, column = parser.CurrentLineNumber, parser.CurrentColumnNumber
        if column != depth and not lines[line - 1][:column].strip():
            findings.append(f"{line}: {column} blanks at level {depth}")
        if name == "widget" and root is None:
            root = attributes.get("name")
        open_elements.append(name)
        depth += 1

    def end(name):
        nonlocal depth
        depth -= 1
        open_elements.pop()

    def text(content):
        nonlocal class_text
        if open_elements == ["ui", "class"]:
            class_text = (class_text or "") + content
        if open_elements[-1] in ("string", "pixmap", "normaloff", "iconset", "header", "location"):
            if re.match(r"\s*(/\w|[A-Za-z]:[/\\]|file:)", content):
                findings.append(f"{parser.CurrentLineNumber}: an absolute path")

    parser.StartElementHandler, parser.EndElementHandler, parser.CharacterDataHandler = start, end, text
    try:
        parser.Parse(data, True)
    except xml.parsers.expat.ExpatError as error:
        return [f"{path}: {error}"]
    if class_text != path.stem:
        findings.append(f"the class is {class_text}")
    if root != class_text:
        findings.append(f"the form's root is named {root}")
    return [f"{path}: {finding}" for finding in findings]


def main(arguments):
    if arguments not in ([], ["--fix"]):
        sys.exit(__doc__)
    apply = bool(arguments)
    findings = format_with(
        ["clang-format-14", *map(str, files("*.cpp", "*.h"))], ["--dry-run", "-Werror"], ["-i"], apply
    )
    # The configuration must come last: it takes all following names.
    cmake = ["cmake-format", *map(str, files("*.cmake", "CMakeLists.txt"))]
    config = ["-c", ".cmake-format.py"]
    findings += format_with(cmake, ["--check", *config], ["-i", *config], apply)
    for form in files("*.ui"):
        findings += check_form(form)
    print("\n".join(findings + [f"format: {len(findings)} finding(s)"]))
    if findings and not apply:
        print("cmake/check-format.py --fix formats C++ and CMake files; correct forms by hand")
    sys.exit(len(findings) > 0)


if __name__ == "__main__":
    main(sys.argv[1:])
