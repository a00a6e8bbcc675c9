#!/usr/bin/env python3
"""Checks the schema of projects: the samples and the example of the page follow it, other files do not."""
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

import jsonschema

SOURCE = pathlib.Path(os.environ["TARN_SOURCE_DIR"])
SCHEMA = json.loads((SOURCE / "docs/schemas/Project.schema.json").read_text(encoding="utf-8"))
CORPUS = SOURCE / "tests/fuzz/corpus/Project"
VALIDATOR = jsonschema.Draft202012Validator(SCHEMA)


def example():
    page = (SOURCE / "docs/project-file.md").read_text(encoding="utf-8")
    return json.loads(re.search(r"```json\n(.*?)```", page, flags=re.S).group(1))


def words(schema, found):
    """The names of all properties that a schema has."""
    if isinstance(schema, dict):
        if schema.get("type") == "object":
            found.update(schema.get("properties", {}))
        for part in schema.values():
            words(part, found)
    elif isinstance(schema, list):
        for part in schema:
            words(part, found)
    return found


def keys(value):
    if isinstance(value, dict):
        return set(value).union(*[keys(part) for part in value.values()])
    return set().union(*[keys(part) for part in value]) if isinstance(value, list) else set()


class ProjectFile(unittest.TestCase):
    def test_TheSchemaIsOne(self):
        jsonschema.Draft202012Validator.check_schema(SCHEMA)

    def test_GoodProjectsFollowIt(self):
        files = [*(SOURCE / "host/samples").glob("*.json"), *CORPUS.glob("good-*.json")]
        self.assertGreater(len(files), 4)
        for file in files:
            with self.subTest(file.name):
                VALIDATOR.validate(json.loads(file.read_text(encoding="utf-8")))

    def test_BadProjectsDoNot(self):
        for name in ("list", "newer", "unknown", "types", "analysis", "study"):
            with self.subTest(name):
                text = (CORPUS / f"bad-{name}.json").read_text(encoding="utf-8")
                self.assertFalse(VALIDATOR.is_valid(json.loads(text)))

    def test_TheExampleOfThePageHasEveryKey(self):
        VALIDATOR.validate(example())
        self.assertEqual(words(SCHEMA, set()) - keys(example()), set())

    def test_TheProgramReadsTheExample(self):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            (folder / "p.json").write_text(json.dumps(example()), encoding="utf-8")
            answer = subprocess.run(
                [os.environ["TARN_HOST_PROGRAM"], "--study", folder / "p.json", "--out",
                 folder / "out", "--runs", "1000"],
                stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, check=False)
            # It gets as far as the number of the runs.
            self.assertEqual((answer.returncode, answer.stderr),
                             (2, f"tarnhost: {folder}/p.json: the study has the runs 1 to 20, so "
                                 "1000-1000 cannot be run\n"))


if __name__ == "__main__":
    sys.exit(unittest.main())
