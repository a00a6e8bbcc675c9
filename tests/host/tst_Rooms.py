#!/usr/bin/env python3
"""Checks which folders include which: the arrows between them run one way."""
import collections
import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
PICTURE = "host/README.md shows which folders may include which"
DIALOGS = ["common", "design", "analysis", "geometry", "solver"]

# What a room's files may include besides files of their own room.
ROOMS = {
    "model": [],
    "dialogs": ["model"],
    "core": ["model"],
    "window": ["core", "dialogs", "model"],
    "program": ["window", "core", "model"],
}


def room(path):
    """The room that a source file belongs to, or None."""
    parts = path.relative_to(ROOT).parts
    if parts[0] == "host":
        return {"core": "core", "window": "window"}.get(parts[1], "program")
    return "dialogs" if parts[0] in DIALOGS else parts[0]


def sources():
    for top in ["model", *DIALOGS, "host"]:
        for path in sorted((ROOT / top).rglob("*")):
            if path.suffix in (".h", ".cpp"):
                yield path


HEADERS = {path.name: path for path in sources() if path.suffix == ".h"}


def includes(path):
    """The project's own headers that a file includes; generated ones have no path."""
    for name in re.findall(r'^#include "([^"]+)"', path.read_text(), re.MULTILINE):
        if name in HEADERS:
            yield HEADERS[name]


def cycle(graph):
    """The folders of one circle in the graph, or nothing."""
    done, path = set(), []

    def visit(node):
        if node in path:
            return path[path.index(node) :] + [node]
        if node in done:
            return None
        path.append(node)
        for target in sorted(graph[node]):
            found = visit(target)
            if found:
                return found
        done.add(path.pop())
        return None

    for node in sorted(graph):
        found = visit(node)
        if found:
            return found
    return None


class Rooms(unittest.TestCase):
    def test_each_header_has_a_name_of_its_own(self):
        paths = [path for path in sources() if path.suffix == ".h"]
        alike = sorted(str(path.relative_to(ROOT)) for path in paths if path != HEADERS[path.name])
        self.assertEqual(alike, [], "rename them: other headers have their names")

    def test_each_room_includes_only_the_rooms_below_it(self):
        wrong = [
            f"{path.relative_to(ROOT)} includes {header.name} of {room(header)}"
            for path in sources()
            for header in includes(path)
            if room(header) != room(path) and room(header) not in ROOMS[room(path)]
        ]
        self.assertEqual(wrong, [], f"{PICTURE}; a room may include {ROOMS}")

    def test_no_folder_is_in_a_circle_with_another(self):
        graph = collections.defaultdict(set)
        for path in sources():
            for header in includes(path):
                if room(path) == room(header) and path.parent != header.parent:
                    graph[str(path.parent.relative_to(ROOT))].add(str(header.parent.relative_to(ROOT)))
        self.assertIsNone(cycle(graph), f"{PICTURE}; these folders include each other in a circle")

    def test_a_circle_is_found(self):
        graph = collections.defaultdict(set, {"a": {"b"}, "b": {"c"}, "c": {"b"}})
        self.assertEqual(cycle(graph), ["b", "c", "b"])


if __name__ == "__main__":
    sys.exit(unittest.main())
