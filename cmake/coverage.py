#!/usr/bin/env python3
"""Prints line and branch coverage by folder after the tests have run in a coverage build.

    cmake/coverage.py <build folder> [--lines]

Ignores branches that only exceptions take and branches that the compiler adds. --lines lists the
lines of the library that no test reaches. Exits with 1 if a folder of the library falls short.
"""
import collections
import json
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
WANTED = 97.0
LIBRARY = ("common", "design", "analysis", "geometry", "solver", "model")


def percent(part, whole):
    return 100.0 * part / whole if whole else 100.0


def main(arguments):
    if not arguments or arguments[1:] not in ([], ["--lines"]):
        sys.exit(__doc__)
    build = pathlib.Path(arguments[0]).resolve()
    command = ["gcovr", "--root", ROOT, "--object-directory", build, "--json", "-j", "2"]
    command += ["--exclude-throw-branches", "--exclude-unreachable-branches", "--exclude", "build/", "--exclude", "tests/"]
    report = json.loads(subprocess.run([*map(str, command), str(build)], check=True, capture_output=True).stdout)

    counts = collections.defaultdict(lambda: [0, 0, 0, 0])
    missed = []
    for file in report["files"]:
        folder = file["file"].split("/")[0]
        count = counts[folder]
        for line in file["lines"]:
            if line.get("gcovr/noncode") or line.get("gcovr/excluded"):
                continue
            count[0] += line["count"] > 0
            count[1] += 1
            count[2] += sum(branch["count"] > 0 for branch in line["branches"])
            count[3] += len(line["branches"])
            if line["count"] == 0 and folder in LIBRARY:
                missed.append(f"{file['file']}:{line['line_number']}")

    print(f"{'folder':10} {'lines':>16} {'branches':>16}")
    short = []
    for folder, (lines, all_lines, branches, all_branches) in sorted(counts.items()):
        row = f"{lines:5}/{all_lines:<5}{percent(lines, all_lines):5.1f}% {branches:5}/{all_branches:<5}"
        print(f"{folder:10} {row}{percent(branches, all_branches):5.1f}%")
        if folder in LIBRARY and percent(lines, all_lines) < WANTED:
            short.append(folder)
    if "--lines" in arguments:
        print("\n".join(missed))
    if short:
        sys.exit(f"Less than {WANTED} % of the lines: {', '.join(short)}")


if __name__ == "__main__":
    main(sys.argv[1:])
