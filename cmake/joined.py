#!/usr/bin/env python3
"""Divides sources into groups that compile as one file each, because their local names do not clash.

    cmake/joined.py <source>...

Prints a list for CMake: the number of its group before each source.
"""
import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
SHIPPED = ("analysis", "common", "design", "geometry", "host", "model", "solver")
MOST_JOINED = 12


def names(text):
    """Returns the names that a source or header defines, found by the layout that clang-format gives them."""
    lines = "\n".join(line for line in text.splitlines() if re.match(r"[A-Za-z[]", line))
    found = re.findall(r"(?<![\w:])(?<!: )([A-PR-Za-z]\w*)(?=\(| = |\{|;|\[)|(?:enum class|class|struct|enum|using) (\w+)", lines)
    others = re.findall(r"^(?:#define|   ) ([A-Z]\w*)(?: = .*)?,?$", text, re.MULTILINE)
    return {name for pair in found for name in pair} - {"", "default", "void"} | {*others}


def entities(text):
    """Returns the names of a header except those of functions, which may have overloads."""
    lines = re.findall(r"^(?:class|struct|enum|using|(?:inline )?const)\b.*[^;]$|^.* = .*;$", text, re.MULTILINE)
    return names("\n".join(lines))


def is_alone(text, header_names):
    """Whether a source may clash with any header: by a whole namespace, or by a local name that a header defines."""
    local = "\n".join(re.findall(r"^namespace \{$(.*?)^\} // namespace$", text, re.MULTILINE | re.DOTALL))
    return bool(re.search("^using namespace", text, re.MULTILINE) or names(local) & header_names)


def joined(paths):
    """Divides the sources into groups whose names do not clash."""
    header_names = set().union(*(entities(header.read_text()) for part in SHIPPED for header in (ROOT / part).rglob("*.h")))
    alone, groups = [], []
    for path in paths:
        text = path.read_text()
        if is_alone(text, header_names):
            alone.append([path])
            continue
        taken_here = names(text)
        for members, taken in groups:
            if len(members) < MOST_JOINED and not taken_here & taken:
                members.append(path)
                taken |= taken_here
                break
        else:
            groups.append(([path], taken_here))
    return [members for members, _ in groups] + alone


if __name__ == "__main__":
    groups = joined([pathlib.Path(name) for name in sys.argv[1:]])
    print(";".join(f"{number};{source}" for number, group in enumerate(groups) for source in group))
