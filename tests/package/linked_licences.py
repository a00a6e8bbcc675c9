#!/usr/bin/env python3
"""Checks that the README's licence table names exactly the libraries that the given files link."""
import fnmatch
import pathlib
import re
import subprocess
import sys

readme = pathlib.Path(sys.argv[1]).read_text()
licences = readme.partition("## Licences of linked libraries")[2]
table = [line for line in licences.splitlines() if line.startswith("| `lib")]
patterns = {pattern for line in table for pattern in re.findall(r"`(.+?)`", line)}
linked = set()
for file in sys.argv[2:]:
    dynamic = subprocess.run(["readelf", "--dynamic", file], check=True, capture_output=True, text=True).stdout
    linked |= set(re.findall(r"\(NEEDED\).*\[(.+)\.so", dynamic))

linked = {name for name in linked if not name.startswith("libTarn")}
missing = [name for name in sorted(linked) if not any(fnmatch.fnmatchcase(name, pattern) for pattern in patterns)]
unused = [pattern for pattern in sorted(patterns) if not fnmatch.filter(linked, pattern)]
if not table or missing or unused:
    sys.exit(f"Linked, but not in the README: {missing}. In the README, but not linked: {unused}.")
